// The values of a new design and the bolt and cable lists in the configuration file.
#include "config/catalog_sections.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "base/text.h"
#include "support/recording_platform.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

using enum StoredCatalogs;
using testing::ElementsAre;

struct CatalogSections : testing::Test {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  Catalogs& catalogs = program.session.catalogs;
  DesignDefaults& defaults = program.session.defaults;

  void Read(StoredCatalogs what, const std::string& text) { ReadCatalogSection(program, IniText(text), what); }

  void ReadBolts(const std::string& keys) { Read(BoltParams, "[ORBYBoltParams]\r\n" + keys); }
};

CatalogList Filled(const std::vector<Single>& values) { return {static_cast<Integer>(values.size() - 1), values}; }

// Returns lists that all differ, so that an exchange of two lists is noticed.
Catalogs SomeLists() {
  Catalogs lists;
  lists.DefaultBoltGradeArrayENG = Filled({40, 60, 75});
  lists.DefaultBoltUTSArrayENG = Filled({70, 90.5F});
  lists.DefaultBoltDiamArrayENG = Filled({0.625F, 0.75F, 0.875F});
  lists.DefaultBoltGradeArrayMET = Filled({300, 420});
  lists.DefaultBoltUTSArrayMET = Filled({400});
  lists.DefaultBoltDiamArrayMET = Filled({16, 20, 22});
  lists.DefaultBoltUTSArrayMETAUS = Filled({21.7F, 24});
  lists.DefaultBoltDiamArrayMETAUS = Filled({600, 840});
  lists.DefaultCableCapArrayENG = Filled({27, 39});
  lists.DefaultCableUTSArrayENG = Filled({29.3F, 41});
  lists.DefaultCableDiamArrayENG = Filled({0.6F, 0.7F});
  lists.DefaultCableCapArrayMET = Filled({245});
  lists.DefaultCableUTSArrayMET = Filled({265});
  lists.DefaultCableDiamArrayMET = Filled({15.24F});
  return lists;
}

constexpr const char* DefaultsText =
    "[ORBYDefaults]\r\n"
    "DefaultCMRR=45\r\n"
    "DefaultMETDepthofCover=150\r\n"
    "DefaultENGDepthofCover=400\r\n"
    "DefaultMETUnitWeight=25\r\n"
    "DefaultENGUnitWeight=162\r\n"
    "DefaultStabilityFactor=1\r\n"
    "DefaultMETActualBoltLength=2\r\n"
    "DefaultENGActualBoltLength=6\r\n"
    "DefaultMETboltDiameter=20\r\n"
    "DefaultENGboltDiameter=0.75\r\n"
    "DefaultMETBoltGrade=520\r\n"
    "DefaultENGBoltGrade=75\r\n"
    "DefaultMETBoltUTS=690\r\n"
    "DefaultENGBoltUTS=100\r\n"
    "DefaultNumberBoltsPerRow=4\r\n"
    "DefaultMETrowSpacing=1.2\r\n"
    "DefaultENGrowSpacing=4\r\n"
    "DefaultMETActualInterSpan=20\r\n"
    "DefaultENGActualInterSpan=60\r\n"
    "DefaultMETEntryWidth=6.2\r\n"
    "DefaultENGEntryWidth=20\r\n";

