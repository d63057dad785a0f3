// The main window on the screen, and helpers for menus and windows.
#pragma once

#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QTemporaryDir>
#include <fstream>
#include <functional>
#include <iterator>

#include "gui/gui_bench.h"
#include "qt/main_view.h"
#include "qt/texts.h"
#include "shell/main_window.h"

namespace orby::test {

inline std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Sends a key to the open menu, else to the widget with the focus.
inline void PressInMenu(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  if (QWidget* menu = QApplication::activePopupWidget()) {
    QTest::keyClick(menu, key, modifiers);
    Settle();
  } else {
    Press(key, modifiers);
  }
}

// Returns the visible window of this name, or null.
inline QWidget* WindowOnView(std::string_view name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == ToQt(name) && window->isVisible()) return window;
  }
  return nullptr;
}

// The main window at the start of a run, with a new design. Opening a file opens no input dialog.
class MainViewTest : public GuiTest {
 protected:
  // `prepare` is called before the window is on the screen.
  explicit MainViewTest(const RealDoors& real = {}, const std::function<void(GuiPlatform&)>& prepare = nullptr)
      : GuiTest(real) {
    if (prepare) prepare(platform);
    program.session.folders.ProgramTemporary = "/home/user/Documents/Orby/Temp/";
    program.session.IniFilePath = "/home/user/Documents/Orby/ORBY.INI";
    program.session.options.ShowInputScreenOnLoad = 0;
    program.session.settings.ShowDisclaim = 0;
    model.Open();
    platform.screen.ShowMain(model, false);
    FurnishMainWindow(platform.screen, model);
    View().activateWindow();
    Settle();
    if (!QTest::qWaitForWindowActive(&View())) throw std::logic_error("the main window never got the keyboard");
  }
  ~MainViewTest() override { model.Close(); }

  QMainWindow& View() { return platform.screen.Main(); }
  std::string Caption() { return View().windowTitle().toStdString(); }

  // Copies an example into the in-memory files and returns its path.
  std::string Example(const std::string& name) {
    const std::string path = PathFromQt(EXAMPLES_DIR "/" + ToQt(name));
    platform.files.files[path] = BytesOf(path);
    return path;
  }

  // Opens the file by the command and the dialog.
  void OpenFile(const std::string& path) {
    platform.fileDialogs.answers.push_back(path);
    Press(Qt::Key_O, Qt::ControlModifier);
  }

  // Makes a change without saving it.
  void EditDescription(const std::string& title) {
    scripts.Add([title](QDialog& window) {
      TypeInto(window, "Text1", title);
      Press(Qt::Key_Enter);
    });
    Press(Qt::Key_I, Qt::AltModifier);
    PressInMenu(Qt::Key_D);
  }

  MainWindow model{program};
};

}  // namespace orby::test
