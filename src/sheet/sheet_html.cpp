#include "sheet/sheet_html.h"

#include "base/markup_text.h"
#include "reports/verdict_text.h"
#include "sheet/formula_text.h"
#include "sheet/html_text.h"
#include "sheet/math_ml.h"
#include "sheet/sheet_content.h"
#include "sheet/sheet_style.h"

namespace orby {
namespace {

constexpr std::size_t WidestFormula = 110;  // characters that fit on paper

class HtmlOutput {
 public:
  explicit HtmlOutput(UnitSystem units) : units_(units) {}

  std::string Take() {
    Line("</main>\n</body>\n</html>");
    return std::move(html_);
  }

  void Head(const DesignSheet& sheet) {
    const std::string title = SheetHeading(sheet);
    Line("<!DOCTYPE html>");
    Line("<html lang=\"en\">");
    Line("<head>");
    Line("<meta charset=\"utf-8\"/>");
    Line("<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>");
    Line(Element("title", title + " - " + std::string(SheetKind)));
    html_.append("<style>").append(SheetStyle).append("</style>\n</head>\n<body>\n<header>\n");
    Line(Element("p class=\"kind\"", SheetKind));
    Line(Element("h1", title));
    for (const std::string& line : LinesOf(sheet.Project.Description)) Line(Element("p", line));
    Line("<table class=\"facts\"><tbody>");
    for (const TitleFact& fact : TitleFacts(sheet)) {
      Line("<tr>" + Element("th scope=\"row\"", fact.Label) + Element("td", fact.Text) + "</tr>");
    }
    Line("</tbody></table>\n</header>");
    Contents(sheet);
    Line("<main>");
  }

  void Section(const SheetSection& section, std::size_t number) {
    html_.append("<section id=\"").append(section.Key).append("\">\n");
    Heading("h2", std::to_string(number), section.Title);
    WriteParts(section, number, *this);
    Symbols(section);
    Line("</section>");
  }

  // ---- parts -------------------------------------------------------------------------------------------------------

  void Inputs(const std::vector<const SheetInput*>& inputs) {
    TableHead("inputs", {"Input", "Value", "Source"});
    for (const SheetInput* input : inputs) {
      html_.append("<tr>").append(Element("th scope=\"row\"", input->Label)).append("<td class=\"value\">");
      AppendEscapedMarkup(html_, WithUnit(input->Text, PartsOfUnit(input->Unit).Name));
      const std::string_view exponent = PartsOfUnit(input->Unit).Exponent;
      if (!exponent.empty()) html_ += Element("sup", exponent);
      html_.append("</td>").append(Element("td class=\"source\"", input->Source)).append("</tr>\n");
    }
    EndTable();
  }

  void Step(const SheetStep& step, const std::string& number) {
    html_.append("<article class=\"step\" id=\"step-").append(number).append("\">\n");
    Heading("h3", number, step.Title);
    Formulas(step);
    if (!step.Value) {
      html_.append("<p class=\"failure\"><math>").append(LetterMath(step.Letter)).append("</math> ");
      AppendEscapedMarkup(html_, FailureText(step));
      Line("</p>");
    }
    const std::vector<std::string> details = DetailsOf(step);
    if (!details.empty()) {
      Line("<ul class=\"details\">");
      for (const std::string& detail : details) Line(Element("li", detail));
      Line("</ul>");
    }
    Line("</article>");
  }

  void Judgement(const SheetJudgement& judgement) {
    Line(Element("p class=\"judgement " + std::string(HoldingKey(judgement.Judged.Result)) + "\"", judgement.Line));
  }

  void Remark(const SheetRemark& remark) { Line(Element("p", remark.Text)); }

  void Table(const SheetTable& table) {
    TableHead(table.LastIsTotal ? "figures total" : "figures", {table.Heads.begin(), table.Heads.end()});
    for (const auto& row : table.Rows) {
      html_.append("<tr>").append(Element("th scope=\"row\"", row.at(0)));
      for (std::size_t i = 1; i < row.size(); ++i) html_ += Element("td", row[i]);
      Line("</tr>");
    }
    EndTable();
  }

 private:
  void Line(std::string_view line) { html_.append(line).append("\n"); }

  void Contents(const DesignSheet& sheet) {
    Line("<nav aria-labelledby=\"contents\">\n<h2 id=\"contents\">Contents</h2>\n<ol>");
    for (const SheetSection& section : sheet.Sections) {
      Line("<li>" + Element("a href=\"#" + std::string(section.Key) + "\"", section.Title) + "</li>");
    }
    Line("</ol>\n</nav>");
  }

  void Heading(std::string_view level, const std::string& number, const std::string& title) {
    html_.append("<").append(level).append(">").append(Element("span class=\"number\"", number)).append(" ");
    AppendEscapedMarkup(html_, title);
    html_.append("</").append(level).append(">\n");
  }

  void TableHead(std::string_view kind, const std::vector<std::string_view>& heads) {
    html_.append("<table class=\"").append(kind).append("\">\n<thead><tr>");
    for (const std::string_view head : heads) html_ += Element("th scope=\"col\"", head);
    Line("</tr></thead>\n<tbody>");
  }
  void EndTable() { Line("</tbody>\n</table>"); }

  // The symbol stands once, all equality signs below each other.
  void Formulas(const SheetStep& step) {
    if (step.Law == nullptr && !step.Value) return;
    const bool isWide = step.Law != nullptr && InsertedText(step).size() > WidestFormula;
    html_.append(isWide ? "<div class=\"formulas wide\">" : "<div class=\"formulas\">");
    html_.append("<math>").append(LetterMath(step.Letter)).append("</math>\n");
    if (step.Law != nullptr) {
      Equals(FormulaMath(step.Law->Formula));
      Equals(InsertedMath(step));
    }
    if (step.Value) Equals({NumberMath(step.Text, step.Unit)});
    Line("</div>");
  }

  void Equals(const MathPieces& pieces) {
    html_ += "<div class=\"right\"><math displaystyle=\"true\"><mo form=\"infix\">=</mo>";
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      if (i > 0) html_ += "</math><wbr/><math displaystyle=\"true\">";
      html_ += pieces[i];
    }
    Line("</math></div>");
  }

  void Symbols(const SheetSection& section) {
    const std::vector<InsertedNumber> symbols = SymbolsOf(section, units_);
    if (symbols.empty()) return;
    Line("<table class=\"symbols\">\n<caption>Symbols</caption>");
    Line(
        "<thead><tr><th scope=\"col\">Symbol</th><th scope=\"col\">Meaning</th><th "
        "scope=\"col\">Unit</th></tr></thead>");
    Line("<tbody>");
    for (const InsertedNumber& symbol : symbols) {
      Line("<tr><th scope=\"row\"><math>" + LetterMath(symbol.Letter) + "</math></th>" + Element("td", symbol.Meaning) +
           "<td>" + UnitHtml(symbol.Unit) + "</td></tr>");
    }
    EndTable();
  }

  std::string html_;
  UnitSystem units_;
};

}  // namespace

std::string SheetHtml(const DesignSheet& sheet) { return WriteSheet<HtmlOutput>(sheet); }

}  // namespace orby
