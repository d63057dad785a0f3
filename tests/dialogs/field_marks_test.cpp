// The marks of number fields and their hints, before any check runs.
#include <memory>

#include "core/field_hint.h"
#include "dialogs/cost_dialog.h"
#include "dialogs/font_dialog.h"
#include "dialogs/options_dialog.h"
#include "dialogs/settings_dialog.h"
#include "dialogs/unit_calculator_window.h"
#include "parameters_faults.h"
#include "parameters_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Marked(const Form& form, FieldMark mark) {
  std::vector<std::string> names;
  for (const Control* control : form.Controls()) {
    const auto* box = dynamic_cast<const TextBox*>(control);
    if (box != nullptr && box->Mark() == mark) names.emplace_back(box->Name());
  }
  return names;
}
std::vector<std::string> OutOfRange(const Form& form) { return Marked(form, FieldMark::OutOfRange); }
std::vector<std::string> PartlyRead(const Form& form) { return Marked(form, FieldMark::PartlyRead); }

struct FieldMarks : AParametersDialog {
  std::unique_ptr<ParametersDialog> ValidDesign(UnitSystem units) {
    StartDesign(units);
    auto opened = std::make_unique<ParametersDialog>(program);
    opened->Open();
    Edit(*opened, AllSystems);
    platform.boxes.shown.clear();
    return opened;
  }
  std::vector<std::string> Hint(std::string_view name) const { return FieldHint(program, *dialog.Find(name)); }
};

TEST_F(FieldMarks, LeaveAValidDesignAlone) {
  for (const UnitSystem units : {English, Metric}) {
    const auto opened = ValidDesign(units);

    EXPECT_THAT(OutOfRange(*opened), IsEmpty());
    EXPECT_THAT(PartlyRead(*opened), IsEmpty());
  }
}

// A missing choice from a list is a fault without a number.
bool IsOfANumber(const FieldFault& fault) {
  return fault.message.find("elected") == std::string::npos && fault.message.find("SELECTED") == std::string::npos &&
         fault.message.find("specification") == std::string::npos;
}

TEST_F(FieldMarks, AppearExactlyWhereTheChecksWouldRefuseANumber) {
  int marked = 0;
  for (const FaultSection& section : AllFaults()) {
    for (const FieldFault& fault : section.faults) {
      for (const UnitSystem units : fault.units == Both ? std::vector{English, Metric} : std::vector{fault.units}) {
        const auto opened = ValidDesign(units);
        Edit(*opened, fault.edits);

        EXPECT_EQ(OutOfRange(*opened).size(), IsOfANumber(fault) ? 1U : 0U) << fault.edits;

        if (IsOfANumber(fault)) ++marked;
        for (const std::string& off : section.off) {
          const auto unchecked = ValidDesign(units);
          Edit(*unchecked, fault.edits + "|" + off);
          EXPECT_THAT(OutOfRange(*unchecked), IsEmpty()) << fault.edits << ' ' << off;
        }
        EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
      }
    }
  }
  EXPECT_GT(marked, 100);
}

TEST_F(FieldMarks, ShowTextsThatAreNotWhollyNumbers) {
  dialog.Open();
  Do("txtDepthofCover=400 ft|txtRowSpacingPrimary=1,5|txtRockFallAngle=&H1E|txtEntryWidth= 20 ");

  EXPECT_THAT(PartlyRead(dialog), ElementsAre("txtDepthofCover", "txtRowSpacingPrimary"));
}

TEST_F(FieldMarks, FollowTheFieldsThatAnotherRangeDependsOn) {
  dialog.Open();
  Do("txtEntryWidth=45");
  EXPECT_THAT(OutOfRange(dialog), ElementsAre("txtActualSpanDiagonals"));

  Do("txtEntryWidth=20");
  EXPECT_THAT(OutOfRange(dialog), IsEmpty());

  Do("txtEntryWidth=1E40");
  EXPECT_THAT(OutOfRange(dialog), ElementsAre("txtActualSpanDiagonals", "txtEntryWidth"));
}

