#include "shell/run_end.h"

#include "base/text.h"
#include "core/act.h"
#include "core/program.h"

namespace orby {
namespace {

std::string_view KeptWords(KeptWork kept) {
  switch (kept) {
    case KeptWork::All: return "Your project is kept with its unsaved changes.";
    case KeptWork::Earlier: return "Your project is kept, but without your last changes: they could not be written.";
    case KeptWork::Nothing: return "Your unsaved changes are not kept: they could not be written.";
    case KeptWork::NoneNeeded: break;
  }
  return "Your project has no unsaved changes.";
}

std::string_view NextWords(const Restart& next) {
  if (next.Slot != 0) return "Start Again brings it back now; after OK the next start offers it.";
  if (!next.File.empty()) return "Start Again opens its file again.";
  return "Start Again begins with a new project.";
}

}  // namespace

// A path begins with a separator, so it cannot be mistaken for a slot.
std::string RestartNote(const Restart& restart) {
  return restart.Slot == 0 && !restart.File.empty() ? restart.File : std::to_string(restart.Slot);
}

Restart ReadRestartNote(std::string_view note) {
  if (note.size() == 1 && note.front() >= '0' && note.front() <= '9') return {note.front() - '0', {}};
  return {0, std::string(note)};
}

MessageBox RunEndBox(const RuntimeError& error, const std::optional<RunEnd>& end) {
  const std::string gap = std::string(LineEnd) + std::string(LineEnd);
  std::string text = "Run-time error '" + std::to_string(error.number()) + "':" + gap;
  text += error.description();
  text += gap + "The error happened ";
  text += error.circumstance().empty() ? UnnamedAct : error.circumstance();
  text += '.';
  MessageBox box{{}, BoxIcon::Critical, std::string(ProgramTitle), {}, 0, {}};
  if (end) {
    text += gap;
    text += KeptWords(end->Kept);
    text += LineEnd;
    text += NextWords(end->Next);
    box.style.Buttons = BoxButtons::OkRetry;
    box.captions = {"OK", "Start Again"};
  }
  box.text = std::move(text);
  return box;
}

}  // namespace orby
