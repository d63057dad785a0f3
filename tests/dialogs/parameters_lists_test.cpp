#include <utility>

#include "parameters_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

using ParameterLists = AParametersDialog;
using ParameterFields = AParametersDialog;

std::vector<std::string> Row(const Grid& grid, int row) {
  std::vector<std::string> cells;
  for (int column = 0; column < grid.Columns(); ++column) cells.push_back(grid.Cell(row, column));
  return cells;
}

std::vector<std::vector<std::string>> BoltRows(const Grid& grid) {
  std::vector<std::vector<std::string>> rows;
  for (int row = 1; row < grid.Rows(); ++row) rows.push_back(Row(grid, row));
  return rows;
}

using Rows = std::vector<std::vector<std::string>>;

// ---- bolt tables ----------------------------------------------------------------------------------------------------

TEST_F(ParameterLists, TheThreeBoltTablesHaveTheSameLayout) {
  dialog.Open();

  for (const Grid* grid :
       {&dialog.PrimaryBoltControls.Table, &dialog.EntryBoltControls.Table, &dialog.InterBoltControls.Table}) {
    EXPECT_EQ(grid->FixedRows(), 1) << grid->Name();
    EXPECT_EQ(grid->Rows(), 11) << grid->Name();
    EXPECT_THAT(Row(*grid, 0), ElementsAre("No", "Description", "Dia.", "Grade")) << grid->Name();
    EXPECT_THAT(grid->ColumnWidths(), ElementsAre(300, 2200, 600, 600)) << grid->Name();
    EXPECT_EQ(grid->Width(), 4180) << grid->Name();
    EXPECT_EQ(grid->Row(), 1) << grid->Name();
  }
}

TEST_F(ParameterLists, AnEnglishDesignOffersBoltsInInchesAndKsi) {
  const Rows bolts{{"1", "#5 smooth - grade 55", "0.625", "55"}, {"2", "#5 rebar - grade 60", "0.625", "60"},
                   {"3", "#5 rebar - grade 75", "0.625", "75"},  {"4", "#6 special rebar - grade 75", "0.677", "75"},
                   {"5", "#6 rebar - grade 40", "0.75", "40"},   {"6", "#6 rebar - grade 60", "0.75", "60"},
                   {"7", "#6 smooth - grade 75", "0.75", "75"},  {"8", "#7 special rebar - grade 75", "0.804", "75"},
                   {"9", "#7 rebar - grade 40", "0.875", "40"},  {"10", "#7 rebar - grade 60", "0.875", "60"}};

  dialog.Open();

  EXPECT_EQ(BoltRows(dialog.PrimaryBoltControls.Table), bolts);
  EXPECT_EQ(BoltRows(dialog.EntryBoltControls.Table), bolts);
  EXPECT_EQ(BoltRows(dialog.InterBoltControls.Table), bolts);
}

TEST_F(ParameterLists, AMetricDesignOffersBoltsInMillimetresAndMPa) {
  const Rows bolts{
      {"1", "#5 smooth - grade 55", "15.9", "379.2"}, {"2", "#5 rebar - grade 60", "15.9", "413.7"},
      {"3", "#5 rebar - grade 75", "15.9", "517.1"},  {"4", "#6 special rebar - grade 75", "17.2", "517.1"},
      {"5", "#6 rebar - grade 40", "19.1", "275.8"},  {"6", "#6 rebar - grade 60", "19.1", "413.7"},
      {"7", "#6 smooth - grade 75", "19.1", "517.1"}, {"8", "#7 special rebar - grade 75", "20.4", "517.1"},
      {"9", "#7 rebar - grade 40", "22.2", "275.8"},  {"10", "#7 rebar - grade 60", "22.2", "413.7"}};
  StartDesign(Metric);

  dialog.Open();

  EXPECT_EQ(BoltRows(dialog.PrimaryBoltControls.Table), bolts);
  EXPECT_EQ(BoltRows(dialog.EntryBoltControls.Table), bolts);
  EXPECT_EQ(BoltRows(dialog.InterBoltControls.Table), bolts);
}

