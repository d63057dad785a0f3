// The numbers of a design by name, beside the inputs of its calculation sheet.
#include "reports/design_numbers.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

#include "base/number_text.h"
#include "sheet/sheets.h"

namespace orby::test {
namespace {

using testing::UnorderedElementsAreArray;

std::string PlaceOfSection(std::string_view key) {
  if (key == "inputs-entries") return " (entries)";
  return key == "inputs-intersections" ? " (intersections)" : "";
}

// Returns the numbers in the tables of inputs: name, text and unit.
std::vector<std::string> InputsOf(const SheetOf& sheet) {
  std::vector<std::string> lines;
  for (const SheetSection& section : sheet.Made.Sections) {
    if (!section.Key.starts_with("inputs-") || section.Key == "inputs-cost") continue;
    for (const SheetPart& part : section.Parts) {
      const auto& input = std::get<SheetInput>(part);
      if (input.Label == "Standing Support Type") continue;
      lines.push_back(std::string(input.Label) + PlaceOfSection(section.Key) + ": " + input.Text + " " +
                      std::string(input.Unit));
    }
  }
  return lines;
}

// The sheet lists the inputs of parts that are not analysed too.
Design WithAllParts(Design design) {
  design.Primary.Analysed = 1;
  design.Entries.Analysed = 1;
  design.Intersections.Analysed = 1;
  return design;
}

TEST(NumbersOfADesign, AreTheInputsOfItsCalculationSheet) {
  DesignsOfSheets designs(17);
  for (int i = 0; i < 500; ++i) {
    const SheetOf sheet(WithAllParts(designs.Next()));
    std::vector<std::string> lines;
    for (const DesignNumber* number : NumbersInUse(sheet.Shown)) {
      lines.push_back(NameOf(*number) + ": " + NumberText(number->Field.In(sheet.Shown)) + " " +
                      std::string(UnitOf(number->Unit, sheet.Shown.Units)));
    }
    EXPECT_THAT(lines, UnorderedElementsAreArray(InputsOf(sheet)));
  }
}

TEST(NumbersOfADesign, LeaveOutWhatIsNotAnalysed) {
  Design design = WithAllParts(FullDesign());
  design.Primary.Analysed = 0;
  design.Entries.Analysed = 0;

  for (const DesignNumber* number : NumbersInUse(design)) {
    EXPECT_NE(number->Place, "entries") << number->Label;
    EXPECT_FALSE(number->Place.empty() && number->Label.starts_with("Roof Bolt")) << number->Label;
  }
}

TEST(NumbersOfADesign, HaveAFieldEach) {
  std::set<const Single*> fields;
  for (const DesignNumber& number : DesignNumbers()) {
    EXPECT_TRUE(fields.insert(&number.Field.In(SampleDesign())).second) << NameOf(number);
  }
}

}  // namespace
}  // namespace orby::test
