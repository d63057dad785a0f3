// The grids of cables and of standing supports in the options dialog.
#include <cmath>
#include <string>

#include "base/arithmetic.h"
#include "base/attempt.h"
#include "base/number_text.h"
#include "core/catalog_choice.h"
#include "core/dialog_helpers.h"
#include "design/catalogs.h"
#include "dialogs/fault_texts.h"
#include "dialogs/options_dialog.h"

namespace orby {
namespace {

// The columns of the grids after the row number.
enum CableColumn : int { CableDiameterColumn, CableCapacityColumn };
enum SupportColumn : int { SupportNameColumn, SupportCapacityColumn };

struct CableCatalog {
  OverlayEditing::Texts Headers;
  CatalogList Catalogs::*Diameters;
  CatalogList Catalogs::*Capacities;
  CatalogList Catalogs::*Strengths;
  void (*SetBuiltIn)(Catalogs& catalogs);

  std::array<CatalogList Catalogs::*, 3> Lists() const { return {Diameters, Capacities, Strengths}; }
};

// English, Metric.
const CableCatalog& CableCatalogOf(std::size_t units) {
  static const std::array<CableCatalog, 2> table{{
      {{"(in)", "(tons)"},
       &Catalogs::DefaultCableDiamArrayENG,
       &Catalogs::DefaultCableCapArrayENG,
       &Catalogs::DefaultCableUTSArrayENG,
       SetDefaultCablesENG},
      {{"(mm)", "(kN)"},
       &Catalogs::DefaultCableDiamArrayMET,
       &Catalogs::DefaultCableCapArrayMET,
       &Catalogs::DefaultCableUTSArrayMET,
       SetDefaultCablesMET},
  }};
  return table[units];
}

Single NumberAt(const OverlayEditing& grid, int entry, int column) {
  return ToSingle(TextValue(grid.Text(entry, column)));
}

Integer HighestIndexOf(const OverlayEditing& grid) { return ToInteger(grid.Entries() - 1); }

// Returns a capacity in tons and kN. The kN are whole, as in the built-in catalog.
std::array<Single, 2> BothCapacities(Single capacity, UnitSystem units) {
  if (units == Metric) return {ToSingle(capacity / KilonewtonsPerTon), capacity};
  return {capacity, ToSingle(std::floor(capacity * KilonewtonsPerTon))};
}

// Returns true if the number can be stored in both unit systems.
bool Fits(const std::string& text) {
  const auto number = FittingNumber(text);
  return number && Succeeds([&] { static_cast<void>(BothCapacities(ToSingle(*number), English)); });
}

}  // namespace

// ---- checks --------------------------------------------------------------------------------------------------------

bool OptionsDialog::CheckCell(OverlayEditing& grid, int entry, int column, const Frame& frame) {
  if (Fits(grid.Text(entry, column))) return true;
  ReportFault(fault_text::TooLarge(frame.Caption(), grid.Text(entry, column)));
  grid.GoTo(entry, column);
  return false;
}

bool OptionsDialog::CheckCells() {
  for (std::size_t units = 0; units < cables_.size(); ++units) {
    for (int entry = 0; entry < cables_[units].Entries(); ++entry) {
      for (const int column : {CableDiameterColumn, CableCapacityColumn}) {
        if (CheckCell(cables_[units], entry, column, fraCables[units])) continue;
        SSTab1.SetTab(FirstParameterTab + static_cast<int>(units));
        return false;
      }
    }
  }
  for (int entry = 0; entry < stands_.Entries(); ++entry) {
    if (CheckCell(stands_, entry, SupportCapacityColumn, fraStand)) continue;
    SSTab1.SetTab(StandingSupportTab);
    return false;
  }
  return true;
}

// ---- cables --------------------------------------------------------------------------------------------------------

void OptionsDialog::TieCables(std::size_t units) {
  cmdAddCable[units].Click = [this, units] {
    cables_[units].AddEntry();
    ResizeCables(units);
  };
  cmdDeleteCable[units].Click = [this, units] {
    cables_[units].RemoveEntry();
    ResizeCables(units);
  };
  cmdSetDefaultCable[units].Click = [this, units] {
    CableCatalogOf(units).SetBuiltIn(program_.session.catalogs);
    FillCables(units);
  };
}

void OptionsDialog::FillCables(std::size_t units) {
  const CableCatalog& catalog = CableCatalogOf(units);
  const CatalogList& diameters = program_.session.catalogs.*catalog.Diameters;
  const CatalogList& capacities = program_.session.catalogs.*catalog.Capacities;
  std::vector<OverlayEditing::Texts> entries;
  for (std::size_t i = 0; i < capacities.Count(); ++i) {
    entries.push_back({NumberText(diameters[i]), NumberText(capacities[i])});
  }
  cables_[units].Fill(catalog.Headers, entries);
}

void OptionsDialog::ResizeCables(std::size_t units) {
  for (const auto list : CableCatalogOf(units).Lists()) {
    CatalogList& values = program_.session.catalogs.*list;
    values.HighestIndex = HighestIndexOf(cables_[units]);
    values.Values.resize(values.Count());
  }
}

// Stores the capacity as the strength of a cable, too.
void OptionsDialog::StoreCables(Catalogs& catalogs) const {
  for (std::size_t units = 0; units < cables_.size(); ++units) {
    const OverlayEditing& grid = cables_[units];
    const CableCatalog& catalog = CableCatalogOf(units);
    for (int entry = 0; entry < grid.Entries(); ++entry) {
      const auto index = static_cast<std::size_t>(entry);
      (catalogs.*catalog.Diameters).Set(index, NumberAt(grid, entry, CableDiameterColumn));
      (catalogs.*catalog.Capacities).Set(index, NumberAt(grid, entry, CableCapacityColumn));
      (catalogs.*catalog.Strengths).Set(index, NumberAt(grid, entry, CableCapacityColumn));
    }
  }
}

// ---- standing supports ---------------------------------------------------------------------------------------------

void OptionsDialog::TieStands() {
  cmdAddStandSupport.Click = [this] {
    stands_.AddEntry();
    standCapacities_.push_back({});
    ResizeStands();
  };
  cmdDeleteRow.Click = [this] {
    const int removed = stands_.RemoveEntry();
    if (removed >= 0) standCapacities_.erase(standCapacities_.begin() + removed);
    ResizeStands();
  };
  cmdSetDefaultStandSupport.Click = [this] {
    SetDefaultStandSupportNames(program_.session.catalogs);
    SetDefaultStandSupportCapsENG(program_.session.catalogs);
    SetDefaultStandSupportCapsMET(program_.session.catalogs);
    FillStands();
  };
}

// Shows capacities in the project's units.
void OptionsDialog::FillStands() {
  const StandingSupports& supports = program_.session.catalogs.StandSupports;
  const auto count = static_cast<std::ptrdiff_t>(supports.HighestIndex) + 1;
  standCapacities_.assign(supports.DefaultStandSupportCap.begin(), supports.DefaultStandSupportCap.begin() + count);
  std::vector<OverlayEditing::Texts> entries;
  for (std::size_t i = 0; i < standCapacities_.size(); ++i) {
    entries.push_back({supports.DefaultStandSupportType[i], NumberText(StandSupportCap(program_, i))});
  }
  stands_.Fill(
      {"Support Type", "Capacity" + std::string(UnitLabel(UnitSuffix::Force, program_.project.WorkParms.Units))},
      entries);
}

void OptionsDialog::ResizeStands() {
  StandingSupports& supports = program_.session.catalogs.StandSupports;
  supports.HighestIndex = HighestIndexOf(stands_);
  const auto count = static_cast<std::size_t>(stands_.Entries());
  supports.DefaultStandSupportType.resize(count);
  supports.DefaultStandSupportCap.resize(count);
}

// A changed capacity is converted to the other unit system. Unchanged capacities keep their original pair.
void OptionsDialog::StoreStands(Catalogs& catalogs) const {
  StandingSupports& supports = catalogs.StandSupports;
  const UnitSystem units = program_.project.WorkParms.Units;
  for (int entry = 0; entry < stands_.Entries(); ++entry) {
    const auto index = static_cast<std::size_t>(entry);
    const auto& before = standCapacities_[index];
    const Single capacity = NumberAt(stands_, entry, SupportCapacityColumn);
    const bool isKept = NumberText(capacity) == NumberText(before[PlaceOf(units)]);
    supports.DefaultStandSupportType[index] = stands_.Text(entry, SupportNameColumn);
    supports.DefaultStandSupportCap[index] = isKept ? before : BothCapacities(capacity, units);
  }
}

}  // namespace orby
