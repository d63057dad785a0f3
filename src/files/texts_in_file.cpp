#include "files/texts_in_file.h"

#include <algorithm>
#include <initializer_list>

#include "base/attempt.h"
#include "base/text.h"
#include "core/description.h"
#include "files/description_reader.h"

namespace orby {
namespace {

constexpr std::string_view LineBehind = "45";

std::string Joined(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines) text.append(line).append(LineEnd);
  return text;
}

// What the reader makes of these lines of a file as far as the end of a description; nothing when it does not find that
// end where it is.
std::optional<std::string> ReadAsDescription(std::string_view lines) {
  const std::string bytes = std::string(lines) + Joined({EndOfDescription, LineBehind});
  std::string description;
  std::string behind;
  const bool isRead = Succeeds([&] {
    ItemReader reader(bytes);
    Integer count = 0;
    ReadMarkedDescription(reader, description, count);
    behind = reader.ReadLine();
  });
  return isRead && behind == LineBehind ? std::optional(description) : std::nullopt;
}

bool IsMarker(std::string_view line) { return line == StartOfDescription || line == EndOfDescription; }

std::string_view WithoutBlanksInFront(std::string_view line) {
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

bool LineComesBack(std::string_view line) {
  const auto read = ReadAsDescription(Joined({"first", line}));
  return read == Joined({"first", WithoutBlanksInFront(line)});
}

// The title is the first line of the description when the file is opened, and one of its others when it is opened after
// the next save. A comma ends it there, which can be mended.
bool TitleComesBack(std::string_view title) {
  return !IsMarker(title) && ReadAsDescription(Joined({"first", title})).has_value() &&
         !WithoutBlanksInFront(title).starts_with('"');
}

}  // namespace

std::optional<LostLine> LineThatWouldNotComeBack(const ProjectTexts& texts) {
  if (!TitleComesBack(texts.Title)) return LostLine{texts.Title, ReasonFor(WithoutBlanksInFront(texts.Title))};
  const std::string description = NormalizedDescription(texts.Description);
  for (std::string_view rest = description; !rest.empty();) {
    const std::string_view line = TakeLine(rest);
    if (!LineComesBack(line)) return LostLine{std::string(line), ReasonFor(WithoutBlanksInFront(line))};
  }
  return std::nullopt;
}

}  // namespace orby
