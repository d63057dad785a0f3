#include "dialogs/options_dialog.h"

#include <string_view>
#include <vector>

#include "base/runtime_error.h"
#include "dialogs/options_fixture.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using Options = OptionsFixture;

constexpr std::string_view RatingWarning =
    "WARNING:  CMRR outside range of case history data base.  ORBY may not be valid.  Accept Value ?";
constexpr std::string_view StabilityWarning = "WARNING:  Stability Factor is less than 1.0 ORBY is probably not valid.";

// ---- captions ------------------------------------------------------------------------------------------------------

// Returns the caption of a label, frame, check box or button. The captions of options and tabs are separated by "|".
std::string CaptionOf(const Control& control) {
  if (const auto* label = dynamic_cast<const Label*>(&control)) return label->Caption();
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return box->Caption();
  if (const auto* button = dynamic_cast<const Button*>(&control)) return button->Caption();
  std::string captions;
  if (const auto* options = dynamic_cast<const OptionArray*>(&control)) {
    for (std::size_t i = 0; i < options->Count(); ++i) captions += (i == 0 ? "" : "|") + options->Caption(i);
  } else if (const auto* tabs = dynamic_cast<const TabSet*>(&control)) {
    for (int i = 0; i < tabs->Count(); ++i) captions += (i == 0 ? "" : "|") + tabs->Caption(i);
  }
  return captions;
}

struct CaptionCase {
  std::vector<std::string_view> names;  // of the controls with this caption
  std::string_view caption;
};

const std::vector<CaptionCase> Captions{
    {{"SSTab1"},
     "Edit / Print Options|Default Parameters (English)|Default Parameters (Metric)|"
     "Default Parameters (Standing Supports)"},
    {{"Check1"}, "Load the input form on file open / file new"},
    {{"Check2"}, "View project file in child window"},
    {{"Check3"}, "Print module version information"},
    {{"chkOffice"}, "Do not ask if Microsoft Office is installed"},
    {{"fraStrength"}, "Default Setting for Steel Strength"},
    {{"optStrength"}, "Yield Strength (US)|Ultimate Strength (AUS)"},
    {{"cmdFileAssoc"}, "Create File Association"},
    {{"lblCMRR_0", "lblCMRR_1"}, "Coal Mine Roof Rating"},
    {{"lblDepthofCover_0"}, "Depth of Cover (ft)"},
    {{"lblDepthofCover_1"}, "Depth of Cover (m)"},
    {{"lblUnitWeight_0"}, "Unit Weight (pcf)"},
    {{"lblUnitWeight_1"}, "Unit Weight (kN/m3)"},
    {{"lblActualSpan_0"}, "Actual Intersection Sum of Diagonals (ft)"},
    {{"lblActualSpan_1"}, "Actual Intersection Sum of Diagonals (m)"},
    {{"lblEntryWidth_0"}, "Entry Width (ft)"},
    {{"lblEntryWidth_1"}, "Entry Width (m)"},
    {{"lblStabilityFactor_0", "lblStabilityFactor_1"}, "Stability Factor"},
    {{"lblActualBoltLength_0"}, "Actual Bolt Length (ft)"},
    {{"lblActualBoltLength_1"}, "Actual Bolt Length (m)"},
    {{"lblBoltDiameter_0"}, "Bolt Diameter (in)"},
    {{"lblBoltDiameter_1"}, "Bolt Diameter (mm)"},
    {{"lblBoltGrade_0"}, "Bolt Grade (ksi)"},
    {{"lblBoltGrade_1"}, "Bolt Grade (MPa)"},
    {{"lblBoltUTS_0"}, "Bolt UTS (ksi)"},
    {{"lblBoltUTS_1"}, "Bolt UTS (MPa)"},
    {{"lblBoltsperRow_0", "lblBoltsperRow_1"}, "Number of Bolts per Row"},
    {{"lblRowSpacing_0"}, "Row Spacing (ft)"},
    {{"lblRowSpacing_1"}, "Row Spacing (m)"},
    {{"fraBolts_0"}, "Bolt grade and UTS (ksi) and diameter (in) specifications"},
    {{"fraBolts_1"}, "Bolt grade and UTS (MPa) and diameter (mm) specifications"},
    {{"fraBolts_2"}, "Bolt UTS and Diameter (AUS)"},
    {{"optBoltEng", "optBoltMet"}, "Bolt Grade|Bolt UTS|Bolt Diameter"},
    {{"optBoltMetAUS"}, "|Bolt UTS|Bolt Dia"},
    {{"cmdAddBolt_0", "cmdAddBolt_1", "cmdAddBolt_2"}, "Add"},
    {{"cmdDeleteBolt_0", "cmdDeleteBolt_1", "cmdDeleteBolt_2"}, "Delete"},
    {{"fraCables_0"}, "Cable bolt capacity (tons) and diameter (in) specifications"},
    {{"fraCables_1"}, "Cable bolt capacity (kN) and diameter (mm) specifications"},
    {{"fraStand"}, "Standing Support Specifications"},
    {{"cmdAddCable_0", "cmdAddCable_1", "cmdAddStandSupport"}, "Add Row"},
    {{"cmdDeleteCable_0", "cmdDeleteCable_1", "cmdDeleteRow"}, "Delete Row"},
    {{"cmdSetDefaultCable_0", "cmdSetDefaultCable_1", "cmdSetDefaultStandSupport"}, "Reset Default"},
};

