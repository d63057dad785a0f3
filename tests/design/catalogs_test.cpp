// The built-in lists of bolts, cables and standing supports, and their reset.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "design/catalogs.h"
#include "design/units.h"

namespace orby::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;

struct ListRow {
  const char* name;
  CatalogList Catalogs::*list;
  std::vector<Single> values;
};

const ListRow BuiltIn[] = {
    {"grade ksi", &Catalogs::DefaultBoltGradeArrayENG, {40, 55, 60, 75, 90, 100}},
    {"UTS ksi", &Catalogs::DefaultBoltUTSArrayENG, {70, 85, 90, 100, 116, 125}},
    {"diameter in", &Catalogs::DefaultBoltDiamArrayENG, {0.625F, 0.75F, 0.875F, 0.688F, 0.804F}},
    {"grade MPa", &Catalogs::DefaultBoltGradeArrayMET, {280, 390, 420, 520, 620, 690}},
    {"UTS MPa", &Catalogs::DefaultBoltUTSArrayMET, {480, 590, 620, 690, 800, 860}},
    {"diameter mm", &Catalogs::DefaultBoltDiamArrayMET, {15.88F, 19, 22.22F, 17.48F, 20.42F}},
    {"Australian UTS", &Catalogs::DefaultBoltUTSArrayMETAUS, {21.7F, 21.7F}},
    {"Australian diameter", &Catalogs::DefaultBoltDiamArrayMETAUS, {840, 440}},
    {"cable tons", &Catalogs::DefaultCableCapArrayENG, {26.4F, 35.7F}},
    {"cable UTS tons", &Catalogs::DefaultCableUTSArrayENG, {26.4F, 35.7F}},
    {"cable in", &Catalogs::DefaultCableDiamArrayENG, {0.6F, 0.7F}},
    {"cable kN", &Catalogs::DefaultCableCapArrayMET, {235, 590, 620, 635, 880, 970}},
    {"cable UTS kN", &Catalogs::DefaultCableUTSArrayMET, {0, 0, 0, 0, 0, 0}},
    {"cable mm", &Catalogs::DefaultCableDiamArrayMET, {15.2F, 21.8F, 31, 28, 31, 28.6F}},
};

std::vector<Single> InUse(const CatalogList& list) {
  std::vector<Single> values;
  for (std::size_t i = 0; i < list.Count(); ++i) values.push_back(list[i]);
  return values;
}

void ExpectBuiltIn(const Catalogs& catalogs) {
  for (const auto& [name, list, values] : BuiltIn) {
    EXPECT_EQ((catalogs.*list).HighestIndex, static_cast<Integer>(values.size()) - 1) << name;
    EXPECT_THAT(InUse(catalogs.*list), ElementsAreArray(values)) << name;
  }
}

struct CatalogListTest : testing::Test {
  CatalogListTest() { SetBuiltInCatalogs(catalogs); }
  Catalogs catalogs;
};

TEST_F(CatalogListTest, HasTheBuiltInValuesAtStart) { ExpectBuiltIn(catalogs); }

TEST_F(CatalogListTest, HasRoomForTenEntries) {
  for (const auto& [name, list, values] : BuiltIn) EXPECT_EQ((catalogs.*list).Values.size(), 10U) << name;
}

TEST_F(CatalogListTest, OfAustraliaHasDiametersAndStrengthsExchanged) {
  EXPECT_THAT(InUse(catalogs.DefaultBoltUTSArrayMETAUS), ElementsAre(21.7F, 21.7F));
  EXPECT_THAT(InUse(catalogs.DefaultBoltDiamArrayMETAUS), ElementsAre(840, 440));
}

TEST_F(CatalogListTest, KeepsButDoesNotOfferTheValuesAfterItsLastIndex) {
  catalogs.DefaultBoltGradeArrayENG.HighestIndex = 2;

  EXPECT_THAT(InUse(catalogs.DefaultBoltGradeArrayENG), ElementsAre(40, 55, 60));
  EXPECT_EQ(catalogs.DefaultBoltGradeArrayENG.Values[5], 100.0F);
}

TEST_F(CatalogListTest, OfBoltsIsRestoredByAReset) {
  for (CatalogList* list :
       {&catalogs.DefaultBoltGradeArrayENG, &catalogs.DefaultBoltUTSArrayENG, &catalogs.DefaultBoltDiamArrayENG,
        &catalogs.DefaultBoltGradeArrayMET, &catalogs.DefaultBoltUTSArrayMET, &catalogs.DefaultBoltDiamArrayMET,
        &catalogs.DefaultBoltUTSArrayMETAUS, &catalogs.DefaultBoltDiamArrayMETAUS}) {
    list->HighestIndex = -1;
    list->Values.assign(3, 7);
  }

  SetDefaultBoltsENG(catalogs);
  SetDefaultBoltsMET(catalogs);

  ExpectBuiltIn(catalogs);
}

TEST_F(CatalogListTest, OfDiametersHasFiveEntriesAgainAfterAReset) {
  CatalogList& diameters = catalogs.DefaultBoltDiamArrayENG;
  diameters.Set(5, 1);
  diameters.HighestIndex = 5;

  SetDefaultBoltsENG(catalogs);

  EXPECT_THAT(InUse(diameters), ElementsAre(0.625F, 0.75F, 0.875F, 0.688F, 0.804F));
  EXPECT_EQ(diameters.Values[5], 1.0F);
}

TEST_F(CatalogListTest, OfEnglishBoltsIsNotChangedByTheMetricReset) {
  catalogs.DefaultBoltGradeArrayENG.Values[0] = 36;

  SetDefaultBoltsMET(catalogs);

  EXPECT_EQ(catalogs.DefaultBoltGradeArrayENG[0], 36.0F);
}