TEST_F(ParameterLists, AMetricDesignWithTheAustralianTableOffersItsTwoBolts) {
  const Rows bolts{{"1", "Bolt 1", "21.7", "840"}, {"2", "Bolt 2", "21.7", "440"}};
  StartDesign(Metric);
  program.project.UseAUSStandardTable = 1;

  dialog.Open();

  EXPECT_EQ(BoltRows(dialog.PrimaryBoltControls.Table), bolts);
  EXPECT_EQ(BoltRows(dialog.EntryBoltControls.Table), bolts);
  EXPECT_EQ(BoltRows(dialog.InterBoltControls.Table), bolts);
  EXPECT_THAT(ItemTexts(dialog.PrimaryBoltControls.DiameterStd), ElementsAre("15.88", "19", "22.22", "17.48", "20.42"));
  EXPECT_THAT(ItemTexts(dialog.PrimaryBoltControls.GradeStd), ElementsAre("280", "390", "420", "520", "620", "690"));
}

TEST_F(ParameterLists, TheMetricTableReturnsAfterTheAustralianOne) {
  StartDesign(Metric);
  program.project.UseAUSStandardTable = 1;
  dialog.Open();
  dialog.Command1.Press();
  program.project.UseAUSStandardTable = 0;
  ParametersDialog other(program);

  other.Open();

  EXPECT_EQ(other.PrimaryBoltControls.Table.Rows(), 11);
  EXPECT_EQ(other.PrimaryBoltControls.Table.Cell(1, 1), "#5 smooth - grade 55");
}

TEST_F(ParameterLists, TheAustralianSettingShowsNothingInAnEnglishDesign) {
  program.project.UseAUSStandardTable = 1;

  dialog.Open();

  EXPECT_EQ(dialog.PrimaryBoltControls.Table.Rows(), 11);
  EXPECT_EQ(dialog.PrimaryBoltControls.Table.Cell(1, 2), "0.625");
}

TEST_F(ParameterFields, TheStoredTableRowIsSelected) {
  program.project.WorkParms.Primary.TableRow = 9;
  program.project.WorkParms.Entries.Bolt.TableRow = 6;
  program.project.WorkParms.Intersections.Bolt.TableRow = 3;

  dialog.Open();

  EXPECT_EQ(dialog.PrimaryBoltControls.Table.Row(), 10);
  EXPECT_EQ(dialog.EntryBoltControls.Table.Row(), 7);
  EXPECT_EQ(dialog.InterBoltControls.Table.Row(), 4);
}

TEST_F(ParameterFields, AStoredRowOutsideTheTableOpensOnTheFirstRow) {
  for (const Integer row : {Integer{10}, Integer{-1}, Integer{-2}, Integer{32767}, Integer{-32768}}) {
    program.project.WorkParms.Primary.TableRow = row;
    program.project.WorkParms.Entries.Bolt.TableRow = row;
    program.project.WorkParms.Intersections.Bolt.TableRow = row;
    ParametersDialog other(program);

    other.Open();

    EXPECT_EQ(other.PrimaryBoltControls.Table.Row(), 1) << row;
    EXPECT_EQ(other.EntryBoltControls.Table.Row(), 1) << row;
    EXPECT_EQ(other.InterBoltControls.Table.Row(), 1) << row;
  }
}

TEST_F(ParameterFields, AStoredRowThatTheAustralianTableLacksOpensOnTheFirstRow) {
  StartDesign(Metric);
  program.project.UseAUSStandardTable = 1;
  for (const auto& [stored, row] : {std::pair{1, 2}, {2, 1}, {3, 1}, {4, 1}, {5, 1}, {6, 1}, {7, 1}, {8, 1}, {9, 1}}) {
    for (BoltSelection* bolt : program.project.WorkParms.BoltSets()) {
      bolt->TableRow = static_cast<Integer>(stored);
    }
    ParametersDialog other(program);

    other.Open();

    EXPECT_EQ(other.PrimaryBoltControls.Table.Row(), row) << stored;
    EXPECT_EQ(other.EntryBoltControls.Table.Row(), row) << stored;
    EXPECT_EQ(other.InterBoltControls.Table.Row(), row) << stored;
  }
}

// ---- standard values ------------------------------------------------------------------------------------------------

struct ListCase {
  UnitSystem units;
  StrengthBasis ultimate;
  std::vector<std::string> diameters;
  std::vector<std::string> grades;
  std::vector<std::string> cableDiameters;
  std::vector<std::string> cableCapacities;
};

