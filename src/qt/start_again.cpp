#include "qt/start_again.h"

#include <QProcess>

namespace orby {
namespace {

// A path need not be UTF-8, so the environment holds its bytes.
constexpr const char* Variable = "ORBY_START_AGAIN";

}  // namespace

bool StartAgain(const QString& path, const Restart& restart) {
  qputenv(Variable, QByteArray::fromStdString(RestartNote(restart)));
  const bool started = QProcess::startDetached(path, {});
  qunsetenv(Variable);
  return started;
}

std::optional<Restart> TakeRestart() {
  if (!qEnvironmentVariableIsSet(Variable)) return std::nullopt;
  const std::string note = qgetenv(Variable).toStdString();
  qunsetenv(Variable);
  return ReadRestartNote(note);
}

}  // namespace orby
