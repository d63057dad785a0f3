// A report without a dialog uses the same design that a dialog would show.
#include "files/shown_design.h"

#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>

#include "base/runtime_error.h"
#include "core/catalog_choice.h"
#include "engine/verdicts.h"
#include "files/project_lines.h"
#include "parameters_fixture.h"

namespace orby::test {
namespace {

// Returns a design with a number, a choice or a flag for each line of a project, and a few texts.
Design StoredDesign(const Design& start) {
  Design design = start;
  for (const ProjectLine& line : ProjectLines) {
    if (*rc::gen::inRange(0, 4) != 0) continue;
    if (const auto* single = std::get_if<SingleField>(&line.Field)) {
      single->In(design) =
          *rc::gen::oneOf(rc::gen::element<Single>(0, -1, 20.0F / 3, 3.4E38F, 1E-38F),
                          rc::gen::map(rc::gen::inRange(-100, 9000), [](int n) { return static_cast<Single>(n) / 7; }));
    } else if (const auto* integer = std::get_if<IntegerField>(&line.Field)) {
      integer->Set(design, *rc::gen::inRange<Integer>(0, 2));
    } else {
      std::get<TextField>(line.Field).In(design) =
          *rc::gen::element<std::string>("", "Stone pack", "4-point wood crib");
    }
  }
  design.Place.CMRR = static_cast<Single>(*rc::gen::inRange(-5, 110));
  for (BoltSelection* set : design.BoltSets()) set->TableRow = *rc::gen::inRange<Integer>(-2, 12);
  return design;
}

struct StoredRun {
  explicit StoredRun(UnitSystem units) {
    SetBuiltInCatalogs(program.session.catalogs);
    program.session.settings.UnitsDefault = units;
    FileNew(program, Keeping::Nothing);
    program.project.UseAUSStandardTable = *rc::gen::inRange<Integer>(0, 2);
    program.project.WorkParms = StoredDesign(program.project.WorkParms);
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
};

RC_GTEST_PROP(ReportedDesignProperty, IsWhatTheDialogWouldPreview, ()) {
  StoredRun run(*rc::gen::elementOf(std::vector{English, Metric}));
  const Design reported = AsReported(run.program.project, run.program.session.catalogs);

  ParametersDialog dialog(run.program);
  dialog.Open();
  RC_ASSERT(dialog.CopyToWorkParmsCopy());

  RC_ASSERT(reported.Support() == run.program.windows.WorkParmsCopy.Support());
}

RC_GTEST_PROP(ReportedDesignProperty, CommittedIsWhatOkWouldTakeUnchanged, ()) {
  StoredRun run(*rc::gen::elementOf(std::vector{English, Metric}));
  Project& project = run.program.project;
  Catalogs& catalogs = run.program.session.catalogs;
  const Design committed =
      AsCommitted(AsShown(project.WorkParms, LoadBoltTable(project, catalogs), run.program.session.catalogs));

  ParametersDialog dialog(run.program);
  dialog.Open();
  RC_ASSERT(dialog.SaveWorkParms());

  RC_ASSERT(committed.Support() == project.WorkParms.Support());
}

RC_GTEST_PROP(CommittedDesignProperty, IsJudgedAsTypedIfItKeepsTheFigures, ()) {
  StoredRun run(*rc::gen::elementOf(std::vector{English, Metric}));
  const Catalogs& catalogs = run.program.session.catalogs;
  const Design& typed = run.program.project.WorkParms;
  const bool keeps = CommitKeepsFigures(typed);
  RC_CLASSIFY(keeps);
  const Design committed = AsCommitted(typed);
  const Verdicts before = Judge(typed, Analyze(typed, catalogs));
  const Verdicts after = Judge(committed, Analyze(committed, catalogs));

  RC_ASSERT(!keeps || std::ranges::equal(before.All(), after.All()));
}

struct AShownDesign : testing::Test {
  AShownDesign() {
    SetBuiltInCatalogs(program.session.catalogs);
    FileNew(program, Keeping::Nothing);
  }
  Design Shown() { return AsShown(design, program.session.catalogs.BoltTableENG, program.session.catalogs); }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  Design& design = program.project.WorkParms;
};

TEST_F(AShownDesign, HasNumbersOfSevenDigitsAndAWholeRating) {
  design.Place.DepthofCover = 1234.56789F;
  design.Place.CMRR = 52.5F;
  design.Cost.BoltCost = 20.0F / 3;

  EXPECT_EQ(Shown().Place.DepthofCover, 1234.568F);
  EXPECT_EQ(Shown().Place.CMRR, 52);
  EXPECT_EQ(Shown().Cost.BoltCost, 6.666667F);
}

TEST_F(AShownDesign, UsesTheFirstRowIfTheTableLacksTheStoredOne) {
  design.Primary.TableRow = 10;
  design.Entries.Bolt.TableRow = 9;

  EXPECT_EQ(Shown().Primary.TableRow, 0);
  EXPECT_EQ(Shown().Primary.Desc, program.session.catalogs.BoltTableENG[0].Name);
  EXPECT_EQ(Shown().Entries.Bolt.TableRow, 9);
}

TEST_F(AShownDesign, KeepsItsFiguresUnlessOkReplacesTheBoltsOrCablesOfAnIntersection) {
  EXPECT_TRUE(CommitKeepsFigures(design));

  design.Intersections.Cable.CapMode = CapacityMode::ByDiameter;
  design.Intersections.Cable.Diam = design.Entries.Cable.Diam + 0.1F;
  EXPECT_FALSE(CommitKeepsFigures(design));
  design.Intersections.Cable.CapMode = CapacityMode::Given;
  EXPECT_TRUE(CommitKeepsFigures(design));

  design.Intersections.Bolt.Options = BoltSource::Manual;
  EXPECT_TRUE(CommitKeepsFigures(design));
  design.Intersections.Cable.CapMode = CapacityMode::ByDiameter;
  EXPECT_FALSE(CommitKeepsFigures(design)) << "the bolts stay, the cables do not";
  design.Intersections.Cable.CapMode = CapacityMode::Given;
  design.Intersections.Bolt.GradeMode = ValueSource::Typed;
  design.Intersections.Bolt.GradeManual = 41;
  EXPECT_FALSE(CommitKeepsFigures(design));
}

TEST_F(AShownDesign, FailsForAChoiceThatDoesNotExist) {
  design.Intersections.Standing.TypeMode = ValueSource{2};

  EXPECT_FALSE(HasKnownChoices(design));
  EXPECT_EQ(ErrorNumberOf([this] { Shown(); }), 9);
}

TEST_F(AShownDesign, AcceptsAnyStoredSourceOfAMetricCablesCapacity) {
  design.Entries.Cable.CapMode = CapacityMode{7};
  EXPECT_FALSE(HasKnownChoices(design));

  design.Units = Metric;

  EXPECT_TRUE(HasKnownChoices(design));
  EXPECT_EQ(Shown().Entries.Cable.CapMode, CapacityMode::Given);
  EXPECT_EQ(Shown().Intersections.Cable.CapMode, CapacityMode::Given);
}

TEST_F(AShownDesign, HasTheRoundedOutputs) {
  design.Intersections.Analysed = 1;
  design.Intersections.Cable.Use = 1;
  const SupportFigures figures = IntersectionFigures(design, program.session.catalogs);

  const Single load = Shown().Intersections.RockLoad;

  EXPECT_EQ(load, std::round(load));
  EXPECT_NEAR(load, *figures.RockLoad.Value(), 0.5);
  EXPECT_NE(load, *figures.RockLoad.Value());
}

TEST_F(AShownDesign, HasNoFiguresOfIntersectionsUnderABadUnitWeight) {
  design.Intersections.Cable.Use = 1;
  design.Intersections.RockLoad = 99;
  design.Place.UnitWeight = 99;

  EXPECT_EQ(Shown().Intersections.RockLoad, 0);
  EXPECT_EQ(Shown().Intersections.Cable.StabFactor, 0);
}

}  // namespace
}  // namespace orby::test
