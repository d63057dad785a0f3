// A part of a long text as it is copied: UTF-8, each line end a single line feed.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orby {

class TextExcerpt {
 public:
  // The bytes from first to last, last not included.
  TextExcerpt(std::size_t first, std::size_t last) : next_(first), last_(last) {}

  // Returns the text of the next lines, as many as begin within the next `most` bytes. bytes: the whole text. Each line
  // is read as UTF-8 where it is valid UTF-8, else as Windows-1252.
  std::string Next(std::string_view bytes, std::size_t most);

  bool IsOver() const { return next_ >= last_; }
  std::size_t Left() const { return IsOver() ? 0 : last_ - next_; }  // bytes

 private:
  std::size_t next_;
  std::size_t last_;
};

}  // namespace orby