constexpr const char* SomeListsText =
    "[ORBYBoltParams]\r\n"
    "DefaultBoltGradeIndexENG=2\r\n"
    "DefaultBoltGradeArrayENG0=40\r\n"
    "DefaultBoltGradeArrayENG1=60\r\n"
    "DefaultBoltGradeArrayENG2=75\r\n"
    "DefaultBoltUTSIndexENG=1\r\n"
    "DefaultBoltUTSArrayENG0=70\r\n"
    "DefaultBoltUTSArrayENG1=90.5\r\n"
    "DefaultBoltDiamIndexENG=2\r\n"
    "DefaultBoltDiamArrayENG0=0.625\r\n"
    "DefaultBoltDiamArrayENG1=0.75\r\n"
    "DefaultBoltDiamArrayENG2=0.875\r\n"
    "DefaultBoltGradeIndexMET=1\r\n"
    "DefaultBoltGradeArrayMET0=300\r\n"
    "DefaultBoltGradeArrayMET1=420\r\n"
    "DefaultBoltUTSIndexMET=0\r\n"
    "DefaultBoltUTSArrayMET0=400\r\n"
    "DefaultBoltDiamIndexMET=2\r\n"
    "DefaultBoltDiamArrayMET0=16\r\n"
    "DefaultBoltDiamArrayMET1=20\r\n"
    "DefaultBoltDiamArrayMET2=22\r\n"
    "DefaultBoltUTSIndexMETAUS=1\r\n"
    "DefaultBoltUTSArrayMETAUS0=21.7\r\n"
    "DefaultBoltUTSArrayMETAUS1=24\r\n"
    "DefaultBoltDiamIndexMETAUS=1\r\n"
    "DefaultBoltDiamArrayMETAUS0=600\r\n"
    "DefaultBoltDiamArrayMETAUS1=840\r\n"
    "DefaultCableIndexENG=1\r\n"
    "DefaultCableCapArrayENG0=27\r\n"
    "DefaultCableCapArrayENG1=39\r\n"
    "DefaultCableUTSArrayENG0=29.3\r\n"
    "DefaultCableUTSArrayENG1=41\r\n"
    "DefaultCableDiamArrayENG0=0.6\r\n"
    "DefaultCableDiamArrayENG1=0.7\r\n"
    "DefaultCableIndexMET=0\r\n"
    "DefaultCableCapArrayMET0=245\r\n"
    "DefaultCableUTSArrayMET0=265\r\n"
    "DefaultCableDiamArrayMET0=15.24\r\n";

TEST_F(CatalogSections, TheDefaultsAreWrittenInTableOrder) {
  IniText ini;

  WriteCatalogSection(program.session, ini, Defaults);

  EXPECT_EQ(ini.Text(), DefaultsText);
}

TEST_F(CatalogSections, TheListsAreWrittenInTableOrderWithEachIndexBeforeItsEntries) {
  catalogs = SomeLists();
  IniText ini;

  WriteCatalogSection(program.session, ini, BoltParams);

  EXPECT_EQ(ini.Text(), SomeListsText);
}

TEST_F(CatalogSections, EveryDefaultIsReadIntoItsOwnMember) {
  std::string text;
  int number = 10;
  for (std::string_view rest = DefaultsText; !rest.empty(); ++number) {
    const std::string_view line = TakeLine(rest);
    text += std::string(line.substr(0, line.find('='))) + "=" + std::to_string(number) + "\r\n";
  }

  Read(Defaults, text.replace(0, text.find("\r\n"), "[ORBYDefaults]"));

  EXPECT_EQ(defaults.DefaultCMRR, 11);
  EXPECT_EQ(defaults.DefaultMETDepthofCover, 12);
  EXPECT_EQ(defaults.DefaultENGDepthofCover, 13);
  EXPECT_EQ(defaults.DefaultMETUnitWeight, 14);
  EXPECT_EQ(defaults.DefaultENGUnitWeight, 15);
  EXPECT_EQ(defaults.DefaultStabilityFactor, 16);
  EXPECT_EQ(defaults.DefaultMETActualBoltLength, 17);
  EXPECT_EQ(defaults.DefaultENGActualBoltLength, 18);
  EXPECT_EQ(defaults.DefaultMETboltDiameter, 19);
  EXPECT_EQ(defaults.DefaultENGboltDiameter, 20);
  EXPECT_EQ(defaults.DefaultMETBoltGrade, 21);
  EXPECT_EQ(defaults.DefaultENGBoltGrade, 22);
  EXPECT_EQ(defaults.DefaultMETBoltUTS, 23);
  EXPECT_EQ(defaults.DefaultENGBoltUTS, 24);
  EXPECT_EQ(defaults.DefaultNumberBoltsPerRow, 25);
  EXPECT_EQ(defaults.DefaultMETrowSpacing, 26);
  EXPECT_EQ(defaults.DefaultENGrowSpacing, 27);
  EXPECT_EQ(defaults.DefaultMETActualInterSpan, 28);
  EXPECT_EQ(defaults.DefaultENGActualInterSpan, 29);
  EXPECT_EQ(defaults.DefaultMETEntryWidth, 30);
  EXPECT_EQ(defaults.DefaultENGEntryWidth, 31);
}

