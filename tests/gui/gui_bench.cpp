#include "gui/gui_bench.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>
#include <exception>

#include "core/dialog_helpers.h"
#include "design/catalogs.h"
#include "files/new_project.h"
#include "qt/boundary.h"

namespace orby::test {
namespace {

template <class Door>
Door& RealOr(Door* real, Door& scripted) {
  return real != nullptr ? *real : scripted;
}

void CloseByForce(QDialog& window) {
  window.close();
  Settle();
  if (window.isVisible()) window.done(QDialog::Rejected);
}

// Presses Alt and the mnemonic letter of the caption.
void PressLetter(const QString& caption) {
  const QKeySequence letter = QKeySequence::mnemonic(caption);
  if (letter.isEmpty()) throw std::logic_error("no letter in " + caption.toStdString());
  Press(letter[0].key(), Qt::AltModifier);
  // A button is down for a moment before it clicks.
  const auto isDown = [](QWidget* widget) {
    const auto* button = qobject_cast<QAbstractButton*>(widget);
    return button != nullptr && button->isDown();
  };
  const auto widgets = QApplication::allWidgets();
  const auto found = std::find_if(widgets.begin(), widgets.end(), isDown);
  if (found == widgets.end()) return;
  const QPointer<QWidget> pressed = *found;
  if (!QTest::qWaitFor([&] { return pressed == nullptr || !isDown(pressed); }))
    throw std::logic_error("a button stays down");
  Settle();
}

}  // namespace

Platform GuiPlatform::AsPlatform(const RealDoors& real) {
  return {RealOr<MessageBoxes>(real.boxes, boxes),
          RealOr<FileSystem>(real.files, files),
          fileDialogs,
          screen,
          RealOr<Fonts>(real.fonts, fonts),
          locale,
          clock,
          userFolders,
          RealOr<Clipboard>(real.clipboard, clipboard),
          RealOr<Printer>(real.printer, printer),
          RealOr<Documents>(real.documents, documents),
          RealOr<HelpViewer>(real.help, help),
          RealOr<Downloads>(real.downloads, downloads),
          fileTypes,
          RealOr<PictureFiles>(real.pictures, pictures)};
}

ModalScripts::ModalScripts() { qApp->installEventFilter(this); }
ModalScripts::~ModalScripts() { qApp->removeEventFilter(this); }

bool ModalScripts::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show) {
    if (auto* window = qobject_cast<QDialog*>(watched); window != nullptr && window->isModal()) {
      QTimer::singleShot(0, this, [this, shown = QPointer<QDialog>(window)] { Run(shown); });
    }
  }
  return QObject::eventFilter(watched, event);
}

void ModalScripts::Run(const QPointer<QDialog>& window) {
  if (window == nullptr || !window->isVisible()) return;
  const std::string title = window->windowTitle().toStdString();
  if (scripts_.empty()) {
    ADD_FAILURE() << "no script waits for the window '" << title << "'";
    return CloseByForce(*window);
  }
  const Script script = std::move(scripts_.front());
  scripts_.pop_front();
  try {
    const auto isActive = [&window] { return QApplication::activeWindow() == window; };
    if (!QTest::qWaitFor(isActive)) throw std::runtime_error("it never got the keyboard");
    script(*window);
  } catch (const std::exception& error) {
    ADD_FAILURE() << "the script of '" << title << "' failed: " << error.what();
  }
  Settle();
  if (window == nullptr || !window->isVisible()) return;
  ADD_FAILURE() << "the script of '" << title << "' left its window open";
  CloseByForce(*window);
}

void Settle() {
  constexpr int MostTurns = 50;  // a blinking cursor does not prolong the wait
  auto* events = QAbstractEventDispatcher::instance();
  for (int turn = 0; turn < MostTurns && events->processEvents(QEventLoop::AllEvents); ++turn) {
  }
  // These turns may have taken the news that the loop around them has ended. On Windows it would wait for the next
  // event.
  events->wakeUp();
}

