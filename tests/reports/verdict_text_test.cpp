// The judgements on a design in words, and beside those that the report prints.
#include "reports/verdict_text.h"

#include <algorithm>
#include <random>
#include <set>

#include "reports/calculation_report.h"
#include "reports/golden_designs.h"
#include "reports/primary_report.h"

namespace orby::test {
namespace {

// ---- words ---------------------------------------------------------------------------------------------------------

TEST(VerdictText, TellsByHowMuchTheSupportFallsShort) {
  const Verdict psup{.What = Aspect::Psup, .Result = Holding::Short, .Demand = 11.8F, .Supply = 5.6F};

  EXPECT_EQ(VerdictLine(psup, English), "Short: Actual PSUP 5.6 of the suggested 11.8, short by 53 %");
}

TEST(VerdictText, TellsHowFarASpanIsAboveItsLimit) {
  const Verdict span{.What = Aspect::Span, .Result = Holding::Short, .Demand = 60, .Supply = 75};

  EXPECT_EQ(VerdictLine(span, English), "Short: Sum of diagonals 75.0 with at most 60.0 ft, over by 25 %");
}

TEST(VerdictText, HasNamesForFilesThatNeverChange) {
  EXPECT_EQ(AspectKey(Aspect::Psup), "psup");
  EXPECT_EQ(AspectKey(Aspect::BoltAnchorage), "bolt-anchorage");
  EXPECT_EQ(OpeningKey(Opening::Intersections), "intersections");
  EXPECT_EQ(HoldingKey(Holding::Uncomputed), "uncomputed");
}

TEST(VerdictText, NamesEachJudgementDifferently) {
  std::set<std::string_view> names;
  for (std::size_t i = 0; i < AspectCount; ++i) names.insert(AspectName(static_cast<Aspect>(i)));

  EXPECT_EQ(names.size(), AspectCount);
  EXPECT_EQ(AspectName(Aspect::BoltCapacity), "Bolt capacity");
  EXPECT_EQ(AspectName(Aspect::SpanAndWidth), "Sum of diagonals for the entry width");
}

TEST(VerdictText, HasTheCellsOfATable) {
  const auto cells = [](const Verdict& verdict, UnitSystem units) {
    const VerdictCells made = CellsOf(verdict, units);
    return made.Subject + "|" + made.Supply + "|" + made.Limit + "|" + made.Result;
  };

  EXPECT_EQ(cells({.What = Aspect::Psup, .Result = Holding::Short, .Demand = 11.8F, .Supply = 5.6F}, English),
            "Actual PSUP|5.6|at least 11.8|Short, short by 53 %");
  EXPECT_EQ(cells({.What = Aspect::Span, .Result = Holding::Holds, .Demand = 60, .Supply = 55}, Metric),
            "Sum of diagonals|55.0 m|at most 60.0 m|Holds");
  EXPECT_EQ(cells({.What = Aspect::Cables,
                   .Where = Opening::Entries,
                   .Result = Holding::Uncomputed,
                   .Reason = Missing::Spacing},
                  English),
            "Cable bolts in entries|||Cannot be computed: the row spacing or the number in a row is missing");
}

TEST(VerdictText, HasTheUnitsOfTheDesignAndOfThePlace) {
  Verdict cables{.What = Aspect::Cables,
                 .Where = Opening::Entries,
                 .Result = Holding::Short,
                 .Demand = 5,
                 .Supply = 4,
                 .Factor = 0.8F};
  EXPECT_EQ(VerdictLine(cables, English),
            "Short: Cable bolts in entries 4.0 for a rock load of 5.0 tons/ft, stability factor 0.80, short by 20 %");

  cables.Where = Opening::Intersections;
  EXPECT_EQ(VerdictLine(cables, Metric),
            "Short: Cable bolts in intersections 4.0 for a rock load of 5.0 kN, stability factor 0.80, short by 20 %");
}

TEST(VerdictText, ShowsAsManyDecimalsAsItTakesToSeeADifference) {
  const Verdict length{.What = Aspect::BoltLength, .Result = Holding::Short, .Demand = 6.02F, .Supply = 6};

  EXPECT_EQ(VerdictFigures(length, English), "6.00 of the suggested 6.02 ft, short by less than 1 %");
}

TEST(VerdictText, NeedsNoMoreDecimalsForEqualNumbers) {
  const Verdict length{.What = Aspect::CableAnchorage, .Where = Opening::Entries, .Demand = 12, .Supply = 12};

  EXPECT_EQ(VerdictFigures(length, English), "12.0 for a rock load height and anchorage of 12.0 ft");
}

TEST(VerdictText, NamesWhatIsMissing) {
  const Verdict trusses{
      .What = Aspect::Trusses, .Where = Opening::Entries, .Result = Holding::Uncomputed, .Reason = Missing::Spacing};
  EXPECT_EQ(VerdictLine(trusses, English),
            "Cannot be computed: Trusses in entries - the row spacing or the number in a row is missing");

  const Verdict failed{.What = Aspect::Psup, .Result = Holding::Uncomputed, .Reason = Missing::Result, .Error = 11};
  EXPECT_EQ(VerdictFigures(failed, English), "Division by zero");
}

TEST(VerdictText, CountsTheWorstFirst) {
  Verdicts verdicts;
  EXPECT_EQ(VerdictCounts(verdicts), "Nothing is analysed");

  for (const Holding result : {Holding::Holds, Holding::Short, Holding::Check, Holding::Holds}) {
    verdicts.Add({.Result = result});
  }
  EXPECT_EQ(VerdictCounts(verdicts), "1 short, 1 to check, 2 holding");
}

// ---- beside the report ---------------------------------------------------------------------------------------------

// Designs of which many fall short: each number is one that an engineer could type.
class RandomDesigns {
 public:
  explicit RandomDesigns(unsigned seed) : numbers_(seed) {}

