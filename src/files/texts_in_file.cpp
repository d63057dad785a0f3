#include "files/texts_in_file.h"

#include <algorithm>
#include <initializer_list>

#include "base/attempt.h"
#include "base/text.h"
#include "core/description.h"
#include "files/description_reader.h"

namespace orby {
namespace {

constexpr std::string_view LineAfterEnd = "45";

std::string Joined(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines) text.append(line).append(LineEnd);
  return text;
}

// Reads the lines as a description followed by its end marker. Returns nothing when the reader does not find the end
// there.
std::optional<std::string> ReadAsDescription(std::string_view lines) {
  const std::string bytes = std::string(lines) + Joined({EndOfDescription, LineAfterEnd});
  std::string description;
  std::string after;
  const bool isRead = Succeeds([&] {
    ItemReader reader(bytes);
    Integer count = 0;
    ReadMarkedDescription(reader, description, count);
    after = reader.ReadLine();
  });
  return isRead && after == LineAfterEnd ? std::optional(description) : std::nullopt;
}

bool IsMarker(std::string_view line) { return line == StartOfDescription || line == EndOfDescription; }

std::string_view WithoutLeadingBlanks(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  return line;
}

std::string_view ReasonFor(std::string_view line) {
  if (IsMarker(line)) return "The project file uses this text as a mark of its own.";
  if (line.starts_with('"')) {
    return "A quotation mark at the start of a line joins everything up to the next quotation mark, and is lost "
           "itself.";
  }
  return "A comma splits the line in two there.";
}

bool LineReadsBack(std::string_view line) {
  const auto read = ReadAsDescription(Joined({"first", line}));
  return read == Joined({"first", WithoutLeadingBlanks(line)});
}

// When the file is opened the title becomes the first line of the description, and after the next save and opening a
// later line. A comma splits it there, but TextsBeforeTheShift joins the parts.
bool TitleReadsBack(std::string_view title) {
  return !IsMarker(title) && ReadAsDescription(Joined({"first", title})).has_value() &&
         !WithoutLeadingBlanks(title).starts_with('"');
}

}  // namespace

std::optional<LostLine> LineThatWouldNotComeBack(const ProjectTexts& texts) {
  if (!TitleReadsBack(texts.Title)) return LostLine{texts.Title, ReasonFor(WithoutLeadingBlanks(texts.Title))};
  const std::string description = NormalizedDescription(texts.Description);
  for (std::string_view rest = description; !rest.empty();) {
    const std::string_view line = TakeLine(rest);
    if (!LineReadsBack(line)) return LostLine{std::string(line), ReasonFor(WithoutLeadingBlanks(line))};
  }
  return std::nullopt;
}

}  // namespace orby
