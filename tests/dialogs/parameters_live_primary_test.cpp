#include "parameters_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

struct Suggestions : AParametersDialog {
  // Returns the texts of diagonals, bolt length and PSUP.
  std::vector<std::string> Shown() const {
    return {dialog.txtSugSumDiagonals.Text(), dialog.txtSuggestBoltLength.Text(), dialog.txtSugPSUP.Text()};
  }
};

struct ActualSupport : AParametersDialog {
  std::string After(std::string_view edits) {
    DoQuietly(edits);
    dialog.ShowActualPSUP();
    return dialog.txtActualPSUP.Text();
  }
};

// ---- suggestions ----------------------------------------------------------------------------------------------------

TEST_F(Suggestions, OfANewEnglishDesign) {
  dialog.Open();

  EXPECT_THAT(Shown(), ElementsAre("63.2", "4.9", "7.6"));
  EXPECT_EQ(dialog.txtMessage.Text(), "WARNINGS:\r\n");
  EXPECT_FALSE(dialog.txtMessage.Visible());
}

TEST_F(Suggestions, OfANewMetricDesign) {
  StartDesign(Metric);

  dialog.Open();

  EXPECT_THAT(Shown(), ElementsAre("19.3", "1.7", "10.2"));
  EXPECT_EQ(dialog.txtMessage.Text(), "");
  EXPECT_FALSE(dialog.txtMessage.Visible());
}

TEST_F(Suggestions, FollowTheFields) {
  dialog.Open();

  Do("txtStabilityFactor=1.5");
  EXPECT_THAT(Shown(), ElementsAre("63.2", "4.9", "11.4"));
  Do("txtStabilityFactor=1|txtCMRR=55|txtDepthofCover=900");
  EXPECT_THAT(Shown(), ElementsAre("67.0", "4.1", "5.2"));
}

TEST_F(Suggestions, WarnOfASpanThatIsTooLarge) {
  dialog.Open();

  Do("txtActualSpanDiagonals=66");

  EXPECT_THAT(Shown(), ElementsAre("63.2", "5.4", "9.2"));
  EXPECT_EQ(dialog.txtMessage.Text(),
            "WARNINGS:\r\n"
            "Actual sum of diagonals exceeds suggested sum of diagonals.\r\n");
  EXPECT_TRUE(dialog.txtMessage.Visible());
}

TEST_F(Suggestions, WarnOfASpanThatDoesNotMatchTheWidth) {
  dialog.Open();

  Do("txtActualSpanDiagonals=30");

  EXPECT_THAT(Shown(), ElementsAre("63.2", "4.0", "3.0"));
  EXPECT_EQ(dialog.txtMessage.Text(),
            "WARNINGS:\r\n"
            "Intersection diagonals and entry width may not match.\r\n");
  EXPECT_TRUE(dialog.txtMessage.Visible());
}

TEST_F(Suggestions, WarnOfBoth) {
  dialog.Open();
  DoQuietly("txtEntryWidth=46|txtActualSpanDiagonals=66");

  Do("txtCMRR=10");

  EXPECT_THAT(Shown(), ElementsAre("49.9", "11.3", "3.0"));
  EXPECT_EQ(dialog.txtMessage.Text(),
            "WARNINGS:\r\n"
            "Actual sum of diagonals exceeds suggested sum of diagonals.\r\n"
            "Intersection diagonals and entry width may not match.\r\n");
  EXPECT_TRUE(dialog.txtMessage.Visible());
}

TEST_F(Suggestions, RemoveTheirWarningsWhenTheSpanFits) {
  dialog.Open();

  for (const std::string_view tooLargeOrNotMatchingOrBoth : {"txtActualSpanDiagonals=66", "txtActualSpanDiagonals=30",
                                                             "txtCMRR=10|txtEntryWidth=46|txtActualSpanDiagonals=66"}) {
    DoQuietly(tooLargeOrNotMatchingOrBoth);
    dialog.ShowSuggested();
    ASSERT_TRUE(dialog.txtMessage.Visible()) << tooLargeOrNotMatchingOrBoth;
    DoQuietly("txtCMRR=45|txtEntryWidth=20");

    Do("txtActualSpanDiagonals=60");

    EXPECT_EQ(dialog.txtMessage.Text(), "WARNINGS:\r\n") << tooLargeOrNotMatchingOrBoth;
    EXPECT_FALSE(dialog.txtMessage.Visible()) << tooLargeOrNotMatchingOrBoth;
  }
}

