// Finds words in a text, ignoring the case of the letters A to Z.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orby {

struct WordHits {
  int count = 0;          // sum of all words; 0 when one of them does not occur
  std::size_t first = 0;  // byte offset of the first hit
};

class WordSearch {
 public:
  // The words are separated by characters other than letters and digits. A repeated word counts once.
  explicit WordSearch(std::string_view words);

  // Returns the words of the text that begin with one of the wanted words. There are no hits without a wanted word.
  WordHits In(std::string_view text) const;

 private:
  std::vector<std::string> wanted_;
};

// Returns some words of the text around a byte offset, with "..." where the text continues.
std::string Snippet(std::string_view text, std::size_t offset);

}  // namespace orby