std::string TextOn(const QWidget& window, std::string_view name) {
  const QWidget& widget = Find(window, name);
  if (const auto* area = qobject_cast<const QPlainTextEdit*>(&widget)) return area->toPlainText().toStdString();
  for (const char* property : {"currentText", "text", "title"}) {
    const QVariant text = widget.property(property);
    if (text.isValid()) return text.toString().toStdString();
  }
  throw std::logic_error("no text on " + std::string(name));
}

std::string CaptionOn(const QWidget& window, std::string_view name) {
  return QString::fromStdString(TextOn(window, name)).remove('&').toStdString();
}

std::string FocusName() {
  const QWidget* widget = QApplication::focusWidget();
  const auto isInner = [](const QString& name) { return name.isEmpty() || name.startsWith("qt_"); };
  while (widget != nullptr && isInner(widget->objectName())) widget = widget->parentWidget();
  return widget == nullptr ? std::string() : widget->objectName().toStdString();
}

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* widget = QApplication::focusWidget();
  if (widget == nullptr) widget = QApplication::activeWindow();
  if (widget == nullptr) throw std::logic_error("no window has the keyboard");
  // Window systems send the Delete key with a control character, but the test's own keys have none.
  const QString text = key == Qt::Key_Delete ? QString(QChar(127)) : QString();
  if (text.isEmpty()) {
    QTest::keyClick(widget, key, modifiers);
  } else {
    QTest::sendKeyEvent(QTest::Click, widget, key, text, modifiers);
  }
  Settle();
}

void PressLetterOf(const QWidget& window, std::string_view name) {
  const QWidget& widget = Find(window, name);
  const auto labels = window.findChildren<QLabel*>();
  const auto label = std::find_if(labels.begin(), labels.end(), [&](const QLabel* l) { return l->buddy() == &widget; });
  PressLetter(label != labels.end() ? (*label)->text() : widget.property("text").toString());
}

void PressLetterOfTab(const QWidget& window, std::string_view name, int tab) {
  PressLetter(Find<QTabWidget>(window, name).tabText(tab));
}

void Type(std::string_view text) {
  QWidget* widget = QApplication::focusWidget();
  if (widget == nullptr) throw std::logic_error("no field has the keyboard");
  QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
  if (text.empty()) return Press(Qt::Key_Delete);
  QTest::keyClicks(widget, QString::fromStdString(std::string(text)));
  Settle();
}

void TypeInto(const QWidget& window, std::string_view name, std::string_view text) {
  Find(window, name).setFocus(Qt::TabFocusReason);
  Settle();
  Type(text);
}

void Click(const QWidget& window, std::string_view name) {
  QWidget& widget = Find(window, name);
  constexpr QPoint Mark(8, 0);
  const QPoint middle = widget.rect().center();
  const bool hasMark =
      qobject_cast<QAbstractButton*>(&widget) != nullptr && dynamic_cast<QAbstractButton&>(widget).isCheckable();
  QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, hasMark ? QPoint(Mark.x(), middle.y()) : middle);
  Settle();
}

GuiTest::GuiTest(const RealDoors& real) : program(platform.AsPlatform(real)) {
  SetErrorHandler([this](const RuntimeError& error) { errors_.push_back(error.number()); });
  SetBuiltInCatalogs(program.session.catalogs);
  StartDesign(English);
}

GuiTest::~GuiTest() { SetErrorHandler(nullptr); }

void GuiTest::StartDesign(UnitSystem units, StrengthBasis ultimate) {
  program.session.settings.UnitsDefault = units;
  program.session.options.BoltGradeAsUltimateDefault = ultimate;
  FileNew(program, Keeping::Nothing);
  program.session.history = {};
}

void GuiTest::Use(Form& form, ModalScripts::Script script) {
  scripts.Add(std::move(script));
  ShowForm(program, form);
  Settle();
}

void GuiTest::TearDown() {
  EXPECT_EQ(scripts.Left(), 0U) << "windows that never appeared";
  EXPECT_THAT(errors_, testing::IsEmpty()) << "errors at the outermost boundary";
}

}  // namespace orby::test
