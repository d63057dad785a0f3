// Secondary support of entries and of intersections: rock load, and capacity and stability factor of each system.
#include "base/arithmetic.h"
#include "engine/formulas.h"
#include "sheet/sheet_openings.h"
#include "sheet/sheet_parts.h"

namespace orby {
namespace {

constexpr SymbolMeaning UnitCapacity{"C", "capacity of one unit", SheetUnit::Force};

class SecondarySheet {
 public:
  SecondarySheet(DesignSheet& sheet, const SheetContext& context, const SheetOfOpening& opening)
      : sheet_(sheet),
        context_(context),
        opening_(opening),
        shown_(context.Designs.Shown),
        support_(shown_.*opening.Support),
        live_(context.Live.*opening.Live),
        isMetric_(shown_.Units == Metric),
        isEntry_(opening.Where == Opening::Entries) {}

  void Write() {
    RockLoad();
    if (support_.Cable.Use == 1) Cables();
    if (support_.Truss.Use == 1) Trusses();
    if (support_.Bolt.Use == 1) Bolts();
    if (support_.Standing.Use == 1) Standing();
  }

 private:
  enum System : std::size_t { CableSystem, TrussSystemIndex, BoltSystemIndex, StandingSystem };

  const SecondarySupport& Reported() const { return context_.Designs.Previewed.*opening_.Support; }
  const SupportSystem& Printed(System system) const {
    const auto systems = Reported().Systems();
    return *systems.at(system);
  }
  const Computed<Reinforcement>& Added() const { return context_.Reported.*opening_.Added; }
  // The report prints this part, and does not end before it.
  bool IsReported() const { return Reported().Analysed == 1 && Added().IsThere(); }

  SheetWriter SystemWriter(System system) {
    const SystemTexts& texts = opening_.Systems[system];
    return {sheet_, texts.Key, std::string(texts.Title)};
  }

  // ---- rock load ---------------------------------------------------------------------------------------------------

  void RockLoad() {
    SheetWriter writer(sheet_, opening_.Key, "Rock load " + std::string(opening_.Of));
    if (support_.Analysed != 1) {
      writer.Remark(
          "The analysis of this secondary support is switched off: the report leaves it out, and it is not "
          "judged.");
    }
    if (isEntry_) {
      EntryRock(writer);
    } else {
      IntersectionRock(writer);
    }
  }

  // Adds why there is no rock load. Returns true if there is a reason.
  bool RemarkWithoutLoad(SheetWriter& writer) const {
    if (!live_.RockLoad.IsThere() || live_.RockLoad.ValueOr({})) return false;
    writer.Remark("There is no rock load: " + ReasonWithoutLoad() + ". The systems have no stability factors then.");
    if (IsReported()) writer.Remark("The report prints " + opening_.ReportText(Reported().RockLoad) + " for it.");
    return true;
  }

  std::string ReasonWithoutLoad() const {
    const Site& place = shown_.Place;
    const auto isAngle = [](Single degrees) {
      const double radians = degrees * RadiansPerDegree;
      return radians >= 0 && radians < Pi / 2;
    };
    if (!UnitWeightIsPlausible(place.UnitWeight, shown_.Units)) {
      return isMetric_ ? "the unit weight of the rock is below 15 kN/m3"
                       : "the unit weight of the rock is below 100 pcf";
    }
    if (support_.RockLoadHeight <= 0) return "the rock load height is not above 0";
    if (!isAngle(support_.RockFallAngle)) return "the rock fall angle is not from 0 to below 90 degrees";
    if (!isEntry_ && !isAngle(support_.RockFallAngleXcut)) {
      return "the rock fall angle of the crosscut is not from 0 to below 90 degrees";
    }
    if (place.EntryWidth <= 0) return "the entry width is not above 0";
    if (!isEntry_ && place.ActualSpanDiagonals <= place.EntryWidth) {
      return "the sum of the diagonals is not above the entry width";
    }
    return "it comes to 0";
  }

