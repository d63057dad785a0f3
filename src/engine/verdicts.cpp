#include "engine/verdicts.h"

#include <algorithm>
#include <cmath>

#include "engine/formulas.h"

namespace orby {
namespace {

Verdict Failed(Aspect what, Opening where, int error) {
  return {.What = what, .Where = where, .Result = Holding::Uncomputed, .Reason = Missing::Result, .Error = error};
}

Verdict Incomplete(Aspect what, Opening where, Missing reason) {
  return {.What = what, .Where = where, .Result = Holding::Uncomputed, .Reason = reason};
}

constexpr Holding ShortIf(bool isShort) { return isShort ? Holding::Short : Holding::Holds; }

bool HasSite(const RoofSupport& design) {
  const Site& place = design.Place;
  return place.CMRR >= 0 && place.EntryWidth > 0 && place.ActualSpanDiagonals > 0 && place.DepthofCover >= 0 &&
         design.Primary.StabilityFactor > 0;
}

bool HasPattern(const RoofSupport& design) {
  const PrimarySupport& primary = design.Primary;
  const Bolt bolt = SelectedBolt(primary);
  return primary.Length > 0 && primary.BoltsperRow > 0 && primary.RowSpacing > 0 && bolt.Diameter > 0 && bolt.Grade > 0;
}

// ---- primary support -----------------------------------------------------------------------------------------------

class PrimaryJudge {
 public:
  PrimaryJudge(const RoofSupport& theDesign, const Figures& theFigures, Verdicts& found)
      : design_(theDesign), figures_(theFigures), found_(found) {}

  void JudgeSite() {
    const Aspect ofSite[] = {Aspect::Span, Aspect::SpanAndWidth, Aspect::Supplement};
    if (!HasSite(design_) || !figures_.Suggested.IsThere()) {
      for (const Aspect what : ofSite) AddWithoutSite(what);
      return;
    }
    const SuggestedFigures suggested = figures_.Suggested.ValueOr({});
    const Single span = design_.Place.ActualSpanDiagonals;
    Add({.What = Aspect::Span,
         .Result = ShortIf(suggested.SpanIsTooLarge),
         .Demand = suggested.SuggestedSpan,
         .Supply = span});
    const Feet smallest = MinimumSumDiagonals(InFeet(design_.Place.EntryWidth, design_.Units), design_.Units);
    Add({.What = Aspect::SpanAndWidth,
         .Result = suggested.SpanAndWidthMismatch ? Holding::Check : Holding::Holds,
         .Demand = design_.Units == Metric ? static_cast<Single>(smallest.Value / FeetPerMetre) : smallest.Value,
         .Supply = span});
    Add({.What = Aspect::Supplement,
         .Result = suggested.SugPSUP > MostWithoutSupplement ? Holding::Check : Holding::Holds,
         .Demand = MostWithoutSupplement,
         .Supply = suggested.SugPSUP});
  }

  void JudgeLengthOfBolts() {
    if (!HasSite(design_) || !figures_.Suggested.IsThere()) return AddWithoutSite(Aspect::BoltLength);
    if (!(design_.Primary.Length > 0)) return AddIncomplete(Aspect::BoltLength, Missing::Pattern);
    const Comparison length{.Actual = design_.Primary.Length, .Suggested = figures_.Suggested.ValueOr({}).SugLength};
    const LengthVerdict judged = JudgeLength(length, design_.Units);
    Add({.What = Aspect::BoltLength,
         .Result = judged == LengthVerdict::TooLong ? Holding::Check : ShortIf(judged == LengthVerdict::TooShort),
         .Demand = length.Suggested,
         .Supply = length.Actual});
  }

  void JudgePsupOfBolts() {
    if (!HasSite(design_) || !figures_.Suggested.IsThere()) return AddWithoutSite(Aspect::Psup);
    if (!HasPattern(design_)) return AddIncomplete(Aspect::Psup, Missing::Pattern);
    if (!figures_.Primary.IsThere()) return Add(Failed(Aspect::Psup, Opening::Primary, figures_.Primary.Error()));
    const PrimaryFigures primary = figures_.Primary.ValueOr({});
    Add({.What = Aspect::Psup,
         .Result = ShortIf(primary.Psup == PsupVerdict::TooLow),
         .Demand = figures_.Suggested.ValueOr({}).SugPSUP,
         .Supply = primary.ActualPSUP});
  }

 private:
  void Add(const Verdict& verdict) { found_.Add(verdict); }
  void AddIncomplete(Aspect what, Missing reason) { Add(Incomplete(what, Opening::Primary, reason)); }
  void AddWithoutSite(Aspect what) {
    if (!HasSite(design_)) return AddIncomplete(what, Missing::Site);
    Add(Failed(what, Opening::Primary, figures_.Suggested.Error()));
  }

