#include "base/text_excerpt.h"

#include <algorithm>

#include "base/text_lines.h"

namespace orby {

std::string TextExcerpt::Next(std::string_view bytes, std::size_t most) {
  last_ = std::min(last_, bytes.size());
  const std::string_view part = bytes.substr(0, last_);
  const std::size_t enough = next_ + std::min(most, Left());
  std::string text;
  while (next_ < enough) {
    const std::size_t end = std::min(part.find_first_of("\r\n", next_), last_);
    text += LineText(part.substr(next_, end - next_));
    next_ = end;
    if (next_ == last_) break;
    text += '\n';
    next_ += part.substr(next_, 2) == "\r\n" ? 2U : 1U;
  }
  return text;
}

}  // namespace orby
