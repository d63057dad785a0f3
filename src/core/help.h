// The help and the documents of the program, which are files in its folder.
//
// Each function shows a message when its file is missing or does not open.
#pragma once

#include <string>
#include <string_view>

#include "core/program.h"

namespace orby {

class Control;
class Form;

inline constexpr std::string_view HelpFile = "ORBY.CHM";
inline constexpr std::string_view ManualFile = "ORBY.PDF";

void OpenHelpContents(Program& program);
void OpenHelpIndex(Program& program);
// Opens the topic of a form, or of one of its controls.
void OpenHelpTopic(Program& program, const Form& form, const Control* control = nullptr);

// Returns the first sentence of the topic of a control. Empty if the help file is missing or has no such topic.
std::string HelpSentence(const Program& program, const Control& control);

// Opens a document with the program that the desktop has for it. `path` is in the folder of the program. When it is
// missing, the message calls it by `kind` ("Help file") and by the name `shown`, or by its full path if `shown` is
// empty.
void OpenDocument(Program& program, std::string_view kind, std::string_view path, std::string_view shown = {});

}  // namespace orby
