// What the choice of an entry of a list sets.
#include "design/choices.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>

#include "base/number_text.h"
#include "design/catalogs.h"

namespace orby::test {
namespace {

Catalogs ListsAtStart() {
  Catalogs lists;
  SetBuiltInCatalogs(lists);
  return lists;
}

TEST(ChosenTableRow, SetsTheNumbersThatTheTableShows) {
  const Catalogs lists = ListsAtStart();
  BoltSelection set;
  TakeTableRow(set, OfferedBolts(lists, English), 7);
  EXPECT_EQ(set.TableRow, 7);
  EXPECT_EQ(set.Desc, "#7 special rebar - grade 75");
  EXPECT_EQ(set.TableDiameter, 0.804F);
  EXPECT_EQ(set.TableGrade, 75);

  TakeTableRow(set, OfferedBolts(lists, Metric), 7);
  EXPECT_EQ(set.TableDiameter, 20.4F) << "the Metric table has one decimal";
  EXPECT_EQ(set.TableGrade, 517.1F);
}

TEST(ChosenStandingSupport, HasAWholeCapacityInTheUnitsOfTheDesign) {
  Catalogs lists = ListsAtStart();
  lists.StandSupports.DefaultStandSupportCap[7] = {22.6F, 195.4F};
  StandingSelection standing;
  standing.TypeMode = ValueSource::Typed;

  TakeStandingSupport(standing, lists, English, 7);
  EXPECT_EQ(standing.TypeMode, ValueSource::Standard);
  EXPECT_EQ(standing.TypeName, "Wood Post (6in)");
  EXPECT_EQ(standing.Capacity, 23);
  TakeStandingSupport(standing, lists, Metric, 7);
  EXPECT_EQ(standing.Capacity, 195);
}

TEST(OfferedGrades, AreOfTheUnitsAndTheBasisOfTheDesign) {
  const Catalogs lists = ListsAtStart();

  EXPECT_EQ(OfferedBoltGrades(lists, English, StrengthBasis::Yield)[0], 40);
  EXPECT_EQ(OfferedBoltGrades(lists, English, StrengthBasis::Ultimate)[0], 70);
  EXPECT_EQ(OfferedBoltGrades(lists, Metric, StrengthBasis::Yield)[0], 280);
  EXPECT_EQ(OfferedBoltGrades(lists, Metric, StrengthBasis::Ultimate)[0], 480);
}

TEST(SevenDigits, AreThoseOfAField) {
  EXPECT_EQ(InSevenDigits(20.0F / 3), 6.666667F);
  EXPECT_EQ(InSevenDigits(0.1F), 0.1F);
}

TEST(ANumberInSevenDigits, IsThatOfItsText) {
  const auto expect = [](Single number) {
    const Single ofText = static_cast<Single>(TextValue(NumberText(number)));
    ASSERT_EQ(std::bit_cast<std::uint32_t>(InSevenDigits(number)), std::bit_cast<std::uint32_t>(ofText)) << number;
  };
  constexpr int Million = 1000000;
  for (int thousandths = -3000; thousandths <= Million + 3000; ++thousandths) {
    const auto number = static_cast<Single>(thousandths / 1000.0);
    expect(number);
    if (thousandths % 5 != 0) continue;
    expect(std::nextafter(number, 1e9F));
    expect(std::nextafter(number, -1e9F));
  }
  for (const Single number : {-0.0F, 1e-30F, 3.4e38F, 999999.94F, 1000000.1F, 16777216.0F}) expect(number);
}

}  // namespace
}  // namespace orby::test
