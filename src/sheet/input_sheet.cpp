// The inputs of a design, each with where it comes from.
#include "core/shared_texts.h"
#include "engine/estimator.h"
#include "reports/cost_input_rows.h"
#include "reports/input_rows.h"
#include "sheet/sheet_parts.h"

namespace orby {
namespace {

const std::string Typed = "typed";

std::string SourceOf(ValueSource mode) { return mode == ValueSource::Standard ? "list of standard values" : Typed; }

class InputSheet {
 public:
  InputSheet(DesignSheet& sheet, const SheetContext& context) : sheet_(sheet), design_(context.Designs.Shown) {}

  void Write() {
    Site();
    Primary();
    Secondary("inputs-entries", "Inputs: secondary support of entries", EntryEcho, design_.Entries);
    Secondary("inputs-intersections", "Inputs: secondary support of intersections", IntersectionEcho,
              design_.Intersections);
    SheetWriter cost(sheet_, "inputs-cost", "Inputs: cost of bolting");
    for (const CostInputRow& row : CostInputRows) {
      cost.Input(row.Label, NumberText(design_.Cost.*row.Value), row.Unit, Typed);
    }
  }

 private:
  template <class Rows, class Source>
  static void Numbers(SheetWriter& writer, const Rows& rows, const Source& source) {
    for (const auto& [label, value, unit] : rows) writer.Input(label, NumberText(value(source)), unit, Typed);
  }

  std::string RatingSource() const {
    if (design_.Place.CMRRManual == 1) return Typed;
    const Integer region = design_.Place.CMRRRegionIndex;
    if (region < 0 || static_cast<std::size_t>(region) >= RegionNames.size()) return "estimator";
    std::string source = "estimator: " + std::string(RegionNames[static_cast<std::size_t>(region)]);
    const Integer rockType = design_.Place.CMRRRockTypeIndex;
    if (rockType >= 0) source += ", " + std::string(RockTypeName(region, rockType));
    return source;
  }

  void Site() {
    SheetWriter writer(sheet_, "inputs-site", "Inputs: geology and mining");
    writer.Input("CMRR", NumberText(design_.Place.CMRR), UnitSuffix::None, RatingSource());
    Numbers(writer, SiteRows, design_);
    Numbers(writer, MiningRows, design_);
  }

  void Primary() {
    SheetWriter writer(sheet_, "inputs-primary", "Inputs: primary roof bolts");
    Numbers(writer, PrimaryRows, design_);
    Bolts(writer, design_.Primary);
  }

  void Bolts(SheetWriter& writer, const BoltSelection& set) const {
    const bool isManual = set.Options != BoltSource::Table;
    const std::string row =
        "row " + NumberText(static_cast<Integer>(set.TableRow + 1)) + " of the bolt table: " + set.Desc;
    const Bolt bolt = SelectedBolt(set);
    writer.Input("Roof Bolt Diameter", NumberText(bolt.Diameter), UnitSuffix::Diameter,
                 isManual ? SourceOf(set.DiameterMode) : row);
    writer.Input("Roof Bolt Grade", NumberText(bolt.Grade), UnitSuffix::Grade,
                 isManual ? SourceOf(set.GradeMode) : row);
  }

  void Cables(SheetWriter& writer, const CableSelection& cable) const {
    writer.Input("Cable Bolt Length", NumberText(cable.Length), UnitSuffix::Length, Typed);
    if (cable.CapMode == CapacityMode::ByDiameter) {
      writer.Input("Cable Bolt Diameter", NumberText(cable.Diam), UnitSuffix::Diameter, "list of cables");
      return;
    }
    const bool isStandard = cable.Capacity == ValueSource::Standard;
    writer.Input("Cable Bolt Capacity", NumberText(isStandard ? cable.CapacityStd : cable.CapacityManual),
                 UnitSuffix::Force, SourceOf(cable.Capacity));
  }

  void Secondary(std::string_view key, std::string title, const SupportEcho& echo, const SecondarySupport& support) {
    SheetWriter writer(sheet_, key, std::move(title));
    Numbers(writer, echo.Rock, support);
    if (support.Cable.Use == 1) {
      Cables(writer, support.Cable);
      Numbers(writer, echo.CableLayout, support);
    }
    if (support.Truss.Use == 1) {
      Numbers(writer, TrussRows, support);
      Numbers(writer, echo.TrussLayout, support);
    }
    if (support.Bolt.Use == 1) {
      Numbers(writer, echo.RoofBolts, support);
      Bolts(writer, support.Bolt);
    }
    if (support.Standing.Use != 1) return;
    writer.Input("Standing Support Type", support.Standing.TypeName, UnitSuffix::None,
                 SourceOf(support.Standing.TypeMode));
    Numbers(writer, echo.StandingSupports, support);
  }

  DesignSheet& sheet_;
  const Design& design_;
};

}  // namespace

void AddInputs(DesignSheet& sheet, const SheetContext& context) { InputSheet(sheet, context).Write(); }

}  // namespace orby
