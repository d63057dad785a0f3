// The limit that the system may set on the size of a program's files.
#pragma once

namespace orby {

// Makes a write beyond the limit fail. Otherwise the system would end the program. Programs that this one starts are
// not affected.
void SurviveFileSizeLimit();

}  // namespace orby