  void EntryRock(SheetWriter& writer) {
    const SheetNumber width = InputNumber(shown_.Place.EntryWidth);
    const SheetNumber height = InputNumber(support_.RockLoadHeight);
    const SheetNumber angle = InputNumber(support_.RockFallAngle);
    const SheetNumber highest =
        writer.Step(Law::HighestEntryRock, "Greatest rock height of the fall angle", {width, angle});
    ShowHighest(writer);
    if (RemarkWithoutLoad(writer)) return;
    const SheetNumber top = writer.Step(Law::TopWidth, "Width of the rock at its top", {width, height, angle});
    const SheetNumber area = writer.Step(Law::RockSection, "Section of the rock", {width, top, height, highest});
    if (top.Value < 0) writer.Note("The sides meet below the rock load height: the section is a triangle.");
    Load(writer, area);
  }

  void IntersectionRock(SheetWriter& writer) {
    const SheetNumber typedHeight = InputNumber(support_.RockLoadHeight);
    const SheetNumber entryAngle = InputNumber(support_.RockFallAngle);
    const SheetNumber crosscutAngle = InputNumber(support_.RockFallAngleXcut);
    const SheetNumber side = writer.Step(Law::SideOfSquare, "Side of the square of the diagonals",
                                         {InputNumber(shown_.Place.ActualSpanDiagonals)});
    const SheetNumber entryLimit =
        writer.Step(Law::HeightLimit, "Height that the angle along the entry allows", {side, entryAngle, entryAngle});
    const SheetNumber crosscutLimit = writer.Step(Law::HeightLimit, "Height that the angle along the crosscut allows",
                                                  {side, entryAngle, crosscutAngle});
    writer.Note("This limit too takes the angle along the entry. Its own angle only decides whether it is 100.");
    const SheetNumber limited =
        writer.Step(Law::LimitedHeight, "Rock height within both limits", {typedHeight, entryLimit, crosscutLimit});
    ShowHighest(writer);
    if (RemarkWithoutLoad(writer)) return;

    SheetNumber height = typedHeight;
    SheetNumber entryTop = Top(writer, "entry", side, height, entryAngle);
    SheetNumber crosscutTop = Top(writer, "crosscut", side, height, crosscutAngle);
    if (entryTop.Value < 0 || crosscutTop.Value < 0) {
      writer.Note("A width below 0: the sides meet below the rock load height, which is limited therefore.");
      height = limited;
      entryTop = Top(writer, "entry, limited", side, height, entryAngle);
      crosscutTop = Top(writer, "crosscut, limited", side, height, crosscutAngle);
    }
    Load(writer, writer.Step(Law::RockVolume, "Volume of the rock", {side, crosscutTop, entryTop, height}));
  }

  static SheetNumber Top(SheetWriter& writer, const std::string& along, const SheetNumber& side,
                         const SheetNumber& height, const SheetNumber& angle) {
    return writer.Step(Law::TopWidth, "Width of the rock at its top along the " + along, {side, height, angle});
  }

  void ShowHighest(SheetWriter& writer) const {
    if (!Added().IsThere()) return;
    writer.Figure(Added().Value().HighestRock);
    if (IsReported() && Added().Value().HeightIsAdjusted) {
      writer.ShowAs(InReport, FormatNumber(Added().Value().HighestRock, OneDecimal), SheetUnit::Length);
    }
  }

  void Load(SheetWriter& writer, const SheetNumber& amount) {
    load_ = writer.Step(isMetric_ ? Law::RockLoadInKilonewtons : Law::RockLoad, "Rock load",
                        {amount, InputNumber(shown_.Place.UnitWeight)}, opening_.LoadUnit);
    const std::optional<Single> load = live_.RockLoad.ValueOr({});
    writer.Figure(load);
    if (load) writer.ShowAs(InDialog, FormatNumber(*load, opening_.DialogPattern), opening_.LoadUnit);
    if (IsReported()) writer.ShowAs(InReport, opening_.ReportText(Reported().RockLoad), opening_.LoadUnit);
  }

  // ---- systems -----------------------------------------------------------------------------------------------------

