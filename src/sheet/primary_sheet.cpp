// Primary support: suggested span, PSUP and bolt length, and what the bolts give.
#include <algorithm>

#include "engine/formulas.h"
#include "sheet/sheet_parts.h"

namespace orby {
namespace {

class PrimarySheet {
 public:
  PrimarySheet(DesignSheet& sheet, const SheetContext& context)
      : sheet_(sheet),
        context_(context),
        design_(context.Designs.Previewed),
        suggested_(context.Reported.Suggested),
        isMetric_(design_.Units == Metric) {}

  void Write() {
    Span();
    Psup();
    Length();
    Capacity();
    Densities();
  }

 private:
  using Member = Single SuggestedFigures::*;

  // The report prints a result if the primary support is analysed and all of it can be computed.
  bool IsReported() const {
    return design_.Primary.Analysed == 1 && suggested_.IsThere() && context_.Reported.Primary.IsThere();
  }

  void ShowSuggested(SheetWriter& writer, Member member, NumberPattern pattern, SheetUnit unit, Single atLeast) const {
    if (suggested_.IsThere()) writer.Figure(suggested_.Value().*member);
    if (IsReported()) {
      writer.ShowAs(InReport, FormatNumber(std::max(suggested_.Value().*member, atLeast), pattern), unit);
    }
    if (const auto live = context_.Live.LiveSuggestion.ValueOr({})) {
      writer.ShowAs(InDialog, FormatNumber((*live).*member, OneDecimal), unit);
    }
  }

  // Shows a suggested length in the unit of the design.
  void ShowLength(SheetWriter& writer, const std::string& title, const SheetNumber& feet, Member member) const {
    if (isMetric_) writer.Step(Law::MetresFromFeet, title + " in metres", {feet});
    ShowSuggested(writer, member, "#.0", SheetUnit::Length, 0);
  }

  // The report prints these inputs with one decimal beside the suggested ones.
  void ActualLength(SheetWriter& writer, std::string_view label, Single length) const {
    writer.Input(label, FormatNumber(length, "#.0"), UnitSuffix::Length, "as the report prints it");
  }

  void Span() {
    SheetWriter writer(sheet_, "span", "Intersection span");
    RemarkIfLeftOut(writer);
    ActualLength(writer, "Actual Sum of Diagonals", design_.Place.ActualSpanDiagonals);
    span_ = InFeetStep(writer, "Actual sum of the diagonals", design_.Place.ActualSpanDiagonals);
    const SheetNumber width = InFeetStep(writer, "Entry width", design_.Place.EntryWidth);
    const std::string title = "Suggested sum of the diagonals";
    suggestedSpan_ = writer.Step(Law::SuggestedSpan, title, {InputNumber(design_.Place.CMRR)});
    ShowLength(writer, title, suggestedSpan_, &SuggestedFigures::SuggestedSpan);
    const double margin = isMetric_ ? 4 * FeetPerMetre : 4;
    writer.Step(Law::SmallestSpan, "Smallest plausible sum of the diagonals", {width, {margin, SevenDigits(margin)}});
    AddJudgements(writer, context_.Judged, Opening::Primary, {Aspect::Span, Aspect::SpanAndWidth});
  }

  void Psup() {
    SheetWriter writer(sheet_, "suggested-psup", "Suggested PSUP");
    const SheetNumber rating = InputNumber(design_.Place.CMRR);
    depth_ = InFeetStep(writer, "Depth of cover", design_.Place.DepthofCover);
    SheetNumber ratio;
    SheetNumber demand;
    if (design_.Place.CMRR > 20 && depth_.Value > 0) {
      ratio = writer.Step(Law::SpanRatio, "Ratio of the spans", {span_, suggestedSpan_});
      demand = writer.Step(Law::SupportDemand, "Demand of depth and rating", {depth_, rating});
    }
    writer.Step(Law::SuggestedPsup, "Suggested PSUP",
                {rating, depth_, ratio, InputNumber(design_.Primary.StabilityFactor), demand});
    ShowSuggested(writer, &SuggestedFigures::SugPSUP, OneDecimal, SheetUnit::None, SmallestPsup);
    if (suggested_.IsThere() && suggested_.Value().SugPSUP < SmallestPsup) {
      writer.Note("The report shows at least 3. Bolts are then needed only for skin control.");
    }
    AddJudgements(writer, context_.Judged, Opening::Primary, {Aspect::Supplement});
  }

  void Length() {
    SheetWriter writer(sheet_, "bolt-length", "Length of the primary bolts");
    ActualLength(writer, "Actual Roof Bolt Length", design_.Primary.Length);
    const SheetNumber logarithm = writer.Step(Law::DepthLogarithm, "Logarithm of the depth", {depth_});
    const SheetNumber weakness =
        writer.Step(Law::RoofWeakness, "Weakness of the roof", {InputNumber(design_.Place.CMRR)});
    const std::string title = "Suggested minimum bolt length";
    const SheetNumber length = writer.Step(Law::SuggestedLength, title, {span_, logarithm, weakness});
    ShowLength(writer, title, length, &SuggestedFigures::SugLength);
    AddJudgements(writer, context_.Judged, Opening::Primary, {Aspect::BoltLength});
  }

