// Designs side by side as a page in HTML.
#include "dialogs/comparison_outputs.h"
#include "drawings/scene_svg.h"
#include "reports/verdict_text.h"
#include "sheet/html_text.h"
#include "sheet/sheet_style.h"

namespace orby {
namespace {

constexpr std::string_view ComparisonStyle = R"css(
body { max-width: none; }
.sides { width: 100%; }
.sides thead th { min-width: 6rem; max-width: 16rem; overflow-wrap: anywhere; }
.sides td { overflow-wrap: anywhere; }
.sides .part th { padding-top: 1.2rem; font-weight: 600; background: none; }
.sides .best { font-weight: 600; }
.sides svg { display: block; width: 100%; height: auto; max-width: 14rem; margin-top: .4rem; }
.curves svg { width: 100%; height: auto; max-width: 60rem; }
svg { background: #ffffff; }
)css";

// Returns the drawing without the declaration that only a file of its own has.
std::string InlineSvg(const Scene& scene) {
  const std::string svg = SceneSvg(scene);
  return svg.substr(svg.find("<svg"));
}

std::string CellHtml(const ComparedCell& cell) {
  std::string classes;
  if (cell.Result) classes += HoldingKey(*cell.Result);
  if (cell.IsBest) classes.append(classes.empty() ? "" : " ").append("best");
  const std::string start = classes.empty() ? std::string("td") : "td class=\"" + classes + "\"";
  return Element(start, MarkedText(cell));
}

}  // namespace

std::string ComparisonHtml(const PrintedComparison& printed) {
  const DesignComparison& table = printed.Table;
  std::string html =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\"/>\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n";
  html += Element("title", ComparisonTitle);
  html.append("\n<style>").append(SheetStyle).append(ComparisonStyle).append("</style>\n</head>\n<body>\n<header>\n");
  html += Element("h1", ComparisonTitle);
  html.append("\n").append(Element("p", printed.Date)).append("\n</header>\n<main>\n");
  html.append("<table class=\"sides\">\n<thead><tr>").append(Element("th scope=\"col\"", "Design"));
  for (std::size_t i = 0; i < table.Names.size(); ++i) {
    std::string head = Element("th scope=\"col\"", table.Names[i]);
    constexpr std::string_view End = "</th>";
    head.insert(head.size() - End.size(), InlineSvg(printed.Sections.at(i)));
    html += head;
  }
  html += "</tr></thead>\n";
  const std::string span = std::to_string(table.Names.size() + 1);
  for (const ComparedSection& section : table.Sections) {
    html.append("<tbody>\n<tr class=\"part\">");
    html += Element("th scope=\"rowgroup\" colspan=\"" + span + "\"", section.Title);
    html += "</tr>\n";
    for (const ComparedRow& row : section.Rows) {
      html.append("<tr>").append(Element("th scope=\"row\"", row.Head));
      for (const ComparedCell& cell : row.Cells) html += CellHtml(cell);
      html += "</tr>\n";
    }
    html += "</tbody>\n";
  }
  html.append("</table>\n").append(Element("p", BestNote)).append("\n<section class=\"curves\">\n");
  html += Element("h2", printed.CurveTitle);
  html.append("\n").append(InlineSvg(printed.Curves)).append("</section>\n</main>\n</body>\n</html>\n");
  return html;
}

}  // namespace orby
