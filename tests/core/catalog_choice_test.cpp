// The lists and the bolt table that a project offers.
#include "core/catalog_choice.h"

#include <gtest/gtest.h>

#include "design/catalogs.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

constexpr Integer Off = 0;
constexpr Integer On = 1;

struct CatalogChoice : testing::Test {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  Catalogs& catalogs = program.session.catalogs;

  CatalogChoice() { SetBuiltInCatalogs(catalogs); }
};

TEST_F(CatalogChoice, OfTheAustralianTableNeedsMetricUnitsAndItsSetting) {
  const bool expected[2][2] = {{false, false}, {false, true}};

  for (const UnitSystem units : {English, Metric}) {
    for (const Integer setting : {Off, On}) {
      program.project.WorkParms.Units = units;
      program.project.UseAUSStandardTable = setting;
      EXPECT_EQ(UsesAustralianTable(program.project), expected[PlaceOf(units)][setting])
          << NumberOf(units) << ", " << setting;
    }
  }
}

TEST_F(CatalogChoice, OfTheBoltTableInEnglishUnitsIgnoresTheAustralianSetting) {
  for (const Integer setting : {Off, On}) {
    program.project.UseAUSStandardTable = setting;

    const BoltTable& table = LoadBoltTable(program.project, program.session.catalogs);

    EXPECT_EQ(&table, &catalogs.BoltTableENG);
    ASSERT_EQ(table.size(), 10U);
    EXPECT_EQ(table[3].Diameter, "0.677");
    EXPECT_EQ(catalogs.BoltTableMET.size(), 10U);
  }
}

TEST_F(CatalogChoice, OfTheBoltTableInMetricUnitsFollowsTheSettingBackAndForth) {
  program.project.WorkParms.Units = Metric;

  EXPECT_EQ(LoadBoltTable(program.project, program.session.catalogs).size(), 10U);
  EXPECT_EQ(LoadBoltTable(program.project, program.session.catalogs)[3].Diameter, "17.2");

  program.project.UseAUSStandardTable = 1;
  EXPECT_EQ(LoadBoltTable(program.project, program.session.catalogs).size(), 2U);
  EXPECT_EQ(LoadBoltTable(program.project, program.session.catalogs)[1].Grade, "440");

  program.project.UseAUSStandardTable = 0;
  EXPECT_EQ(LoadBoltTable(program.project, program.session.catalogs).size(), 10U);
  EXPECT_EQ(&LoadBoltTable(program.project, program.session.catalogs), &catalogs.BoltTableMET);
}

TEST_F(CatalogChoice, OfGradesFollowsUnitsAndStrengthBasis) {
  const CatalogList* expected[2][2] = {{&catalogs.DefaultBoltGradeArrayENG, &catalogs.DefaultBoltUTSArrayENG},
                                       {&catalogs.DefaultBoltGradeArrayMET, &catalogs.DefaultBoltUTSArrayMET}};

  for (const UnitSystem units : {English, Metric}) {
    for (const StrengthBasis basis : {StrengthBasis::Yield, StrengthBasis::Ultimate}) {
      program.project.WorkParms.Units = units;
      program.project.WorkParms.Basis = basis;
      EXPECT_EQ(&BoltGrades(program), expected[PlaceOf(units)][NumberOf(basis)])
          << NumberOf(units) << ", " << NumberOf(basis);
    }
  }
}

TEST_F(CatalogChoice, OfDiametersAndCablesFollowsUnits) {
  EXPECT_EQ(&BoltDiameters(program), &catalogs.DefaultBoltDiamArrayENG);
  EXPECT_EQ(&CableDiameters(program), &catalogs.DefaultCableDiamArrayENG);
  EXPECT_EQ(&CableCapacities(program), &catalogs.DefaultCableCapArrayENG);

  program.project.WorkParms.Units = Metric;
  EXPECT_EQ(&BoltDiameters(program), &catalogs.DefaultBoltDiamArrayMET);
  EXPECT_EQ(&CableDiameters(program), &catalogs.DefaultCableDiamArrayMET);
  EXPECT_EQ(&CableCapacities(program), &catalogs.DefaultCableCapArrayMET);
}

TEST_F(CatalogChoice, OfListsStaysMetricUnderTheAustralianSetting) {
  program.project.WorkParms.Units = Metric;
  program.project.UseAUSStandardTable = 1;

  EXPECT_EQ(&BoltDiameters(program), &catalogs.DefaultBoltDiamArrayMET);
  EXPECT_EQ(&BoltGrades(program), &catalogs.DefaultBoltGradeArrayMET);
}

TEST_F(CatalogChoice, OfSupportCapacitiesFollowsUnits) {
  EXPECT_EQ(StandSupportCap(program, 0), 90.0F);
  EXPECT_EQ(StandSupportCap(program, 15), 525.0F);

  program.project.WorkParms.Units = Metric;
  EXPECT_EQ(StandSupportCap(program, 0), 800.0F);
  EXPECT_EQ(StandSupportCap(program, 15), 4670.0F);
}

}  // namespace
}  // namespace orby::test
