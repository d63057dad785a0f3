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
QString Filter(const QString& shown, const QString& pattern) { return shown + " (" + pattern + ")"; }

std::string Ask(const FileQuestion& question, QFileDialog::AcceptMode mode) {
  const QString extension = ToQt(question.defaultExtension);
  QFileDialog dialog(QApplication::activeWindow(), ToQt(question.title), ToQt(question.folder));
  dialog.setAcceptMode(mode);
  dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters({Filter(ToQt(question.filterName), "*." + extension), Filter("All Files (*.*)", "*")});
  dialog.setDefaultSuffix(extension);
  if (!question.fileName.empty()) dialog.selectFile(ToQt(question.fileName));
  if (auto* name = dialog.findChild<QLineEdit*>("fileNameEdit")) name->setMaxLength(LongestName);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
    throw RuntimeError(error_number::Cancelled);
  }
  return FromQt(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

}  // namespace

std::string QtFileDialogs::AskOpenName(const FileQuestion& question) { return Ask(question, QFileDialog::AcceptOpen); }
std::string QtFileDialogs::AskSaveName(const FileQuestion& question) { return Ask(question, QFileDialog::AcceptSave); }

}  // namespace orby