  // Adds the capacity of a system by its relation, and the stability factor.
  void Capacity(SheetWriter& writer, System system, Law law, const std::vector<SheetNumber>& numbers) {
    const std::optional<SupportResult> result = live_.Systems[system].ValueOr({});
    const SupportSystem& printed = Printed(system);
    const SheetNumber capacity = writer.Step(law, "Capacity of the system", numbers);
    if (result) {
      writer.Figure(result->Capacity);
      writer.ShowAs(InDialog, FormatNumber(result->Capacity, opening_.DialogPattern), opening_.LoadUnit);
    }
    if (IsReported()) writer.ShowAs(InReport, opening_.ReportText(printed.SupportCap), opening_.LoadUnit);
    writer.Step(Law::StabilityFactor, "Stability factor", {capacity, load_});
    if (result) {
      writer.Figure(result->StabilityFactor);
      writer.ShowAs(InDialog, FormatNumber(result->StabilityFactor, FactorPattern), SheetUnit::None);
    }
    if (IsReported()) writer.ShowAs(InReport, FormatNumber(printed.StabFactor, "0.00"), SheetUnit::None);
  }

  // Adds why a system is not computed. Returns true if there is a reason.
  bool RemarkIfSkipped(SheetWriter& writer, System system, std::string_view reason) const {
    if (!live_.RockLoad.ValueOr({}) || !live_.Systems[system].IsThere() || live_.Systems[system].ValueOr({})) {
      return false;
    }
    writer.Remark("Not computed: " + std::string(reason) + ".");
    RemarkOfPrinted(writer, system);
    return true;
  }

  void RemarkOfPrinted(SheetWriter& writer, System system) const {
    if (!IsReported()) return;
    const SupportSystem& printed = Printed(system);
    writer.Remark("The report prints the capacity " + opening_.ReportText(printed.SupportCap) +
                  " and the stability factor " + FormatNumber(printed.StabFactor, "0.00") + ".");
  }

  SheetNumber CableCapacity(SheetWriter& writer) const {
    const CableSelection& cable = support_.Cable;
    if (cable.CapMode != CapacityMode::ByDiameter) {
      return InputNumber(cable.Capacity == ValueSource::Standard ? cable.CapacityStd : cable.CapacityManual);
    }
    const Single found = CableCapacityFromDiameter(cable.Diam, shown_.Units, context_.catalogs);
    const std::string unit(UnitText(SheetUnit::Diameter, shown_.Units));
    return writer.Found("Capacity of a cable bolt", UnitCapacity, found,
                        "The last cable in the catalog with a diameter of " + NumberText(cable.Diam) + " " + unit +
                            "; 0 if there is none.");
  }

  void Cables() {
    SheetWriter writer = SystemWriter(CableSystem);
    const CableSelection& cable = support_.Cable;
    const SheetNumber capacity = CableCapacity(writer);
    if (!RemarkIfSkipped(writer, CableSystem, "the row spacing is 0")) {
      if (isEntry_) {
        Capacity(writer, CableSystem, Law::CountedInEntry,
                 {capacity, InputNumber(cable.BoltsPerRow), InputNumber(cable.RowSpacing)});
      } else {
        Capacity(writer, CableSystem, Law::CountedInIntersection, {capacity, InputNumber(cable.Number)});
      }
    }
    if (isEntry_) CableDensities(writer, capacity);
    AddJudgements(writer, context_.Judged, opening_.Where, {Aspect::Cables, Aspect::CableAnchorage});
  }

