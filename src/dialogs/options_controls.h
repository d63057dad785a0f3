// The controls of the options dialog.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "controls/controls.h"
#include "controls/grid.h"
#include "core/program_form.h"
#include "design/units.h"

namespace orby {

// The bolt catalogs that the dialog edits, as indices of its arrays.
namespace bolt_catalog {
inline constexpr std::size_t English = 0;
inline constexpr std::size_t Metric = 1;
inline constexpr std::size_t Australian = 2;
inline constexpr std::size_t Count = 3;
}  // namespace bolt_catalog

// The lists of a bolt catalog, in the order of the options that select one.
namespace bolt_list {
inline constexpr std::size_t Grade = 0;
inline constexpr std::size_t UTS = 1;
inline constexpr std::size_t Diameter = 2;
inline constexpr std::size_t Count = 3;
}  // namespace bolt_list

// The lists of one bolt catalog, and the commands on the selected list. The controls are made from their names.
struct BoltListControls {
  Form& Dialog;
  std::string_view FrameName;
  std::string_view FrameCaption;
  std::string_view OptionName;
  std::array<OptionCaption, bolt_list::Count> Options;
  std::array<std::string_view, bolt_list::Count> ListNames;  // empty if the catalog has no such list
  std::string_view ItemName;
  std::string_view AddName;
  std::string_view DeleteName;
  std::string_view ResetName;
  std::string_view ResetCaption;

  Frame fraBolts{Dialog, FrameName, FrameCaption};
  OptionArray optBolt{Dialog, OptionName, {Options[0], Options[1], Options[2]}};
  // Null if the catalog has no such list.
  std::array<std::unique_ptr<List>, bolt_list::Count> lists{MakeList(0), MakeList(1), MakeList(2)};
  TextBox txtItem{Dialog, ItemName, TextKind::Number};
  Button cmdAddBolt{Dialog, AddName, "Add"};
  Button cmdDeleteBolt{Dialog, DeleteName, "Delete"};
  Button cmdSetDefaultBolt{Dialog, ResetName, ResetCaption};

  std::unique_ptr<List> MakeList(std::size_t list) const {
    return ListNames[list].empty() ? nullptr : std::make_unique<List>(Dialog, ListNames[list], ListKind::Choices);
  }
};

// Controls that exist once per unit system are arrays: English, Metric.
class OptionsControls : public ProgramForm {
 public:
  using Names = std::array<std::string_view, 2>;
  using Numbers = std::array<LabelledBox, 2>;
  using Buttons = std::array<Button, 2>;

  explicit OptionsControls(Program& program) : ProgramForm(program, "frmTULKOpts", "Options") {}

  TabSet SSTab1{*this,
                "SSTab1",
                {"Edit / Print Options", "Default Parameters (English)", "Default Parameters (Metric)",
                 "Default Parameters (Standing Supports)"}};

  // Edit / Print Options
  CheckBox Check1{*this, "Check1", "Load the input form on file open / file new"};
  CheckBox Check2{*this, "Check2", "View project file in child window"};
  CheckBox Check3{*this, "Check3", "Print module version information"};
  CheckBox chkOffice{*this, "chkOffice", "Do not ask if Microsoft Office is installed"};
  Frame fraStrength{*this, "fraStrength", "Default Setting for Steel Strength"};
  OptionArray optStrength{*this, "optStrength", {{"Yield Strength (US)"}, {"Ultimate Strength (AUS)"}}};
  Button cmdFileAssoc{*this, "cmdFileAssoc", "Create File Association"};