TEST_F(Suggestions, KeepTheWarningBoxOfAMetricDesign) {
  StartDesign(Metric);
  dialog.Open();

  Do("txtActualSpanDiagonals=22");
  EXPECT_THAT(Shown(), ElementsAre("19.3", "1.9", "12.3"));
  EXPECT_EQ(dialog.txtMessage.Text(), "");
  EXPECT_FALSE(dialog.txtMessage.Visible());

  dialog.txtMessage.SetText("as before");
  dialog.txtMessage.SetVisible(true);
  Do("txtActualSpanDiagonals=20");
  EXPECT_EQ(dialog.txtMessage.Text(), "as before");
  EXPECT_TRUE(dialog.txtMessage.Visible());
}

TEST_F(Suggestions, ShowADashOnlyForThePsupIfTheFieldsAreInvalid) {
  for (const std::string_view bad : {"txtStabilityFactor=0.9", "txtStabilityFactor=", "txtCMRR=-1", "txtCMRR=101",
                                     "txtEntryWidth=0", "txtEntryWidth=-20", "txtEntryWidth=66",
                                     "txtActualSpanDiagonals=20", "txtActualSpanDiagonals=", "txtDepthofCover=-1"}) {
    ParametersDialog other(program);
    other.Open();
    Edit(other, "txtActualSpanDiagonals=66");

    other.HoldEvents = true;
    Edit(other, bad);
    other.ShowSuggested();

    EXPECT_EQ(other.txtSugPSUP.Text(), "--") << bad;
    EXPECT_EQ(other.txtSugSumDiagonals.Text(), "63.2") << bad;
    EXPECT_EQ(other.txtSuggestBoltLength.Text(), "5.4") << bad;
    EXPECT_TRUE(other.txtMessage.Visible()) << bad;
    EXPECT_EQ(other.txtActualPSUP.Text(), "5.1") << bad;
  }
}

TEST_F(Suggestions, AreComputedUpToTheLimitsOfRatingAndSpan) {
  dialog.Open();

  Do("txtCMRR=0");
  EXPECT_THAT(Shown(), ElementsAre("46.1", "12.0", "3.0"));
  Do("txtCMRR=100");
  EXPECT_THAT(Shown(), ElementsAre("84.1", "4.0", "3.0"));
  Do("txtCMRR=45|txtActualSpanDiagonals=20.1");
  EXPECT_THAT(Shown(), ElementsAre("63.2", "4.0", "3.0"));
}

TEST_F(Suggestions, ShowADashOnlyForTheSupportWithoutADepth) {
  dialog.Open();
  Do("txtActualSpanDiagonals=66");

  for (const std::string_view depth :
       {"txtDepthofCover=", "txtDepthofCover=0", "txtDepthofCover=1E39", "txtDepthofCover=1E999"}) {
    Do("txtDepthofCover=400");
    EXPECT_EQ(dialog.txtSugPSUP.Text(), "9.2");

    Do(depth);

    EXPECT_THAT(Shown(), ElementsAre("63.2", "5.4", "--")) << depth;
    EXPECT_EQ(dialog.txtMessage.Text(),
              "WARNINGS:\r\n"
              "Actual sum of diagonals exceeds suggested sum of diagonals.\r\n");
    EXPECT_TRUE(dialog.txtMessage.Visible()) << depth;
  }
}

// ---- the pattern ----------------------------------------------------------------------------------------------------

TEST_F(ActualSupport, OfANewDesignIsThatOfTheTablesFirstBolt) {
  dialog.Open();
  EXPECT_EQ(dialog.txtActualPSUP.Text(), "5.1");

  StartDesign(Metric);
  ParametersDialog metric(program);
  metric.Open();
  EXPECT_EQ(metric.txtActualPSUP.Text(), "5.5");
}

TEST_F(ActualSupport, FollowsTheSelectedBolt) {
  dialog.Open();

  Do("VSFlexGridPrimary=7");

  EXPECT_EQ(dialog.txtActualPSUP.Text(), "9.9");
}

