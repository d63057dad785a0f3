#include "base/markup_text.h"

namespace orby {

void AppendEscapedMarkup(std::string& markup, std::string_view text) {
  constexpr unsigned char FirstPrinted = 0x20;
  constexpr unsigned char Delete = 0x7F;
  for (const char c : text) {
    switch (c) {
      case '&': markup += "&amp;"; break;
      case '<': markup += "&lt;"; break;
      case '>': markup += "&gt;"; break;
      case '"': markup += "&quot;"; break;
      case '\'': markup += "&#39;"; break;
      default: {
        const auto byte = static_cast<unsigned char>(c);
        markup += byte < FirstPrinted || byte == Delete ? ' ' : c;
      }
    }
  }
}

std::string EscapedMarkup(std::string_view text) {
  std::string markup;
  AppendEscapedMarkup(markup, text);
  return markup;
}

}  // namespace orby
