// Reports on paper: a text as sheets, each under a header that tells the file, the day, the page and the program.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/program.h"

namespace orby {

inline constexpr std::size_t PrintedLines = 60;  // of a sheet, its header among them
inline constexpr std::size_t PrintedWidth = 78;  // characters; the rest of a longer line stands on the next one

// The report pages first..last as one text. Throws RuntimeError 9 beyond the pages there are.
std::string JoinedPages(const Session& session, Integer first, Integer last);

// The text as the sheets it is printed on; one sheet with its header alone without any text. Lines end in CR LF. A
// heading in brackets stands on the same sheet as the first line under it.
std::vector<std::string> PrintSheets(const Program& program, std::string_view text);

// What a PDF file of the project is proposed to be called: its file's name without the extension.
std::string PrintedName(const Project& project);

// Prints the text, in the printer font, under the project's file name and title. Returns the file that was printed to,
// empty for paper. Throws RuntimeError 482.
std::string PrintText(Program& program, std::string_view text);

}  // namespace orby