  const RoofSupport& design_;
  const Figures& figures_;
  Verdicts& found_;
};

// The capacity of one bolt of a set, by its numbers in English units.
Verdict JudgeCapacity(Opening where, const BoltSelection& set, const Computed<WorkingNumbers>& working,
                      const WorkingBolt& bolt, UnitSystem units) {
  const Bolt selected = SelectedBolt(set);
  if (!(selected.Diameter > 0 && selected.Grade > 0)) return Incomplete(Aspect::BoltCapacity, where, Missing::Pattern);
  if (!working.IsThere()) return Failed(Aspect::BoltCapacity, where, working.Error());
  const auto capacity = Attempt([&] { return BoltCapacityCheck(bolt.Grade, bolt.Diameter, units); });
  if (!capacity.IsThere()) return Failed(Aspect::BoltCapacity, where, capacity.Error());
  return {.What = Aspect::BoltCapacity,
          .Where = where,
          .Result = ShortIf(FailsASTM(bolt, units)),
          .Demand = SmallestCapacity(units),
          .Supply = capacity.ValueOr(0)};
}

WorkingBolt BoltOf(const BoltPattern& pattern) { return {.Diameter = pattern.Diameter, .Grade = pattern.Grade}; }

// ---- secondary support ---------------------------------------------------------------------------------------------

Verdict JudgeSystem(std::size_t system, Opening where, const SupportFigures& figures, Single wantedFactor) {
  constexpr Aspect Aspects[] = {Aspect::Cables, Aspect::Trusses, Aspect::Bolts, Aspect::Standing};
  const Aspect what = Aspects[system];
  if (!figures.RockLoad.IsThere()) return Failed(what, where, figures.RockLoad.Error());
  const auto rockLoad = figures.RockLoad.ValueOr({});
  if (!rockLoad) return Incomplete(what, where, Missing::RockLoad);
  const auto& computed = figures.Systems[system];
  if (!computed.IsThere()) return Failed(what, where, computed.Error());
  const auto support = computed.ValueOr({});
  if (!support) return Incomplete(what, where, Missing::Spacing);
  Holding result = Holding::Holds;
  if (support->StabilityFactor < wantedFactor) result = Holding::Check;
  if (support->StabilityFactor < 1) result = Holding::Short;
  return {.What = what,
          .Where = where,
          .Result = result,
          .Demand = *rockLoad,
          .Supply = support->Capacity,
          .Factor = support->StabilityFactor,
          .WantedFactor = wantedFactor};
}

Verdict JudgeAnchorage(Aspect what, Opening where, Single length, double anchorage, Single height) {
  return {.What = what,
          .Where = where,
          .Result = ShortIf(IsTooShort(length, anchorage, height)),
          .Demand = static_cast<Single>(height + anchorage),
          .Supply = length};
}

void JudgeSecondary(Opening where, const SecondarySupport& support, const SupportFigures& figures,
                    const RoofSupport& design, Verdicts& found) {
  const auto systems = support.Systems();
  for (std::size_t i = 0; i < SystemCount; ++i) {
    if (systems[i]->Use == 1) found.Add(JudgeSystem(i, where, figures, design.Primary.StabilityFactor));
  }
  const Anchorage anchorage = AnchorageIn(design.Units);
  const Single height = support.RockLoadHeight;
  if (support.Cable.Use == 1) {
    found.Add(JudgeAnchorage(Aspect::CableAnchorage, where, support.Cable.Length, anchorage.Cables, height));
  }
  if (support.Bolt.Use == 1) {
    Verdict verdict = JudgeAnchorage(Aspect::BoltAnchorage, where, support.Bolt.Length, anchorage.Bolts, height);
    // In both places the report uses the bolts and the rock of the entries.
    const bool reported = IsTooShort(design.Entries.Bolt.Length, anchorage.Bolts, design.Entries.RockLoadHeight);
    verdict.ReportDiffers = reported != (verdict.Result == Holding::Short);
    found.Add(verdict);
  }
}

}  // namespace

double ShareMissing(const Verdict& verdict) {
  if (verdict.Result != Holding::Short || !(verdict.Demand > 0)) return 0;
  const double share = 1 - static_cast<double>(verdict.Supply) / verdict.Demand;
  return std::max(IsUpperLimit(verdict.What) ? -share : share, 0.0);
}

void Verdicts::Add(const Verdict& verdict) {
  const bool fits = std::isfinite(verdict.Demand) && std::isfinite(verdict.Supply) && std::isfinite(verdict.Factor);
  verdicts_.at(count_++) = fits ? verdict : Failed(verdict.What, verdict.Where, error_number::Overflow);
}

std::size_t Verdicts::Count(Holding result) const {
  return static_cast<std::size_t>(std::ranges::count(All(), result, &Verdict::Result));
}

Verdicts Judge(const RoofSupport& design, const Figures& figures) noexcept {
  Verdicts found;
  const WorkingNumbers working = figures.Working.ValueOr({});
  if (design.Primary.Analysed == 1) {
    PrimaryJudge judge(design, figures, found);
    judge.JudgeSite();
    judge.JudgeLengthOfBolts();
    found.Add(JudgeCapacity(Opening::Primary, design.Primary, figures.Working, BoltOf(working.Primary), design.Units));
    judge.JudgePsupOfBolts();
  }
  if (design.Entries.Analysed == 1) {
    JudgeSecondary(Opening::Entries, design.Entries, figures.Entries, design, found);
    if (design.Entries.Bolt.Use == 1) {
      found.Add(JudgeCapacity(Opening::Entries, design.Entries.Bolt, figures.Working, BoltOf(working.EntryBolts),
                              design.Units));
    }
  }
  if (design.Intersections.Analysed == 1) {
    JudgeSecondary(Opening::Intersections, design.Intersections, figures.Intersections, design, found);
    if (design.Intersections.Bolt.Use == 1) {
      found.Add(JudgeCapacity(Opening::Intersections, design.Intersections.Bolt, figures.Working,
                              working.IntersectionBolt, design.Units));
    }
  }
  return found;
}

}  // namespace orby