const std::vector<std::string> InchDiameters{"0.625", "0.75", "0.875", "0.688", "0.804"};
const std::vector<std::string> MillimetreDiameters{"15.88", "19", "22.22", "17.48", "20.42"};
const std::vector<std::string> MetricCables{"15.2", "21.8", "31", "28", "31", "28.6"};
const std::vector<std::string> MetricCableLoads{"235", "590", "620", "635", "880", "970"};

const std::vector<ListCase> ListCases{{English,
                                       StrengthBasis::Yield,
                                       InchDiameters,
                                       {"40", "55", "60", "75", "90", "100"},
                                       {"0.6", "0.7"},
                                       {"26.4", "35.7"}},
                                      {English,
                                       StrengthBasis::Ultimate,
                                       InchDiameters,
                                       {"70", "85", "90", "100", "116", "125"},
                                       {"0.6", "0.7"},
                                       {"26.4", "35.7"}},
                                      {Metric,
                                       StrengthBasis::Yield,
                                       MillimetreDiameters,
                                       {"280", "390", "420", "520", "620", "690"},
                                       MetricCables,
                                       MetricCableLoads},
                                      {Metric,
                                       StrengthBasis::Ultimate,
                                       MillimetreDiameters,
                                       {"480", "590", "620", "690", "800", "860"},
                                       MetricCables,
                                       MetricCableLoads}};

TEST_F(ParameterLists, OfferTheStandardValuesOfUnitsAndStrength) {
  for (const ListCase& expected : ListCases) {
    StartDesign(expected.units, expected.ultimate);
    ParametersDialog other(program);

    other.Open();

    for (const BoltControls* bolt : {&other.PrimaryBoltControls, &other.EntryBoltControls, &other.InterBoltControls}) {
      EXPECT_EQ(ItemTexts(bolt->DiameterStd), expected.diameters) << bolt->DiameterStd.Name();
      EXPECT_EQ(ItemTexts(bolt->GradeStd), expected.grades) << bolt->GradeStd.Name();
    }
    for (const Combo* combo : {&other.EntryCableControls.Diam, &other.InterCableControls.Diam}) {
      EXPECT_EQ(ItemTexts(*combo), expected.cableDiameters) << combo->Name();
    }
    for (const Combo* combo : {&other.EntryCableControls.CapacityStd, &other.InterCableControls.CapacityStd}) {
      EXPECT_EQ(ItemTexts(*combo), expected.cableCapacities) << combo->Name();
    }
  }
}

TEST_F(ParameterLists, OfferOnlyTheEntriesInUse) {
  program.session.catalogs.DefaultBoltGradeArrayENG.HighestIndex = 1;
  program.session.catalogs.DefaultCableDiamArrayENG.HighestIndex = -1;

  dialog.Open();

  EXPECT_THAT(ItemTexts(dialog.InterBoltControls.GradeStd), ElementsAre("40", "55"));
  EXPECT_THAT(ItemTexts(dialog.EntryCableControls.Diam), testing::IsEmpty());
  EXPECT_EQ(dialog.EntryCableControls.Diam.Text(), "0.6");
}

TEST_F(ParameterFields, ANewDesignSelectsTheEntriesOfTheLists) {
  dialog.Open();

  for (const BoltControls* bolt : {&dialog.PrimaryBoltControls, &dialog.EntryBoltControls, &dialog.InterBoltControls}) {
    EXPECT_EQ(bolt->DiameterStd.Text(), "0.75");
    EXPECT_EQ(bolt->DiameterStd.ListIndex(), 1);
    EXPECT_EQ(bolt->GradeStd.Text(), "75");
    EXPECT_EQ(bolt->GradeStd.ListIndex(), 3);
  }
  for (const CableControls* cable : {&dialog.EntryCableControls, &dialog.InterCableControls}) {
    EXPECT_EQ(cable->Diam.Text(), "0.6");
    EXPECT_EQ(cable->Diam.ListIndex(), 0);
  }
}

TEST_F(ParameterFields, AStoredValueThatIsNotInItsListIsShownWithNothingSelected) {
  dialog.Open();

  EXPECT_EQ(dialog.EntryCableControls.CapacityStd.Text(), "27");
  EXPECT_FALSE(dialog.EntryCableControls.CapacityStd.HasSelection());
  EXPECT_EQ(dialog.InterCableControls.CapacityStd.Text(), "27");
  EXPECT_FALSE(dialog.InterCableControls.CapacityStd.HasSelection());
  EXPECT_THAT(platform.boxes.shown, testing::IsEmpty());
}