TEST_F(FieldMarks, ShowNumbersThatNoProjectHolds) {
  dialog.Open();
  Do("txtDepthofCover=1E40|txtRockLoadHeight=1E400");

  EXPECT_THAT(OutOfRange(dialog), ElementsAre("txtDepthofCover", "txtRockLoadHeight"));
}

TEST_F(FieldMarks, ChangeNeitherOutputsNorWhatIsCommitted) {
  dialog.Open();
  Do("txtDepthofCover=800 ft");
  const std::string suggested = Text("txtSugPSUP");

  EXPECT_EQ(suggested, "10.7");
  EXPECT_TRUE(dialog.SaveWorkParms());
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 800);
  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
}

// ---- other dialogs --------------------------------------------------------------------------------------------------

TEST_F(FieldMarks, OfCostsShowWhatIsBelowZeroOrBlank) {
  CostDialog cost(program);
  cost.Open();
  EXPECT_THAT(OutOfRange(cost), IsEmpty());
  Edit(cost, "txtBoltCost=-1|txtPlateCost=|txtResinCost=1.5.2|txtBitCost=0");

  EXPECT_THAT(OutOfRange(cost), ElementsAre("txtBoltCost"));
  EXPECT_THAT(PartlyRead(cost), ElementsAre("txtPlateCost", "txtResinCost"));
}

TEST_F(FieldMarks, OfOptionsFollowTheirChecks) {
  OptionsDialog options(program);
  options.Open();
  EXPECT_THAT(OutOfRange(options), IsEmpty());
  EXPECT_THAT(PartlyRead(options), IsEmpty());
  Edit(options, "txtCMRR_0=101|txtCMRR_1=100|txtBoltDiameter_1=0|txtUnitWeight_0=-5");

  EXPECT_THAT(OutOfRange(options), ElementsAre("txtCMRR_0", "txtBoltDiameter_1"));
}

TEST_F(FieldMarks, OfSettingsAndFontsFollowTheirChecks) {
  program.session.settings.MaxDisplaySize = 8192;
  SettingsDialog settings(program, {});
  settings.Open();
  EXPECT_THAT(OutOfRange(settings), IsEmpty());
  Edit(settings, "Text3=4095");
  EXPECT_THAT(OutOfRange(settings), ElementsAre("Text3"));

  FontDialog font(program, {"Arial", 12, false, false}, {"Arial"});
  font.Open();
  EXPECT_THAT(OutOfRange(font), IsEmpty());
  Edit(font, "txtSize=25");
  EXPECT_THAT(OutOfRange(font), ElementsAre("txtSize"));
}

TEST_F(FieldMarks, OfTheUnitCalculatorWaitForAText) {
  UnitCalculator calculator(program);
  calculator.Open();
  EXPECT_THAT(PartlyRead(calculator), IsEmpty());

  Edit(calculator, "txtLength=1,5|txtLoad=3");

  EXPECT_THAT(PartlyRead(calculator), ElementsAre("txtLength"));
}

// ---- hints ----------------------------------------------------------------------------------------------------------

TEST_F(FieldMarks, AreExplainedByTheHint) {
  dialog.Open();

  EXPECT_THAT(Hint("txtDepthofCover"), ElementsAre("Depth of Cover (ft)", "Range: above 0 ft", "400 ft = 121.92 m"));
  EXPECT_THAT(Hint("txtUnitWeight"),
              ElementsAre("Unit Weight of Rock (pcf)", "Range: 100 to 200 pcf", "162 pcf = 25.446 kN/m3"));
  EXPECT_THAT(Hint("txtBoltDiameterPrimary"),
              ElementsAre("Roof Bolt Diameter (in)", "Range: at most 1 in", "0.75 in = 19.05 mm"));
  EXPECT_THAT(Hint("txtCMRR"), ElementsAre("CMRR", "Range: above 0, below 100"));

  Do("txtDepthofCover=1,5|txtUnitWeight=99|txtRockLoadHeight=|txtEntryWidth=1E40");
  EXPECT_THAT(Hint("txtDepthofCover"),
              ElementsAre("Depth of Cover (ft)", "Range: above 0 ft", "\"1,5\" is read as 1", "1 ft = 0.305 m"));
  EXPECT_THAT(Hint("txtUnitWeight"), testing::Contains("Out of range: 100 to 200 pcf"));
  EXPECT_THAT(Hint("txtRockLoadHeight"),
              ElementsAre("Rock Load Height (ft)", "Out of range: above 0 ft", "Blank is read as 0"));
  EXPECT_THAT(Hint("txtEntryWidth"), testing::Contains("\"1E40\" is too large"));
}