TEST_F(CatalogListTest, OfCablesIsRestoredByAReset) {
  for (CatalogList* list :
       {&catalogs.DefaultCableCapArrayENG, &catalogs.DefaultCableUTSArrayENG, &catalogs.DefaultCableDiamArrayENG,
        &catalogs.DefaultCableCapArrayMET, &catalogs.DefaultCableDiamArrayMET}) {
    list->HighestIndex = 0;
    list->Values.assign(1, 7);
  }

  SetDefaultCablesENG(catalogs);
  SetDefaultCablesMET(catalogs);

  ExpectBuiltIn(catalogs);
}

TEST_F(CatalogListTest, OfMetricCableStrengthsKeepsItsValuesInAReset) {
  catalogs.DefaultCableUTSArrayMET.Values[1] = 610;
  catalogs.DefaultCableUTSArrayMET.HighestIndex = 0;

  SetDefaultCablesMET(catalogs);

  EXPECT_THAT(InUse(catalogs.DefaultCableUTSArrayMET), ElementsAre(0, 610, 0, 0, 0, 0));
}

TEST_F(CatalogListTest, ThatHasGrownKeepsItsSizeInAReset) {
  catalogs.DefaultCableCapArrayENG.Set(40, 50);

  SetDefaultCablesENG(catalogs);

  EXPECT_THAT(InUse(catalogs.DefaultCableCapArrayENG), ElementsAre(26.4F, 35.7F));
  EXPECT_EQ(catalogs.DefaultCableCapArrayENG.Values.size(), 41U);
}

struct SupportRow {
  const char* name;
  Single tons;
  Single kilonewtons;
};

constexpr SupportRow Supports[] = {
    {"4-point Hardwood Crib (8in x 8in timbers, 5' height)", 90, 800},
    {"4-point Hardwood Crib (8in x 8in timbers, 7' height)", 74, 658},
    {"4-point Hardwood Crib (6in x 6in timbers, 5' height)", 51, 453},
    {"4-point Hardwood Crib (6in x 6in timbers, 7' height)", 42, 373},
    {"9-point Hardwood Crib (6in x 6in timbers, 7' height)", 94, 836},
    {"Link-N-Lock (24in)", 92, 818},
    {"Link-N-Lock (36in)", 132, 1174},
    {"Wood Post (6in)", 22, 195},
    {"Wood Post (8in)", 66, 587},
    {"55-ton ACS Jack", 55, 489},
    {"100-ton ACS Jack", 100, 889},
    {"Propsetter (10in)", 72, 640},
    {"Pumpable Crib (24in)", 135, 1201},
    {"Pumpable Crib (30in)", 202, 1797},
    {"CAN (24in)", 95, 845},
    {"Concrete Crib (24in x 24in)", 525, 4670},
};

void ExpectSupports(const StandingSupports& supports) {
  EXPECT_EQ(supports.HighestIndex, 15);
  for (std::size_t i = 0; i < std::size(Supports); ++i) {
    EXPECT_EQ(supports.DefaultStandSupportType[i], Supports[i].name);
    EXPECT_THAT(supports.DefaultStandSupportCap[i], ElementsAre(Supports[i].tons, Supports[i].kilonewtons)) << i;
  }
}

struct StandingSupportTest : CatalogListTest {
  StandingSupports& supports = catalogs.StandSupports;
};

TEST_F(StandingSupportTest, HasNamesAndCapacitiesInTonsAndKilonewtons) { ExpectSupports(supports); }

TEST_F(StandingSupportTest, HasRoomForTwentyOne) {
  EXPECT_EQ(supports.DefaultStandSupportType.size(), 21U);
  EXPECT_EQ(supports.DefaultStandSupportCap.size(), 21U);
  EXPECT_EQ(supports.DefaultStandSupportType[16], "");
}

TEST_F(StandingSupportTest, CapacityInKilonewtonsIsRoundedDown) {
  EXPECT_EQ(supports.DefaultStandSupportCap[15][PlaceOf(Metric)], 4670.0F);  // 525 tons are 4670.6 kN
}

TEST_F(StandingSupportTest, IsRestoredByAReset) {
  supports.HighestIndex = 3;
  supports.DefaultStandSupportType.assign(21, "");
  supports.DefaultStandSupportCap.assign(21, {1, 1});

  SetDefaultStandSupportNames(catalogs);
  SetDefaultStandSupportCapsENG(catalogs);
  SetDefaultStandSupportCapsMET(catalogs);

  ExpectSupports(supports);
}

TEST_F(StandingSupportTest, ThatWasAddedIsNoLongerOfferedAfterAReset) {
  supports.DefaultStandSupportType[16] = "Steel Set";
  supports.DefaultStandSupportCap[16] = {40, 355};
  supports.HighestIndex = 16;

  SetDefaultStandSupportNames(catalogs);

  EXPECT_EQ(supports.HighestIndex, 15);
}

TEST(CatalogBuilders, SetCapacitiesBeforeThereAreNames) {
  Catalogs catalogs;

  SetDefaultStandSupportCapsENG(catalogs);
  SetDefaultStandSupportCapsMET(catalogs);

  EXPECT_THAT(catalogs.StandSupports.DefaultStandSupportCap[0], ElementsAre(90, 800));
  EXPECT_THAT(catalogs.StandSupports.DefaultStandSupportType, Each(""));
  EXPECT_EQ(catalogs.StandSupports.HighestIndex, -1);
}

}  // namespace
}  // namespace orby::test
