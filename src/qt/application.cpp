#include "qt/application.h"

#include <QApplication>
#include <QEvent>
#include <QLocale>
#include <cstdlib>

#include "config/settings_sections.h"
#include "core/act.h"
#include "core/help.h"
#include "qt/boundary.h"
#include "qt/contrast.h"
#include "qt/desktop.h"
#include "qt/main_view.h"
#include "qt/pictures.h"
#include "qt/start_again.h"
#include "qt/update_server.h"
#include "shell/main_window.h"
#include "shell/start_up.h"

namespace orby {
namespace {

// Keeps its colours readable when the desktop's theme changes.
class ReadableApplication : public QApplication {
 public:
  using QApplication::QApplication;

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ApplicationPaletteChange) MakeSelectionReadable();
    return QApplication::event(event);
  }
};

// Starts the toolkit with the program's names. The user's arguments do not reach the toolkit.
class ToolkitStart {
 public:
  ToolkitStart() : application_(count_, names_) {
    QApplication::setApplicationName("orby");
    QApplication::setApplicationDisplayName(QString());
    QApplication::setDesktopFileName("orby");
    QApplication::setQuitOnLastWindowClosed(false);
    // The texts are English and the numbers have a decimal point on every desktop, so the layout is left to right, too.
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QLocale::setDefault(QLocale::c());
    MakeSelectionReadable();
  }

 private:
  int count_ = 1;
  char name_[5] = "orby";
  char* names_[2] = {name_, nullptr};
  ReadableApplication application_;
};

// Ends the process. Only the unsaved changes are written, for the next start.
[[noreturn]] void EndRun(Desktop& desktop, MainWindow* window, const RuntimeError& error) {
  std::optional<RunEnd> end;
  if (window != nullptr) end = window->LeaveAtOnce();
  desktop.windows.SetWaitCursor(false);
  if (desktop.boxes.Show(RunEndBox(error, end)) == StartAgainButton) {
    window->Release();
    if (!StartAgain(QCoreApplication::applicationFilePath(), end->Next)) {
      desktop.boxes.Show(
          {"The program could not be started again.", BoxIcon::Critical, std::string(ProgramTitle), {}, 0});
    }
  }
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

int RunProgram(FileSystem& files, FileTypes& fileTypes, const std::vector<std::string>& arguments) {
  const std::optional<Restart> restart = TakeRestart();
  const ToolkitStart toolkit;
  QApplication::setWindowIcon(ThemedIcon("orby"));
  Desktop desktop(files, fileTypes);
  Program program(desktop.AsPlatform());
  std::unique_ptr<MainWindow> window;
  SetErrorHandler([&](const RuntimeError& error) { EndRun(desktop, window.get(), error); });
  // Unsaved changes are kept for the next start.
  program.EndAtOnce = [&] {
    if (window) window->LeaveAtOnce();
    std::_Exit(EXIT_SUCCESS);
  };
  desktop.windows.HelpRequested = [&](const Form& form, const Control* control) {
    OpenHelpTopic(program, form, control);
  };
  program.session.UpdateServer = UpdateServer();
  desktop.windows.Places = &program.session.places;
  std::string file;
  RunGuarded([&] {
    file = CommandLineFile(program, arguments);
    While(Act::Start, [&] { StartProgram(program); });
    window = std::make_unique<MainWindow>(program, restart);
    window->Open();
    desktop.windows.ShowMain(*window, program.session.settings.MaxMainMenu == 1);
    FurnishMainWindow(desktop.windows, *window);
  });
  // Runs after the window has been painted.
  QMetaObject::invokeMethod(
      qApp, [&] { RunGuarded([&] { window->OpenFirstFiles(file); }); }, Qt::QueuedConnection);
  const int status = QApplication::exec();
  RunGuarded([&] { WriteWindowPlaces(program); });
  return status;
}

}  // namespace orby