TEST_F(Options, HaveTheirCaptions) {
  dialog.Open();

  EXPECT_EQ(dialog.Caption(), "Options");
  for (const auto& [names, caption] : Captions) {
    for (const std::string_view name : names) EXPECT_EQ(CaptionOf(*dialog.Find(name)), caption) << name;
  }
}

// ---- opening -------------------------------------------------------------------------------------------------------

TEST_F(Options, ShowThePreferencesOfTheProgram) {
  program.session.options.ShowInputScreenOnLoad = 0;
  program.session.options.ViewChildWindow = 1;
  program.session.options.PrintModuleHeader = 0;
  program.session.options.AskOfficeInstall = 1;
  program.session.options.BoltGradeAsUltimateDefault = StrengthBasis::Ultimate;

  dialog.Open();

  EXPECT_FALSE(dialog.Check1.Checked());
  EXPECT_TRUE(dialog.Check2.Checked());
  EXPECT_FALSE(dialog.Check3.Checked());
  EXPECT_TRUE(dialog.chkOffice.Checked());
  EXPECT_TRUE(dialog.optStrength.Value(1));
}

TEST_F(Options, ShowTheDefaultsOfANewEnglishDesign) {
  dialog.Open();

  EXPECT_EQ(dialog.txtCMRR[EnglishPage].Text(), "45");
  EXPECT_EQ(dialog.txtDepthofCover[EnglishPage].Text(), "400");
  EXPECT_EQ(dialog.txtUnitWeight[EnglishPage].Text(), "162");
  EXPECT_EQ(dialog.txtActualSpan[EnglishPage].Text(), "60");
  EXPECT_EQ(dialog.txtEntryWidth[EnglishPage].Text(), "20");
  EXPECT_EQ(dialog.txtStabilityFactor[EnglishPage].Text(), "1");
  EXPECT_EQ(dialog.txtActualBoltLength[EnglishPage].Text(), "6");
  EXPECT_EQ(dialog.txtBoltDiameter[EnglishPage].Text(), "0.75");
  EXPECT_EQ(dialog.txtBoltGrade[EnglishPage].Text(), "75");
  EXPECT_EQ(dialog.txtBoltUTS[EnglishPage].Text(), "100");
  EXPECT_EQ(dialog.txtBoltsperRow[EnglishPage].Text(), "4");
  EXPECT_EQ(dialog.txtRowSpacing[EnglishPage].Text(), "4");
}

