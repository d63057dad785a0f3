// Search for a text in the bytes of a long file, one part at a time.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orby {

struct TextMatch {
  std::size_t place;   // offset of its first byte
  std::size_t length;  // in bytes
};

// Searches from one place, forward or backward, and continues at the other end of the bytes until it is back at that
// place. Ignores the case of the letters that Windows-1252 has. The bytes may be UTF-8 or Windows-1252.
class TextSearch {
 public:
  enum class Encoding { Utf8, Windows1252 };
  enum class Direction { Forward, Backward };

  // Searches `length` bytes for `wanted`, which is UTF-8. A forward search begins at `from`, a backward search before
  // it.
  TextSearch(std::string_view wanted, std::size_t length, std::size_t from, Direction direction);

  // Examines the next `count` places. Returns the first match among them. `bytes` is the whole text, which may have
  // grown.
  std::optional<TextMatch> Next(std::string_view bytes, std::size_t count);

  // Returns true if every place has been examined.
  bool IsOver() const { return left_ == 0; }
  std::size_t Left() const { return left_; }  // places not yet examined

 private:
  // The wanted text in one encoding, in lower case.
  struct Spelling {
    std::string bytes;
    Encoding encoding;
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
