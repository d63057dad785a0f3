// The steps of a sheet against the engine, the report and the dialog.
#include <gmock/gmock.h>

#include <bit>
#include <cmath>
#include <limits>
#include <set>

#include "base/number_text.h"
#include "dialogs/live_texts.h"
#include "engine/cost.h"
#include "reports/calculation_report.h"
#include "reports/report_text.h"
#include "sheet/formula_text.h"
#include "sheet/printed_formula.h"
#include "sheet/sheets.h"

namespace orby::test {
namespace {

using testing::IsEmpty;

constexpr int Designs = SHEET_DESIGNS;

// One unit in the seventh digit.
double LastDigit(double value) { return value == 0 ? 0 : std::pow(10.0, std::floor(std::log10(std::abs(value))) - 6); }

// Returns by how much a printed result may differ from the one by hand: a unit in its last digit, or what a unit in the
// last digit of each inserted number moves; and by the rounding to a Single, which no print shows.
double Tolerance(const SheetStep& step, double byHand) {
  double moved = 0;
  for (std::size_t i = 0; i < step.Numbers.size(); ++i) {
    SheetStep other = step;
    const double value = step.Numbers[i].Value;
    other.Numbers[i].Text = NumberText(TextValue(step.Numbers[i].Text) + LastDigit(value));
    moved += std::abs(ValueOfPrinted(InsertedText(other)) - byHand);
  }
  constexpr double HalfStep = std::numeric_limits<Single>::epsilon() / 2;
  return std::max(LastDigit(*step.Value), moved) * 1.001 + HalfStep * std::abs(*step.Value);
}

TEST(ASheet, GivesTheEnginesOwnFigures) {
  DesignsOfSheets designs(7);
  std::set<Law> laws;
  for (int i = 0; i < Designs; ++i) {
    const SheetOf sheet(designs.Next());
    for (const SheetStep* step : sheet.Steps()) {
      if (step->Law != nullptr && step->Value) laws.insert(step->Law->What);
      if (!step->Figure) continue;
      ASSERT_TRUE(step->Value) << "design " << i << ": " << step->Title << ": " << step->Failure;
      ASSERT_EQ(std::bit_cast<std::uint32_t>(static_cast<Single>(*step->Value)),
                std::bit_cast<std::uint32_t>(*step->Figure + 0.0F))
          << "design " << i << ": " << step->Title << " " << *step->Value << " instead of " << *step->Figure;
    }
  }
  EXPECT_EQ(laws.size(), Relations().size()) << "each relation is tried";
}

TEST(ASheet, PrintsNumbersThatGiveItsResultsByHand) {
  DesignsOfSheets designs(8);
  for (int i = 0; i < Designs / 10; ++i) {
    const SheetOf sheet(designs.Next());
    for (const SheetStep* step : sheet.Steps()) {
      if (step->Law == nullptr || !step->Value) continue;
      const std::string inserted = InsertedText(*step);
      const double byHand = ValueOfPrinted(inserted);
      ASSERT_NEAR(TextValue(step->Text), byHand, Tolerance(*step, byHand))
          << "design " << i << ": " << step->Title << " = " << inserted;
    }
  }
}

// Returns the results that the sheet says to be shown there.
std::multiset<std::string> ShownIn(const SheetOf& sheet, std::string_view where) {
  std::multiset<std::string> texts;
  for (const SheetStep* step : sheet.Steps()) {
    for (const ShownResult& shown : step->Shown) {
      if (shown.Where == where) texts.insert(shown.Text.substr(0, shown.Text.find(' ')));
    }
  }
  return texts;
}

// All remarks and inputs of the sheet.
std::string WordsOf(const SheetOf& sheet) {
  std::string words;
  for (const SheetSection& section : sheet.Made.Sections) {
    for (const SheetPart& part : section.Parts) {
      if (const auto* remark = std::get_if<SheetRemark>(&part)) words += remark->Text + "\n";
      if (const auto* input = std::get_if<SheetInput>(&part)) words += " " + input->Text + " \n";
    }
  }
  return words;
}

// Returns the values of a report page: what stands after the dots of a line, without its unit.
std::vector<std::string> ValuesOf(const std::string& page) {
  std::vector<std::string> values;
  for (std::size_t start = 0; start < page.size();) {
    const std::size_t end = page.find("\r\n", start);
    const std::string line = page.substr(start, end - start);
    if (line.size() > ReportWidth && line[ReportWidth - 1] == '.') {
      const std::string text = line.substr(ReportWidth);
      values.push_back(text.substr(0, text.find(' ')));
    }
    start = end + 2;
  }
  return values;
}

TEST(ASheet, HasEveryNumberOfTheReportInTheSameText) {
  DesignsOfSheets designs(9);
  int reports = 0;
  for (int i = 0; i < Designs / 10; ++i) {
    const SheetOf sheet(designs.Next());
    const auto page = Attempt([&] { return CalculationReport(sheet.Previewed, Lists()); });
    if (!page.IsThere()) continue;
    ++reports;
    const auto shown = ShownIn(sheet, "report");
    const std::string words = WordsOf(sheet);
    for (const std::string& value : ValuesOf(page.Value())) {
      ASSERT_TRUE(shown.contains(value) || words.find(" " + value + " ") != std::string::npos ||
                  words.find(" " + value + ".") != std::string::npos)
          << "design " << i << ": " << value << "\n"
          << page.Value();
    }
  }
  EXPECT_GT(reports, Designs / 40);
}

TEST(ASheet, HasEveryResultOfTheDialogInTheSameText) {
  DesignsOfSheets designs(10);
  for (int i = 0; i < Designs / 10; ++i) {
    const SheetOf sheet(designs.Next());
    LiveTexts live;
    live.Take(Analyze(sheet.Shown, Lists()));
    const auto shown = ShownIn(sheet, "dialog");
    const auto expect = [&](const FigureText& figure, bool isUsed = true) {
      if (!isUsed || figure.Last() == NoResult) return;
      ASSERT_TRUE(shown.contains(figure.Last())) << "design " << i << ": " << figure.Last();
    };
    for (const FigureText* figure : {&live.SugPSUP, &live.SugLength, &live.SuggestedSpan, &live.ActualPSUP,
                                     &live.Entries.RockLoad, &live.Intersections.RockLoad}) {
      expect(*figure);
    }
    for (std::size_t system = 0; system < SystemCount; ++system) {
      expect(live.Entries.Capacities[system]);
      expect(live.Entries.Factors[system]);
      expect(live.Intersections.Capacities[system]);
      expect(live.Intersections.Factors[system]);
    }
  }
}

TEST(ASheet, HasEveryCellOfTheCostTable) {
  DesignsOfSheets designs(11);
  for (int i = 0; i < Designs / 20; ++i) {
    const SheetOf sheet(designs.Next());
    const CostTable costs = AnalyseCost(sheet.Shown.Cost);
    const auto& parts = sheet.Section("cost").Parts;
    const auto& table = std::get<SheetTable>(parts.back());
    for (std::size_t head = 0; head < CostHeads; ++head) {
      for (std::size_t column = 0; column < 4; ++column) {
        ASSERT_EQ(table.Rows[head][column + 1], FormatNumber(costs.Heads[head][column], "0.00"));
      }
    }
    const auto shown = ShownIn(sheet, "cost table");
    for (const Single total : costs.Totals) ASSERT_TRUE(shown.contains(FormatNumber(total, "0.00")));
  }
}

TEST(ASheet, SaysWhichStepEndsTheReport) {
  Design design = FullDesign();
  design.Entries.Cable.Use = 0;
  const SheetOf sheet(design);

  EXPECT_EQ(Attempt([&] { return CalculationReport(sheet.Previewed, Lists()); }).Error(), error_number::DivisionByZero);
  const SheetStep& srdi = sheet.Step("entry-bolts", "Secondary Reinforcement Density Index (SRDI)");
  EXPECT_EQ(srdi.Failure, "it divides by zero");
  EXPECT_THAT(srdi.Notes, testing::Contains(testing::HasSubstr("The report of this design ends here.")));
  for (const SheetStep* step : sheet.Steps()) {
    if (step != &srdi) {
      EXPECT_THAT(step->Failure, IsEmpty()) << step->Title;
    }
  }
}

TEST(ASheet, SaysWhatNeedsANumberThatCannotBeComputed) {
  Design design = FullDesign();
  design.Place.DepthofCover = 0;
  const SheetOf sheet(design);

  EXPECT_EQ(sheet.Step("bolt-length", "Logarithm of the depth").Failure, "it has no logarithm or no root");
  EXPECT_EQ(sheet.Step("bolt-length", "Suggested minimum bolt length").Failure,
            "the decimal logarithm of the depth cannot be computed");
  EXPECT_EQ(sheet.Step("suggested-psup", "Suggested PSUP").Text, "0");
}

}  // namespace
}  // namespace orby::test