TEST_F(CatalogSections, EveryListReadsBackAsItWasWritten) {
  Read(BoltParams, SomeListsText);

  EXPECT_THAT(catalogs.DefaultBoltGradeArrayENG.Values, ElementsAre(40, 60, 75));
  EXPECT_THAT(catalogs.DefaultBoltUTSArrayENG.Values, ElementsAre(70, 90.5F));
  EXPECT_THAT(catalogs.DefaultBoltDiamArrayENG.Values, ElementsAre(0.625F, 0.75F, 0.875F));
  EXPECT_THAT(catalogs.DefaultBoltGradeArrayMET.Values, ElementsAre(300, 420));
  EXPECT_THAT(catalogs.DefaultBoltUTSArrayMET.Values, ElementsAre(400));
  EXPECT_THAT(catalogs.DefaultBoltDiamArrayMET.Values, ElementsAre(16, 20, 22));
  EXPECT_THAT(catalogs.DefaultBoltUTSArrayMETAUS.Values, ElementsAre(21.7F, 24));
  EXPECT_THAT(catalogs.DefaultBoltDiamArrayMETAUS.Values, ElementsAre(600, 840));
  EXPECT_THAT(catalogs.DefaultCableCapArrayENG.Values, ElementsAre(27, 39));
  EXPECT_THAT(catalogs.DefaultCableUTSArrayENG.Values, ElementsAre(29.3F, 41));
  EXPECT_THAT(catalogs.DefaultCableDiamArrayENG.Values, ElementsAre(0.6F, 0.7F));
  EXPECT_THAT(catalogs.DefaultCableCapArrayMET.Values, ElementsAre(245));
  EXPECT_THAT(catalogs.DefaultCableUTSArrayMET.Values, ElementsAre(265));
  EXPECT_THAT(catalogs.DefaultCableDiamArrayMET.Values, ElementsAre(15.24F));
  EXPECT_EQ(catalogs.DefaultBoltGradeArrayENG.HighestIndex, 2);
  EXPECT_EQ(catalogs.DefaultCableCapArrayENG.HighestIndex, 1);
  EXPECT_EQ(catalogs.DefaultCableUTSArrayENG.HighestIndex, 1);
  EXPECT_EQ(catalogs.DefaultCableDiamArrayENG.HighestIndex, 1);
  EXPECT_EQ(catalogs.DefaultCableDiamArrayMET.HighestIndex, 0);
}

TEST_F(CatalogSections, ARatingAboveItsRangeReadsAsZero) {
  Read(Defaults, "[ORBYDefaults]\r\nDefaultCMRR=101\r\n");
  EXPECT_EQ(defaults.DefaultCMRR, 0);

  Read(Defaults, "[ORBYDefaults]\r\nDefaultCMRR=100\r\n");
  EXPECT_EQ(defaults.DefaultCMRR, 100);
}

TEST_F(CatalogSections, AnUnreadableDefaultReadsAsZero) {
  Read(Defaults,
       "[ORBYDefaults]\r\nDefaultCMRR=1E999\r\nDefaultNumberBoltsPerRow=99999\r\nDefaultMETUnitWeight=1E39\r\n"
       "DefaultENGUnitWeight=1E999\r\nDefaultStabilityFactor=high\r\n");

  EXPECT_EQ(defaults.DefaultCMRR, 0);
  EXPECT_EQ(defaults.DefaultNumberBoltsPerRow, 0);
  EXPECT_EQ(defaults.DefaultMETUnitWeight, 0);
  EXPECT_EQ(defaults.DefaultENGUnitWeight, 0);
  EXPECT_EQ(defaults.DefaultStabilityFactor, 0);
}