  // Default Parameters (English) and (Metric)
  Numbers txtCMRR = Fields({"txtCMRR_0", "txtCMRR_1"}, "Coal Mine Roof Rating");
  Numbers txtDepthofCover = Fields({"txtDepthofCover_0", "txtDepthofCover_1"}, "Depth of Cover", UnitSuffix::Length);
  Numbers txtUnitWeight = Fields({"txtUnitWeight_0", "txtUnitWeight_1"}, "Unit Weight", UnitSuffix::UnitWeight);
  Numbers txtActualSpan =
      Fields({"txtActualSpan_0", "txtActualSpan_1"}, "Actual Intersection Sum of Diagonals", UnitSuffix::Length);
  Numbers txtEntryWidth = Fields({"txtEntryWidth_0", "txtEntryWidth_1"}, "Entry Width", UnitSuffix::Length);
  Numbers txtStabilityFactor = Fields({"txtStabilityFactor_0", "txtStabilityFactor_1"}, "Stability Factor");
  Numbers txtActualBoltLength =
      Fields({"txtActualBoltLength_0", "txtActualBoltLength_1"}, "Actual Bolt Length", UnitSuffix::Length);
  Numbers txtBoltDiameter = Fields({"txtBoltDiameter_0", "txtBoltDiameter_1"}, "Bolt Diameter", UnitSuffix::Diameter);
  Numbers txtBoltGrade = Fields({"txtBoltGrade_0", "txtBoltGrade_1"}, "Bolt Grade", UnitSuffix::Grade);
  Numbers txtBoltUTS = Fields({"txtBoltUTS_0", "txtBoltUTS_1"}, "Bolt UTS", UnitSuffix::Grade);
  Numbers txtBoltsperRow = Fields({"txtBoltsperRow_0", "txtBoltsperRow_1"}, "Number of Bolts per Row");
  Numbers txtRowSpacing = Fields({"txtRowSpacing_0", "txtRowSpacing_1"}, "Row Spacing", UnitSuffix::Length);
  std::array<BoltListControls, bolt_catalog::Count> bolts{
      BoltListControls{*this,
                       "fraBolts_0",
                       "Bolt grade and UTS (ksi) and diameter (in) specifications",
                       "optBoltEng",
                       {{{GradeOption}, {UTSOption}, {DiameterOption}}},
                       {"lstBoltGrade_0", "lstBoltUTS_0", "lstBoltDiam_0"},
                       "txtItem_0",
                       "cmdAddBolt_0",
                       "cmdDeleteBolt_0",
                       "cmdSetDefaultBolt_0",
                       ResetUS},
      BoltListControls{*this,
                       "fraBolts_1",
                       "Bolt grade and UTS (MPa) and diameter (mm) specifications",
                       "optBoltMet",
                       {{{GradeOption}, {UTSOption}, {DiameterOption}}},
                       {"lstBoltGrade_1", "lstBoltUTS_1", "lstBoltDiam_1"},
                       "txtItem_1",
                       "cmdAddBolt_1",
                       "cmdDeleteBolt_1",
                       "cmdSetDefaultBolt_1",
                       ResetUS},
      BoltListControls{*this,
                       "fraBolts_2",
                       "Bolt UTS and Diameter (AUS)",
                       "optBoltMetAUS",
                       {{{""}, {UTSOption}, {"Bolt Dia"}}},
                       {"", "lstBoltUTS_2", "lstBoltDiam_2"},
                       "txtItem_2",
                       "cmdAddBolt_2",
                       "cmdDeleteBolt_2",
                       "cmdSetDefaultBolt_2",
                       "Reset Default (AUS)"},
  };
  std::array<Frame, 2> fraCables{
      Frame{*this, "fraCables_0", "Cable bolt capacity (tons) and diameter (in) specifications"},
      Frame{*this, "fraCables_1", "Cable bolt capacity (kN) and diameter (mm) specifications"}};
  Grid VSFlexGridEng{*this, "VSFlexGridEng"};
  TextBox txtCableEng{*this, "txtCableEng", TextKind::Number};
  Grid VSFlexGridMet{*this, "VSFlexGridMet"};
  TextBox txtCableMet{*this, "txtCableMet", TextKind::Number};
  Buttons cmdAddCable = Commands({"cmdAddCable_0", "cmdAddCable_1"}, AddRow);
  Buttons cmdDeleteCable = Commands({"cmdDeleteCable_0", "cmdDeleteCable_1"}, DeleteRow);
  Buttons cmdSetDefaultCable = Commands({"cmdSetDefaultCable_0", "cmdSetDefaultCable_1"}, ResetDefault);

  // Default Parameters (Standing Supports)
  Frame fraStand{*this, "fraStand", "Standing Support Specifications"};
  Grid VSFlexGridStand{*this, "VSFlexGridStand"};
  TextBox txtStand{*this, "txtStand"};
  Button cmdAddStandSupport{*this, "cmdAddStandSupport", AddRow};
  Button cmdDeleteRow{*this, "cmdDeleteRow", DeleteRow};
  Button cmdSetDefaultStandSupport{*this, "cmdSetDefaultStandSupport", ResetDefault};

  // commands
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel", [this] { Close(); }};
  Button cmdHelp{*this, "cmdHelp", "Help"};

 private:
  static constexpr std::string_view GradeOption = "Bolt Grade";
  static constexpr std::string_view UTSOption = "Bolt UTS";
  static constexpr std::string_view DiameterOption = "Bolt Diameter";
  static constexpr std::string_view ResetUS = "Reset Default (US)";
  static constexpr std::string_view AddRow = "Add Row";
  static constexpr std::string_view DeleteRow = "Delete Row";
  static constexpr std::string_view ResetDefault = "Reset Default";

  static std::string CaptionWithUnit(std::string_view caption, UnitSuffix suffix, UnitSystem units) {
    std::string text(caption);
    if (suffix != UnitSuffix::None) text += UnitLabel(suffix, units);
    return text;
  }
  // The captions end in the units of the page, whatever the units of the project.
  Numbers Fields(const Names& names, std::string_view caption, UnitSuffix suffix = UnitSuffix::None) {
    const auto field = [&](std::string_view name, UnitSystem units) {
      return LabelledBox{*this, name, TextKind::Number, CaptionWithUnit(caption, suffix, units)};
    };
    return {field(names[0], UnitSystem::English), field(names[1], UnitSystem::Metric)};
  }
  Buttons Commands(const Names& names, std::string_view caption) {
    return {Button{*this, names[0], caption}, Button{*this, names[1], caption}};
  }
};

}  // namespace orby
