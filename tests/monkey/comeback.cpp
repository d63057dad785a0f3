#include "monkey/comeback.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <map>
#include <optional>

#include "files/recovery_file.h"
#include "monkey/hand.h"
#include "monkey/sight.h"

namespace orby::monkey {
namespace {

constexpr int StepsToSettle = 20;
constexpr int MostSteps = 4000;

// The dialogs that edit the design, and the menu items that open them.
struct Editor {
  const char* form;
  const char* action;
};
constexpr Editor Editors[] = {{"frmPENVParm", "mnuEditItem_1"}, {"frmTULKCost", "mnuEditItem_2"}};

QWidget* WindowNamed(const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == name) return window;
  }
  return nullptr;
}

// Returns the number at the start of the text, 0 if there is none, and nothing if no design can hold it.
std::optional<double> NumberOf(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  constexpr double FirstTooLarge = 3.4028235677973366e38;  // all below round to what a Single holds
  double value = 0;
  const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (problem == std::errc::result_out_of_range || std::abs(value) >= FirstTooLarge) return std::nullopt;
  return problem == std::errc() ? value : 0;
}

bool IsNumber(std::string_view text) { return text.find_first_not_of("0123456789.-+eE ") == std::string_view::npos; }

// If no design can hold a text, the last valid one is kept.
bool Fits(std::string_view text) { return !IsNumber(text) || NumberOf(text).has_value(); }

bool FitsWhole(std::string_view text) {
  constexpr double LargestWhole = 32767;
  return !IsNumber(text) || std::abs(NumberOf(text).value_or(FLT_MAX)) <= LargestWhole;
}

// Returns true if a newly opened dialog shows `before` as `after`.
bool IsSame(std::string_view after, std::string_view before) {
  if (after == before) return true;
  if (!IsNumber(after) || !IsNumber(before)) return false;
  const auto point = after.find('.');
  const double decimals = point == std::string_view::npos ? 0 : static_cast<double>(after.size() - point - 1);
  const double was = NumberOf(before).value_or(0);
  return std::abs(NumberOf(after).value_or(0) - was) <= 0.5001 * std::pow(10.0, -decimals) + std::abs(was) * 1e-6;
}

// A number field keeps the number at the start of its text, or 0 if there is none.
bool IsNumberOf(std::string_view after, const ShownField& field) {
  const std::string_view before = field.text.View();
  const bool isName = field.name.View().find("SupportType") != std::string_view::npos;
  return !isName && !IsNumber(before) && IsNumber(after) && NumberOf(after) == NumberOf(before);
}

// Returns true if the field may be restored with this text.
bool IsBack(const ShownField& field, std::string_view after) {
  // The text of a name may look like a number.
  return after == field.typed.View() || IsNumberOf(after, field) || IsSame(after, field.text.View()) ||
         IsSame(after, field.settled.View()) || (!FitsWhole(field.text.View()) && IsSame(after, field.whole.View()));
}

using Texts = std::map<std::string, std::string>;

// Returns the contents of the window's fields, lists, boxes and options.
Texts FieldsOf(const QWidget& window) {
  Texts fields;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    const std::string name = widget->objectName().toStdString();
    if (name.empty() || name.starts_with("qt_")) continue;
    if (const auto* line = qobject_cast<const QLineEdit*>(widget)) {
      if (!line->isReadOnly()) fields[name] = line->text().toStdString();
    } else if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
      fields[name] = combo->currentText().toStdString();
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget); button && button->isCheckable()) {
      fields[name] = button->isChecked() ? "on" : "off";
    }
  }
  return fields;
}

// Returns the field of this name. It is at `likely` unless the window has changed.
ShownField& FieldNamed(ShownProject& shown, const std::string& name, int likely) {
  if (likely < shown.fieldCount) {
    ShownField& field = shown.fields[static_cast<std::size_t>(likely)];
    if (field.name.View() == name) return field;
  }
  for (int i = 0; i < shown.fieldCount; ++i) {
    ShownField& field = shown.fields[static_cast<std::size_t>(i)];
    if (field.name.View() == name) return field;
  }
  const int last = static_cast<int>(shown.fields.size()) - 1;
  ShownField& field = shown.fields[static_cast<std::size_t>(std::min(shown.fieldCount, last))];
  if (shown.fieldCount < last) ++shown.fieldCount;
  field = {};
  field.name.Set(name);
  return field;
}

QString FileInCaption(const QWidget& mainWindow) {
  QString file = mainWindow.windowTitle();
  if (file.endsWith('*')) file.chop(1);
  return file;
}

std::string KeptTitle() {
  const QDir folder(QDir::homePath() + "/Documents/MyStrataDesk/ORBY/Temp");
  for (const QString& name : folder.entryList({"~recover*.tmp"}, QDir::Files)) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly)) continue;
    if (const auto project = ReadRecovery(file.readAll().toStdString())) return project->ProjectTitle;
  }
  return {};
}

bool HasKept() {
  const QDir folder(QDir::homePath() + "/Documents/MyStrataDesk/ORBY/Temp");
  return !folder.entryList({"~recover*.tmp"}, QDir::Files).isEmpty();
}

}  // namespace

