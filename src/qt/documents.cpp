#include "qt/documents.h"

#include <QProcess>

#include "base/runtime_error.h"
#include "machine/desktop.h"
#include "qt/texts.h"
#include "spreadsheet/sheet_file.h"

namespace orby {
namespace {

constexpr int MostMilliseconds = 5000;

QStringList ToQtList(const std::vector<std::string>& texts) {
  QStringList list;
  for (const std::string& text : texts) list.append(ToQt(text));
  return list;
}

}  // namespace

bool QtDocuments::Open(const std::string& path) { return OpenOnDesktop(path); }

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
  if (!OpensSpreadsheets() || !Open(path)) {
    throw RuntimeError(error_number::Automation, ". The curve was written to " + path);
  }
}

}  // namespace orby
