// The pages of a signed report.
#include "sheet/signed_report.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "reports/verdict_text.h"
#include "sheet/page_flow.h"
#include "sheet/sheets.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

Scene Square() {
  Scene scene{.Width = 100, .Height = 100, .Outlines = {}, .Labels = {}};
  scene.Labels.push_back({.Text = "within the picture", .At = {10, 50}});
  return scene;
}

SignedReport ReportOf(DesignSheet sheet) {
  SignedReport report;
  report.Titles = {"Brannock Coal", "Cinder Hollow", "3 East", "M. Delacroix", "T. Okonjo", "B"};
  report.Date = "2031-03-09";
  report.Sheet = std::move(sheet);
  return report;
}

PagedSheet Paged(const SignedReport& report, const PageSize& size = A4) { return PagesOf(report, size, PageTextWidth); }

std::vector<std::string> TextsOf(const PagedSheet& paged) {
  std::vector<std::string> texts;
  for (const Scene& page : paged.Pages) {
    for (const SceneLabel& label : page.Labels) texts.push_back(label.Text);
  }
  return texts;
}

std::string AllWords(const PagedSheet& paged) {
  std::string words;
  for (const std::string& text : TextsOf(paged)) words += text + ' ';
  return words;
}

std::vector<std::string> HeadingsOf(const PagedSheet& paged) {
  std::vector<std::string> titles;
  for (const PageEntry& entry : paged.Contents) titles.push_back(entry.Title);
  return titles;
}

TEST(SignedReportPages, BeginWithTheTitleBlock) {
  const SheetOf sheet(FullDesign());
  const PagedSheet paged = Paged(ReportOf(sheet.Made));

  std::vector<std::string> first;
  for (const SceneLabel& label : paged.Pages.front().Labels) first.push_back(label.Text);

  for (const char* text : {"Company", "Brannock Coal", "Mine", "Cinder Hollow", "Section", "3 East", "Author",
                           "M. Delacroix", "Checker", "T. Okonjo", "Revision", "B", "Date", "2031-03-09"}) {
    EXPECT_THAT(first, Contains(text));
  }
}

TEST(SignedReportPages, HaveTheirPartsInOrder) {
  SignedReport report = ReportOf(SheetOf(FullDesign()).Made);
  report.Drawings.push_back({"Plan", Square(), {}});
  report.Curves.push_back({"Curve", Square(), {}});
  report.Remarks = "First.\r\nSecond.";

  EXPECT_THAT(HeadingsOf(Paged(report)), ElementsAre("1  Summary", "2  Drawings", "3  Inputs", "4  Results",
                                                     "5  Curves", "6  Cost of bolting", "7  Remarks", "8  Signatures"));
}

TEST(SignedReportPages, LeaveOutWhatIsNotWanted) {
  SignedReport report = ReportOf(SheetOf(FullDesign()).Made);
  report.HasCost = false;
  report.Remarks = " \r\n ";

  const PagedSheet paged = Paged(report);

  EXPECT_THAT(HeadingsOf(paged), ElementsAre("1  Summary", "2  Inputs", "3  Results", "4  Signatures"));
  EXPECT_THAT(AllWords(paged), Not(HasSubstr("Resin cost")));
}

TEST(SignedReportPages, HaveTheCalculationSheetOnNewPagesOfTheirOwn) {
  SignedReport report = ReportOf(SheetOf(FullDesign()).Made);
  report.HasSheet = true;

  const PagedSheet paged = Paged(report);

  const auto appendix = std::ranges::find(paged.Contents, "Appendix: calculation sheet", &PageEntry::Title);
  ASSERT_NE(appendix, paged.Contents.end());
  EXPECT_EQ(paged.Pages[appendix->Page].Labels.front().Text, "Appendix: calculation sheet");
  EXPECT_EQ(paged.Contents.end() - appendix, 1 + static_cast<std::ptrdiff_t>(report.Sheet.Sections.size()));
}

TEST(SignedReportPages, ShowRemarksAsParagraphs) {
  SignedReport report = ReportOf(SheetOf(FullDesign()).Made);
  report.Remarks = "Probe holes every second break.\r\n\r\nSecond paragraph.";

  EXPECT_THAT(TextsOf(Paged(report)),
              AllOf(Contains("Probe holes every second break."), Contains("Second paragraph.")));
}

TEST(SignedReportPages, SayWhyACurveIsMissing) {
  SignedReport report = ReportOf(SheetOf(FullDesign()).Made);
  report.Curves.push_back({"Suggested PSUP vs CMRR", {}, "This curve cannot be computed: Division by zero"});

  EXPECT_THAT(TextsOf(Paged(report)),
              AllOf(Contains("Suggested PSUP vs CMRR"), Contains("This curve cannot be computed: Division by zero")));
}

TEST(SignedReportPages, ListTheShortOnesFirst) {
  Design weak = FullDesign();
  weak.Primary.Length = 1;
  const SheetOf sheet(weak);
  const PagedSheet paged = Paged(ReportOf(sheet.Made));

  std::vector<std::string> results;
  for (const std::string& text : TextsOf({{paged.Pages.front()}, {}})) {
    for (const char* word : {"Short", "Check", "Holds", "Cannot"}) {
      if (text.starts_with(word) && text != "Checker") results.emplace_back(word);
    }
  }
  const auto rank = [](const std::string& word) {
    return word == "Short" ? 0 : word == "Cannot" ? 1 : word == "Check" ? 2 : 3;
  };

  ASSERT_THAT(results, SizeIs(testing::Gt(4U)));
  EXPECT_EQ(results.front(), "Short");
  EXPECT_TRUE(std::ranges::is_sorted(results, {}, rank));
}

