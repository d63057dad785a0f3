// The lines of a text that may be as long as a file and is no more than bytes: where each begins, and how one is shown.
// CR LF, LF and CR all end a line; a line end at the end of the text begins no further line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orby {

// Finds lines by their number. It keeps no line's place, only how many lines begin in each block of the text, so that
// its size does not depend on how short the lines are.
class LineIndex {
 public:
  // Forgets all lines.
  void Clear();
  // Counts the lines that have come with the bytes behind those known so far. text: all of it, the known part included.
  void Extend(std::string_view text);

  std::size_t Count() const { return count_; }
  std::size_t Length() const { return length_; }  // bytes known so far

  // The bytes of a line, counted from 0, without its end, and without the mark of UTF-8 that a text may begin with.
  // text: all that is known. Empty when there is no such line.
  std::string_view Line(std::string_view text, std::size_t line) const;

  // The number of the line that this byte of the text lies in, its end included; the last one for a place after it, 0
  // in an empty text.
  std::size_t LineAt(std::string_view text, std::size_t place) const;

 private:
  // Where the line begins; the end of the text when there is no such line.
  std::size_t Start(std::string_view text, std::size_t line) const;

  std::vector<std::size_t> linesBefore_;  // for each block: lines that begin in front of it
  std::size_t count_ = 0;
  std::size_t length_ = 0;
};

// The characters of a line that are shown at most.
inline constexpr std::size_t MostShownCharacters = 4000;

// A line's bytes as UTF-8 text: as they stand when they are valid UTF-8, else read as Windows-1252.
std::string LineText(std::string_view bytes);

// The line as it is shown: tabs reach to the next of the columns 8, 16, 24..., other control characters are blanks, and
// a line of more than MostShownCharacters ends there in an ellipsis. Takes no longer however long the line is.
std::string ShownLine(std::string_view bytes);

// Where the bytes of each character of ShownLine stand in those of the line, and after them the length of the line. The
// blanks of a tab all stand at the tab.
std::vector<std::size_t> ShownPlaces(std::string_view bytes);

}  // namespace orby