  void Change(Design& design) {
    const double scale = design.Units == Metric ? 1 / FeetPerMetre : 1;
    const auto length = [&](double least, double most) { return static_cast<Single>(Between(least, most) * scale); };
    design.Place.CMRR = static_cast<Single>(static_cast<int>(Between(25, 90)));
    design.Place.DepthofCover = length(100, 2000);
    design.Place.ActualSpanDiagonals = length(20, 90);
    design.Place.EntryWidth = length(14, 24);
    design.Primary.StabilityFactor = static_cast<Single>(Between(1, 1.5));
    for (BoltSelection* set : design.BoltSets()) {
      set->Length = length(2, 10);
      set->BoltsperRow = static_cast<Single>(static_cast<int>(Between(2, 9)));
      set->RowSpacing = length(2, 7);
    }
    const bool isMetric = design.Units == Metric;
    PickBolt(design, static_cast<Single>(isMetric ? Between(13, 25) : Between(0.51, 1)),
             static_cast<Single>(isMetric ? Between(200, 600) : Between(30, 90)));
    for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
      support->RockLoadHeight = length(1, 12);
      support->RockFallAngle = static_cast<Single>(Between(5, 60));
      support->RockFallAngleXcut = static_cast<Single>(Between(5, 60));
      support->Cable.Length = length(4, 16);
    }
  }

 private:
  double Between(double least, double most) { return std::uniform_real_distribution(least, most)(numbers_); }

  std::mt19937 numbers_;
};

bool Says(const std::vector<std::string>& lines, std::string_view text) {
  return std::ranges::any_of(lines, [text](const std::string& line) { return line.starts_with(text); });
}

Holding ResultOf(const Verdicts& verdicts, Aspect what, Opening where = Opening::Primary) {
  const auto all = verdicts.All();
  const auto found = std::ranges::find_if(all, [&](const Verdict& v) { return v.What == what && v.Where == where; });
  return found == all.end() ? Holding::Uncomputed : found->Result;
}

bool IsShort(const Verdicts& verdicts, Aspect what, Opening where = Opening::Primary) {
  return ResultOf(verdicts, what, where) == Holding::Short;
}

class VerdictsBesideTheReport : public testing::TestWithParam<UnitSystem> {};

TEST_P(VerdictsBesideTheReport, SayTheSame) {
  Desk desk(GetParam());
  Design& design = desk.program.project.WorkParms;
  UseEverySystem(design);
  RandomDesigns random(17);
  int someShort = 0;

  for (int i = 0; i < 2500; ++i) {
    random.Change(design);
    const Figures figures = Analyze(design, desk.program.session.catalogs);
    const std::string page = CalculationReport(design, figures);
    const Verdicts verdicts = Judge(design, figures);
    const auto span = SectionOf(page, "[INTERSECTION SPAN INFORMATION]");
    const auto bolts = SectionOf(page, "[PRIMARY SUPPORT - ROOF BOLTS]");
    const auto psup = SectionOf(page, "[ORBY DESIGN]");

    EXPECT_EQ(IsShort(verdicts, Aspect::Span), Says(span, "Actual sum of diagonals exceeds"));
    EXPECT_EQ(ResultOf(verdicts, Aspect::SpanAndWidth) == Holding::Holds && !IsShort(verdicts, Aspect::Span),
              Says(span, "Intersection Span: OK."));
    EXPECT_EQ(IsShort(verdicts, Aspect::BoltLength), Says(bolts, "The actual roof bolt length is shorter"));
    EXPECT_EQ(ResultOf(verdicts, Aspect::BoltLength) == Holding::Check,
              Says(bolts, "The actual roof bolt length is longer"));
    EXPECT_EQ(IsShort(verdicts, Aspect::BoltCapacity), Says(bolts, BelowASTM));
    EXPECT_EQ(IsShort(verdicts, Aspect::Psup), Says(psup, "The actual PSUP for this design is less"));
    EXPECT_EQ(ResultOf(verdicts, Aspect::Supplement) == Holding::Check, Says(psup, "Consider using supplemental"));
    someShort += verdicts.Count(Holding::Short) > 0 ? 1 : 0;

    for (const Opening where : {Opening::Entries, Opening::Intersections}) {
      const std::string place = where == Opening::Entries ? "ENTRY" : "INTERSECTION";
      const auto cables = SectionOf(page, "[SECONDARY " + place + " SUPPORT - CABLE BOLTS]");
      const auto roofBolts = SectionOf(page, "[SECONDARY " + place + " SUPPORT - ROOF BOLTS]");
      EXPECT_EQ(IsShort(verdicts, Aspect::CableAnchorage, where), Says(cables, "Cable bolt may not be long enough"));
      EXPECT_EQ(IsShort(verdicts, Aspect::BoltCapacity, where), Says(roofBolts, BelowASTM));
      const auto all = verdicts.All();
      const auto anchorage = std::ranges::find_if(
          all, [&](const Verdict& v) { return v.What == Aspect::BoltAnchorage && v.Where == where; });
      ASSERT_NE(anchorage, all.end());
      const bool saysShort = Says(roofBolts, "Secondary roof bolt may not be long enough");
      EXPECT_EQ((anchorage->Result == Holding::Short) != anchorage->ReportDiffers, saysShort);
    }
  }
  EXPECT_GT(someShort, 1000);
}

INSTANTIATE_TEST_SUITE_P(Units, VerdictsBesideTheReport, testing::Values(English, Metric));

}  // namespace
}  // namespace orby::test