  void Capacity() {
    SheetWriter writer(sheet_, "bolt-capacity", "Capacity of a primary bolt");
    bolt_ = InInchesAndKsi(writer, Bolt, design_.Primary);
    const bool isYield = design_.Basis == StrengthBasis::Yield;
    const SheetNumber yieldGrade = isYield ? bolt_.Grade : YieldStep(writer, Bolt, bolt_.Grade, context_.catalogs);
    yield_ = writer.Step(Law::BoltCapacity, "Yield capacity of " + Bolt, {yieldGrade, bolt_.Diameter});
    if (isMetric_) {
      writer.Step(Law::BoltCapacityInKilonewtons, "Capacity of " + Bolt + " by its grade",
                  {bolt_.Grade, bolt_.Diameter});
      ShowCapacity(writer, "0");
    } else {
      writer.Step(Law::TonsFromKips, "Yield capacity of " + Bolt + " in tons", {yield_});
      ShowCapacity(writer, OneDecimal);
      if (!isYield) writer.Note("The report prints this yield capacity under the label of the ultimate capacity.");
    }
    StandardCheck(writer, Bolt, bolt_);
    AddJudgements(writer, context_.Judged, Opening::Primary, {Aspect::BoltCapacity});
  }

  void ShowCapacity(SheetWriter& writer, NumberPattern pattern) const {
    const auto& primary = context_.Reported.Primary;
    if (!primary.IsThere()) return;
    writer.Figure(primary.Value().Capacity);
    if (IsReported()) writer.ShowAs(InReport, FormatNumber(primary.Value().Capacity, pattern), SheetUnit::Force);
  }

  void Densities() {
    SheetWriter writer(sheet_, "actual-psup", "PSUP, RDI and PRSUP of the primary bolts");
    const SheetNumber length = InFeetStep(writer, "Length of the primary bolts", design_.Primary.Length);
    const SheetNumber spacing = InFeetStep(writer, "Row spacing of the primary bolts", design_.Primary.RowSpacing);
    const SheetNumber width = InFeetStep(writer, "Entry width", design_.Place.EntryWidth);
    const SheetNumber count = InputNumber(design_.Primary.BoltsperRow);
    const auto pattern = [&](const SheetNumber& capacity) {
      return std::vector<SheetNumber>{length, count, capacity, spacing, width};
    };
    writer.Step(Law::SupportDensity, "Actual PSUP", pattern(yield_));
    writer.Note("It takes the yield capacity of the bolts.");
    ShowDensity(writer, &PrimaryFigures::ActualPSUP);
    if (const auto live = context_.Live.LivePSUP.ValueOr({})) {
      writer.ShowAs(InDialog, FormatNumber(*live, OneDecimal), SheetUnit::None);
    }
    SheetNumber grade = bolt_.Grade;
    if (design_.Basis == StrengthBasis::Yield) grade = UltimateStep(writer, Bolt, grade, context_.catalogs);
    const SheetNumber ultimate =
        writer.Step(Law::BoltCapacity, "Ultimate capacity of " + Bolt, {grade, bolt_.Diameter});
    writer.Step(Law::DensityIndex, "Reinforcement Density Index (RDI)", pattern(ultimate));
    ShowDensity(writer, &PrimaryFigures::RDI);
    writer.Step(Law::SupportDensity, "PRSUP", pattern(ultimate));
    writer.Note("It takes the ultimate capacity of the bolts.");
    ShowDensity(writer, &PrimaryFigures::PRSUP);
    AddJudgements(writer, context_.Judged, Opening::Primary, {Aspect::Psup});
  }

  void ShowDensity(SheetWriter& writer, Single PrimaryFigures::*member) const {
    const auto& primary = context_.Reported.Primary;
    if (!primary.IsThere()) return;
    writer.Figure(primary.Value().*member);
    if (IsReported()) writer.ShowAs(InReport, FormatNumber(primary.Value().*member, OneDecimal), SheetUnit::None);
  }

  void RemarkIfLeftOut(SheetWriter& writer) const {
    if (design_.Primary.Analysed != 1) {
      writer.Remark(
          "The analysis of primary roof bolts is switched off: the report leaves it out, and it is not judged.");
    }
  }

  inline static const std::string Bolt = "a primary bolt";

  DesignSheet& sheet_;
  const SheetContext& context_;
  const Design& design_;
  const Computed<SuggestedFigures>& suggested_;
  bool isMetric_;
  SheetNumber span_;
  SheetNumber suggestedSpan_;
  SheetNumber depth_;
  WorkingBoltNumbers bolt_;
  SheetNumber yield_;
};

}  // namespace

void AddPrimarySupport(DesignSheet& sheet, const SheetContext& context) { PrimarySheet(sheet, context).Write(); }

}  // namespace orby