void NoteShown(ShownProject& shown) {
  const QWidget* editor = nullptr;
  for (const Editor& known : Editors) {
    QWidget* window = WindowNamed(known.form);
    if (window != nullptr && window->isVisible()) editor = window;
  }
  if (editor == nullptr) {
    shown.form.Set({});
    shown.fieldCount = 0;
    return;
  }
  const std::string form = editor->objectName().toStdString();
  if (shown.form.View() != form) {
    shown.form.Set(form);
    shown.fieldCount = 0;
  }
  const Texts fields = FieldsOf(*editor);
  bool allFit = true;
  int at = 0;
  for (const auto& [name, text] : fields) {
    ShownField& field = FieldNamed(shown, name, at++);
    field.typed.Set(text);
    if (Fits(text)) {
      field.text.Set(text);
    } else {
      allFit = false;
    }
    if (FitsWhole(text)) field.whole.Set(text);
  }
  if (!allFit) return;
  at = 0;
  for (const auto& [name, text] : fields) FieldNamed(shown, name, at++).settled.Set(text);
}

void NoteEndedProject(ShownProject& shown, bool refused, bool half) {
  shown.awaited = true;
  shown.refused = refused;
  shown.half = half;
  // An action may begin before the previous result is shown, such as a rating from the estimator.
  if (const QWidget* editor = WindowNamed(std::string(shown.form.View()).c_str())) {
    int at = 0;
    for (const auto& [name, text] : FieldsOf(*editor)) FieldNamed(shown, name, at++).typed.Set(text);
  }
  shown.unsaved = HasKept();
  if (const QWidget* main = WindowNamed("frmMain")) shown.file.Set(FileInCaption(*main).toStdString());
  shown.title.Set(KeptTitle());
}

// Answers the window if it is a question. Returns true if it did.
bool Comeback::AnswerQuestion(QWidget& window) {
  if (window.objectName() == "frmDisclaimer") {
    window.findChild<QAbstractButton*>("Command1")->click();
    return true;
  }
  auto* box = qobject_cast<QMessageBox*>(&window);
  if (box == nullptr) return false;
  const bool recovers = box->text().contains("ecover");
  if (recovers && byItself_ && !asked_) find_("Start Again asks before it recovers", box->text().toStdString());
  asked_ = asked_ || recovers;
  for (QAbstractButton* button : box->buttons()) {
    const QString caption = PlainCaption(button->text());
    if (caption == (recovers ? "Yes" : "Cancel") || caption == "Recover" || caption == "OK") {
      button->click();
      return true;
    }
  }
  box->buttons().back()->click();
  return true;
}

void Comeback::CompareCaption(const QWidget& mainWindow) {
  // After the other button, a project without changes is not opened again.
  if (shown_.refused || (!shown_.unsaved && !byItself_)) return;
  const std::string file = FileInCaption(mainWindow).toStdString();
  if (file != shown_.file.View() || mainWindow.windowTitle().endsWith('*') != shown_.unsaved) {
    find_("the project is not back: its name", "shown before: " + std::string(shown_.file.View()) +
                                                   "\nshown now: " + mainWindow.windowTitle().toStdString());
  }
}

void Comeback::LookAtFields(QWidget& mainWindow) {
  for (const Editor& editor : Editors) {
    if (shown_.half || shown_.form.View() != editor.form) continue;
    QWidget* window = WindowNamed(editor.form);
    if (window == nullptr || !window->isVisible()) {
      if (patience_++ % StepsToSettle == 0) mainWindow.findChild<QAction*>(editor.action)->trigger();
      return;
    }
    std::string lost;
    const Texts now = FieldsOf(*window);
    for (int i = 0; i < shown_.fieldCount; ++i) {
      const ShownField& field = shown_.fields[static_cast<std::size_t>(i)];
      const auto found = now.find(std::string(field.name.View()));
      if (found == now.end() || IsBack(field, found->second)) continue;
      lost += found->first + " was '" + std::string(field.text.View()) + "', is '" + found->second + "'\n";
    }
    if (!lost.empty()) find_("the project is not back: fields of " + std::string(editor.form), lost);
    window->close();
  }
  stage_ = Stage::Title;
  patience_ = 0;
}

void Comeback::LookAtTitle(QWidget& mainWindow) {
  if (!shown_.unsaved) return End();
  QWidget* window = WindowNamed("frmTULKDesc");
  if (window == nullptr || !window->isVisible()) {
    if (patience_++ % StepsToSettle == 0) mainWindow.findChild<QAction*>("mnuEditItem_0")->trigger();
    return;
  }
  const std::string title = window->findChild<QLineEdit*>("Text1")->text().toStdString();
  if (title != shown_.title.View()) {
    find_("the project is not back: its title", "kept: " + std::string(shown_.title.View()) + "\nshown now: " + title);
  }
  window->close();
  End();
}

void Comeback::Step() {
  if (++steps_ > MostSteps) {
    std::string windows;
    for (const QWidget* window : WindowsOnView()) windows += WindowName(*window).toStdString() + " ";
    find_("the project is not back: the program does not get ready", "windows: " + windows);
    return End();
  }
  QWidget* window = QApplication::activeModalWidget();
  if (window != nullptr && AnswerQuestion(*window)) return;
  QWidget* main = WindowNamed("frmMain");
  if (main == nullptr) return;
  if (stage_ == Stage::Starting) {
    if (++patience_ < StepsToSettle) return;
    CompareCaption(*main);
    stage_ = Stage::Field;
    patience_ = 0;
  }
  const bool wanted = window == nullptr ||
                      (stage_ == Stage::Field && window->objectName() == shown_.form.View().data()) ||
                      (stage_ == Stage::Title && window->objectName() == "frmTULKDesc");
  if (!wanted) {
    window->close();
  } else if (stage_ == Stage::Field) {
    LookAtFields(*main);
  } else {
    LookAtTitle(*main);
  }
}

}  // namespace orby::monkey
