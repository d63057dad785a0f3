#include "reports/printing.h"

#include <utility>

#include "base/number_text.h"
#include "base/paths.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "core/dialog_helpers.h"
#include "core/shifted_texts.h"
#include "core/version.h"
#include "reports/line_kinds.h"

namespace orby {
namespace {

std::string DateText(const Date& date) {
  return NumberText(date.month) + "/" + NumberText(date.day) + "/" + NumberText(date.year);
}

// Returns a line with both texts, the second one at its end.
std::string TableRow(std::string_view left, std::string_view right) {
  return PadSpaces(left, PrintedWidth - CharacterCount(right)) + std::string(right);
}

// Returns the file name, shortened as in captions. A full path could overlap the page number.
std::string FileName(const Project& project) { return ShortenedPath(NameAfterSeparator(project.CurrentFile)); }

// Returns the title as typed, also when opening the file has shifted the header.
std::string TypedTitle(const Project& project) {
  const auto before = TextsBeforeTheShift({project.ProjectTitle, project.ProjectDescription});
  return before ? before->Title : project.ProjectTitle;
}

// Returns the file name and, if there is one, the title of the project.
std::string DocumentTitle(const Project& project) {
  const std::string title(Trim(TypedTitle(project)));
  return title.empty() ? FileName(project) : FileName(project) + " - " + title;
}

std::vector<std::string> PageHeader(const Program& program, std::size_t page) {
  return {TableRow("File Name: " + FileName(program.project), "Page: " + NumberText(static_cast<double>(page))),
          TableRow("Current Units: " + std::string(UnitSummary(program.project.WorkParms.Units)),
                   "Date/Time: " + DateText(program.platform.clock.Today())),
          std::string(ProgramTitle) + ", Version: " + VersionText(), std::string(PrintedWidth, '-'), std::string()};
}

// Returns the number of lines up to and including the first one that is neither a heading nor empty. Returns the number
// of all lines if there is none.
std::size_t LinesToContent(std::string_view text) {
  std::size_t lines = 0;
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    ++lines;
    if (!line.empty() && !IsHeading(line)) break;
  }
  return lines;
}

// Fills sheets line by line. Starts a new sheet with a header when the last one is full.
class SheetWriter {
 public:
  explicit SheetWriter(const Program& program) : program_(program) { StartSheet(); }

  void Text(std::string_view text) {
    while (!text.empty()) {
      const std::string_view line = TakeLine(text);
      if (IsHeading(line)) KeepTogether(1 + LinesToContent(text));
      Paragraph(line);
    }
  }
  std::vector<std::string> Take() { return std::exchange(sheets_, {}); }

 private:
  void StartSheet() {
    sheets_.emplace_back();
    lines_ = 0;
    for (const std::string& line : PageHeader(program_, sheets_.size())) Append(line);
    headerLines_ = lines_;
  }

  // Starts a new sheet if the next `count` lines fit there but not on this one.
  void KeepTogether(std::size_t count) {
    if (lines_ + count > PrintedLines && headerLines_ + count <= PrintedLines) StartSheet();
  }

  void Paragraph(std::string_view line) {
    for (;;) {
      const std::size_t cut = CharacterOffset(line, PrintedWidth);
      if (lines_ == PrintedLines) StartSheet();
      Append(line.substr(0, cut));
      if (cut == line.size()) return;
      line.remove_prefix(cut);
    }
  }

  void Append(std::string_view line) {
    sheets_.back() += line;
    sheets_.back() += LineEnd;
    ++lines_;
  }

  const Program& program_;
  std::vector<std::string> sheets_;
  std::size_t lines_ = 0;  // on the last sheet
  std::size_t headerLines_ = 0;
};

}  // namespace

std::string JoinedPages(const Session& session, Integer first, Integer last) {
  if (first < 0 || static_cast<std::size_t>(last) >= session.OutBuf.size()) throw RuntimeError(error_number::Subscript);
  std::string text;
  for (Integer page = first; page <= last; ++page) text += session.OutBuf[static_cast<std::size_t>(page)];
  return text;
}

std::vector<std::string> PrintSheets(const Program& program, std::string_view text) {
  SheetWriter sheets(program);
  sheets.Text(text);
  return sheets.Take();
}

std::string NameOfFile(std::string_view path) {
  const std::string_view name = NameAfterSeparator(path);
  const std::size_t point = name.rfind('.');
  return std::string(point == 0 ? name : name.substr(0, point));
}

std::string PrintedName(const Project& project) { return NameOfFile(project.CurrentFile); }

std::vector<std::string> ChartHeading(const Program& program, const std::string& title) {
  return {title, "File Name: " + DocumentTitle(program.project),
          "Date/Time: " + DateText(program.platform.clock.Today())};
}

std::string PrintText(Program& program, std::string_view text) {
  return program.platform.printer.PrintPages(PrintSheets(program, text), DocumentTitle(program.project),
                                             ChoosePrinterFont(program));
}

}  // namespace orby
