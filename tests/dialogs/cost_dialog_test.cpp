#include "dialogs/cost_dialog_fixture.h"

namespace orby::test {
namespace {

using testing::IsEmpty;

// ---- opening --------------------------------------------------------------------------------------------------------

TEST_F(ACostDialog, ShowsEveryCostOfTheDesign) {
  for (const FieldCase& field : CostFieldCases) field.field.In(program.project.WorkParms) = field.value;

  dialog.Open();

  for (const FieldCase& field : CostFieldCases) EXPECT_EQ(Box(field.name).Text(), field.text) << field.name;
}

TEST_F(ACostDialog, ShowsWhichCalculatedValuesTheDesignUses) {
  program.project.WorkParms.Cost.Advance = 1;
  program.project.WorkParms.Cost.Production = 0;

  dialog.Open();

  EXPECT_TRUE(dialog.chkAdvance.Checked());
  EXPECT_FALSE(dialog.chkProduction.Checked());
}

TEST_F(ACostDialog, ShowsTheCalculatedFiguresAtOnce) {
  dialog.Open();

  EXPECT_EQ(dialog.txtAdvanceShiftCalc.Text(), "300");
  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "1200");
}

TEST_F(ACostDialog, ComputesTheFiguresFromTheShownDecimals) {
  program.project.WorkParms.Cost.RowSpacing = 1.2F;
  program.project.WorkParms.Cost.AdvanceRate = 12;

  dialog.Open();

  EXPECT_EQ(dialog.txtAdvanceShiftCalc.Text(), "1000");
  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "12000");
}

TEST_F(ACostDialog, WithoutARowSpacingOpensWithoutAnAdvance) {
  program.project.WorkParms.Cost.RowSpacing = 0;

  dialog.Open();

  EXPECT_EQ(dialog.txtAdvanceShiftCalc.Text(), "");
  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "0");
}

TEST_F(ACostDialog, RecordsInTheHistoryAndTheProgramThatItIsOpen) {
  program.platform.windows.SetWaitCursor(true);

  dialog.Open();

  EXPECT_TRUE(program.windows.DialogOpen);
  EXPECT_EQ(program.windows.ReportCaller, InputDialog::Cost);
  EXPECT_EQ(program.session.history.Text, "1. Editing Project Parameters\r\n");
  EXPECT_EQ(program.windows.titles.RangeErrorTitle, "Project Parameters: Range Error");
  EXPECT_EQ(platform.windows.centered, 1);
  EXPECT_FALSE(platform.windows.waitCursor);
  EXPECT_FALSE(dialog.HoldEvents);
}

struct CaptionCase {
  std::string_view name;
  std::string_view english;
  std::string_view metric;
};

constexpr std::array<CaptionCase, 30> Captions{{
    {"fraConsumables", "Consumables", "Consumables"},
    {"lblBoltCost", "Bolt cost ($/bolt)", "Bolt cost ($/bolt)"},
    {"lblPlateCost", "Plate cost ($/plate)", "Plate cost ($/plate)"},
    {"lblResinCost", "Resin cost ($/bolt)", "Resin cost ($/bolt)"},
    {"lblBitCost", "Bit cost ($/shift)", "Bit cost ($/shift)"},
    {"lblHeaderCost", "Header cost ($/bolt)", "Header cost ($/bolt)"},
    {"lblStrapCost", "Strap/mesh cost ($/row)", "Strap/mesh cost ($/row)"},
    {"fraOperatingLabor", "Operating Labor", "Operating Labor"},
    {"lblnOperShift", "Number of operators/shift", "Number of operators/shift"},
    {"lblTotalLabor", "Total labor cost ($/hr)", "Total labor cost ($/hr)"},
    {"lblHoursShift", "Hours/shift", "Hours/shift"},
    {"fraMaintenance", "Maintenance", "Maintenance"},
    {"lblMaintainHrs", "Preventative maintenance (labor hrs/day)", "Preventative maintenance (labor hrs/day)"},
    {"lblMaintainCost", "Maintenance supply cost ($/yr)", "Maintenance supply cost ($/yr)"},
    {"fraTransportation", "Transportation", "Transportation"},
    {"lblTranspCost", "Transportation of supplies ($/shift)", "Transportation of supplies ($/shift)"},
    {"fraMachineOwnership", "Machine Ownership", "Machine Ownership"},
    {"lblCapitalCost", "Capital cost for machine ($)", "Capital cost for machine ($)"},
    {"lblYearsDepr", "Years to depreciate", "Years to depreciate"},
    {"fraProduction", "Production", "Production"},
    {"lblnboltsShift", "Number of bolts installed per shift", "Number of bolts installed per shift"},
    {"lblnBoltsRow", "Number of bolts per row", "Number of bolts per row"},
    {"lblRowSpacing", "Spacing between rows (ft)", "Spacing between rows (m)"},
    {"lblAdvanceShiftCalc", "Calculated advance per shift (ft)", "Calculated advance per shift (m)"},
    {"lblAdvanceShift", "Input: Advance per shift (ft)", "Input: Advance per shift (m)"},
    {"lblAdvanceRate", "Clean production advance rate (tons/ft)", "Clean production advance rate (MN/m)"},
    {"lblCleanProductionCalc", "Calculated clean production per shift (tons)",
     "Calculated clean production per shift (tn)"},
    {"lblCleanProduction", "Input: Clean production per shift (tons)", "Input: Clean production per shift (tn)"},
    {"lblShiftsWeek", "Production shifts/week", "Production shifts/week"},
    {"lblWeeksYear", "Production weeks/year", "Production weeks/year"},
}};

