// Rows of cells under heads, as a text with columns.
#pragma once

#include <string>
#include <vector>

namespace orby {

// The first column is aligned left, the others right.
class TextTable {
 public:
  explicit TextTable(std::vector<std::string> heads) { rows_.push_back(std::move(heads)); }

  void Add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }

  // Returns the rows without blanks at their ends.
  std::string Text() const;

 private:
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace orby
