#include "qt/documents.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <chrono>

#include "base/runtime_error.h"
#include "qt/texts.h"
#include "spreadsheet/sheet_file.h"

namespace orby {
namespace {

constexpr int MostMilliseconds = 5000;

// Returns the desktop's program for a type of file. Returns an empty text if the desktop does not have the tool.
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

// The tool that opens files fails at once. If it succeeds, it ends at once or stays as long as the file is open. So the
// function waits only a moment for a failure, and the tool may outlive this program.
bool QtDocuments::Open(const std::string& path) {
  constexpr std::chrono::milliseconds MostToFail{1500};
  constexpr unsigned long MillisecondsBetween = 10;
  const QTemporaryDir folder;
  const QString ending = folder.filePath("ending");
  const QString script = R"(exec </dev/null >/dev/null 2>&1; xdg-open "$1"; echo $? >"$2")";
  if (!QProcess::startDetached("/bin/sh", {"-c", script, "sh", ToQt(path), ending})) return false;
  for (const QDeadlineTimer patience(MostToFail); !patience.hasExpired(); QThread::msleep(MillisecondsBetween)) {
    QFile file(ending);
    if (!file.open(QIODevice::ReadOnly)) continue;
    if (const QByteArray status = file.readAll(); status.endsWith('\n')) return status == "0\n";
  }
  return true;
}

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
