// The inputs of a design, each with where it comes from.
#include "core/shared_texts.h"
#include "reports/cost_input_rows.h"
#include "reports/input_rows.h"
#include "sheet/sheet_parts.h"

namespace orby {
namespace {

const std::string Typed = "typed";
const std::string DefaultSource = "default of a new project";

// Returns the source of a number that can only be typed.
std::string TypedOrDefault(Single value, Single ofNewProject) { return value == ofNewProject ? DefaultSource : Typed; }

std::string SourceOf(ValueSource mode) { return mode == ValueSource::Standard ? "list of standard values" : Typed; }

class InputSheet {
 public:
  InputSheet(DesignSheet& sheet, const SheetContext& context)
      : sheet_(sheet), design_(context.Designs.Shown), new_(context.Designs.New) {}

  void Write() {
    Site();
    Primary();
    Secondary("inputs-entries", "Inputs: secondary support of entries", EntryEcho, &Design::Entries);
    Secondary("inputs-intersections", "Inputs: secondary support of intersections", IntersectionEcho,
              &Design::Intersections);
    SheetWriter cost(sheet_, "inputs-cost", "Inputs: cost of bolting");
    for (const CostInputRow& row : CostInputRows) {
      cost.Input(row.Label, NumberText(design_.Cost.*row.Value), row.Unit,
                 TypedOrDefault(design_.Cost.*row.Value, new_.Cost.*row.Value));
    }
  }

 private:
  template <class Rows, class Source>
  static void Numbers(SheetWriter& writer, const Rows& rows, const Source& source, const Source& ofNewProject) {
    for (const auto& [label, value, unit] : rows) {
      writer.Input(label, NumberText(value(source)), unit, TypedOrDefault(value(source), value(ofNewProject)));
    }
  }

  // A project does not store whether the rating was changed after its region and rock type were chosen.
  std::string RatingSource() const {
    if (design_.Place.CMRRManual == 1) return Typed;
    if (const auto estimate = EstimateOf(design_.Place)) {
      return "estimator: " + std::string(estimate->Region) + ", " + std::string(estimate->Rock.Name);
    }
    return TypedOrDefault(design_.Place.CMRR, new_.Place.CMRR);
  }

  void Site() {
    SheetWriter writer(sheet_, "inputs-site", "Inputs: geology and mining");
    writer.Input("CMRR", NumberText(design_.Place.CMRR), UnitSuffix::None, RatingSource());
    Numbers(writer, SiteRows, design_, new_);
    Numbers(writer, MiningRows, design_, new_);
  }

  void Primary() {
    SheetWriter writer(sheet_, "inputs-primary", "Inputs: primary roof bolts");
    Numbers(writer, PrimaryRows, design_, new_);
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

  void Cables(SheetWriter& writer, const CableSelection& cable, const CableSelection& ofNewProject) const {
    writer.Input("Cable Bolt Length", NumberText(cable.Length), UnitSuffix::Length,
                 TypedOrDefault(cable.Length, ofNewProject.Length));
    if (cable.CapMode == CapacityMode::ByDiameter) {
      writer.Input("Cable Bolt Diameter", NumberText(cable.Diam), UnitSuffix::Diameter, "list of cables");
      return;
    }
    const bool isStandard = cable.Capacity == ValueSource::Standard;
    writer.Input("Cable Bolt Capacity", NumberText(isStandard ? cable.CapacityStd : cable.CapacityManual),
                 UnitSuffix::Force, SourceOf(cable.Capacity));
  }

  void Secondary(std::string_view key, std::string title, const SupportEcho& echo, SecondarySupport Design::*opening) {
    SheetWriter writer(sheet_, key, std::move(title));
    const SecondarySupport& support = design_.*opening;
    const SecondarySupport& ofNewProject = new_.*opening;
    const auto numbers = [&](const SupportRows& rows) { Numbers(writer, rows, support, ofNewProject); };
    numbers(echo.Rock);
    if (support.Cable.Use == 1) {
      Cables(writer, support.Cable, ofNewProject.Cable);
      numbers(echo.CableLayout);
    }
    if (support.Truss.Use == 1) {
      numbers(TrussRows);
      numbers(echo.TrussLayout);
    }
    if (support.Bolt.Use == 1) {
      numbers(echo.RoofBolts);
      Bolts(writer, support.Bolt);
    }
    if (support.Standing.Use != 1) return;
    writer.Input("Standing Support Type", support.Standing.TypeName, UnitSuffix::None,
                 SourceOf(support.Standing.TypeMode));
    numbers(echo.StandingSupports);
  }

  DesignSheet& sheet_;
  const Design& design_;
  const Design& new_;
};

}  // namespace

void AddInputs(DesignSheet& sheet, const SheetContext& context) { InputSheet(sheet, context).Write(); }

}  // namespace orby