TEST_F(FieldMarks, AreExplainedByWhatTheHelpSaysAboutTheField) {
  platform.help.sentences = {{"frmPENVParm.txtCMRR", "The rating of the roof."},
                             {"frmPENVParm.cmbBoltGradePrimary", "The strength of the steel."}};
  dialog.Open();

  EXPECT_THAT(Hint("txtCMRR"), ElementsAre("CMRR", "The rating of the roof.", "Range: above 0, below 100"));
  EXPECT_THAT(Hint("cmbBoltGradePrimary"),
              ElementsAre("Roof Bolt Yield Grade (ksi)", "The strength of the steel.", "75 ksi = 517.107 MPa"));
}

TEST_F(FieldMarks, OfListsOfNumbersShowTextsThatAreNone) {
  dialog.Open();
  const auto mark = [&](std::string_view list, const char* text) {
    auto& combo = dynamic_cast<Combo&>(*dialog.Find(list));
    combo.SetText(text);
    return combo.Mark();
  };

  EXPECT_EQ(mark("cmbBoltDiameterPrimary", "0.75"), FieldMark::None);
  EXPECT_EQ(mark("cmbBoltDiameterPrimary", "0,75"), FieldMark::PartlyRead);
  EXPECT_THAT(Hint("cmbBoltDiameterPrimary"), testing::Contains("\"0,75\" is read as 0"));
  EXPECT_EQ(mark("cmbBoltGradePrimary", "1E40"), FieldMark::OutOfRange);
  EXPECT_EQ(mark("cmbCableDiamSecEntry", ""), FieldMark::None) << "nothing is chosen yet";
  EXPECT_EQ(mark("cmbSupportTypeSecEntry", "9,5 in wood"), FieldMark::None) << "its items are no numbers";
}

TEST_F(FieldMarks, OfTheTablesInTheOptionsNameTheColumn) {
  platform.help.sentences = {{"frmTULKOpts.txtCableEng", "A diameter or a capacity."}};
  OptionsDialog options(program);
  options.Open();
  const auto hint = [&] { return FieldHint(program, *options.Find("txtCableEng")); };

  EXPECT_THAT(hint(), ElementsAre(options.VSFlexGridEng.Cell(0, 1), "A diameter or a capacity."));
  options.VSFlexGridEng.SelectCell(1, 2);
  EXPECT_THAT(hint(), ElementsAre(options.VSFlexGridEng.Cell(0, 2), "A diameter or a capacity."));

  options.txtCableEng.SetText("26,4");
  EXPECT_EQ(options.txtCableEng.Mark(), FieldMark::PartlyRead);
}

TEST_F(FieldMarks, AreExplainedInMetricUnits) {
  StartDesign(Metric);
  dialog.Open();

  EXPECT_THAT(Hint("txtDepthofCover"), ElementsAre("Depth of Cover (m)", "Range: above 0 m", "150 m = 492.126 ft"));
  EXPECT_THAT(Hint("txtBoltLengthPrimary"), testing::Contains("Range: above 0, at most 3.3 m"));
  EXPECT_THAT(Hint("txtEntryWidth"), testing::Contains("Range: above 3.3 m"));
  EXPECT_THAT(Hint("txtTrussCapacitySecEntry"), testing::Contains("300 kN = 33.721 tons"));
}

TEST_F(FieldMarks, TextsThatAreNoNumbersHaveNoHint) {
  dialog.Open();

  EXPECT_THAT(Hint("txtSupportTypeSecEntry"), IsEmpty());
  EXPECT_THAT(Hint("txtSugPSUP"), IsEmpty());
}

}  // namespace
}  // namespace orby::test