TEST_F(ACostDialog, LabelsItsFieldsInEnglishUnits) {
  dialog.Open();

  for (const CaptionCase& label : Captions) EXPECT_EQ(Caption(label.name), label.english);
}

TEST_F(ACostDialog, LabelsItsFieldsInMetricUnits) {
  program.project.WorkParms.Units = Metric;

  dialog.Open();

  for (const CaptionCase& label : Captions) EXPECT_EQ(Caption(label.name), label.metric);
}

TEST_F(ACostDialog, HasItsCaptions) {
  EXPECT_EQ(dialog.Name(), "frmTULKCost");
  EXPECT_EQ(dialog.Caption(), "Cost Parameters - Untitled");
  EXPECT_EQ(dialog.chkAdvance.Caption(), "Use calculated value");
  EXPECT_EQ(dialog.chkProduction.Caption(), "Use calculated value");
  EXPECT_EQ(dialog.Command2.Caption(), "OK");
  EXPECT_EQ(dialog.Command1.Caption(), "Cancel");
  EXPECT_EQ(dialog.cmdresults.Caption(), "Results");
  EXPECT_EQ(dialog.Command5.Caption(), "&Copy Clip");
  EXPECT_EQ(dialog.Command3.Caption(), "Help");
}

// ---- typing ---------------------------------------------------------------------------------------------------------

TEST_F(ACostDialog, AcceptsOnlyTheKeysOfNumbers) {
  dialog.Open();

  for (const FieldCase& field : CostFieldCases) {
    TextBox& box = Box(field.name);
    box.SetText("");
    EXPECT_EQ(box.KeyPress('5'), '5') << field.name;
    EXPECT_EQ(box.KeyPress('-'), 0) << field.name;
    EXPECT_EQ(box.KeyPress('x'), 0) << field.name;
    box.SetText("4");
    EXPECT_EQ(box.KeyPress('.'), '.') << field.name;
    EXPECT_EQ(box.KeyPress('E'), 0) << field.name;
  }
}

TEST_F(ACostDialog, SelectsTheWholeNumberThatGetsTheFocus) {
  for (const FieldCase& field : CostFieldCases) field.field.In(program.project.WorkParms) = field.value;
  dialog.Open();

  for (const FieldCase& field : CostFieldCases) {
    TextBox& box = Box(field.name);
    dialog.RequestFocus(box);
    SelectAllText(dialog);
    EXPECT_EQ(box.SelectionStart(), 0U) << field.name;
    EXPECT_EQ(box.SelectionLength(), field.text.size()) << field.name;
  }
}

TEST_F(ACostDialog, FollowsTheBoltsOfAShift) {
  dialog.Open();

  dialog.txtnboltsShift.SetText("240");

  EXPECT_EQ(dialog.txtAdvanceShiftCalc.Text(), "240");
  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "960");
}

TEST_F(ACostDialog, FollowsTheBoltsOfARow) {
  dialog.Open();

  dialog.txtnBoltsRow.SetText("5");

  EXPECT_EQ(dialog.txtAdvanceShiftCalc.Text(), "375");
  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "1500");
}

