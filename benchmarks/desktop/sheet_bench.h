// The PDF of a calculation sheet beside an empty one.
#pragma once

namespace orby {

// Makes the PDF of the sheet of a design with all support systems, and one of as many empty pages, in turn. Prints the
// median times in microseconds, then the number of pages and the bytes of both, in one line: those of the sheet before
// those of the empty pages. Returns the exit status.
int MeasureSheet();

}  // namespace orby