  void CableDensities(SheetWriter& writer, const SheetNumber& capacity) {
    const CableSelection& cable = Reported().Cable;
    const SheetNumber length = InFeetStep(writer, "Length of the cable bolts", cable.Length);
    const SheetNumber spacing = InFeetStep(writer, "Row spacing of the cable bolts", cable.RowSpacing);
    const SheetNumber width = InFeetStep(writer, "Entry width", shown_.Place.EntryWidth);
    const SheetNumber tons =
        isMetric_ ? writer.Step(Law::TonsFromKilonewtons, "Capacity of a cable bolt in tons", {capacity}) : capacity;
    const SheetNumber kips = writer.Step(Law::KipsFromTons, "Capacity of a cable bolt in kips", {tons});
    const SheetNumber count = InputNumber(cable.BoltsPerRow);
    writer.Step(Law::CableDensityIndex, "Secondary Reinforcement Density Index (SRDI)",
                {length, count, kips, spacing, width});
    ShowAdded(writer, &Reinforcement::CableSRDI);
    const SheetNumber primaryLength =
        InFeetStep(writer, "Length of the primary bolts", context_.Designs.Previewed.Primary.Length);
    writer.Step(Law::SupportDensity, "Secondary PRSUP", {primaryLength, count, kips, spacing, width});
    writer.Note("It takes the length of the primary bolts.");
    ShowAdded(writer, &Reinforcement::CablePRSUP);
  }

  void Trusses() {
    SheetWriter writer = SystemWriter(TrussSystemIndex);
    const TrussSelection& truss = support_.Truss;
    const SheetNumber capacity = InputNumber(truss.Capacity);
    const SheetNumber angle = InputNumber(truss.Angle);
    if (!RemarkIfSkipped(writer, TrussSystemIndex, "the row spacing of the standing supports is 0")) {
      if (isEntry_) {
        Capacity(writer, TrussSystemIndex, Law::TrussesInEntry, {capacity, angle, InputNumber(truss.Spacing)});
      } else {
        Capacity(writer, TrussSystemIndex, Law::TrussesInIntersection, {capacity, angle, InputNumber(truss.Number)});
      }
    }
    AddJudgements(writer, context_.Judged, opening_.Where, {Aspect::Trusses});
  }

  // The yield strength of the bolts in the unit of the design.
  SheetNumber YieldStrength(SheetWriter& writer, const SheetNumber& grade) const {
    if (shown_.Basis != StrengthBasis::Ultimate) return grade;
    if (!isMetric_) return YieldStep(writer, Bolt, grade, context_.catalogs);
    const auto typed = static_cast<Single>(*grade.Value);
    const std::string title = "Yield strength of " + Bolt;
    if (context_.catalogs.DefaultBoltUTSArrayMET.FirstPlaceOf(typed)) {
      return writer.Found(title, {"G_y", "yield strength", SheetUnit::StressInMPa},
                          YieldFromUltimateMPa(MPa(typed), context_.catalogs).Value,
                          grade.Text + " MPa is in the list of ultimate strengths. This is its pair.");
    }
    return writer.Step(Law::YieldGradeInMPa, title, {grade});
  }

  void Bolts() {
    SheetWriter writer = SystemWriter(BoltSystemIndex);
    const SecondaryBolts& bolts = support_.Bolt;
    const orby::Bolt selected = SelectedBolt(bolts);
    const SheetNumber diameter = InputNumber(selected.Diameter);
    if (!RemarkIfSkipped(writer, BoltSystemIndex, "there are no bolts in a row")) {
      const SheetNumber strength = YieldStrength(writer, InputNumber(selected.Grade));
      if (isEntry_) {
        Capacity(writer, BoltSystemIndex, isMetric_ ? Law::BoltsInEntryInKilonewtons : Law::BoltsInEntry,
                 {InputNumber(bolts.BoltsperRow), strength, diameter, InputNumber(bolts.RowSpacing)});
      } else {
        Capacity(writer, BoltSystemIndex, isMetric_ ? Law::BoltsInIntersectionInKilonewtons : Law::BoltsInIntersection,
                 {InputNumber(bolts.Number), strength, diameter});
      }
    }
    const SecondaryBolts& reported = Reported().Bolt;
    const orby::Bolt reportedBolt = SelectedBolt(reported);
    if (reportedBolt.Diameter != selected.Diameter || reportedBolt.Grade != selected.Grade) {
      writer.Remark("The report takes the manual selection of the primary bolts for the following steps.");
    }
    const WorkingBoltNumbers working = InInchesAndKsi(writer, Bolt, reported);
    if (isEntry_) BoltDensities(writer, working);
    StandardCheck(writer, Bolt, working);
    AddJudgements(writer, context_.Judged, opening_.Where,
                  {Aspect::Bolts, Aspect::BoltAnchorage, Aspect::BoltCapacity});
  }

