#include "desktop/starts.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QTextBrowser>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <optional>

#include "qt/boundary.h"
#include "qt/help_viewer.h"
#include "qt/main_view.h"
#include "shell/main_window.h"
#include "shell/start_up.h"

namespace orby {
namespace {

// Ends the program after the window has been painted.
class EndAfterPaint : public QObject {
 public:
  explicit EndAfterPaint(QWidget& window) { window.installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    return QObject::eventFilter(watched, event);
  }
};

// Ends the program after the widget of this name has been painted.
class EndAfterPaintOf : public QObject {
 public:
  explicit EndAfterPaintOf(const char* name) : name_(name) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && watched->objectName() == name_) {
      QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QString name_;
};

int EmptyStart() {
  QMainWindow window;
  const EndAfterPaint end(window);
  window.show();
  return QApplication::exec();
}

// The window of the program, as in a start by its user.
struct StartedWindow {
  StartedWindow() {
    StartProgram(run.program);
    run.program.session.settings.ShowDisclaim = 0;  // there is no user to accept it
    run.program.session.options.ShowInputScreenOnLoad = 0;
    window.emplace(run.program);
    window->Open();
    run.desktop.windows.ShowMain(*window, false);
    FurnishMainWindow(run.desktop.windows, *window);
  }

  Run run;
  std::optional<MainWindow> window;
};

int Start() {
  StartedWindow started;
  const EndAfterPaint end(started.run.desktop.windows.Main());
  return QApplication::exec();
}

int StartWithProject() {
  const std::string file = DiskFiles(".").AbsolutePath("examples/weak-roof.ORB");
  StartedWindow started;
  const EndAfterPaintOf end("picDesign");
  QMetaObject::invokeMethod(
      qApp, [&] { started.window->OpenFirstFiles(file); }, Qt::QueuedConnection);
  return QApplication::exec();
}

int EmptyBrowser() {
  QMainWindow window;
  auto* page = new QTextBrowser(&window);
  window.setCentralWidget(page);
  const EndAfterPaint end(*page->viewport());
  window.show();
  return QApplication::exec();
}

int Help() {
  QtHelpViewer viewer;
  if (!viewer.ShowContents("help/ORBY.CHM")) return EXIT_FAILURE;
  const EndAfterPaint end(*viewer.Window()->Browser().viewport());
  return QApplication::exec();
}

const std::map<std::string, int (*)()> Starts{{"empty-start", EmptyStart},
                                              {"start", Start},
                                              {"project", StartWithProject},
                                              {"empty-browser", EmptyBrowser},
                                              {"help", Help}};

}  // namespace

Run::Run() {
  SetErrorHandler([](const RuntimeError& error) {
    std::fputs(error.what(), stderr);
    std::_Exit(EXIT_FAILURE);
  });
}

bool IsStart(const std::string& name) { return Starts.contains(name); }

int RunStart(const std::string& name) { return Starts.at(name)(); }

}  // namespace orby
