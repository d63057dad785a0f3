// What all outputs of a sheet have, and the plain text and the Markdown.
#include <gmock/gmock.h>

#include <algorithm>

#include "base/text.h"
#include "sheet/example_sheets.h"
#include "sheet/html_text.h"
#include "sheet/sheet_html.h"
#include "sheet/sheet_json.h"
#include "sheet/sheet_markdown.h"
#include "sheet/sheet_text.h"
#include "sheet/sheets.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::Not;

const DesignSheet& Kind(const std::string& name) {
  static const std::vector<NamedSheet> Sheets = SheetsOfAllKinds();
  return std::ranges::find(Sheets, name, &NamedSheet::Name)->Sheet;
}

// A sheet of one step with this formula and these numbers.
DesignSheet SheetOfOneStep(const Relation& law, std::vector<InsertedNumber> numbers, double result) {
  SheetStep step;
  step.Title = "One step";
  step.Law = &law;
  step.Numbers = std::move(numbers);
  step.Letter = "y";
  step.Unit = "ft";
  step.Value = result;
  step.Text = "8";
  return {.Project = {}, .Units = English, .Basis = StrengthBasis::Yield, .Sections = {{"one", "One", {step}}}};
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = text.find('\n', start);
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

TEST(EveryOutput, HasEveryStepWithItsNumberAndItsResult) {
  for (const auto& [name, sheet] : SheetsOfAllKinds()) {
    const std::string text = SheetText(sheet);
    const std::string markdown = SheetMarkdown(sheet);
    const std::string html = SheetHtml(sheet);
    const std::string json = SheetJson(sheet);
    for (std::size_t i = 0; i < sheet.Sections.size(); ++i) {
      int count = 0;
      for (const SheetPart& part : sheet.Sections[i].Parts) {
        const auto* step = std::get_if<SheetStep>(&part);
        if (step == nullptr) continue;
        const std::string number = std::to_string(i + 1) + "." + std::to_string(++count);
        ASSERT_THAT(text, HasSubstr("\n" + number + "  " + step->Title + "\n")) << name;
        ASSERT_THAT(markdown, HasSubstr("\n### " + number + " " + step->Title + "\n")) << name;
        ASSERT_THAT(html, HasSubstr("<span class=\"number\">" + number + "</span> " + step->Title + "</h3>")) << name;
        ASSERT_THAT(json, HasSubstr("\"number\": \"" + number + "\"")) << name;
        if (!step->Value) continue;
        const std::string result = std::string(step->Letter) + " = " + step->Text;
        ASSERT_THAT(text, HasSubstr("\n    " + result)) << name;
        ASSERT_THAT(markdown, HasSubstr("\n" + result)) << name;
      }
    }
  }
}

TEST(EveryOutput, SaysWhyAStepHasNoResult) {
  const DesignSheet& sheet = Kind("failing");

  EXPECT_THAT(SheetText(sheet), HasSubstr("8.1  Logarithm of the depth\n    l = log(H)\n    l = log(0)\n"
                                          "    l cannot be computed: it has no logarithm or no root\n"));
  EXPECT_THAT(SheetMarkdown(sheet), HasSubstr("\n**l cannot be computed: it has no logarithm or no root**\n"));
  EXPECT_THAT(SheetHtml(sheet),
              HasSubstr("<p class=\"failure\"><math><mi>l</mi></math> cannot be computed: it has no logarithm"));
  EXPECT_THAT(SheetJson(sheet), HasSubstr("\"failure\": \"it has no logarithm or no root\""));
}

TEST(EveryOutput, SaysOnceWhatReportAndDialogShowAlike) {
  const DesignSheet& sheet = Kind("full");

  EXPECT_THAT(SheetText(sheet), HasSubstr("\n      Report and dialog: 63.2 ft\n"));
  EXPECT_THAT(SheetMarkdown(sheet), HasSubstr("\n- Report and dialog: 63.2 ft\n"));
  EXPECT_THAT(SheetHtml(sheet), HasSubstr("<li>Report and dialog: 63.2 ft</li>"));
}

TEST(EveryOutput, TakesNoTextOfTheProjectForMarkup) {
  const DesignSheet& sheet = Kind("odd");

  EXPECT_THAT(SheetText(sheet), HasSubstr("\n" + OddTitle + "\n"));
  EXPECT_THAT(SheetMarkdown(sheet),
              HasSubstr("\n\n\\- Südstrecke \\<b\\>5\\</b\\> \\& \"Ä\" \\| \\*fett\\* \\_unten\\_ "
                        "'é' \\\\ \\[a\\](b) \\`c\\` \\# \\$x\\$\n"));
  EXPECT_THAT(SheetMarkdown(sheet), HasSubstr("\n1\\. \\]\\]\\>"));
  EXPECT_THAT(SheetHtml(sheet), HasSubstr("<h1>Südstrecke &lt;b&gt;5&lt;/b&gt; &amp; &quot;Ä&quot; | *fett* _unten_ "
                                          "&#39;é&#39; \\ [a](b) `c` # $x$</h1>"));
  EXPECT_THAT(SheetHtml(sheet), HasSubstr("<p>1. ]]&gt;  tab --&gt;</p>"));
  EXPECT_THAT(SheetJson(sheet), HasSubstr("\"title\": \"Südstrecke <b>5</b> & \\\"Ä\\\" | *fett* _unten_ 'é' \\\\ "));
}

TEST(EveryOutput, NamesAProjectWithoutATitle) {
  DesignSheet sheet = Kind("full");
  sheet.Project.Title = " \r\n";

  EXPECT_THAT(SheetText(sheet), HasSubstr("\nProject without a title\n"));
  EXPECT_THAT(SheetHtml(sheet), HasSubstr("<h1>Project without a title</h1>"));
}

TEST(EveryOutput, LeavesOutAnUnknownChecksum) {
  EXPECT_THAT(SheetText(Kind("english")), HasSubstr("\nSHA-256       5e1f0c7d"));
  EXPECT_THAT(SheetText(Kind("full")), Not(HasSubstr("SHA-256")));
  EXPECT_THAT(SheetHtml(Kind("full")), Not(HasSubstr("SHA-256")));
  EXPECT_THAT(SheetJson(Kind("full")), Not(HasSubstr("sha256")));
}

TEST(ASheetsText, HasLinesOfAtMostEightyCharacters) {
  for (const auto& [name, sheet] : SheetsOfAllKinds()) {
    for (const std::string& line : LinesOf(SheetText(sheet))) {
      ASSERT_LE(CharacterCount(line), 80U) << name << ": " << line;
      ASSERT_THAT(line, Not(HasSubstr("\r")));
    }
  }
}

TEST(ASheetsText, BreaksAFormulaOnlyBeforeAnOperation) {
  const Expression x = Symbol("x");
  const Relation law{Law{},
                     "",
                     "",
                     {},
                     {{"x", "", SheetUnit::None}},
                     x * GreatestOf(x, 12345.67) + x * 1234567.5 + x * 1234567.5 - x / 9876543,
                     true,
                     "",
                     ""};
  const std::string text = SheetText(SheetOfOneStep(law, {{"x", "", "", 0.1234567, "0.1234567"}}, 8));

  EXPECT_THAT(text, HasSubstr("    y = 0.1234567 · max(0.1234567, 12345.67) + 0.1234567 · 1234567.5 + 0.1234567\n"
                              "        · 1234567.5 - 0.1234567 / 9876543\n"
                              "    y = 8 ft\n"));
}

TEST(ASheetsText, KeepsAWordThatIsWiderThanALine) {
  DesignSheet sheet = Kind("full");
  sheet.Project.File = "/designs/" + std::string(100, 'x') + " y.orb";

  EXPECT_THAT(SheetText(sheet),
              HasSubstr("\nProject file  /designs/" + std::string(100, 'x') + "\n              y.orb\n"));
}

TEST(ASheetsMarkdown, EscapesWhatBeginsAListOrAHeading) {
  EXPECT_EQ(MarkdownText("- one"), "\\- one");
  EXPECT_EQ(MarkdownText("+ one"), "\\+ one");
  EXPECT_EQ(MarkdownText("=== one"), "\\=== one");
  EXPECT_EQ(MarkdownText("12. one"), "12\\. one");
  EXPECT_EQ(MarkdownText("12) one"), "12\\) one");
  EXPECT_EQ(MarkdownText("12.5 ft - 3"), "12\\.5 ft - 3");
  EXPECT_EQ(MarkdownText("a|b\r\nc"), "a\\|b  c");
  EXPECT_EQ(MarkdownText("## no. #7 ##"), "\\#\\# no. \\#7 \\#\\#");
  EXPECT_EQ(MarkdownText("page.html#topic"), "page.html#topic");
  EXPECT_EQ(MarkdownText("2024"), "2024");
  EXPECT_EQ(MarkdownText(""), "");
}

TEST(ASheetsMarkdown, HasAsManyCellsInEachRowAsInTheHeadOfItsTable) {
  const auto cells = [](std::string line) {
    for (std::size_t at = line.find("\\|"); at != std::string::npos; at = line.find("\\|", at)) line.erase(at, 2);
    return std::ranges::count(line, '|');
  };
  for (const auto& [name, sheet] : SheetsOfAllKinds()) {
    std::string last;
    for (const std::string& line : LinesOf(SheetMarkdown(sheet))) {
      if (line.starts_with('|') && last.starts_with('|')) {
        ASSERT_EQ(cells(line), cells(last)) << name << ": " << line;
      }
      last = line;
    }
  }
}

}  // namespace
}  // namespace orby::test
