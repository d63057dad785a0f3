// Where the inputs of a sheet come from.
#include <gmock/gmock.h>

#include "engine/estimator.h"
#include "sheet/sheet_html.h"
#include "sheet/sheets.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* Default = "default of a new project";

Design NewIn(UnitSystem units) {
  Design design;
  design.Units = units;
  return NewDesignLike(design);
}

std::string SourceIn(const SheetOf& sheet, std::string_view section, std::string_view label) {
  for (const SheetPart& part : sheet.Section(section).Parts) {
    const auto* input = std::get_if<SheetInput>(&part);
    if (input != nullptr && input->Label == label) return input->Source;
  }
  return "no such input";
}

std::vector<std::string> SourcesIn(const SheetOf& sheet, std::string_view section) {
  std::vector<std::string> sources;
  for (const SheetPart& part : sheet.Section(section).Parts) {
    if (const auto* input = std::get_if<SheetInput>(&part)) sources.push_back(input->Source);
  }
  return sources;
}

bool HasRoofRating(const SheetOf& sheet) {
  return std::ranges::find(sheet.Made.Sections, "roof-rating", &SheetSection::Key) != sheet.Made.Sections.end();
}

Design WithEstimate(Integer region, Integer rockType, Single rating) {
  Design design = NewIn(English);
  design.Place.CMRRRegionIndex = region;
  design.Place.CMRRRockTypeIndex = rockType;
  design.Place.CMRR = rating;
  return design;
}

// ---- defaults ------------------------------------------------------------------------------------------------------

TEST(TheInputsOfANewProject, AreDefaultsInBothUnitSystems) {
  for (const UnitSystem units : {English, Metric}) {
    const SheetOf sheet(NewIn(units));

    EXPECT_THAT(SourcesIn(sheet, "inputs-site"), Each(Default));
    EXPECT_THAT(SourcesIn(sheet, "inputs-cost"), Each(Default));
    EXPECT_THAT(SourcesIn(sheet, "inputs-entries"), Contains(Default).Times(5));
    EXPECT_THAT(SourcesIn(sheet, "inputs-intersections"), Contains(Default));
  }
}

TEST(AnInput, ThatDiffersFromANewProjectIsTyped) {
  Design design = NewIn(English);
  design.Place.DepthofCover = 401;
  design.Entries.Cable.RowSpacing = 4.5F;
  design.Cost.PlateCost = 1.25F;
  const SheetOf sheet(design);

  EXPECT_EQ(SourceIn(sheet, "inputs-site", "Depth of Cover"), "typed");
  EXPECT_EQ(SourceIn(sheet, "inputs-site", "Entry Width"), Default);
  EXPECT_EQ(SourceIn(sheet, "inputs-entries", "Cable Bolt Row Spacing"), "typed");
  EXPECT_EQ(SourceIn(sheet, "inputs-intersections", "Rock Load Height"), Default);
  EXPECT_EQ(SourceIn(sheet, "inputs-cost", "Plate cost ($/plate)"), "typed");
}

TEST(AnInput, OfAMetricProjectIsNotTheEnglishDefault) {
  Design design = NewIn(Metric);
  design.Place.DepthofCover = 400;

  EXPECT_EQ(SourceIn(SheetOf(design), "inputs-site", "Depth of Cover"), "typed");
}

TEST(AnInput, ThatWasChosenKeepsItsSource) {
  Design design = NewIn(English);
  design.Primary.Options = BoltSource::Manual;
  design.Primary.DiameterMode = ValueSource::Standard;
  design.Primary.GradeMode = ValueSource::Typed;
  const SheetOf sheet(design);

  EXPECT_EQ(SourceIn(sheet, "inputs-primary", "Roof Bolt Diameter"), "list of standard values");
  EXPECT_EQ(SourceIn(sheet, "inputs-primary", "Roof Bolt Grade"), "typed");
}

// ---- roof rating ---------------------------------------------------------------------------------------------------