TEST_F(Options, ShowTheDefaultsOfANewMetricDesign) {
  dialog.Open();

  EXPECT_EQ(dialog.txtCMRR[MetricPage].Text(), "45");
  EXPECT_EQ(dialog.txtDepthofCover[MetricPage].Text(), "150");
  EXPECT_EQ(dialog.txtUnitWeight[MetricPage].Text(), "25");
  EXPECT_EQ(dialog.txtActualSpan[MetricPage].Text(), "20");
  EXPECT_EQ(dialog.txtEntryWidth[MetricPage].Text(), "6.2");
  EXPECT_EQ(dialog.txtStabilityFactor[MetricPage].Text(), "1");
  EXPECT_EQ(dialog.txtActualBoltLength[MetricPage].Text(), "2");
  EXPECT_EQ(dialog.txtBoltDiameter[MetricPage].Text(), "20");
  EXPECT_EQ(dialog.txtBoltGrade[MetricPage].Text(), "520");
  EXPECT_EQ(dialog.txtBoltUTS[MetricPage].Text(), "690");
  EXPECT_EQ(dialog.txtBoltsperRow[MetricPage].Text(), "4");
  EXPECT_EQ(dialog.txtRowSpacing[MetricPage].Text(), "1.2");
}

TEST_F(Options, AreLoggedWhenTheyOpen) {
  dialog.Open();

  EXPECT_THAT(program.session.history.Text, HasSubstr("Editing ORBY Options"));
  EXPECT_EQ(program.windows.titles.RangeErrorTitle, "Program Options: Range Error");
}

TEST_F(Options, OpenOnThePageThatWasChosenLast) {
  dialog.Open();
  dialog.SSTab1.ClickTab(3);
  dialog.cmdCancel.Press();

  OptionsDialog next(program);
  next.Open();

  EXPECT_EQ(next.SSTab1.Tab(), 3);
}

TEST_F(Options, OpenOnTheFirstPageInANewRun) {
  dialog.Open();

  EXPECT_EQ(dialog.SSTab1.Tab(), 0);
}

TEST_F(Options, SayHowToGetHelpOnAField) {
  dialog.Open();

  dialog.cmdHelp.Press();

  EXPECT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_THAT(platform.help.shown, IsEmpty());
}

TEST_F(Options, AskBeforeAssociatingTheExtension) {
  platform.boxes.answers = {BoxResult::No};
  dialog.Open();

  dialog.cmdFileAssoc.Press();

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("This operation may break an existing association of file extension ORB with other programs "
                          "on this computer. Proceed?"));
}

// ---- leaving -------------------------------------------------------------------------------------------------------

TEST_F(Options, DoNotChangeIfTheDialogIsCancelled) {
  dialog.Open();
  dialog.Check1.SetValue(0);
  dialog.txtDepthofCover[EnglishPage].SetText("900");

  dialog.cmdCancel.Press();

  EXPECT_EQ(program.session.options.ShowInputScreenOnLoad, 1);
  EXPECT_EQ(program.session.defaults.DefaultENGDepthofCover, 400);
  EXPECT_THAT(program.session.history.Text, HasSubstr("Options Not Modified"));
  EXPECT_THAT(platform.files.files, IsEmpty());
}

TEST_F(Options, AreStoredOnOK) {
  dialog.Open();
  dialog.Check1.SetValue(0);
  dialog.Check2.SetValue(0);
  dialog.Check3.SetValue(0);
  dialog.chkOffice.SetValue(0);
  dialog.optStrength.SetValue(1, true);

  Accept();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.session.options.ShowInputScreenOnLoad, 0);
  EXPECT_EQ(program.session.options.ViewChildWindow, 0);
  EXPECT_EQ(program.session.options.PrintModuleHeader, 0);
  EXPECT_EQ(program.session.options.AskOfficeInstall, 0);
  EXPECT_EQ(program.session.options.BoltGradeAsUltimateDefault, StrengthBasis::Ultimate);
  EXPECT_THAT(program.session.history.Text, Not(HasSubstr("Options Not Modified")));
}