TEST(SignedReportPages, ShowEachResultAndEachJudgement) {
  DesignsOfSheets designs(11);
  for (int i = 0; i < 60; ++i) {
    const SheetOf sheet(designs.Next());
    const std::vector<std::string> texts = TextsOf(Paged(ReportOf(sheet.Made), i % 2 == 0 ? A4 : Letter));
    for (const SheetStep* step : sheet.Steps()) {
      for (const ShownResult& shown : step->Shown) {
        if (shown.Where != "report") continue;
        EXPECT_THAT(texts, Contains(shown.Text)) << step->Title;
      }
    }
    for (const SheetSection& section : sheet.Made.Sections) {
      for (const SheetPart& part : section.Parts) {
        const auto* judgement = std::get_if<SheetJudgement>(&part);
        if (judgement == nullptr) continue;
        const VerdictCells cells = CellsOf(judgement->Judged, sheet.Made.Units);
        EXPECT_THAT(texts, Contains(cells.Subject));
        EXPECT_THAT(texts, Contains(cells.Limit.empty() ? cells.Subject : cells.Limit));
      }
    }
  }
}

TEST(SignedReportPages, HaveTextsOnlyBetweenTheirMargins) {
  DesignsOfSheets designs(5);
  for (int i = 0; i < 40; ++i) {
    const PageSize size = i % 2 == 0 ? A4 : Letter;
    SignedReport report = ReportOf(SheetOf(designs.Next()).Made);
    report.Titles.Company = std::string(300, 'w');
    report.Drawings.push_back({"Plan", Square(), {}});
    report.HasSheet = i % 4 == 0;
    for (const Scene& page : Paged(report, size).Pages) {
      for (const SceneLabel& label : page.Labels) {
        ASSERT_GE(label.At.X, PageMargin - 0.01) << label.Text;
        const double right = label.At.X + PageTextWidth(label.Text, {.Size = label.Size});
        ASSERT_LE(right, size.Width - PageMargin + 0.01) << label.Text;
        ASSERT_LE(label.At.Y, size.Height - PageMargin + 16) << label.Text;
      }
    }
  }
}

// The last text above the foot of a page is no heading.
TEST(SignedReportPages, NeverEndWithAHeading) {
  DesignsOfSheets designs(7);
  for (int i = 0; i < 60; ++i) {
    SignedReport report = ReportOf(SheetOf(designs.Next()).Made);
    report.Drawings.push_back({"Plan", Square(), {}});
    report.Remarks = std::string(static_cast<std::size_t>(i) * 40, 'x');
    for (const Scene& page : Paged(report).Pages) {
      const SceneLabel* last = nullptr;
      for (const SceneLabel& label : page.Labels) {
        const bool isFoot = label.At.Y > A4.Height - PageMargin;
        if (!isFoot && (last == nullptr || label.At.Y >= last->At.Y)) last = &label;
      }
      ASSERT_NE(last, nullptr);
      EXPECT_FALSE(last->IsBold && last->Size > 10) << last->Text;
      EXPECT_THAT(last->Text, Not(testing::AnyOf("Judgement", "Source"))) << "the heading of a table";
    }
  }
}

TEST(SignedReportPages, RepeatTheHeadingOfATableThatGoesOn) {
  const PagedSheet paged = Paged(ReportOf(SheetOf(FullDesign()).Made), {595, 300});

  int repeated = 0;
  for (std::size_t i = 1; i < paged.Pages.size(); ++i) {
    if (paged.Pages[i].Labels.front().Text == "Input") ++repeated;
  }
  EXPECT_GT(repeated, 2);
}

TEST(SignedReportPages, KeepAPictureWithItsCaption) {
  SignedReport report = ReportOf(SheetOf(FullDesign()).Made);
  for (int i = 0; i < 5; ++i) report.Drawings.push_back({"Plan " + std::to_string(i), Square(), {}});

  int together = 0;
  for (const Scene& page : Paged(report).Pages) {
    const auto isCaption = [](const SceneLabel& label) { return label.Text.starts_with("Plan "); };
    const auto isPicture = [](const SceneLabel& label) { return label.Text == "within the picture"; };
    EXPECT_EQ(std::ranges::count_if(page.Labels, isCaption), std::ranges::count_if(page.Labels, isPicture));
    together += static_cast<int>(std::ranges::count_if(page.Labels, isPicture));
  }
  EXPECT_EQ(together, 5);
}

TEST(SignedReportPages, HaveTheirNumberAndTheRevisionAtTheFoot) {
  const PagedSheet paged = Paged(ReportOf(SheetOf(FullDesign()).Made));

  const std::string count = std::to_string(paged.Pages.size());
  for (std::size_t i = 0; i < paged.Pages.size(); ++i) {
    const auto& labels = paged.Pages[i].Labels;
    EXPECT_EQ(labels.back().Text, "Page " + std::to_string(i + 1) + " of " + count);
    EXPECT_THAT(labels[labels.size() - 2].Text, HasSubstr(", revision B, 2031-03-09"));
  }
}

TEST(SignedReportPages, SayWhatCannotBeComputed) {
  Design design = FullDesign();
  design.Entries.Cable.Use = 0;  // the report divides by their number
  design.Entries.Bolt.Use = 1;

  const std::string words = AllWords(Paged(ReportOf(SheetOf(design).Made)));

  EXPECT_THAT(words, HasSubstr("cannot be computed: "));
  EXPECT_THAT(words, HasSubstr("Roof bolts in entries"));
}

}  // namespace
}  // namespace orby::test
