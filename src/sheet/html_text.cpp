#include "sheet/html_text.h"

namespace orby {

void AppendEscaped(std::string& html, std::string_view text) {
  constexpr unsigned char FirstPrinted = 0x20;
  constexpr unsigned char Delete = 0x7F;
  for (const char c : text) {
    switch (c) {
      case '&': html += "&amp;"; break;
      case '<': html += "&lt;"; break;
      case '>': html += "&gt;"; break;
      case '"': html += "&quot;"; break;
      case '\'': html += "&#39;"; break;
      default: {
        const auto byte = static_cast<unsigned char>(c);
        html += byte < FirstPrinted || byte == Delete ? ' ' : c;
      }
    }
  }
}

std::string EscapedHtml(std::string_view text) {
  std::string html;
  AppendEscaped(html, text);
  return html;
}

std::string Element(std::string_view start, std::string_view text) {
  std::string html = "<";
  html.append(start).append(">");
  AppendEscaped(html, text);
  html.append("</").append(start.substr(0, start.find(' '))).append(">");
  return html;
}

UnitParts PartsOfUnit(std::string_view unit) {
  const std::size_t end = unit.find_last_not_of("0123456789") + 1;
  return {unit.substr(0, end), unit.substr(end)};
}

std::string UnitHtml(std::string_view unit) {
  const auto [name, exponent] = PartsOfUnit(unit);
  return EscapedHtml(name) + (exponent.empty() ? "" : Element("sup", exponent));
}

}  // namespace orby