TEST_F(Options, StoreTheEnglishDefaultsForNewDesigns) {
  dialog.Open();
  dialog.txtCMRR[EnglishPage].SetText("52");
  dialog.txtDepthofCover[EnglishPage].SetText("650.5");
  dialog.txtUnitWeight[EnglishPage].SetText("158");
  dialog.txtActualSpan[EnglishPage].SetText("62.5");
  dialog.txtEntryWidth[EnglishPage].SetText("18");
  dialog.txtStabilityFactor[EnglishPage].SetText("1.3");
  dialog.txtActualBoltLength[EnglishPage].SetText("8");
  dialog.txtBoltDiameter[EnglishPage].SetText("0.875");
  dialog.txtBoltGrade[EnglishPage].SetText("60");
  dialog.txtBoltUTS[EnglishPage].SetText("90");
  dialog.txtBoltsperRow[EnglishPage].SetText("5");
  dialog.txtRowSpacing[EnglishPage].SetText("4.5");

  Accept();

  const DesignDefaults& defaults = program.session.defaults;
  EXPECT_EQ(defaults.DefaultCMRR, 52);
  EXPECT_EQ(defaults.DefaultENGDepthofCover, 650.5F);
  EXPECT_EQ(defaults.DefaultENGUnitWeight, 158);
  EXPECT_EQ(defaults.DefaultENGActualInterSpan, 62.5F);
  EXPECT_EQ(defaults.DefaultENGEntryWidth, 18);
  EXPECT_EQ(defaults.DefaultStabilityFactor, 1.3F);
  EXPECT_EQ(defaults.DefaultENGActualBoltLength, 8);
  EXPECT_EQ(defaults.DefaultENGboltDiameter, 0.875F);
  EXPECT_EQ(defaults.DefaultENGBoltGrade, 60);
  EXPECT_EQ(defaults.DefaultENGBoltUTS, 90);
  EXPECT_EQ(defaults.DefaultNumberBoltsPerRow, 5);
  EXPECT_EQ(defaults.DefaultENGrowSpacing, 4.5F);
  EXPECT_EQ(defaults.DefaultMETDepthofCover, 150);
  EXPECT_EQ(defaults.DefaultMETBoltUTS, 690);
}

TEST_F(Options, StoreTheMetricDefaultsForNewDesigns) {
  dialog.Open();
  dialog.txtDepthofCover[MetricPage].SetText("210.5");
  dialog.txtUnitWeight[MetricPage].SetText("24.2");
  dialog.txtActualSpan[MetricPage].SetText("19");
  dialog.txtEntryWidth[MetricPage].SetText("5.8");
  dialog.txtActualBoltLength[MetricPage].SetText("2.4");
  dialog.txtBoltDiameter[MetricPage].SetText("22");
  dialog.txtBoltGrade[MetricPage].SetText("420");
  dialog.txtBoltUTS[MetricPage].SetText("620");
  dialog.txtRowSpacing[MetricPage].SetText("1.4");

  Accept();

  const DesignDefaults& defaults = program.session.defaults;
  EXPECT_EQ(defaults.DefaultMETDepthofCover, 210.5F);
  EXPECT_EQ(defaults.DefaultMETUnitWeight, 24.2F);
  EXPECT_EQ(defaults.DefaultMETActualInterSpan, 19);
  EXPECT_EQ(defaults.DefaultMETEntryWidth, 5.8F);
  EXPECT_EQ(defaults.DefaultMETActualBoltLength, 2.4F);
  EXPECT_EQ(defaults.DefaultMETboltDiameter, 22);
  EXPECT_EQ(defaults.DefaultMETBoltGrade, 420);
  EXPECT_EQ(defaults.DefaultMETBoltUTS, 620);
  EXPECT_EQ(defaults.DefaultMETrowSpacing, 1.4F);
  EXPECT_EQ(defaults.DefaultENGDepthofCover, 400);
  EXPECT_EQ(defaults.DefaultENGBoltUTS, 100);
}

TEST_F(Options, UseTheEnglishValueIfBothPagesEditOneDefault) {
  dialog.Open();
  dialog.txtCMRR[MetricPage].SetText("61");
  dialog.txtStabilityFactor[MetricPage].SetText("1.7");
  dialog.txtBoltsperRow[MetricPage].SetText("6");

  Accept();

  EXPECT_EQ(program.session.defaults.DefaultCMRR, 45);
  EXPECT_EQ(program.session.defaults.DefaultStabilityFactor, 1);
  EXPECT_EQ(program.session.defaults.DefaultNumberBoltsPerRow, 4);
}

