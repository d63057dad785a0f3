#include "qt/documents.h"

#include <QProcess>

#include "base/runtime_error.h"
#include "qt/sheet_file.h"
#include "qt/texts.h"

namespace orby {
namespace {

constexpr int MostMilliseconds = 5000;

// A desktop without the tool has no program for any file.
QString ProgramFor(const QString& mimeType) {
  QProcess query;
  query.start("xdg-mime", {"query", "default", mimeType});
  if (!query.waitForFinished(MostMilliseconds)) return {};
  return QString::fromUtf8(query.readAllStandardOutput()).trimmed();
}

QStringList ToQtList(const std::vector<std::string>& texts) {
  QStringList list;
  for (const std::string& text : texts) list.append(ToQt(text));
  return list;
}

}  // namespace

bool QtDocuments::Open(const std::string& path) { return Start("xdg-open", {path}); }

bool QtDocuments::Start(const std::string& program, const std::vector<std::string>& arguments) {
  return QProcess::startDetached(ToQt(program), ToQtList(arguments));
}

bool QtDocuments::RunToEnd(const std::string& program, const std::vector<std::string>& arguments) {
  QProcess run;
  run.start(ToQt(program), ToQtList(arguments));
  return run.waitForFinished(MostMilliseconds) && run.exitStatus() == QProcess::NormalExit && run.exitCode() == 0;
}

void QtDocuments::OpenSheet(const Sheet& sheet, const std::string& path) {
  WriteSheetFile(sheet, path);
  const bool known = !ProgramFor("application/vnd.openxmlformats-officedocument.spreadsheetml.sheet").isEmpty();
  if (!known || !Open(path)) {
    throw RuntimeError(error_number::Automation, ". The curve was written to " + path);
  }
}

}  // namespace orby