TEST_F(ACostDialog, FollowsTheRowSpacing) {
  dialog.Open();

  dialog.txtRowSpacing.SetText("4.5");

  EXPECT_EQ(dialog.txtAdvanceShiftCalc.Text(), "266.666666666667");
  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "1066.66666666667");
}

TEST_F(ACostDialog, KeepsTheLastAdvanceWhileTheRowSpacingIsNotAboveZero) {
  dialog.Open();

  for (const auto* spacing : {"0", "", "-4"}) {
    dialog.txtRowSpacing.SetText(spacing);
    dialog.txtnboltsShift.SetText("200");
    EXPECT_EQ(dialog.txtAdvanceShiftCalc.Text(), "300") << spacing;
    EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "1200") << spacing;
  }
}

TEST_F(ACostDialog, AcceptsARowSpacingOfZero) {
  dialog.Open();
  dialog.txtRowSpacing.SetText("0");

  dialog.Command2.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.project.WorkParms.Cost.RowSpacing, 0.0F);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(ACostDialog, RefreshesOnlyTheCleanProductionWithTheAdvanceRate) {
  dialog.Open();
  std::vector<std::string> before;
  for (const Control* control : dialog.Controls()) {
    if (const auto* box = dynamic_cast<const TextBox*>(control)) before.push_back(box->Text());
  }

  dialog.txtAdvanceRate.SetText("5.5");

  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "1650");
  std::size_t at = 0;
  for (const Control* control : dialog.Controls()) {
    const auto* box = dynamic_cast<const TextBox*>(control);
    if (box == nullptr) continue;
    const std::string& text = before[at++];
    if (box == &dialog.txtCleanProductionCalc || box == &dialog.txtAdvanceRate) continue;
    EXPECT_EQ(box->Text(), text) << box->Name();
  }
}

TEST_F(ACostDialog, RefreshesTheCleanProductionWithTheTypedAdvance) {
  dialog.Open();
  dialog.txtCleanProductionCalc.SetText("");

  dialog.txtAdvanceShift.SetText("260");

  EXPECT_EQ(dialog.txtAdvanceShiftCalc.Text(), "300");
  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "1200");
}

TEST_F(ACostDialog, KeepsTheFiguresWhileItsEventsAreSuspended) {
  dialog.Open();
  dialog.HoldEvents = true;

  dialog.txtnboltsShift.SetText("240");
  dialog.txtAdvanceRate.SetText("5");

  EXPECT_EQ(dialog.txtAdvanceShiftCalc.Text(), "300");
  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "1200");
}

TEST_F(ACostDialog, KeepsItsInputFieldsEnabledWhateverIsCalculated) {
  dialog.Open();

  for (const Integer value : {Integer{0}, Integer{1}}) {
    dialog.chkAdvance.SetValue(value);
    dialog.chkProduction.SetValue(value);
    EXPECT_TRUE(dialog.txtAdvanceShift.Enabled());
    EXPECT_TRUE(dialog.txtCleanProduction.Enabled());
    EXPECT_EQ(dialog.txtAdvanceShift.Text(), "250");
    EXPECT_EQ(dialog.txtCleanProduction.Text(), "900");
  }
}

TEST_F(ACostDialog, ShowsADashForAFigureThatIsTooLarge) {
  dialog.Open();
  dialog.txtnBoltsRow.SetText("1E200");

  dialog.txtAdvanceRate.SetText("1E200");
  EXPECT_EQ(dialog.txtAdvanceShiftCalc.Text(), "7.5E+201");
  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "--");

  dialog.txtnboltsShift.SetText("1E200");
  EXPECT_EQ(dialog.txtAdvanceShiftCalc.Text(), "--");
  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "--");

  dialog.txtAdvanceRate.SetText("4");
  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "--") << "there is no advance to compute it from";

  dialog.txtnboltsShift.SetText("30");
  EXPECT_EQ(dialog.txtAdvanceShiftCalc.Text(), "7.5E+200");
  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "3E+201");
}

TEST_F(ACostDialog, ShowsADashForARowSpacingThatIsTooLarge) {
  dialog.Open();

  dialog.txtRowSpacing.SetText("1E400");

  EXPECT_EQ(dialog.txtAdvanceShiftCalc.Text(), "--");
  EXPECT_EQ(dialog.txtCleanProductionCalc.Text(), "--");
}

}  // namespace
}  // namespace orby::test