TEST(TheRoofRating, OfTheEstimatorHasItsTableAndItsRow) {
  const SheetOf sheet(WithEstimate(1, 3, 50));

  EXPECT_EQ(SourceIn(sheet, "inputs-site", "CMRR"), "estimator: Central Appalachia, Siltstone");
  const SheetStep& step = sheet.Step("roof-rating", "Coal Mine Roof Rating of the region and the rock");
  EXPECT_EQ(step.Value, 50);
  EXPECT_EQ(step.Text, "50");
  EXPECT_THAT(step.Notes, ElementsAre("Row 4 of the table: Siltstone."));
  const auto& parts = sheet.Section("roof-rating").Parts;
  const auto& table = std::get<SheetTable>(parts.at(3));
  EXPECT_THAT(table.Rows, ElementsAre(ElementsAre("Thick Claystone", "1", "40"), ElementsAre("Thick Shale", "2", "45"),
                                      ElementsAre("Stackrock (laminated sandstone/shale)", "3", "45"),
                                      ElementsAre("Siltstone", "4", "50"), ElementsAre("Bedded Sandstone", "5", "55"),
                                      ElementsAre("Massive Sandstone", "6", "65"), ElementsAre("Unknown", "7", "45")));
}

TEST(TheRoofRating, HasATableWithoutATotal) {
  const SheetOf sheet(WithEstimate(1, 3, 50));

  EXPECT_FALSE(std::get<SheetTable>(sheet.Section("roof-rating").Parts.at(3)).LastIsTotal);
  EXPECT_TRUE(std::get<SheetTable>(sheet.Section("cost").Parts.back()).LastIsTotal);
  EXPECT_THAT(SheetHtml(sheet.Made),
              AllOf(HasSubstr("<table class=\"figures\">"), HasSubstr("<table class=\"figures total\">")));
}

TEST(TheRoofRating, IsTheEstimatorsForEachRegionAndRock) {
  for (Integer region = 0; region < static_cast<Integer>(RegionNames.size()); ++region) {
    const auto rocks = RockTypes(region);
    for (std::size_t row = 0; row + 1 < rocks.size(); ++row) {
      const Single rating = std::stof(std::string(rocks[row].CMRR));
      const SheetOf sheet(WithEstimate(region, static_cast<Integer>(row), rating));

      ASSERT_TRUE(HasRoofRating(sheet)) << region << " " << rocks[row].Name;
      const auto& parts = sheet.Section("roof-rating").Parts;
      EXPECT_EQ(std::get<SheetInput>(parts.at(0)).Text, RegionNames.at(static_cast<std::size_t>(region)));
      EXPECT_EQ(std::get<SheetInput>(parts.at(1)).Text, rocks[row].Name);
      EXPECT_EQ(std::get<SheetTable>(parts.at(3)).Rows.at(row).at(2), rocks[row].CMRR);
      EXPECT_EQ(std::get<SheetTable>(parts.at(3)).Rows.size(), rocks.size() - 1);
      EXPECT_EQ(std::get<SheetStep>(parts.at(4)).Value, rating);
    }
  }
}

TEST(TheRoofRating, ThatIsSetManuallyIsTyped) {
  Design design = WithEstimate(1, 3, 50);
  design.Place.CMRRManual = 1;
  const SheetOf sheet(design);

  EXPECT_EQ(SourceIn(sheet, "inputs-site", "CMRR"), "typed");
  EXPECT_FALSE(HasRoofRating(sheet));
}

TEST(TheRoofRating, ThatIsNotThatOfItsRowIsNotTheEstimators) {
  const SheetOf changed(WithEstimate(1, 3, 52));
  EXPECT_EQ(SourceIn(changed, "inputs-site", "CMRR"), "typed");
  EXPECT_FALSE(HasRoofRating(changed));

  const SheetOf unused(NewIn(English));
  EXPECT_EQ(SourceIn(unused, "inputs-site", "CMRR"), Default);
  EXPECT_FALSE(HasRoofRating(unused));
}

TEST(TheRoofRating, OfNoRowOfTheTableIsNotTheEstimators) {
  for (const auto& [region, rockType] : {std::pair<Integer, Integer>{6, 0}, {-1, 0}, {1, -1}, {1, 7}, {4, 7}}) {
    EXPECT_FALSE(HasRoofRating(SheetOf(WithEstimate(region, rockType, 45)))) << region << " " << rockType;
  }
}

}  // namespace
}  // namespace orby::test