TEST_F(ParameterFields, AMetricDesignStartsFromABoltThatIsNotInTheList) {
  StartDesign(Metric);

  dialog.Open();

  for (const BoltControls* bolt : {&dialog.PrimaryBoltControls, &dialog.EntryBoltControls, &dialog.InterBoltControls}) {
    EXPECT_EQ(bolt->DiameterStd.Text(), "20");
    EXPECT_FALSE(bolt->DiameterStd.HasSelection());
    EXPECT_EQ(bolt->GradeStd.Text(), "520");
    EXPECT_EQ(bolt->GradeStd.ListIndex(), 3);
  }
  EXPECT_EQ(dialog.EntryCableControls.Diam.ListIndex(), 1);
  EXPECT_EQ(dialog.InterCableControls.CapacityStd.ListIndex(), 1);
}

// ---- standing supports ----------------------------------------------------------------------------------------------

std::vector<double> ItemCapacities(const Combo& combo) {
  std::vector<double> capacities;
  for (const ComboItem& item : combo.Items()) capacities.push_back(item.data);
  return capacities;
}

TEST_F(ParameterLists, StandingSupportsHaveTheirCapacityInTons) {
  dialog.Open();

  for (const Combo* combo : {&dialog.EntryStandingControls.TypeStd, &dialog.InterStandingControls.TypeStd}) {
    EXPECT_THAT(
        ItemTexts(*combo),
        ElementsAre("4-point Hardwood Crib (8in x 8in timbers, 5' height)",
                    "4-point Hardwood Crib (8in x 8in timbers, 7' height)",
                    "4-point Hardwood Crib (6in x 6in timbers, 5' height)",
                    "4-point Hardwood Crib (6in x 6in timbers, 7' height)",
                    "9-point Hardwood Crib (6in x 6in timbers, 7' height)", "Link-N-Lock (24in)", "Link-N-Lock (36in)",
                    "Wood Post (6in)", "Wood Post (8in)", "55-ton ACS Jack", "100-ton ACS Jack", "Propsetter (10in)",
                    "Pumpable Crib (24in)", "Pumpable Crib (30in)", "CAN (24in)", "Concrete Crib (24in x 24in)"));
    EXPECT_THAT(ItemCapacities(*combo),
                ElementsAre(90, 74, 51, 42, 94, 92, 132, 22, 66, 55, 100, 72, 135, 202, 95, 525));
  }
}

TEST_F(ParameterLists, StandingSupportsHaveTheirCapacityInKilonewtons) {
  StartDesign(Metric);

  dialog.Open();

  for (const Combo* combo : {&dialog.EntryStandingControls.TypeStd, &dialog.InterStandingControls.TypeStd}) {
    EXPECT_THAT(ItemCapacities(*combo),
                ElementsAre(800, 658, 453, 373, 836, 818, 1174, 195, 587, 489, 889, 640, 1201, 1797, 845, 4670));
  }
}

TEST_F(ParameterLists, AStandingSupportsCapacityIsRoundedToAWholeNumber) {
  auto& capacities = program.session.catalogs.StandSupports.DefaultStandSupportCap;
  capacities[0][PlaceOf(English)] = 72.5F;
  capacities[1][PlaceOf(English)] = 73.5F;
  capacities[2][PlaceOf(English)] = 40000.4F;

  dialog.Open();

  EXPECT_EQ(dialog.EntryStandingControls.TypeStd.Items()[0].data, 72);
  EXPECT_EQ(dialog.EntryStandingControls.TypeStd.Items()[1].data, 74);
  EXPECT_EQ(dialog.EntryStandingControls.TypeStd.Items()[2].data, 40000);
}

TEST_F(ParameterLists, AStandingSupportOfAnyCapacityCanBeChosen) {
  program.session.catalogs.StandSupports.DefaultStandSupportCap[1][PlaceOf(English)] = 3e9F;
  dialog.Open();

  dialog.EntryStandingControls.TypeStd.SetListIndex(1);

  EXPECT_EQ(dialog.EntryStandingControls.Capacity.Text(), "3000000000");
}

