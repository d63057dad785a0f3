#include "reports/line_kinds.h"

#include <gmock/gmock.h>

#include "reports/calculation_report.h"
#include "reports/designs.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Returns the lines of this kind.
std::vector<std::string> LinesOfKind(LineKind wanted, const std::string& page) {
  std::vector<std::string> lines;
  LineKind kind = LineKind::Plain;
  for (const std::string& line : LinesOf(page)) {
    kind = KindOfLine(line, kind);
    if (kind == wanted) lines.push_back(line);
  }
  return lines;
}

// A design with only primary support.
struct DeskWithABolt : Desk {
  DeskWithABolt() {
    PickBolt(Parms(), 0.75F, 75);
    Parms().Entries.Analysed = 0;
    Parms().Intersections.Analysed = 0;
  }
  Design& Parms() { return program.project.WorkParms; }
  std::string Page() { return CalculationReport(Parms(), program.session.catalogs); }
};

TEST(LinesOfAReport, AreHeadingsIfTheyAreInBrackets) {
  EXPECT_THAT(LinesOfKind(LineKind::Heading, DeskWithABolt().Page()),
              ElementsAre("[ORBY CALCULATIONS]", "[INTERSECTION SPAN INFORMATION]", "[PRIMARY SUPPORT - ROOF BOLTS]",
                          "[ORBY DESIGN]"));
}

TEST(LinesOfAReport, AreNoWarningsIfTheDesignHolds) {
  EXPECT_THAT(LinesOfKind(LineKind::Warning, DeskWithABolt().Page()), IsEmpty());
}

TEST(LinesOfAReport, AreWarningsFromTheirHeadingToTheEmptyLine) {
  DeskWithABolt desk;
  desk.Parms().Place.ActualSpanDiagonals = 64;
  desk.Parms().Place.DepthofCover = 900;
  desk.Parms().Primary.RowSpacing = 5;

  EXPECT_THAT(LinesOfKind(LineKind::Warning, desk.Page()),
              ElementsAre("[Warning]", "Actual sum of diagonals exceeds suggested sum of diagonals.", "[Warning]",
                          "The actual PSUP for this design is less than the suggested",
                          "PSUP. Try changing the roof bolt length, bolt diameter, bolt grade", "or row spacing.",
                          "Consider using supplemental support for roof control"));
}

TEST(LinesOfAReport, AreWarningsWithoutAHeadingToo) {
  for (const std::string line : {"Consider using supplemental support for roof control",
                                 "Bolt capacity may not meet ASTM minimum standards for roof support",
                                 "(*) Rock Load Height adjusted. Maximum possible height....17.3 ft"}) {
    EXPECT_EQ(KindOfLine(line, LineKind::Plain), LineKind::Warning) << line;
  }
}

TEST(LinesOfAReport, AreNoWarningsAfterANewHeadingOrAnEmptyLine) {
  EXPECT_EQ(KindOfLine("[Warnings]", LineKind::Plain), LineKind::Warning);
  EXPECT_EQ(KindOfLine("[SECONDARY ENTRY SUPPORT - TRUSSES]", LineKind::Warning), LineKind::Heading);
  EXPECT_EQ(KindOfLine("Truss System Support Capacity....12.0 tons/ft", LineKind::Heading), LineKind::Plain);
  EXPECT_EQ(KindOfLine("", LineKind::Warning), LineKind::Plain);
}

}  // namespace
}  // namespace orby::test
