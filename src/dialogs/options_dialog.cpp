#include "dialogs/options_dialog.h"

#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "base/arithmetic.h"
#include "base/number_limits.h"
#include "base/number_text.h"
#include "config/catalog_sections.h"
#include "config/ini_file.h"
#include "config/settings_sections.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/fault_texts.h"
#include "dialogs/file_association.h"

namespace orby {
namespace {

using Default = std::variant<Integer DesignDefaults::*, Single DesignDefaults::*>;

struct DefaultField {
  OptionsControls::Numbers OptionsControls::*Boxes;
  std::array<Default, 2> Members;  // English, Metric; twice the same one if both pages edit it
  std::string_view Fault = {};     // empty if every storable value is valid
  double Highest = std::numeric_limits<double>::infinity();

  NumberLimits Limits() const { return Fault.empty() ? NumberLimits{} : Above(0).And({.most = Highest}); }
};

constexpr double HighestRoofRating = 100;
constexpr double MostBolts = std::numeric_limits<Integer>::max();

using C = OptionsControls;
using D = DesignDefaults;

// In the order of the checks.
constexpr std::array DefaultFields{
    DefaultField{
        &C::txtStabilityFactor, {&D::DefaultStabilityFactor, &D::DefaultStabilityFactor}, "Invalid stability factor"},
    DefaultField{&C::txtActualBoltLength,
                 {&D::DefaultENGActualBoltLength, &D::DefaultMETActualBoltLength},
                 "Invalid actual bolt length"},
    DefaultField{
        &C::txtBoltDiameter, {&D::DefaultENGboltDiameter, &D::DefaultMETboltDiameter}, "Invalid bolt diameter"},
    DefaultField{&C::txtBoltGrade, {&D::DefaultENGBoltGrade, &D::DefaultMETBoltGrade}, "Invalid bolt grade"},
    DefaultField{&C::txtBoltsperRow,
                 {&D::DefaultNumberBoltsPerRow, &D::DefaultNumberBoltsPerRow},
                 "Invalid number of roof bolts per row",
                 MostBolts},
    DefaultField{&C::txtRowSpacing, {&D::DefaultENGrowSpacing, &D::DefaultMETrowSpacing}, fault_text::RowSpacing},
    DefaultField{&C::txtCMRR, {&D::DefaultCMRR, &D::DefaultCMRR}, "Invalid CMRR", HighestRoofRating},
    DefaultField{
        &C::txtDepthofCover, {&D::DefaultENGDepthofCover, &D::DefaultMETDepthofCover}, "Invalid depth of cover"},
    DefaultField{&C::txtActualSpan,
                 {&D::DefaultENGActualInterSpan, &D::DefaultMETActualInterSpan},
                 "Invalid actual intersection span"},
    DefaultField{&C::txtEntryWidth, {&D::DefaultENGEntryWidth, &D::DefaultMETEntryWidth}, "Invalid entry width"},
    DefaultField{&C::txtUnitWeight, {&D::DefaultENGUnitWeight, &D::DefaultMETUnitWeight}},
    DefaultField{&C::txtBoltUTS, {&D::DefaultENGBoltUTS, &D::DefaultMETBoltUTS}},
};

struct Warning {
  OptionsControls::Numbers OptionsControls::*Boxes;
  double Least;
  std::string_view Question;
};

constexpr std::array Warnings{
    Warning{&C::txtCMRR, 35,
            "WARNING:  CMRR outside range of case history data base.  ORBY may not be valid.  Accept Value ?"},
    Warning{&C::txtStabilityFactor, 1, "WARNING:  Stability Factor is less than 1.0 ORBY is probably not valid."},
};

struct Preference {
  CheckBox OptionsControls::*Box;
  Integer OptionSettings::*Member;
};

constexpr std::array Preferences{
    Preference{&C::Check1, &OptionSettings::ShowInputScreenOnLoad},
    Preference{&C::Check2, &OptionSettings::ViewChildWindow},
    Preference{&C::Check3, &OptionSettings::PrintModuleHeader},
    Preference{&C::chkOffice, &OptionSettings::AskOfficeInstall},
};

constexpr std::array<std::size_t, 2> Pages{PlaceOf(English), PlaceOf(Metric)};
// Where both pages edit one value, the English page is stored last.
constexpr std::array<std::size_t, 2> PagesAsStored{PlaceOf(Metric), PlaceOf(English)};

// For the cable grids, so that diameters and capacities get equal widths.
constexpr int CapacityColumnWidth = 2000;

void Take(double value, Single& target) { target = ToSingle(value); }
void Take(double value, Integer& target) { target = ToInteger(std::trunc(value)); }

std::string_view WithoutUnit(std::string_view caption) { return caption.substr(0, caption.find(" (")); }

}  // namespace

OptionsDialog::OptionsDialog(Program& program)
    : OptionsControls(program),
      cables_{OverlayEditing(VSFlexGridEng, txtCableEng, {TextKind::Number, TextKind::Number}),
              OverlayEditing(VSFlexGridMet, txtCableMet, {TextKind::Number, TextKind::Number})},
      stands_(VSFlexGridStand, txtStand, {TextKind::Free, TextKind::Number}) {
  TieCommands();
  for (std::size_t catalog = 0; catalog < bolts.size(); ++catalog) TieBolts(catalog);
  for (const std::size_t units : Pages) TieCables(units);
  for (Grid* grid : {&VSFlexGridEng, &VSFlexGridMet}) grid->SetColumnWidths({0, 0, CapacityColumnWidth});
  TieStands();
}

void OptionsDialog::TieCommands() {
  for (const DefaultField& row : DefaultFields) {
    for (LabelledBox& box : this->*row.Boxes) {
      box.Range = [&row] { return FieldRange{row.Limits()}; };
    }
  }
  SSTab1.Click = [this] { program_.windows.OptionsTab = static_cast<Integer>(SSTab1.Tab()); };
  cmdFileAssoc.Click = [this] { AssociateFileExtension(program_); };
  cmdOK.Click = [this] { Accept(); };
  cmdHelp.Click = [this] { ContextHelpHint(program_); };
}

void OptionsDialog::OnOpen() {
  CommitOnClose = false;
  FillFields();
  for (std::size_t catalog = 0; catalog < bolts.size(); ++catalog) {
    FillBolts(catalog);
    ChooseFirstBolts(catalog);
  }
  for (const std::size_t units : Pages) FillCables(units);
  FillStands();
  SSTab1.SetTab(program_.windows.OptionsTab);
  PrepareForm(program_, MessageModule::Options);
  AddHistoryLine(program_, "Editing ORBY Options");
  program_.platform.windows.CenterForm(*this);
}

void OptionsDialog::FillFields() {
  for (const Preference& row : Preferences) (this->*row.Box).SetValue(program_.session.options.*row.Member);
  SetArrayIndex(program_, optStrength, NumberOf(program_.session.options.BoltGradeAsUltimateDefault));
  for (const DefaultField& row : DefaultFields) {
    for (const std::size_t page : Pages) {
      const auto fill = [&](auto member) {
        (this->*row.Boxes)[page].SetText(NumberText(program_.session.defaults.*member));
      };
      std::visit(fill, row.Members[page]);
    }
  }
}

// ---- checks --------------------------------------------------------------------------------------------------------

void OptionsDialog::GoTo(std::size_t page, TextBox& field) {
  SSTab1.SetTab(FirstParameterTab + static_cast<int>(page));
  RequestFocus(field);
}

void OptionsDialog::ReportFault(const std::string& fault) {
  ShowMessage(program_, fault, BoxIcon::Critical, program_.windows.titles.RangeErrorTitle);
}

bool OptionsDialog::CheckFaults() {
  for (const std::size_t page : Pages) {
    for (const DefaultField& row : DefaultFields) {
      LabelledBox& field = (this->*row.Boxes)[page];
      const auto value = FittingNumber(field.Text());
      if (value && row.Limits().Include(*value)) continue;
      const bool isChecked = !row.Fault.empty();
      ReportFault(isChecked ? std::string(row.Fault)
                            : fault_text::TooLarge(WithoutUnit(field.LabelCaption()), field.Text()));
      GoTo(page, field);
      return false;
    }
  }
  return true;
}

bool OptionsDialog::CheckWarnings() {
  for (const std::size_t page : Pages) {
    for (const Warning& row : Warnings) {
      TextBox& field = (this->*row.Boxes)[page];
      const double value = field.Value();
      if (value <= 0 || value >= row.Least) continue;
      const BoxResult answer = ShowMessage(program_, std::string(row.Question), BoxButtons::YesNo,
                                           program_.windows.titles.RangeWarningTitle);
      if (answer != BoxResult::No) continue;
      GoTo(page, field);
      return false;
    }
  }
  return true;
}

bool OptionsDialog::CheckOptions() { return CheckFaults() && CheckCells() && CheckWarnings(); }

// ---- leaving -------------------------------------------------------------------------------------------------------

void OptionsDialog::Accept() {
  stands_.Flush();
  for (OverlayEditing& grid : cables_) grid.Flush();
  if (!CheckOptions()) return;
  CommitOnClose = true;
  Close();
}

DesignDefaults OptionsDialog::EditedDefaults() const {
  DesignDefaults defaults = program_.session.defaults;
  for (const std::size_t page : PagesAsStored) {
    for (const DefaultField& row : DefaultFields) {
      const double value = (this->*row.Boxes)[page].Value();
      std::visit([&](auto member) { Take(value, defaults.*member); }, row.Members[page]);
    }
  }
  return defaults;
}

// Stores everything or, on an error, nothing.
void OptionsDialog::Store() {
  const DesignDefaults defaults = EditedDefaults();
  Catalogs catalogs = program_.session.catalogs;
  StoreBolts(catalogs);
  StoreCables(catalogs);
  StoreStands(catalogs);
  program_.session.defaults = defaults;
  program_.session.catalogs = std::move(catalogs);
  for (const Preference& row : Preferences) program_.session.options.*row.Member = (this->*row.Box).Value();
  program_.session.options.BoltGradeAsUltimateDefault = Chosen<StrengthBasis>(optStrength);
}

void OptionsDialog::OnClose() {
  if (!CommitOnClose) return AddHistoryLine(program_, "Options Not Modified");
  Store();
  WriteDefaults(program_, StoredSettings::Options);
  EditIniFile(program_, program_.session.IniFilePath, [this](IniText& ini) {
    for (const auto section : {StoredCatalogs::Defaults, StoredCatalogs::BoltParams, StoredCatalogs::StandSupports}) {
      WriteCatalogSection(program_.session, ini, section);
    }
  });
}

}  // namespace orby
