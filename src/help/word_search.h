// Finds words in a text, without regard to the case of the letters A to Z.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orby {

struct WordHits {
  int count = 0;          // of all words together; 0 when one of them does not occur
  std::size_t first = 0;  // byte offset of the first hit
};

class WordSearch {
 public:
  // The words are parted by all that is neither a letter nor a digit; each counts once.
  explicit WordSearch(std::string_view words);

  // Hits are the words of the text that begin with one of the words wanted. No words wanted: none.
  WordHits In(std::string_view text) const;

 private:
  std::vector<std::string> wanted_;
};

// Some words of the text around a byte offset, with "..." where it goes on.
std::string Snippet(std::string_view text, std::size_t offset);

}  // namespace orby
