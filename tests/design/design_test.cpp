#include "design/design.h"

#include <gtest/gtest.h>

namespace orby::test {
namespace {

// A bolt set whose diameters (in) and grades (ksi) all differ.
class BoltOfASet : public testing::Test {
 protected:
  Bolt Selected(BoltSource source, ValueSource diameter, ValueSource grade) {
    set.Options = source;
    set.DiameterMode = diameter;
    set.GradeMode = grade;
    return SelectedBolt(set);
  }

  static BoltSelection Different() {
    BoltSelection set;
    set.TableDiameter = 0.625F;
    set.TableGrade = 60;
    set.DiameterStd = 0.75F;
    set.GradeStd = 75;
    set.DiameterManual = 0.8F;
    set.GradeManual = 72;
    return set;
  }

  BoltSelection set = Different();
};

TEST_F(BoltOfASet, ComesFromTheTableWhateverTheManualModesAre) {
  const Bolt bolt = Selected(BoltSource::Table, ValueSource::Typed, ValueSource::Typed);

  EXPECT_EQ(bolt.Diameter, 0.625F);
  EXPECT_EQ(bolt.Grade, 60);
}

TEST_F(BoltOfASet, HasTheStandardDiameterAndGradeOfAManualSelection) {
  const Bolt bolt = Selected(BoltSource::Manual, ValueSource::Standard, ValueSource::Standard);

  EXPECT_EQ(bolt.Diameter, 0.75F);
  EXPECT_EQ(bolt.Grade, 75);
}

TEST_F(BoltOfASet, HasTheTypedDiameterAndGradeOfAManualSelection) {
  const Bolt bolt = Selected(BoltSource::Manual, ValueSource::Typed, ValueSource::Typed);

  EXPECT_EQ(bolt.Diameter, 0.8F);
  EXPECT_EQ(bolt.Grade, 72);
}

TEST_F(BoltOfASet, CanCombineATypedAndAStandardValue) {
  const Bolt typedDiameter = Selected(BoltSource::Manual, ValueSource::Typed, ValueSource::Standard);
  const Bolt typedGrade = Selected(BoltSource::Manual, ValueSource::Standard, ValueSource::Typed);

  EXPECT_EQ(typedDiameter.Diameter, 0.8F);
  EXPECT_EQ(typedDiameter.Grade, 75);
  EXPECT_EQ(typedGrade.Diameter, 0.75F);
  EXPECT_EQ(typedGrade.Grade, 72);
}

TEST(SecondarySystems, AreInTheOrderOfTheirTabs) {
  SecondarySupport support;
  support.Cable.Use = 1;
  support.Truss.Use = 2;
  support.Bolt.Use = 3;
  support.Standing.Use = 4;

  Integer place = 0;
  for (const SupportSystem* system : support.Systems()) EXPECT_EQ(system->Use, ++place);
}

TEST(DesignPreview, CopiesTheSupportButNotTheCost) {
  Design committed;
  Design preview;
  committed.Place.DepthofCover = 400;
  committed.Primary.Length = 6;
  committed.Entries.RockFallAngle = 55;
  committed.Intersections.RockFallAngleXcut = 65;
  committed.Cost.BoltCost = 5.72F;
  preview.Cost.BoltCost = 4.5F;

  preview.Support() = committed.Support();

  EXPECT_EQ(preview.Place.DepthofCover, 400);
  EXPECT_EQ(preview.Primary.Length, 6);
  EXPECT_EQ(preview.Entries.RockFallAngle, 55);
  EXPECT_EQ(preview.Intersections.RockFallAngleXcut, 65);
  EXPECT_EQ(preview.Cost.BoltCost, 4.5F);
}

}  // namespace
}  // namespace orby::test
