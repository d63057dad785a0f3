#include "qt/file_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <algorithm>

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

// A file that is there is opened by the name that it has; else a name without an extension gets the one that makes it
// the name of a file, in capitals or not. While one types there is none: the dialog would highlight the longer name.
class OpenDialog : public QFileDialog {
 public:
  OpenDialog(QWidget* parent, const FileQuestion& question)
      : QFileDialog(parent, ToQt(question.title), ToQt(question.folder)), extension_(ToQt(question.defaultExtension)) {}

 protected:
  void accept() override {
    for (const QString& suffix : {QString(), extension_.toLower(), extension_}) {
      setDefaultSuffix(suffix);
      if (std::ranges::all_of(selectedFiles(), [](const QString& file) { return QFileInfo::exists(file); })) break;
    }
    QFileDialog::accept();
    if (isVisible()) setDefaultSuffix({});
  }

 private:
  QString extension_;
};

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

// The dialog names a file; what lies on the disk is not for it to delete, rename or make.
std::string Answer(QFileDialog& dialog) {
  dialog.setOption(QFileDialog::ReadOnly);
  KeepKeyboard(dialog);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
    throw RuntimeError(error_number::Cancelled);
  }
  return FromQt(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

std::string Ask(QFileDialog& dialog, const FileQuestion& question) {
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters(NameFilters(question.filters));
  if (!question.fileName.empty()) dialog.selectFile(ToQt(question.fileName));
  if (auto* name = NameField(dialog)) name->setMaxLength(LongestName);
  return Answer(dialog);
}

}  // namespace

std::string QtFileDialogs::AskOpenName(const FileQuestion& question) {
  OpenDialog dialog(QApplication::activeWindow(), question);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return Ask(dialog, question);
}

std::string QtFileDialogs::AskSaveName(const FileQuestion& question) {
  QFileDialog dialog(QApplication::activeWindow(), ToQt(question.title), ToQt(question.folder));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDefaultSuffix(ToQt(question.defaultExtension));
  return Ask(dialog, question);
}

std::string QtFileDialogs::AskFolder(const std::string& title, const std::string& folder) {
  QFileDialog dialog(QApplication::activeWindow(), ToQt(title), ToQt(folder));
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  return Answer(dialog);
}

}  // namespace orby
