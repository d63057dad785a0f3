// The program's real windows, off the screen, on a platform with scripted answers.
//
// The test plays the user: it provides a script for each modal window to come, finds widgets by the names of their
// controls, and types and clicks. A button's action goes through the event queue, so call Settle() after a press.
#pragma once

#include <gmock/gmock.h>

#include <QDialog>
#include <QPointer>
#include <QString>
#include <QTest>
#include <QWidget>
#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/program.h"
#include "qt/bound_form.h"
#include "qt/windows.h"
#include "support/recording_platform.h"

namespace orby::test {

// Real services of the desktop that a test uses instead of the scripted ones.
struct RealDoors {
  MessageBoxes* boxes = nullptr;
  Clipboard* clipboard = nullptr;
  Fonts* fonts = nullptr;
  Printer* printer = nullptr;
  Documents* documents = nullptr;
  HelpViewer* help = nullptr;
  Downloads* downloads = nullptr;
  FileSystem* files = nullptr;
  PictureFiles* pictures = nullptr;
};

// The windows are real. Everything else has scripted answers, unless a test provides the real service.
struct GuiPlatform : RecordingPlatform {
  Platform AsPlatform(const RealDoors& real = {});

  QtWindows screen;
};

// The user's actions in the modal windows to come, in the order in which the windows appear. Each script must close its
// window. A window that stays open, or that has no script, is closed and fails the test.
class ModalScripts : public QObject {
 public:
  using Script = std::function<void(QDialog& window)>;

  ModalScripts();
  ~ModalScripts() override;

  void Add(Script script) { scripts_.push_back(std::move(script)); }
  std::size_t Left() const { return scripts_.size(); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Run(const QPointer<QDialog>& window);

  std::deque<Script> scripts_;
};

// Processes all pending events.
void Settle();

// Returns the widget of a control by its name. Throws std::logic_error if the window has none of this type.
template <class Widget = QWidget>
Widget& Find(const QWidget& window, std::string_view name) {
  auto* found = window.findChild<Widget*>(QString::fromStdString(std::string(name)));
  if (found == nullptr) throw std::logic_error("no widget " + std::string(name));
  return *found;
}

// Returns the caption of a label, button or frame without the mark of its letter.
std::string CaptionOn(const QWidget& window, std::string_view name);

// Returns the text that the widget shows: of a field, a list, a label, a button or a frame.
std::string TextOn(const QWidget& window, std::string_view name);

// Returns the name of the widget with the focus; empty if there is none. The field of a list counts as the list, and a
// tab as its set.
std::string FocusName();

// Sends a key to the widget with the focus, and processes the events that follow.
void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

// Presses the mnemonic letter of this widget or of its label.
void PressLetterOf(const QWidget& window, std::string_view name);
// Presses the mnemonic letter of a tab.
void PressLetterOfTab(const QWidget& window, std::string_view name, int tab);

// Replaces the text of the widget with the focus by typing.
void Type(std::string_view text);

// Moves the focus to the field and replaces its text by typing.
void TypeInto(const QWidget& window, std::string_view name, std::string_view text);

// Clicks the middle of the widget, or the mark of a check box or option.
void Click(const QWidget& window, std::string_view name);

// Begins with an English design and the built-in lists. Run-time errors that reach the outermost handler are recorded.
// They fail the test unless it takes them.
class GuiTest : public testing::Test {
 protected:
  GuiTest() : GuiTest(RealDoors{}) {}
  explicit GuiTest(const RealDoors& real);
  ~GuiTest() override;

  // Begins a new design with these units and this basis of the strengths.
  void StartDesign(UnitSystem units, StrengthBasis ultimate = StrengthBasis::Yield);

  // Shows the form until it is closed. The script plays the user.
  void Use(Form& form, ModalScripts::Script script);
  // Closes the window after the script, too.
  void Work(Form& form, const ModalScripts::Script& script) {
    Use(form, [&](QDialog& window) {
      script(window);
      Settle();
      if (window.isVisible()) window.close();
    });
  }

  // Returns the numbers of the recorded errors and clears them.
  std::vector<int> TakeErrors() { return std::exchange(errors_, {}); }

  void TearDown() override;

  GuiPlatform platform;
  Program program;
  ModalScripts scripts;

 private:
  std::vector<int> errors_;
};

}  // namespace orby::test
