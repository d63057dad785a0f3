// Finding a text in bytes that may be as many as those of a file, a part at a time.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orby {

struct TextMatch {
  std::size_t place;   // of its first byte
  std::size_t length;  // in bytes
};

// Looks for a text from one place on, forward or backward, and around the end of the bytes back to that place. Capital
// and small letters are the same, as far as Windows-1252 has them. The bytes may be UTF-8 or Windows-1252.
class TextSearch {
 public:
  enum class Direction { Forward, Backward };

  // Looks for `wanted`, which is UTF-8, in `length` bytes. Forward, the match may begin at `from` or after it;
  // backward, it begins before it.
  TextSearch(std::string_view wanted, std::size_t length, std::size_t from, Direction direction);

  // Looks at the next `count` places. Returns the first match among them. bytes: the whole text; it may have grown.
  std::optional<TextMatch> Next(std::string_view bytes, std::size_t count);

  // Whether every place has been looked at.
  bool IsOver() const { return left_ == 0; }
  std::size_t Left() const { return left_; }  // places still to be looked at

 private:
  // A way to write the wanted text, in small letters.
  struct Spelling {
    std::string bytes;
    bool isUtf8;
  };

  static bool MatchesAt(std::string_view bytes, std::size_t place, const Spelling& spelling);
  void Advance();

  std::vector<Spelling> spellings_;
  Direction direction_;
  std::size_t length_;
  std::size_t next_ = 0;
  std::size_t left_;
};

}  // namespace orby
