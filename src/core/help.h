// The help of the program and its documents, in files of the program's folder.
//
// Each routine tells the user when its file is not there, or does not open.
#pragma once

#include <string_view>

#include "core/program.h"

namespace orby {

class Control;
class Form;

inline constexpr std::string_view HelpFile = "ORBY.CHM";
inline constexpr std::string_view ManualFile = "ORBY.PDF";

void OpenHelpContents(Program& program);
void OpenHelpIndex(Program& program);
// The topic of a form, or of one of its controls.
void OpenHelpTopic(Program& program, const Form& form, const Control* control = nullptr);

// Opens a document with the program that the desktop has for it. kind: how a message that it is missing names it
// ("Help file"); path: in the program's folder; shown: the name in that message, the whole path when empty.
void OpenDocument(Program& program, std::string_view kind, std::string_view path, std::string_view shown = {});

}  // namespace orby
