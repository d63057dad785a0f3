// The curve that the user chooses: the design that it is computed from, and its notices.
#include "dialogs/curve_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/designs.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct ACurve : testing::Test {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  Design design;

  ACurve() { design = EnglishDesign(); }
};

TEST_F(ACurve, SaysInFixedWordsThatTheRatingWasTrimmed) {
  TakeCurve(program, design, 0);

  ASSERT_THAT(platform.boxes.Texts(), ElementsAre("Upper limit for CMRR trimmed to 51"));
  EXPECT_EQ(platform.boxes.shown[0].style, BoxButtons::Ok);
  EXPECT_EQ(platform.boxes.shown[0].title, "Orby Roof Support Workbench");
}

TEST_F(ACurve, SaysThatANegativeSpanWasAdjusted) {
  design.Place.ActualSpanDiagonals = -5;

  TakeCurve(program, design, 3);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Lower limit for IntersectionSpan adjusted > 0"));
}

TEST_F(ACurve, ReportsATrimmedRatingBeforeItFails) {
  design.Place.CMRR = 95;

  EXPECT_EQ(ErrorNumberOf([this] { TakeCurve(program, design, 0); }), 9);

  EXPECT_THAT(platform.boxes.Texts(), SizeIs(1));
}

TEST_F(ACurve, IsComputedFromItsDesignAndNotFromTheCommittedOne) {
  program.project.WorkParms = MetricDesign();
  program.project.WorkParms.Place.CMRR = 90;

  TakeCurve(program, design, 8);

  EXPECT_EQ(program.windows.curve.CurvePoints[0][40], 60.0F);
  EXPECT_EQ(program.windows.curve.CurvePoints[1][40], 183.050446F);
  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
}

TEST_F(ACurve, ComesWithItsDesignAndTheActualSupport) {
  design = FullDesign();

  TakeCurve(program, design, 1);

  const DrawnCurve& curve = program.windows.curve;
  ASSERT_TRUE(curve.Own);
  EXPECT_EQ(curve.Own->X, 400.0F);
  EXPECT_NEAR(curve.Own->Y, 7.606839, 1e-6);
  ASSERT_THAT(curve.References, SizeIs(1));
  EXPECT_NEAR(curve.References[0].Value, 9.940195, 1e-5);
}

TEST_F(ACurve, ReplacesThePreviousCurve) {
  TakeCurve(program, design, 8);

  TakeCurve(program, design, 3);

  EXPECT_EQ(program.windows.curve.CurvePointCount, 4);
  EXPECT_THAT(program.windows.curve.CurvePoints, ElementsAre(SizeIs(5), SizeIs(5)));
  EXPECT_EQ(program.windows.curve.CurveIndex, 3);
}

TEST_F(ACurve, ThatFailsKeepsThePreviousCurve) {
  TakeCurve(program, design, 3);
  design.Place.CMRR = 95;

  EXPECT_EQ(ErrorNumberOf([this] { TakeCurve(program, design, 0); }), 9);

  EXPECT_EQ(program.windows.curve.CurvePointCount, 4);
  EXPECT_EQ(program.windows.curve.CurveIndex, 3);
}

}  // namespace
}  // namespace orby::test
