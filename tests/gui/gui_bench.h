// The program's real windows, off the screen, on a platform that answers from scripts: what the tests of the view
// share.
//
// The test plays the user: it waits for modal windows with a script each, finds widgets by the names of their controls,
// and types and clicks. What a button starts goes through the event queue, so a press is followed by Settle().
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

// The doors of the desktop that a test opens in earnest, in place of the scripted ones.
struct RealDoors {
  MessageBoxes* boxes = nullptr;
  Clipboard* clipboard = nullptr;
  Fonts* fonts = nullptr;
  Printer* printer = nullptr;
  Documents* documents = nullptr;
  HelpViewer* help = nullptr;
  Downloads* downloads = nullptr;
  FileSystem* files = nullptr;
};

// The windows are real; all else answers from scripts, unless told otherwise.
struct GuiPlatform : RecordingPlatform {
  Platform Doors(const RealDoors& real = {});

  QtWindows screen;
};

// What the user does in the modal windows to come, in the order in which they appear. Each script has to close its
// window: one that leaves it open fails the test and the window is closed, as is a window that no script waits for.
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

// Lets all happen that waits in the event queue.
void Settle();

// The widget of a control, by its name; throws std::logic_error when the window has none of this kind.
template <class Widget = QWidget>
Widget& Find(const QWidget& window, std::string_view name) {
  auto* found = window.findChild<Widget*>(QString::fromStdString(std::string(name)));
  if (found == nullptr) throw std::logic_error("no widget " + std::string(name));
  return *found;
}

// The caption of a label, a button or a frame without the mark of its letter.
std::string CaptionOn(const QWidget& window, std::string_view name);

// The text that the widget shows: of a field, a list, a label, or what is written on a button or frame.
std::string TextOn(const QWidget& window, std::string_view name);

// The name of the widget that has the keyboard; the field of a list counts as the list, a tab as its set. Empty when no
// widget has it.
std::string FocusName();

// A key for the widget that has the keyboard; what it starts has happened when this returns.
void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

// The letter that goes to the widget of this name: its own, or that of the label whose field it is.
void PressLetterOf(const QWidget& window, std::string_view name);
// The letter of a tab.
void PressLetterOfTab(const QWidget& window, std::string_view name, int tab);

// Types over what stands in the widget that has the keyboard.
void Type(std::string_view text);

// Goes to the field and types over what stands in it.
void TypeInto(const QWidget& window, std::string_view name, std::string_view text);

// Clicks in the middle of the widget, and in the mark of a box or an option.
void Click(const QWidget& window, std::string_view name);

// An English design on the built-in lists. Run-time errors that reach the outermost boundary are kept, and fail the
// test unless it takes them.
class GuiTest : public testing::Test {
 protected:
  GuiTest() : GuiTest(RealDoors{}) {}
  explicit GuiTest(const RealDoors& real);
  ~GuiTest() override;

  // A new design; ultimate: grades are ultimate strengths.
  void StartDesign(UnitSystem units, StrengthBasis ultimate = StrengthBasis::Yield);

  // Shows the form until it is closed, the script playing the user.
  void Use(Form& form, ModalScripts::Script script);

  // The numbers of the errors that reached the boundary; they are forgotten then.
  std::vector<int> TakeErrors() { return std::exchange(errors_, {}); }

  void TearDown() override;

  GuiPlatform platform;
  Program program;
  ModalScripts scripts;

 private:
  std::vector<int> errors_;
};

}  // namespace orby::test
