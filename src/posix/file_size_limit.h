// The limit that a system may set on the size of a program's files.
#pragma once

namespace orby {

// Makes a write beyond the limit an error of that write: the system would end the program otherwise. Programs that this
// one starts are not affected.
void SurviveFileSizeLimit();

}  // namespace orby
