// Cells in a design's own units have the texts that the program shows for this design alone.
#include <gmock/gmock.h>

#include <map>
#include <regex>
#include <vector>

#include "base/text.h"
#include "dialogs/parameters_dialog.h"
#include "files/shown_design.h"
#include "reports/calculation_report.h"
#include "reports/cost_report.h"
#include "reports/input_echo.h"
#include "reports/report_text.h"
#include "reports/secondary_report.h"
#include "reports/verdict_text.h"
#include "sheet/sheets.h"
#include "tables/rows.h"

namespace orby::test {
namespace {

using testing::EndsWith;
using testing::StartsWith;

using Texts = std::map<std::string, std::string>;  // with their units, by the heads of their columns

constexpr int DesignCount = TABLE_DESIGNS;

bool Has(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

std::string WithUnit(const std::string& text, const std::string& unit) {
  return unit.empty() ? text : text + " (" + unit + ")";
}

// The numbers of a page of the report.
class PrintedPage {
 public:
  explicit PrintedPage(std::string_view page) {
    while (!page.empty()) Read(std::string(TakeLine(page)));
  }
  const Texts& Numbers() const { return numbers_; }

 private:
  void Read(const std::string& line) {
    if (line.starts_with('[') && !line.starts_with("[Warning")) heading_ = line;
    if (line.size() <= ReportWidth || line[ReportWidth - 1] != '.') return;
    std::string label = line.substr(0, line.find_last_not_of('.', ReportWidth - 1) + 1);
    if (label == HeightAdjusted) label = "Maximum possible height";
    if (label.starts_with("Actual Roof Bolt") && label.ends_with("Capacity")) label = "Actual Roof Bolt Capacity";
    numbers_[Place() + label] = line.substr(ReportWidth);
    if (label.starts_with("Secondary")) {
      const bool isOfCables = Has(heading_, "CABLE BOLTS");
      numbers_.erase(Place() + label);
      numbers_[Place() + (isOfCables ? "Cable Bolts: " : "Roof Bolts: ") + label] = line.substr(ReportWidth);
    }
  }

  std::string Place() const {
    if (Has(heading_, "GEOLOGY") || Has(heading_, "MINING")) return "";
    if (Has(heading_, "ENTRY")) return "Entries: ";
    return Has(heading_, "SECONDARY INTERSECTION") ? "Intersections: " : "Primary: ";
  }

  std::string heading_;
  Texts numbers_;
};

// Returns the texts of the cells of a group that have numbers.
Texts NumbersOf(const TableRow& row, ColumnGroup group) {
  Texts texts;
  for (const Column& column : AllColumns()) {
    const Cell cell = CellOf(column, row, row.Shown.Units);
    if (column.Group != group || !cell.IsNumber()) continue;
    texts[column.Head] = WithUnit(ShownText(cell), UnitText(column.Unit, row.Shown.Units));
  }
  return texts;
}

TEST(ATableOfDesigns, HasTheFiguresThatTheReportPrints) {
  const TableRun run;
  DesignsOfSheets designs(11);
  int reports = 0;
  for (int i = 0; i < DesignCount; ++i) {
    const TableRow row = RowOfDesign(run, designs.Next());
    Texts expected;
    int error = 0;
    try {
      const PrintedPage page(CalculationReport(AsPreviewed(row.Shown), run.program.session.catalogs));
      for (const auto& [head, text] : page.Numbers()) expected["Report: " + head] = text;
      expected.erase("Report: Primary: Actual Sum of Diagonals");
      expected.erase("Report: Primary: Actual Roof Bolt Length");
      ++reports;
    } catch (const RuntimeError& failure) {
      error = failure.number();
    }

    ASSERT_EQ(row.ReportError, error) << "design " << i;
    ASSERT_EQ(NumbersOf(row, ColumnGroup::Report), expected) << "design " << i;
  }
  EXPECT_GT(reports, DesignCount / 4);
  EXPECT_LT(reports, DesignCount);
}

TEST(ATableOfDesigns, HasTheInputsThatTheReportPrints) {
  const TableRun run;
  DesignsOfSheets designs(12);
  std::size_t compared = 0;
  for (int i = 0; i < DesignCount; ++i) {
    const TableRow row = RowOfDesign(run, designs.Next());
    const PrintedPage page(InputEcho(row.Shown, {}, run.program.session.catalogs));
    const Texts inputs = NumbersOf(row, ColumnGroup::Inputs);
    for (const auto& [head, text] : page.Numbers()) {
      const auto input = inputs.find(head);
      if (input == inputs.end()) continue;  // capacities of bolts are no inputs
      ASSERT_EQ(input->second, text) << "design " << i << ": " << head;
      ++compared;
    }
  }
  EXPECT_GT(compared, static_cast<std::size_t>(DesignCount) * 20);
}

TEST(ATableOfDesigns, HasTheTotalsOfTheCostTable) {
  const TableRun run;
  DesignsOfSheets designs(13);
  for (int i = 0; i < DesignCount; ++i) {
    const TableRow row = RowOfDesign(run, designs.Next());
    const std::string page = CostReport(row.Shown.Cost, row.Shown.Units);
    // Wide numbers touch each other. Each one has two decimals.
    const std::string line = page.substr(page.find("TOTAL COST:"));
    const std::regex number(R"(-?\d+\.\d\d)");
    const std::vector<std::string> totals(std::sregex_token_iterator(line.begin(), line.end(), number), {});

    ASSERT_EQ(totals.size(), 4U) << "design " << i;
    ASSERT_EQ(OwnText(row, "cost-total-bolt"), totals[0]) << "design " << i;
    ASSERT_EQ(OwnText(row, "cost-total-length"), totals[1]) << "design " << i;
    ASSERT_EQ(OwnText(row, "cost-total-shift"), totals[2]) << "design " << i;
    ASSERT_EQ(OwnText(row, "cost-total-ton"), totals[3]) << "design " << i;
  }
}

// The columns of the judgements of one place, by what is judged.
std::string KeyOfJudgement(const Verdict& verdict) {
  static const char* const Keys[AspectCount] = {"span",  "span-and-width", "bolt-length",     "bolt-capacity",
                                                "psup",  "supplement",     "cables",          "trusses",
                                                "bolts", "standing",       "cable-anchorage", "bolt-anchorage"};
  static const char* const Places[OpeningCount] = {"primary-", "entry-", "intersection-"};
  return std::string("verdict-") + Places[static_cast<std::size_t>(verdict.Where)] +
         Keys[static_cast<std::size_t>(verdict.What)];
}

void CompareJudgement(const TableRow& row, const Verdict& verdict) {
  const UnitSystem units = row.Shown.Units;
  const std::string key = KeyOfJudgement(verdict);
  const std::string figures = VerdictFigures(verdict, units);
  EXPECT_THAT(VerdictLine(verdict, units), StartsWith(OwnText(row, key) + ": "));
  std::string share;
  std::smatch found;
  if (std::regex_search(figures, found, std::regex("(short|over) by (.+) %"))) share = found[2];
  EXPECT_EQ(OwnText(row, key + (IsUpperLimit(verdict.What) ? "-over-by" : "-short-by")), share);
  if (verdict.Result == Holding::Uncomputed) {
    EXPECT_EQ(OwnText(row, key + "-demand"), "--");
    return;
  }
  const Column& demand = ColumnWith(key + "-demand");
  const std::string unit = UnitText(demand.Unit, units);
  const std::string numbers = figures.substr(0, figures.find_first_of(",;"));
  EXPECT_THAT(numbers, StartsWith(OwnText(row, key + "-supply") + " "));
  EXPECT_THAT(numbers, EndsWith(" " + OwnText(row, key + "-demand") + (unit.empty() ? "" : " " + unit)));
}

TEST(ATableOfDesigns, HasTheJudgementsOfTheDialog) {
  const TableRun run;
  DesignsOfSheets designs(14);
  for (int i = 0; i < DesignCount && !testing::Test::HasFailure(); ++i) {
    const TableRow row = RowOfDesign(run, designs.Next());
    for (const Verdict& verdict : row.Judged.All()) CompareJudgement(row, verdict);
    std::size_t results = 0;
    for (const Column& column : AllColumns()) {
      const bool isResult = column.Key.starts_with("verdict-") && CellOf(column, row, English).Kind == CellKind::Text;
      if (isResult) ++results;
    }
    EXPECT_EQ(results, row.Judged.All().size());
    EXPECT_FALSE(testing::Test::HasFailure()) << "design " << i;
  }
}

// Dashes stand for a figure that is not there.
std::string FigureText(const std::string& text) {
  return text.find_first_not_of('-') == std::string::npos ? std::string() : text;
}

void CompareOutputs(const TableRow& row, const std::string& place, const OutputControls& outputs) {
  const char* const systems[SystemCount] = {"cable-bolts-", "trusses-", "roof-bolts-", "standing-supports-"};
  const std::string start = "live-" + place;
  for (std::size_t i = 0; i < SystemCount; ++i) {
    EXPECT_EQ(FigureText(OwnText(row, start + "rock-load")), FigureText(outputs.RockLoad[i].Text()));
    EXPECT_EQ(FigureText(OwnText(row, start + systems[i] + "capacity")), FigureText(outputs.SupportCap[i].Text()));
    EXPECT_EQ(FigureText(OwnText(row, start + systems[i] + "stability-factor")),
              FigureText(outputs.StabFactor[i].Text()));
  }
}

TEST(ATableOfDesigns, HasTheFiguresOfANewlyOpenedDialog) {
  DesignsOfSheets designs(15);
  for (int i = 0; i < DesignCount / 10 && !testing::Test::HasFailure(); ++i) {
    TableRun run;
    run.program.project.WorkParms = designs.Next();
    const TableRow row = RowOfDesign(run, run.program.project.WorkParms);
    ParametersDialog dialog(run.program);
    dialog.Open();

    EXPECT_EQ(FigureText(OwnText(row, "live-primary-suggested-psup")), FigureText(dialog.txtSugPSUP.Text()));
    EXPECT_EQ(FigureText(OwnText(row, "live-primary-actual-psup")), FigureText(dialog.txtActualPSUP.Text()));
    EXPECT_EQ(FigureText(OwnText(row, "live-primary-suggested-bolt-length")),
              FigureText(dialog.txtSuggestBoltLength.Text()));
    EXPECT_EQ(FigureText(OwnText(row, "live-primary-suggested-sum-of-diagonals")),
              FigureText(dialog.txtSugSumDiagonals.Text()));
    CompareOutputs(row, "entry-", dialog.EntryOutputs);
    CompareOutputs(row, "intersection-", dialog.InterOutputs);
    EXPECT_FALSE(testing::Test::HasFailure()) << "design " << i;
  }
}

}  // namespace
}  // namespace orby::test
