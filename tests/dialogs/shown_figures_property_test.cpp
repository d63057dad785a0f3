// Whatever numbers the user types, in whatever order, the parameters dialog shows the figures of that design.
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

#include "base/number_text.h"
#include "engine/analysis.h"
#include "parameters_fixture.h"

namespace orby::test {
namespace {

// A field of the dialog, its number in a design, and the lowest and highest number to type, in hundredths.
struct Field {
  const char* control;
  Single& (*number)(Design& design);
  int lowest;
  int highest;
};

const std::vector<Field>& Fields() {
  using D = Design;
  static const std::vector<Field> fields{
      {"txtCMRR", [](D& d) -> Single& { return d.Place.CMRR; }, -100, 11000},
      {"txtDepthofCover", [](D& d) -> Single& { return d.Place.DepthofCover; }, -1000, 200000},
      {"txtUnitWeight", [](D& d) -> Single& { return d.Place.UnitWeight; }, 10000, 20000},
      {"txtActualSpanDiagonals", [](D& d) -> Single& { return d.Place.ActualSpanDiagonals; }, 0, 9000},
      {"txtStabilityFactor", [](D& d) -> Single& { return d.Primary.StabilityFactor; }, 50, 300},
      {"txtBoltLengthPrimary", [](D& d) -> Single& { return d.Primary.Length; }, 0, 1500},
      {"txtBoltsperRowPrimary", [](D& d) -> Single& { return d.Primary.BoltsperRow; }, 0, 1200},
      {"txtRowSpacingPrimary", [](D& d) -> Single& { return d.Primary.RowSpacing; }, 0, 800},
      {"txtBoltDiameterPrimary", [](D& d) -> Single& { return d.Primary.DiameterManual; }, 40, 140},
      {"txtBoltGradePrimary", [](D& d) -> Single& { return d.Primary.GradeManual; }, 0, 12000},
      {"txtRockLoadHeight", [](D& d) -> Single& { return d.Entries.RockLoadHeight; }, -100, 3000},
      {"txtRockFallAngle", [](D& d) -> Single& { return d.Entries.RockFallAngle; }, -100, 9100},
      {"txtCableCapacitySecEntry", [](D& d) -> Single& { return d.Entries.Cable.CapacityManual; }, 0, 5000},
      {"txtCableBoltsPerRowSecEntry", [](D& d) -> Single& { return d.Entries.Cable.BoltsPerRow; }, 0, 800},
      {"txtCableRowSpacingSecEntry", [](D& d) -> Single& { return d.Entries.Cable.RowSpacing; }, 10, 1000},
      {"txtTrussAngleSecEntry", [](D& d) -> Single& { return d.Entries.Truss.Angle; }, 0, 9000},
      {"txtTrussCapacitySecEntry", [](D& d) -> Single& { return d.Entries.Truss.Capacity; }, 0, 6000},
      {"txtTrussSpacingSecEntry", [](D& d) -> Single& { return d.Entries.Truss.Spacing; }, 0, 1000},
      {"txtBoltDiameterSecEntry", [](D& d) -> Single& { return d.Entries.Bolt.DiameterManual; }, 40, 140},
      {"txtBoltGradeSecEntry", [](D& d) -> Single& { return d.Entries.Bolt.GradeManual; }, 0, 12000},
      {"txtBoltsperRowSecEntry", [](D& d) -> Single& { return d.Entries.Bolt.BoltsperRow; }, 10, 1000},
      {"txtRowSpacingSecEntry", [](D& d) -> Single& { return d.Entries.Bolt.RowSpacing; }, 0, 800},
      {"txtSupportCapSecEntry", [](D& d) -> Single& { return d.Entries.Standing.Capacity; }, 0, 20000},
      {"txtNumberSupPerRowSecEntry", [](D& d) -> Single& { return d.Entries.Standing.NumberPerRow; }, 0, 500},
      {"txtSupportRowSpacingSecEntry", [](D& d) -> Single& { return d.Entries.Standing.RowSpacing; }, 10, 1500},
      {"txtRockLoadHeightInter", [](D& d) -> Single& { return d.Intersections.RockLoadHeight; }, -100, 3000},
      {"txtRockFallAngleEntry", [](D& d) -> Single& { return d.Intersections.RockFallAngle; }, -100, 9100},
      {"txtRockFallAngleXcut", [](D& d) -> Single& { return d.Intersections.RockFallAngleXcut; }, -100, 9100},
      {"txtCableCapacitySecInter", [](D& d) -> Single& { return d.Intersections.Cable.CapacityManual; }, 0, 5000},
      {"txtCableNumberSecInter", [](D& d) -> Single& { return d.Intersections.Cable.Number; }, 0, 2000},
      {"txtTrussAngleSecInter", [](D& d) -> Single& { return d.Intersections.Truss.Angle; }, 0, 9000},
      {"txtTrussCapacitySecInter", [](D& d) -> Single& { return d.Intersections.Truss.Capacity; }, 0, 6000},
      {"txtTrussNumberSecInter", [](D& d) -> Single& { return d.Intersections.Truss.Number; }, 0, 1000},
      {"txtBoltDiameterSecInter", [](D& d) -> Single& { return d.Intersections.Bolt.DiameterManual; }, 40, 140},
      {"txtBoltGradeSecInter", [](D& d) -> Single& { return d.Intersections.Bolt.GradeManual; }, 0, 12000},
      {"txtBoltNumberSecInter", [](D& d) -> Single& { return d.Intersections.Bolt.Number; }, 0, 2000},
      {"txtSupportCapSecInter", [](D& d) -> Single& { return d.Intersections.Standing.Capacity; }, 0, 20000},
      {"txtSupportNumberSecInter", [](D& d) -> Single& { return d.Intersections.Standing.Number; }, 0, 1000},
  };
  return fields;
}

// Every value is typed: no bolt from the table, no capacity from a list.
constexpr std::string_view AllTyped =
    "optBoltOptionsPrimary=1|optBoltDiameterPrimary=1|optBoltGradePrimary=1|"
    "optBoltOptionsSecEntry=1|optBoltDiameterSecEntry=1|optBoltGradeSecEntry=1|"
    "optBoltOptionsSecInter=1|optBoltDiameterSecInter=1|optBoltGradeSecInter=1|"
    "optCableCapModeSecEntry=1|optCableCapacitySecEntry=1|optCableCapModeSecInter=1|optCableCapacitySecInter=1|"
    "optSupportTypeSecEntry=1|optSupportTypeSecInter=1";

Design AllTypedDesign() {
  Design design;
  for (BoltSelection* bolts : design.BoltSets()) {
    bolts->Options = BoltSource::Manual;
    bolts->DiameterMode = bolts->GradeMode = ValueSource::Typed;
  }
  for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
    for (SupportSystem* system : support->Systems()) system->Use = 1;
    support->Cable.CapMode = CapacityMode::Given;
    support->Cable.Capacity = support->Standing.TypeMode = ValueSource::Typed;
  }
  return design;
}

void ExpectShown(const TextBox& box, const Computed<std::optional<Single>>& figure, double decimal) {
  const std::optional<Single> value = figure.ValueOr({});
  if (!value) {
    RC_ASSERT(box.Text() == "--");
    return;
  }
  RC_ASSERT(std::abs(TextValue(box.Text()) - *value) <= decimal / 2 + 1E-6 * std::abs(*value));
}

Computed<std::optional<Single>> PartOf(const Computed<std::optional<SupportResult>>& result,
                                       Single SupportResult::*part) {
  if (!result.IsThere()) return Computed<std::optional<Single>>::Failed(result.Error());
  return result.Value() ? std::optional((*result.Value()).*part) : std::nullopt;
}

void ExpectShown(const OutputControls& outputs, const SupportFigures& figures, double decimal) {
  for (std::size_t i = 0; i < SystemCount; ++i) {
    ExpectShown(outputs.RockLoad[i], figures.RockLoad, decimal);
    ExpectShown(outputs.SupportCap[i], PartOf(figures.Systems[i], &SupportResult::Capacity), decimal);
    ExpectShown(outputs.StabFactor[i], PartOf(figures.Systems[i], &SupportResult::StabilityFactor), 0.01);
  }
}

RC_GTEST_FIXTURE_PROP(AParametersDialog, ShowsTheFiguresOfTheNumbersInItsFields, ()) {
  constexpr double OneDecimal = 0.1;
  constexpr double WholeNumber = 1;
  dialog.Open();
  Do(AllSystems);
  Do(AllTyped);
  Design design = AllTypedDesign();
  const std::string width = NumberText(*rc::gen::inRange(-1, 300) / 10.0);
  Do("txtEntryWidth=" + width);
  design.Place.EntryWidth = static_cast<Single>(TextValue(width));
  // In some figures an option or the entry width counts only from the next key on.
  dialog.ShowSuggested();
  dialog.ShowActualPSUP();
  dialog.ShowEntries();
  dialog.ShowIntersections();
  for (const Field& field : Fields()) field.number(design) = static_cast<Single>(TextValue(Text(field.control)));

  // Fields, and for each one the share of its range at which its number lies.
  const auto field = rc::gen::inRange<std::size_t>(0, Fields().size());
  for (const auto& [index, share] :
       *rc::gen::container<std::vector<std::pair<std::size_t, int>>>(rc::gen::pair(field, rc::gen::inRange(0, 1001)))) {
    const auto& [control, numberOf, lowest, highest] = Fields()[index];
    const int hundredths = lowest + static_cast<int>(static_cast<std::int64_t>(highest - lowest) * share / 1000);
    const std::string text = NumberText(hundredths / 100.0);
    Do(std::string(control) + "=" + text);
    numberOf(design) = static_cast<Single>(TextValue(text));
  }

  const Figures figures = Analyze(design, program.session.catalogs);
  const auto suggestion = figures.LiveSuggestion.ValueOr({});
  ExpectShown(dialog.txtSugPSUP, suggestion ? std::optional(suggestion->SugPSUP) : std::nullopt, OneDecimal);
  ExpectShown(dialog.txtActualPSUP, figures.LivePSUP, OneDecimal);
  ExpectShown(dialog.EntryOutputs, figures.Entries, OneDecimal);
  ExpectShown(dialog.InterOutputs, figures.Intersections, WholeNumber);
}

}  // namespace
}  // namespace orby::test
