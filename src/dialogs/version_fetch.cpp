#include "dialogs/version_fetch.h"

#include <utility>

#include "base/attempt.h"
#include "core/messages.h"

namespace orby {
namespace {

constexpr std::uint64_t MostVersionBytes = 64 * 1024;

VersionAnswer AnswerOf(Program& program, FetchEnd end) {
  VersionAnswer answer{end, std::nullopt};
  if (end != FetchEnd::Done) return answer;  // a file there now is from an earlier fetch
  Succeeds(
      [&] { answer.offered = ReadVersionFile(program.platform.files.ReadFile(VersionFilePath(program.session))); });
  if (answer.offered && answer.offered->hasOtherField) {
    AddHistoryLine(program, "Second field of the version file is no checksum and is ignored");
  }
  return answer;
}

}  // namespace

std::unique_ptr<Fetch> FetchVersion(Program& program, std::function<void(const VersionAnswer&)> then) {
  FetchEvents events;
  events.Finished = [&program, then = std::move(then)](const FetchOutcome& outcome) {
    then(AnswerOf(program, outcome.end));
  };
  return program.platform.downloads.Start(
      {VersionFileAddress(program.session), VersionFilePath(program.session), MostVersionBytes}, std::move(events));
}

}  // namespace orby