TEST_F(ParameterLists, TwoStandingSupportsWithOneNameHaveTheirOwnCapacities) {
  program.session.catalogs.StandSupports.DefaultStandSupportType[3] = "Steel Prop";
  program.session.catalogs.StandSupports.DefaultStandSupportType[4] = "Steel Prop";
  program.session.catalogs.StandSupports.DefaultStandSupportCap[3] = {60, 534};
  program.session.catalogs.StandSupports.DefaultStandSupportCap[4] = {85, 756};
  dialog.Open();

  dialog.EntryStandingControls.TypeStd.SetListIndex(4);
  EXPECT_EQ(dialog.EntryStandingControls.Capacity.Text(), "85");
  dialog.EntryStandingControls.TypeStd.SetText("Steel Prop");  // the user pressed a key and restored the text
  EXPECT_EQ(dialog.EntryStandingControls.Capacity.Text(), "85");
  Do("optSupportTypeSecEntry=1|optSupportTypeSecEntry=0");
  EXPECT_EQ(dialog.EntryStandingControls.Capacity.Text(), "85");
  dialog.EntryStandingControls.TypeStd.SetListIndex(3);
  EXPECT_EQ(dialog.EntryStandingControls.Capacity.Text(), "60");
}

TEST_F(ParameterFields, ANewDesignKeepsItsOwnSupportCapacityUntilATypeIsChosen) {
  dialog.Open();

  for (const StandingControls* standing : {&dialog.EntryStandingControls, &dialog.InterStandingControls}) {
    EXPECT_EQ(standing->TypeStd.Text(), "4-point Hardwood Crib (8in x 8in timbers, 5' height)");
    EXPECT_EQ(standing->TypeStd.ListIndex(), 0);
    EXPECT_EQ(standing->TypeManual.Text(), "");
    EXPECT_EQ(standing->Capacity.Text(), "50");
  }

  dialog.EntryStandingControls.TypeStd.SetListIndex(12);

  EXPECT_EQ(dialog.EntryStandingControls.Capacity.Text(), "135");
  EXPECT_EQ(dialog.InterStandingControls.Capacity.Text(), "50");
}

TEST_F(ParameterFields, AMetricDesignStartsWithStandingSupportsOf500) {
  StartDesign(Metric);

  dialog.Open();

  EXPECT_EQ(dialog.EntryStandingControls.Capacity.Text(), "500");
  EXPECT_EQ(dialog.InterStandingControls.Capacity.Text(), "500");
}

TEST_F(ParameterFields, AStoredSupportThatTheCatalogLacksKeepsItsNameAndCapacity) {
  program.project.WorkParms.Entries.Standing.TypeName = "Stone pack";
  program.project.WorkParms.Entries.Standing.Capacity = 61.5F;

  dialog.Open();

  EXPECT_EQ(dialog.EntryStandingControls.TypeStd.Text(), "Stone pack");
  EXPECT_FALSE(dialog.EntryStandingControls.TypeStd.HasSelection());
  EXPECT_EQ(dialog.EntryStandingControls.Capacity.Text(), "61.5");
}

TEST_F(ParameterFields, AManualSupportOpensInTheTextFields) {
  program.project.WorkParms.Entries.Standing.TypeMode = program.project.WorkParms.Intersections.Standing.TypeMode =
      ValueSource::Typed;
  program.project.WorkParms.Entries.Standing.TypeName = "Wood Post (6in)";
  program.project.WorkParms.Intersections.Standing.TypeName = "Stone pack";
  program.project.WorkParms.Intersections.Standing.Capacity = 33;

  dialog.Open();

  EXPECT_EQ(dialog.EntryStandingControls.TypeManual.Text(), "Wood Post (6in)");
  EXPECT_EQ(dialog.EntryStandingControls.TypeStd.Text(), "");
  EXPECT_FALSE(dialog.EntryStandingControls.TypeStd.HasSelection());
  EXPECT_EQ(dialog.EntryStandingControls.Capacity.Text(), "50");
  EXPECT_EQ(dialog.InterStandingControls.TypeManual.Text(), "Stone pack");
  EXPECT_EQ(dialog.InterStandingControls.Capacity.Text(), "33");
}

}  // namespace
}  // namespace orby::test