TEST_F(ActualSupport, UsesTheBoltFromTheListsOrAsTyped) {
  program.project.WorkParms.Primary.Options = BoltSource::Manual;
  program.project.WorkParms.Primary.DiameterManual = 0.625F;
  program.project.WorkParms.Primary.GradeManual = 60;

  dialog.Open();

  EXPECT_EQ(dialog.txtActualPSUP.Text(), "9.9");
  EXPECT_EQ(After("optBoltDiameterPrimary=1"), "6.9");
  EXPECT_EQ(After("optBoltDiameterPrimary=0|optBoltGradePrimary=1"), "8.0");
  EXPECT_EQ(After("optBoltDiameterPrimary=1|txtBoltDiameterPrimary=0.875|txtBoltGradePrimary=62.5"), "11.3");
}

TEST_F(ActualSupport, OfAMetricDesignUsesMillimetresAndMPa) {
  StartDesign(Metric);
  program.project.WorkParms.Primary.Options = BoltSource::Manual;

  dialog.Open();

  EXPECT_EQ(dialog.txtActualPSUP.Text(), "12.0");
}

TEST_F(ActualSupport, OfUltimateGradesUsesTheirYieldStrength) {
  StartDesign(English, StrengthBasis::Ultimate);
  dialog.Open();
  EXPECT_EQ(dialog.txtActualPSUP.Text(), "2.0");
  EXPECT_EQ(After("optBoltOptionsPrimary=1"), "9.9");

  StartDesign(Metric, StrengthBasis::Ultimate);
  program.project.WorkParms.Primary.Options = BoltSource::Manual;
  ParametersDialog metric(program);
  metric.Open();
  EXPECT_EQ(metric.txtActualPSUP.Text(), "11.5");
}

TEST_F(ActualSupport, IsComputedForUpToTenBoltsPerRow) {
  dialog.Open();

  EXPECT_EQ(After("txtBoltsperRowPrimary=10"), "12.7");
  for (const std::string_view bad : {"11", "10.5", "", "0", "-4"}) {
    EXPECT_EQ(After("txtBoltsperRowPrimary=" + std::string(bad)), "--") << bad;
  }
}

TEST_F(ActualSupport, IsADashWithoutALengthASpacingOrAWidth) {
  dialog.Open();

  for (const std::string field : {"txtBoltLengthPrimary", "txtRowSpacingPrimary", "txtEntryWidth"}) {
    const std::string before = Text(field);
    for (const std::string bad : {"0", "", "-1"}) {
      EXPECT_EQ(After(field + "=" + bad), "--") << field << ' ' << bad;
      EXPECT_EQ(After(field + "=" + before), "5.1") << field;
    }
  }
}

TEST_F(ActualSupport, IsComputedForBoltsAboveHalfAnInchAndUpToOneAndAQuarter) {
  dialog.Open();
  After("optBoltOptionsPrimary=1|optBoltDiameterPrimary=1");

  EXPECT_EQ(After("txtBoltDiameterPrimary=0.5"), "--");
  EXPECT_EQ(After("txtBoltDiameterPrimary=0.51"), "4.6");
  EXPECT_EQ(After("txtBoltDiameterPrimary=1.25"), "27.6");
  EXPECT_EQ(After("txtBoltDiameterPrimary=1.26"), "--");
  EXPECT_EQ(After("txtBoltDiameterPrimary="), "--");
}

TEST_F(ActualSupport, ComparesMetricBoltsWithTheLimitsInInches) {
  StartDesign(Metric);
  dialog.Open();
  After("optBoltOptionsPrimary=1|optBoltDiameterPrimary=1");

  EXPECT_EQ(After("txtBoltDiameterPrimary=12.7"), "--");
  EXPECT_EQ(After("txtBoltDiameterPrimary=31.75"), "30.3");
  EXPECT_EQ(After("txtBoltDiameterPrimary=31.8"), "--");
}

TEST_F(ActualSupport, IsADashWithoutAGrade) {
  dialog.Open();
  After("optBoltOptionsPrimary=1|optBoltGradePrimary=1");

  for (const std::string bad : {"0", "", "-75"}) EXPECT_EQ(After("txtBoltGradePrimary=" + bad), "--") << bad;
}

}  // namespace
}  // namespace orby::test
