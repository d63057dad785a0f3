#include "reports/text_table.h"

#include <algorithm>
#include <string_view>

#include "base/text.h"

namespace orby {
namespace {

constexpr std::string_view ColumnGap = "  ";

}  // namespace

std::string TextTable::Text() const {
  std::vector<std::size_t> widths(rows_.front().size());
  for (const auto& row : rows_) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], CharacterCount(row[i]));
  }
  std::string text;
  for (const auto& row : rows_) {
    text += PadSpaces(row.front(), widths.front());
    for (std::size_t i = 1; i < row.size(); ++i) text.append(ColumnGap).append(AlignRight(row[i], widths[i]));
    text.erase(text.find_last_not_of(' ') + 1);
    text += '\n';
  }
  return text;
}

}  // namespace orby
