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

// The dialog uses the pattern in the second brackets and shows the text before them.
QStringList NameFilters(const std::vector<FileFilter>& filters) {
  QStringList texts;
  for (const FileFilter& filter : filters) texts.append(ToQt(filter.name + " (" + filter.pattern + ")"));
  return texts;
}

// An existing file is opened by its exact name. Otherwise a name without extension gets the extension that makes it an
// existing file, in any case. While the user types there is no default extension, because the dialog would then
// highlight the longer name.
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

// Keeps the focus in the name field. A key may arrive there before the completion list has returned the focus. Without
// the focus the dialog would replace the typed text by the file that it highlights for it.
void KeepFocusInNameField(QFileDialog& dialog) {
  auto* name = NameField(dialog);
  if (name == nullptr) return;
  QObject::connect(name, &QLineEdit::textEdited, &dialog, [&dialog, name] {
    if (name->hasFocus()) return;
    QApplication::setActiveWindow(&dialog);
    name->setFocus();
  });
}

// Returns the extension for names without one while the filter is chosen: its own, if it has only one. The toolkit's
// dialog calls a filter by the text that it shows, the desktop's own dialog by the whole text.
QString SuffixOf(const QString& filter, const FileQuestion& question) {
  const auto chosen = std::ranges::find_if(question.filters, [&](const FileFilter& each) {
    return filter == ToQt(each.name) || filter == NameFilters({each}).constFirst();
  });
  const QString suffix = chosen == question.filters.end() ? QString() : QFileInfo(ToQt(chosen->pattern)).suffix();
  return suffix.isEmpty() || suffix.contains('*') ? ToQt(question.defaultExtension) : suffix;
}

// Returns the chosen name. The dialog cannot delete, rename or create anything on the disk.
std::string Answer(QFileDialog& dialog) {
  dialog.setOption(QFileDialog::ReadOnly);
  KeepFocusInNameField(dialog);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
    throw RuntimeError(error_number::Cancelled);
  }
  return PathFromQt(dialog.selectedFiles().constFirst());
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
  // The desktop's own dialog prefers the exact name by itself.
  if (NameField(dialog) == nullptr) dialog.setDefaultSuffix(ToQt(question.defaultExtension));
  return Ask(dialog, question);
}

std::string QtFileDialogs::AskSaveName(const FileQuestion& question) {
  QFileDialog dialog(QApplication::activeWindow(), ToQt(question.title), ToQt(question.folder));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDefaultSuffix(ToQt(question.defaultExtension));
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                   [&](const QString& filter) { dialog.setDefaultSuffix(SuffixOf(filter, question)); });
  return Ask(dialog, question);
}

std::string QtFileDialogs::AskFolder(const std::string& title, const std::string& folder) {
  QFileDialog dialog(QApplication::activeWindow(), ToQt(title), ToQt(folder));
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  return Answer(dialog);
}

}  // namespace orby
