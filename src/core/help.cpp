#include "core/help.h"

#include <string>

#include "controls/control.h"
#include "controls/form.h"
#include "core/file_helpers.h"
#include "core/messages.h"
#include "core/shared_texts.h"

namespace orby {
namespace {

// Calls `open` with the full path of an existing file. `open` returns true if it has opened the file.
template <class Open>
void OpenFound(Program& program, std::string_view kind, std::string_view path, std::string_view shown,
               const Open& open) {
  const std::string wholePath = AppDirectory(program.platform.files).append(path);
  if (!FileExists(program, wholePath)) {
    const std::string name(shown.empty() ? wholePath : shown);
    ShowMessage(program, std::string(kind) + " (" + name + ") not available");
  } else if (!open(wholePath)) {
    ShowMessage(program, std::string(OperationFailed));
  }
}

std::string TopicOf(const Form& form, const Control& control) {
  return std::string(form.Name()).append(".").append(control.Name());
}

template <class Open>
void OpenHelp(Program& program, const Open& open) {
  OpenFound(program, "Help file", HelpFile, {}, open);
}

}  // namespace

void OpenHelpContents(Program& program) {
  OpenHelp(program, [&](const std::string& path) { return program.platform.help.ShowContents(path); });
}

void OpenHelpIndex(Program& program) {
  OpenHelp(program, [&](const std::string& path) { return program.platform.help.ShowIndex(path); });
}

void OpenHelpTopic(Program& program, const Form& form, const Control* control) {
  const std::string topic = control == nullptr ? std::string(form.Name()) : TopicOf(form, *control);
  OpenHelp(program, [&](const std::string& path) { return program.platform.help.ShowTopic(path, topic); });
}

std::string HelpSentence(const Program& program, const Control& control) {
  const std::string path = AppDirectory(program.platform.files).append(HelpFile);
  return program.platform.help.FirstSentence(path, TopicOf(control.Owner(), control));
}

void OpenDocument(Program& program, std::string_view kind, std::string_view path, std::string_view shown) {
  OpenFound(program, kind, path, shown,
            [&](const std::string& found) { return program.platform.documents.Open(found); });
}

}  // namespace orby
