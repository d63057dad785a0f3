#include "qt/documents.h"

#include <QProcess>

#include "base/runtime_error.h"
#include "qt/sheet_file.h"
#include "qt/texts.h"

namespace orby {
namespace {

// A desktop without the tool has no program for any file.
QString ProgramFor(const QString& mimeType) {
  constexpr int MostMilliseconds = 5000;
  QProcess query;
  query.start("xdg-mime", {"query", "default", mimeType});
  if (!query.waitForFinished(MostMilliseconds)) return {};
  return QString::fromUtf8(query.readAllStandardOutput()).trimmed();
}

bool OpenByDesktop(const std::string& path) { return QProcess::startDetached("xdg-open", {ToQt(path)}); }

}  // namespace

bool QtDocuments::Open(const std::string& path) { return OpenByDesktop(path); }

void QtDocuments::OpenSheet(const Sheet& sheet, const std::string& path) {
  WriteSheetFile(sheet, path);
  const bool known = !ProgramFor("application/vnd.openxmlformats-officedocument.spreadsheetml.sheet").isEmpty();
  if (!known || !OpenByDesktop(path)) {
    throw RuntimeError(error_number::Automation, ". The curve was written to " + path);
  }
}

}  // namespace orby