TEST_F(CatalogSections, ANegativeNumberOfBoltsIsKept) {
  Read(Defaults, "[ORBYDefaults]\r\nDefaultNumberBoltsPerRow=-3\r\n");

  EXPECT_EQ(defaults.DefaultNumberBoltsPerRow, -3);
}

TEST_F(CatalogSections, AMissingFileReadsAsZeros) {
  catalogs = SomeLists();

  const IniText ini = ReadIniFile(program, "/data/ORBY.INI");
  ReadCatalogSection(program, ini, Defaults);
  ReadCatalogSection(program, ini, BoltParams);

  EXPECT_EQ(defaults.DefaultCMRR, 0);
  EXPECT_EQ(defaults.DefaultENGEntryWidth, 0);
  EXPECT_EQ(catalogs.DefaultBoltGradeArrayENG.HighestIndex, 0);
  EXPECT_THAT(catalogs.DefaultBoltGradeArrayENG.Values, ElementsAre(0, 60, 75));
  EXPECT_EQ(catalogs.DefaultCableUTSArrayENG.HighestIndex, 0);
  EXPECT_THAT(catalogs.DefaultCableUTSArrayENG.Values, ElementsAre(0, 41));
}

TEST_F(CatalogSections, ASmallerIndexShrinksTheListAndKeepsTheEntriesAboveIt) {
  catalogs.DefaultBoltGradeArrayENG = Filled({40, 60, 75, 100, 120});

  ReadBolts(
      "DefaultBoltGradeIndexENG=2\r\nDefaultBoltGradeArrayENG0=41\r\nDefaultBoltGradeArrayENG1=61\r\n"
      "DefaultBoltGradeArrayENG2=76\r\nDefaultBoltGradeArrayENG3=99\r\n");

  EXPECT_EQ(catalogs.DefaultBoltGradeArrayENG.HighestIndex, 2);
  EXPECT_EQ(catalogs.DefaultBoltGradeArrayENG.Count(), 3U);
  EXPECT_THAT(catalogs.DefaultBoltGradeArrayENG.Values, ElementsAre(41, 61, 76, 100, 120));
}

TEST_F(CatalogSections, TheEnglishStrengthListKeepsItsLength) {
  ReadBolts("DefaultBoltUTSIndexENG=2\r\nDefaultBoltUTSArrayENG2=90\r\n");

  EXPECT_EQ(catalogs.DefaultBoltUTSArrayENG.HighestIndex, 2);
  EXPECT_THAT(catalogs.DefaultBoltUTSArrayENG.Values, ElementsAre(0, 0, 90));
}

TEST_F(CatalogSections, TheEnglishStrengthIndexIsWrittenWithoutABlank) {
  catalogs.DefaultBoltUTSArrayENG = Filled({70, 90});
  IniText ini;

  WriteCatalogSection(program.session, ini, BoltParams);

  EXPECT_THAT(ini.Text(), testing::HasSubstr("\r\nDefaultBoltUTSIndexENG=1\r\n"));
}

TEST_F(CatalogSections, ANegativeIndexIsAnEmptyList) {
  catalogs = SomeLists();

  ReadBolts(
      "DefaultBoltGradeIndexENG=-1\r\nDefaultBoltDiamIndexENG=-7\r\nDefaultBoltUTSIndexMET=-99999\r\n"
      "DefaultCableIndexMET=-1\r\n");

  EXPECT_EQ(catalogs.DefaultBoltGradeArrayENG.HighestIndex, -1);
  EXPECT_EQ(catalogs.DefaultBoltDiamArrayENG.HighestIndex, -1);
  EXPECT_EQ(catalogs.DefaultBoltUTSArrayMET.HighestIndex, -1);
  EXPECT_EQ(catalogs.DefaultCableCapArrayMET.HighestIndex, -1);
  EXPECT_EQ(catalogs.DefaultCableDiamArrayMET.HighestIndex, -1);
  EXPECT_THAT(catalogs.DefaultBoltGradeArrayENG.Values, ElementsAre(40, 60, 75));
}