TEST_F(Options, DropTheFractionsOfRatingAndBoltsPerRow) {
  dialog.Open();
  dialog.txtCMRR[EnglishPage].SetText("52.9");
  dialog.txtBoltsperRow[EnglishPage].SetText("5.9");

  Accept();

  EXPECT_EQ(program.session.defaults.DefaultCMRR, 52);
  EXPECT_EQ(program.session.defaults.DefaultNumberBoltsPerRow, 5);
}

TEST_F(Options, ChangeNothingIfANumberCannotBeStored) {
  dialog.Open();
  dialog.Check1.SetValue(0);
  dialog.txtDepthofCover[EnglishPage].SetText("650");
  dialog.txtBoltsperRow[EnglishPage].SetText("40000");

  Accept();

  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_EQ(program.session.defaults.DefaultENGDepthofCover, 400);
  EXPECT_EQ(program.session.options.ShowInputScreenOnLoad, 1);
  EXPECT_THAT(platform.files.files, IsEmpty());
}

TEST_F(Options, AreWrittenToTheConfigurationFile) {
  dialog.Open();
  dialog.Check1.SetValue(0);
  dialog.txtDepthofCover[EnglishPage].SetText("650");

  Accept();

  EXPECT_EQ(Written("TULKOptions", "ShowInputScreenOnLoad"), "0");
  EXPECT_EQ(Written("ORBYDefaults", "DefaultENGDepthofCover"), "650");
  EXPECT_EQ(Written("ORBYBoltParams", "DefaultBoltGradeIndexENG"), "5");
  EXPECT_EQ(Written("ORBYStandSupportParams", "DefaultStandSupportIndex"), "15");
  EXPECT_THAT(program.session.history.Text, HasSubstr("Saving default settings to file: /home/user/ORBY.INI"));
}

// ---- checks --------------------------------------------------------------------------------------------------------

struct Fault {
  OptionsControls::Numbers OptionsControls::*Boxes;
  std::string Text;
  std::string Message;
};

void PrintTo(const Fault& fault, std::ostream* out) { *out << fault.Message << " " << fault.Text; }

struct RefusedDefault : OptionsFixture, testing::WithParamInterface<Fault> {
  void ExpectRefusal(std::size_t page, int tab) {
    dialog.Open();
    TextBox& field = (dialog.*GetParam().Boxes)[page];
    field.SetText(GetParam().Text);

    Accept();

    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_THAT(platform.boxes.shown, ElementsAre(AllOf(Field(&MessageBox::text, GetParam().Message),
                                                        Field(&MessageBox::style, BoxIcon::Critical),
                                                        Field(&MessageBox::title, "Program Options: Range Error"))));
    EXPECT_EQ(dialog.SSTab1.Tab(), tab);
    EXPECT_EQ(dialog.FocusRequest(), &field);
  }
};

TEST_P(RefusedDefault, IsShownOnTheEnglishPage) { ExpectRefusal(EnglishPage, 1); }
TEST_P(RefusedDefault, IsShownOnTheMetricPage) { ExpectRefusal(MetricPage, 2); }

INSTANTIATE_TEST_SUITE_P(
    Of, RefusedDefault,
    testing::Values(Fault{&OptionsControls::txtStabilityFactor, "0", "Invalid stability factor"},
                    Fault{&OptionsControls::txtActualBoltLength, "-1", "Invalid actual bolt length"},
                    Fault{&OptionsControls::txtBoltDiameter, "", "Invalid bolt diameter"},
                    Fault{&OptionsControls::txtBoltGrade, "0", "Invalid bolt grade"},
                    Fault{&OptionsControls::txtBoltsperRow, "0", "Invalid number of roof bolts per row"},
                    Fault{&OptionsControls::txtBoltsperRow, "32768", "Invalid number of roof bolts per row"},
                    Fault{&OptionsControls::txtRowSpacing, "0", "Invalid roof bolt row spacing"},
                    Fault{&OptionsControls::txtCMRR, "0", "Invalid CMRR"},
                    Fault{&OptionsControls::txtCMRR, "100.5", "Invalid CMRR"},
                    Fault{&OptionsControls::txtDepthofCover, "0", "Invalid depth of cover"},
                    Fault{&OptionsControls::txtActualSpan, "0", "Invalid actual intersection span"},
                    Fault{&OptionsControls::txtEntryWidth, "0", "Invalid entry width"}));

