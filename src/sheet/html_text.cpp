#include "sheet/html_text.h"

#include "base/markup_text.h"

namespace orby {

std::string Element(std::string_view start, std::string_view text) {
  std::string html = "<";
  html.append(start).append(">");
  AppendEscapedMarkup(html, text);
  html.append("</").append(start.substr(0, start.find(' '))).append(">");
  return html;
}

UnitParts PartsOfUnit(std::string_view unit) {
  const std::size_t end = unit.find_last_not_of("0123456789") + 1;
  return {unit.substr(0, end), unit.substr(end)};
}

std::string UnitHtml(std::string_view unit) {
  const auto [name, exponent] = PartsOfUnit(unit);
  return EscapedMarkup(name) + (exponent.empty() ? "" : Element("sup", exponent));
}

}  // namespace orby