TEST_F(CatalogSections, AnIndexBeyondTheCapacityFillsTheList) {
  ReadBolts(
      "DefaultBoltGradeIndexENG=10\r\nDefaultBoltGradeArrayENG9=190\r\nDefaultBoltGradeArrayENG10=200\r\n"
      "DefaultBoltUTSIndexMETAUS=99999\r\nDefaultCableIndexENG=500\r\nDefaultCableUTSArrayENG98=77\r\n");

  EXPECT_EQ(catalogs.DefaultBoltGradeArrayENG.HighestIndex, 9);
  EXPECT_EQ(catalogs.DefaultBoltGradeArrayENG.Values.size(), 10U);
  EXPECT_EQ(catalogs.DefaultBoltGradeArrayENG[9], 190);
  EXPECT_EQ(catalogs.DefaultBoltUTSArrayMETAUS.HighestIndex, 9);
  EXPECT_EQ(catalogs.DefaultCableCapArrayENG.HighestIndex, 98);
  EXPECT_EQ(catalogs.DefaultCableUTSArrayENG.HighestIndex, 98);
  EXPECT_EQ(catalogs.DefaultCableUTSArrayENG.Values.size(), 99U);
  EXPECT_EQ(catalogs.DefaultCableUTSArrayENG[98], 77);
}

TEST_F(CatalogSections, TheCableListsGrowBeyondTheBoltLists) {
  ReadBolts("DefaultCableIndexMET=14\r\nDefaultCableDiamArrayMET14=28.6\r\n");

  EXPECT_EQ(catalogs.DefaultCableDiamArrayMET.HighestIndex, 14);
  EXPECT_EQ(catalogs.DefaultCableDiamArrayMET[14], 28.6F);
}

TEST_F(CatalogSections, AnIndexBeyondTheRangeOfADoubleFillsTheListOrEmptiesIt) {
  ReadBolts("DefaultBoltDiamIndexMET=1E999\r\nDefaultBoltGradeIndexMET=-1E999\r\n");

  EXPECT_EQ(catalogs.DefaultBoltDiamArrayMET.Count(), 10U);
  EXPECT_EQ(catalogs.DefaultBoltGradeArrayMET.Count(), 0U);
}

TEST_F(CatalogSections, AnUnreadableIndexOrEntryReadsAsZero) {
  ReadBolts("DefaultBoltDiamIndexMET=none\r\nDefaultBoltDiamArrayMET0=1E39\r\nDefaultBoltGradeIndexMET=many\r\n");

  EXPECT_EQ(catalogs.DefaultBoltDiamArrayMET.HighestIndex, 0);
  EXPECT_THAT(catalogs.DefaultBoltDiamArrayMET.Values, ElementsAre(0));
  EXPECT_EQ(catalogs.DefaultBoltGradeArrayMET.HighestIndex, 0);
}

TEST_F(CatalogSections, EntriesBeyondAnEmptiedListStayInTheFile) {
  IniText ini(SomeListsText);
  catalogs = SomeLists();
  catalogs.DefaultBoltGradeArrayENG.HighestIndex = -1;

  WriteCatalogSection(program.session, ini, BoltParams);

  EXPECT_EQ(ini.Find("ORBYBoltParams", "DefaultBoltGradeIndexENG"), "-1");
  EXPECT_EQ(ini.Find("ORBYBoltParams", "DefaultBoltGradeArrayENG2"), "75");
}

TEST_F(CatalogSections, EachStandingSupportIsWrittenWithBothCapacities) {
  catalogs.StandSupports = {1, {"4-point Hardwood Crib", "Can, 24in"}, {{{58.5F, 520}, {120, 1068}}}};
  IniText ini;

  WriteCatalogSection(program.session, ini, StandSupports);

  EXPECT_EQ(ini.Text(),
            "[ORBYStandSupportParams]\r\n"
            "DefaultStandSupportIndex=1\r\n"
            "DefaultStandSupportType0=4-point Hardwood Crib\r\n"
            "DefaultStandSupportCap0_0=58.5\r\n"
            "DefaultStandSupportCap0_1=520\r\n"
            "DefaultStandSupportType1=Can, 24in\r\n"
            "DefaultStandSupportCap1_0=120\r\n"
            "DefaultStandSupportCap1_1=1068\r\n");
}