  void BoltDensities(SheetWriter& writer, const WorkingBoltNumbers& working) {
    const SecondaryBolts& bolts = Reported().Bolt;
    const SheetNumber length = InFeetStep(writer, "Length of the secondary bolts", bolts.Length);
    const SheetNumber spacing = InFeetStep(writer, "Row spacing of the secondary bolts", bolts.RowSpacing);
    const SheetNumber count = InputNumber(bolts.BoltsperRow);
    const bool hasCables = support_.Cable.Use == 1;
    const SheetNumber width = InFeetStep(writer, "Entry width", shown_.Place.EntryWidth);
    const SheetNumber cableWidth = hasCables ? width : InputNumber(0);
    const SheetNumber ultimateGrade = UltimateStep(writer, Bolt, working.Grade, context_.catalogs);
    const SheetNumber kips =
        writer.Step(Law::BoltCapacity, "Ultimate capacity of " + Bolt, {ultimateGrade, working.Diameter});
    const SheetNumber tons = writer.Step(Law::TonsFromKips, "Ultimate capacity of " + Bolt + " in tons", {kips});
    writer.Step(Law::DensityIndex, "Secondary Reinforcement Density Index (SRDI)",
                {length, count, tons, spacing, cableWidth});
    writer.Note(hasCables
                    ? "It takes the capacity in tons."
                    : "It takes the capacity in tons and the width of the cable bolts' pattern, which is 0 because "
                      "there are no cable bolts. The report of this design ends here.");
    ShowAdded(writer, &Reinforcement::BoltSRDI);
    // The grade of an ultimate basis is an ultimate strength already.
    const bool isYield = shown_.Basis == StrengthBasis::Yield;
    const SheetNumber byBasis = isYield ? kips
                                        : writer.Step(Law::BoltCapacity, "Capacity of " + Bolt + " by its grade",
                                                      {working.Grade, working.Diameter});
    writer.Step(Law::SupportDensity, "Secondary PRSUP", {length, count, byBasis, spacing, width});
    ShowAdded(writer, &Reinforcement::BoltPRSUP);
  }

  void ShowAdded(SheetWriter& writer, Single Reinforcement::*member) const {
    if (!Added().IsThere()) return;
    writer.Figure(Added().Value().*member);
    if (IsReported()) writer.ShowAs(InReport, FormatNumber(Added().Value().*member, OneDecimal), SheetUnit::None);
  }

  void Standing() {
    SheetWriter writer = SystemWriter(StandingSystem);
    const StandingSelection& standing = support_.Standing;
    const SheetNumber capacity = InputNumber(standing.Capacity);
    if (!RemarkIfSkipped(writer, StandingSystem, "the row spacing is 0")) {
      if (isEntry_) {
        Capacity(writer, StandingSystem, Law::CountedInEntry,
                 {capacity, InputNumber(standing.NumberPerRow), InputNumber(standing.RowSpacing)});
      } else {
        Capacity(writer, StandingSystem, Law::CountedInIntersection, {capacity, InputNumber(standing.Number)});
      }
    }
    AddJudgements(writer, context_.Judged, opening_.Where, {Aspect::Standing});
  }

  inline static const std::string Bolt = "a secondary bolt";

  DesignSheet& sheet_;
  const SheetContext& context_;
  const SheetOfOpening& opening_;
  const Design& shown_;
  const SecondarySupport& support_;
  const SupportFigures& live_;
  bool isMetric_;
  bool isEntry_;
  SheetNumber load_;
};

}  // namespace

void AddEntrySupport(DesignSheet& sheet, const SheetContext& context) {
  SecondarySheet(sheet, context, EntrySheet).Write();
}

void AddIntersectionSupport(DesignSheet& sheet, const SheetContext& context) {
  SecondarySheet(sheet, context, IntersectionSheet).Write();
}

}  // namespace orby
