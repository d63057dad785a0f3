// A part of a long text that is copied. The copy is UTF-8, and each of its line ends is a line feed.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orby {

class TextExcerpt {
 public:
  // The bytes [first, last) of the text.
  TextExcerpt(std::size_t first, std::size_t last) : next_(first), last_(last) {}

  // Returns the lines that begin within the next `most` bytes. `bytes` is the whole text. A line that is not valid
  // UTF-8 is read as Windows-1252.
  std::string Next(std::string_view bytes, std::size_t most);

  bool IsOver() const { return next_ >= last_; }
  std::size_t Left() const { return IsOver() ? 0 : last_ - next_; }  // bytes

 private:
  std::size_t next_;
  std::size_t last_;
};

}  // namespace orby