TEST_F(CatalogSections, AStandingSupportWithoutANameOrCapacityIsWrittenAsEmptyOrZero) {
  catalogs.StandSupports = {1, {"Can, 24in"}, {}};
  IniText ini;

  WriteCatalogSection(program.session, ini, StandSupports);

  EXPECT_EQ(ini.Find("ORBYStandSupportParams", "DefaultStandSupportType0"), "Can, 24in");
  EXPECT_EQ(ini.Find("ORBYStandSupportParams", "DefaultStandSupportCap0_1"), "0");
  EXPECT_EQ(ini.Find("ORBYStandSupportParams", "DefaultStandSupportType1"), "");
}

TEST_F(CatalogSections, AnEmptyListOfStandingSupportsIsWrittenAsItsIndexOnly) {
  IniText ini;

  WriteCatalogSection(program.session, ini, StandSupports);

  EXPECT_EQ(ini.Text(), "[ORBYStandSupportParams]\r\nDefaultStandSupportIndex=-1\r\n");
}

TEST_F(CatalogSections, ReadingTheStandingSupportsTurnsNamesIntoNumbersAndLosesTheCapacities) {
  const StandingSupports written{1, {"4-point Hardwood Crib", "Can, 24in"}, {{{58.5F, 520}, {120, 1068}}}};
  catalogs.StandSupports = written;
  IniText ini;
  WriteCatalogSection(program.session, ini, StandSupports);
  catalogs.StandSupports = {2, {"a", "b", "Prop Setter"}, {{{1, 2}, {3, 4}, {5, 6}}}};

  ReadCatalogSection(program, ini, StandSupports);

  EXPECT_EQ(catalogs.StandSupports.HighestIndex, 1);
  EXPECT_THAT(catalogs.StandSupports.DefaultStandSupportType, ElementsAre("4", "0", "Prop Setter"));
  EXPECT_THAT(catalogs.StandSupports.DefaultStandSupportCap,
              ElementsAre(ElementsAre(0, 0), ElementsAre(0, 0), ElementsAre(5, 6)));
}

TEST_F(CatalogSections, CapacitiesOfStandingSupportsAreReadByTheKeyOfTheName) {
  Read(StandSupports,
       "[ORBYStandSupportParams]\r\nDefaultStandSupportIndex=0\r\nDefaultStandSupportType0_1=520\r\n"
       "DefaultStandSupportCap0_0=58.5\r\n");

  EXPECT_THAT(catalogs.StandSupports.DefaultStandSupportCap, ElementsAre(ElementsAre(0, 520)));
}

TEST_F(CatalogSections, TheIndexOfTheStandingSupportsIsLimitedToTheCapacityOfTheList) {
  Read(StandSupports, "[ORBYStandSupportParams]\r\nDefaultStandSupportIndex=500\r\n");
  EXPECT_EQ(catalogs.StandSupports.HighestIndex, 98);
  EXPECT_EQ(catalogs.StandSupports.DefaultStandSupportType.size(), 99U);

  Read(StandSupports, "[ORBYStandSupportParams]\r\nDefaultStandSupportIndex=-5\r\n");
  EXPECT_EQ(catalogs.StandSupports.HighestIndex, -1);
  EXPECT_EQ(catalogs.StandSupports.DefaultStandSupportType.size(), 99U);
}

TEST_F(CatalogSections, AnUnknownSelectorReadsAndWritesNothing) {
  catalogs = SomeLists();
  IniText ini;

  WriteCatalogSection(program.session, ini, StoredCatalogs{9});
  ReadCatalogSection(program, ini, StoredCatalogs{9});

  EXPECT_EQ(ini.Text(), "");
  EXPECT_EQ(defaults.DefaultCMRR, 45);
  EXPECT_EQ(catalogs.DefaultBoltGradeArrayENG.HighestIndex, 2);
}

}  // namespace
}  // namespace orby::test
