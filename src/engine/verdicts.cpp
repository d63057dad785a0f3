#include "engine/verdicts.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

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

  void JudgeBolts() {
    JudgeLengthOfBolts();
    const WorkingNumbers working = figures_.Working.ValueOr({});
    Add(JudgeCapacity(Opening::Primary, design_.Primary, figures_.Working, BoltOf(working.Primary), design_.Units));
    JudgePsupOfBolts();
  }

 private:
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

// ---- secondary support ---------------------------------------------------------------------------------------------

Verdict JudgeSystem(std::size_t system, Opening where, const SupportFigures& figures, Single wantedFactor) {
  const Aspect what = SystemAspects.at(system);
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

// Judges the systems of entries or of intersections, each in steps.
class SecondaryJudge {
 public:
  SecondaryJudge(Opening opening, const RoofSupport& theDesign, const Figures& theFigures, Verdicts& found)
      : where_(opening),
        design_(theDesign),
        support_(opening == Opening::Entries ? theDesign.Entries : theDesign.Intersections),
        figures_(theFigures),
        found_(found) {}

  void JudgeAll() {
    const auto systems = support_.Systems();
    for (const Step step : Steps) {
      for (std::size_t i = 0; i < SystemCount; ++i) {
        if (systems[i]->Use == 1) (this->*step)(i);
      }
    }
  }
  void JudgeOne(std::size_t system) {
    for (const Step step : Steps) (this->*step)(system);
  }

 private:
  using Step = void (SecondaryJudge::*)(std::size_t system);

  bool IsCable(std::size_t system) const { return support_.Systems()[system] == &support_.Cable; }
  bool IsBolt(std::size_t system) const { return support_.Systems()[system] == &support_.Bolt; }

  void JudgeFactor(std::size_t system) {
    const SupportFigures& figures = where_ == Opening::Entries ? figures_.Entries : figures_.Intersections;
    found_.Add(JudgeSystem(system, where_, figures, design_.Primary.StabilityFactor));
  }

  void JudgeLength(std::size_t system) {
    const Anchorage anchorage = AnchorageIn(design_.Units);
    const Single height = support_.RockLoadHeight;
    if (IsCable(system)) {
      found_.Add(JudgeAnchorage(Aspect::CableAnchorage, where_, support_.Cable.Length, anchorage.Cables, height));
    }
    if (IsBolt(system)) {
      Verdict verdict = JudgeAnchorage(Aspect::BoltAnchorage, where_, support_.Bolt.Length, anchorage.Bolts, height);
      // In both places the report uses the bolts and the rock of the entries.
      const bool reported = IsTooShort(design_.Entries.Bolt.Length, anchorage.Bolts, design_.Entries.RockLoadHeight);
      verdict.ReportDiffers = reported != (verdict.Result == Holding::Short);
      found_.Add(verdict);
    }
  }

  void JudgeOneBolt(std::size_t system) {
    if (!IsBolt(system)) return;
    const WorkingNumbers working = figures_.Working.ValueOr({});
    const WorkingBolt bolt = where_ == Opening::Entries ? BoltOf(working.EntryBolts) : working.IntersectionBolt;
    found_.Add(JudgeCapacity(where_, support_.Bolt, figures_.Working, bolt, design_.Units));
  }

  static constexpr Step Steps[] = {&SecondaryJudge::JudgeFactor, &SecondaryJudge::JudgeLength,
                                   &SecondaryJudge::JudgeOneBolt};

  Opening where_;
  const RoofSupport& design_;
  const SecondarySupport& support_;
  const Figures& figures_;
  Verdicts& found_;
};

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

std::vector<std::size_t> WorstFirst(const Verdicts& verdicts) {
  const std::span<const Verdict> all = verdicts.All();
  std::vector<std::size_t> places(all.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  std::ranges::stable_sort(places, std::ranges::greater(), [all](std::size_t place) { return all[place].Result; });
  return places;
}

std::size_t Verdicts::Count(Holding result) const {
  return static_cast<std::size_t>(std::ranges::count(All(), result, &Verdict::Result));
}

Verdicts Judge(const RoofSupport& design, const Figures& figures) noexcept {
  Verdicts found;
  if (design.Primary.Analysed == 1) {
    PrimaryJudge judge(design, figures, found);
    judge.JudgeSite();
    judge.JudgeBolts();
  }
  if (design.Entries.Analysed == 1) SecondaryJudge(Opening::Entries, design, figures, found).JudgeAll();
  if (design.Intersections.Analysed == 1) SecondaryJudge(Opening::Intersections, design, figures, found).JudgeAll();
  return found;
}

Verdicts JudgePrimaryBolts(const RoofSupport& design, const Figures& figures) noexcept {
  Verdicts found;
  PrimaryJudge(design, figures, found).JudgeBolts();
  return found;
}

Verdicts JudgeSupport(const RoofSupport& design, const Figures& figures, Opening where, std::size_t system) noexcept {
  Verdicts found;
  SecondaryJudge(where, design, figures, found).JudgeOne(system);
  return found;
}

}  // namespace orby
