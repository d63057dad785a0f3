// The lines of a text as long as a file, which is given as bytes: where each line begins, and how it is shown. CR LF,
// LF and CR all end a line. A line end at the end of the text does not begin another line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orby {

// Finds lines by their number. Stores only how many lines begin in each block of the text, so that its size does not
// depend on the length of the lines.
class LineIndex {
 public:
  // Removes all lines.
  void Clear();
  // Counts the lines in the bytes appended since the last call. `text` is the whole text, including the bytes already
  // counted.
  void Extend(std::string_view text);

  std::size_t Count() const { return count_; }
  std::size_t Length() const { return length_; }  // bytes counted so far

  // Returns the bytes of a line without its line end, and without the byte order mark of UTF-8 at the start of the
  // text. Lines count from 0. `text` is the whole text counted so far. Empty when there is no such line.
  std::string_view Line(std::string_view text, std::size_t line) const;

  // Returns the number of the line that contains the byte at `place`. A line end belongs to its line. Returns the last
  // line for a place after the end of the text, and 0 for an empty text.
  std::size_t LineAt(std::string_view text, std::size_t place) const;

 private:
  // Returns where the line begins, or the end of the text when there is no such line.
  std::size_t Start(std::string_view text, std::size_t line) const;

  std::vector<std::size_t> linesBefore_;  // for each block: lines that begin before it
  std::size_t count_ = 0;
  std::size_t length_ = 0;
};

// The largest number of characters of a line that is shown.
inline constexpr std::size_t MostShownCharacters = 4000;

// Returns the bytes of a line as UTF-8: unchanged when they are valid UTF-8, otherwise converted from Windows-1252.
std::string LineText(std::string_view bytes);

// Returns the line as it is shown. A tab extends to the next of the columns 8, 16, 24... Other control characters
// become blanks. A line of more than MostShownCharacters is cut there and ends in an ellipsis. The time does not grow
// with the length of the line beyond that.
std::string ShownLine(std::string_view bytes);

// Returns, for each character of ShownLine, the offset of its bytes in the line. The length of the line follows as the
// last element. All blanks of a tab have the offset of the tab.
std::vector<std::size_t> ShownPlaces(std::string_view bytes);

}  // namespace orby
