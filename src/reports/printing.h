// Printed reports: a text on sheets. Each has a header with the file, the date, the page number and the program.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/program.h"

namespace orby {

inline constexpr std::size_t PrintedLines = 60;  // of a sheet, including its header
inline constexpr std::size_t PrintedWidth = 78;  // characters; the rest of a longer line is on the next line

// Returns the report pages first..last as one text. Throws RuntimeError 9 when there is no such page.
std::string JoinedPages(const Session& session, Integer first, Integer last);

// Returns the sheets of the text. An empty text has one sheet with only a header. Lines end with CR LF. A heading in
// brackets is on the same sheet as the first line below it.
std::vector<std::string> PrintSheets(const Program& program, std::string_view text);

// Returns the file name of a path without its folder and extension.
std::string NameOfFile(std::string_view path);

// Returns the name offered for a PDF file of the project: its file name without the extension.
std::string PrintedName(const Project& project);

// Returns the lines above a printed chart: its title, the file name and title of the project, and the date.
std::vector<std::string> ChartHeading(const Program& program, const std::string& title);

// Prints the text in the printer font. The name of the print is the file name and title of the project. Returns the
// path of the file that was printed to, or an empty path for paper. Throws RuntimeError 482 when it fails.
std::string PrintText(Program& program, std::string_view text);

}  // namespace orby