TEST_F(Options, ReportOnlyTheFirstFaultOfTheEnglishPage) {
  dialog.Open();
  dialog.txtStabilityFactor[MetricPage].SetText("0");
  dialog.txtEntryWidth[EnglishPage].SetText("0");
  dialog.txtCMRR[EnglishPage].SetText("0");

  Accept();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid CMRR"));
}

TEST_F(Options, AcceptAnyUnitWeightAndBoltStrength) {
  dialog.Open();
  dialog.txtUnitWeight[EnglishPage].SetText("0");
  dialog.txtBoltUTS[MetricPage].SetText("");

  Accept();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.session.defaults.DefaultENGUnitWeight, 0);
  EXPECT_EQ(program.session.defaults.DefaultMETBoltUTS, 0);
}

TEST_F(Options, AcceptARoofRatingOf100) {
  dialog.Open();
  dialog.txtCMRR[EnglishPage].SetText("100");

  Accept();

  EXPECT_EQ(program.session.defaults.DefaultCMRR, 100);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(Options, AskAboutALowRoofRatingOnTheMetricPage) {
  platform.boxes.answers = {BoxResult::Yes};
  dialog.Open();
  dialog.txtCMRR[MetricPage].SetText("34");

  Accept();

  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(AllOf(Field(&MessageBox::text, RatingWarning), Field(&MessageBox::style, BoxButtons::YesNo),
                                Field(&MessageBox::title, "Program Options: Range Warning"))));
  EXPECT_FALSE(dialog.IsOpen());
}

TEST_F(Options, KeepTheFocusOnARefusedRoofRating) {
  platform.boxes.answers = {BoxResult::No};
  dialog.Open();
  dialog.txtCMRR[MetricPage].SetText("34");

  Accept();

  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_EQ(dialog.SSTab1.Tab(), 2);
  EXPECT_EQ(dialog.FocusRequest(), &dialog.txtCMRR[MetricPage]);
  EXPECT_EQ(program.session.defaults.DefaultCMRR, 45);
}

TEST_F(Options, AskAboutEachUnusualValue) {
  platform.boxes.answers = {BoxResult::Yes, BoxResult::Yes, BoxResult::No};
  dialog.Open();
  dialog.txtCMRR[EnglishPage].SetText("30");
  dialog.txtStabilityFactor[EnglishPage].SetText("0.9");
  dialog.txtStabilityFactor[MetricPage].SetText("0.5");

  Accept();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre(RatingWarning, StabilityWarning, StabilityWarning));
  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_EQ(dialog.FocusRequest(), &dialog.txtStabilityFactor[MetricPage]);
}

TEST_F(Options, AskNothingAtTheLimits) {
  dialog.Open();
  dialog.txtCMRR[EnglishPage].SetText("35");
  dialog.txtStabilityFactor[EnglishPage].SetText("1");

  Accept();

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(Options, ReportFaultsBeforeAskingAboutUnusualValues) {
  dialog.Open();
  dialog.txtCMRR[EnglishPage].SetText("30");
  dialog.txtRowSpacing[MetricPage].SetText("0");

  Accept();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid roof bolt row spacing"));
}

TEST_F(Options, KeepTheEditedCellIfAFaultIsFound) {
  dialog.Open();
  Edit(dialog.VSFlexGridEng, 1, 2, "28");
  dialog.txtEntryWidth[EnglishPage].SetText("0");

  Accept();

  EXPECT_EQ(dialog.VSFlexGridEng.Cell(1, 2), "28");
  EXPECT_EQ(program.session.catalogs.DefaultCableCapArrayENG[0], 26.4F);
}

}  // namespace
}  // namespace orby::test
