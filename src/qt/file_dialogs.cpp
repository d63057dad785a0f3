#include "qt/file_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>

#include "base/runtime_error.h"
#include "qt/texts.h"

namespace orby {
namespace {

constexpr int LongestName = 300;

// The pattern in the second brackets is for the dialog alone; what stands before them is shown.
QStringList NameFilters(const std::vector<FileFilter>& filters) {
  QStringList texts;
  for (const FileFilter& filter : filters) texts.append(ToQt(filter.name + " (" + filter.pattern + ")"));
  return texts;
}

QLineEdit* NameField(const QFileDialog& dialog) { return dialog.findChild<QLineEdit*>("fileNameEdit"); }

// A key may reach the name while the list of completions is still handing the keyboard back. Without the keyboard, the
// dialog would put the file that it highlights for the typed part in the place of what is typed.
void KeepKeyboard(QFileDialog& dialog) {
  auto* name = NameField(dialog);
  if (name == nullptr) return;
  QObject::connect(name, &QLineEdit::textEdited, &dialog, [&dialog, name] {
    if (name->hasFocus()) return;
    QApplication::setActiveWindow(&dialog);
    name->setFocus();
  });
}

std::string Answer(QFileDialog& dialog) {
  KeepKeyboard(dialog);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
    throw RuntimeError(error_number::Cancelled);
  }
  return FromQt(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

std::string Ask(const FileQuestion& question, QFileDialog::AcceptMode mode) {
  QFileDialog dialog(QApplication::activeWindow(), ToQt(question.title), ToQt(question.folder));
  dialog.setAcceptMode(mode);
  dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters(NameFilters(question.filters));
  // A file that is there is opened by the name that it has.
  if (mode == QFileDialog::AcceptSave) dialog.setDefaultSuffix(ToQt(question.defaultExtension));
  if (!question.fileName.empty()) dialog.selectFile(ToQt(question.fileName));
  if (auto* name = NameField(dialog)) name->setMaxLength(LongestName);
  return Answer(dialog);
}

}  // namespace

std::string QtFileDialogs::AskOpenName(const FileQuestion& question) { return Ask(question, QFileDialog::AcceptOpen); }
std::string QtFileDialogs::AskSaveName(const FileQuestion& question) { return Ask(question, QFileDialog::AcceptSave); }

std::string QtFileDialogs::AskFolder(const std::string& title, const std::string& folder) {
  QFileDialog dialog(QApplication::activeWindow(), ToQt(title), ToQt(folder));
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  return Answer(dialog);
}

}  // namespace orby
