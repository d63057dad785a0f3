#include "studies/studied_support.h"

#include <algorithm>
#include <array>
#include <limits>

namespace orby {
namespace {

// In the order of SecondarySupport::Systems.
constexpr std::array<PricedSupport, SystemCount> Systems{PricedSupport::Cable, PricedSupport::Truss,
                                                         PricedSupport::Bolt, PricedSupport::Standing};

struct AspectOfSupport {
  Aspect Judged;
  PricedSupport What;
};

constexpr AspectOfSupport AspectsOfSupports[] = {
    {Aspect::BoltLength, PricedSupport::Bolt},    {Aspect::BoltCapacity, PricedSupport::Bolt},
    {Aspect::Psup, PricedSupport::Bolt},          {Aspect::Cables, PricedSupport::Cable},
    {Aspect::Trusses, PricedSupport::Truss},      {Aspect::Bolts, PricedSupport::Bolt},
    {Aspect::Standing, PricedSupport::Standing},  {Aspect::CableAnchorage, PricedSupport::Cable},
    {Aspect::BoltAnchorage, PricedSupport::Bolt},
};

bool IsLongButFine(const Verdict& verdict) {
  return verdict.What == Aspect::BoltLength && verdict.Result == Holding::Check;
}

}  // namespace

std::size_t SystemIndex(PricedSupport what) {
  return static_cast<std::size_t>(std::ranges::find(Systems, what) - Systems.begin());
}

std::vector<StudiedSupport> StudiedSupports(const RoofSupport& design) {
  std::vector<StudiedSupport> supports;
  if (design.Primary.Analysed == 1) supports.push_back({Opening::Primary, PricedSupport::Bolt});
  const auto add = [&](Opening where, const SecondarySupport& support) {
    if (support.Analysed != 1) return;
    const auto systems = support.Systems();
    for (std::size_t i = 0; i < SystemCount; ++i) {
      if (systems[i]->Use == 1) supports.push_back({where, Systems[i]});
    }
  };
  add(Opening::Entries, design.Entries);
  add(Opening::Intersections, design.Intersections);
  return supports;
}

std::optional<StudiedSupport> SupportOf(const Verdict& verdict) {
  const auto* found = std::ranges::find(AspectsOfSupports, verdict.What, &AspectOfSupport::Judged);
  if (found == std::end(AspectsOfSupports)) return std::nullopt;
  return StudiedSupport{verdict.Where, found->What};
}

bool LetsHold(const Verdict& verdict) {
  if (IsLongButFine(verdict)) return true;
  // The wanted factor may be a number that nothing can hold. No factor reaches that.
  return verdict.Result == Holding::Holds && verdict.Factor >= verdict.WantedFactor;
}

bool LacksStandingSpacing(const RoofSupport& design, const StudiedSupport& support) {
  return support == StudiedSupport{Opening::Entries, PricedSupport::Truss} && design.Entries.Standing.RowSpacing == 0;
}

bool Assessment::Holds() const { return std::ranges::all_of(Found.All(), LetsHold); }

bool Assessment::IsLongerThanNeeded() const { return std::ranges::any_of(Found.All(), IsLongButFine); }

double Assessment::Margin() const {
  double least = std::numeric_limits<double>::infinity();
  for (const Verdict& verdict : Found.All()) {
    if (verdict.Demand > 0) least = std::min(least, static_cast<double>(verdict.Supply) / verdict.Demand - 1);
  }
  return least;
}

Assessment Assess(const RoofSupport& design, const Catalogs& catalogs, const StudiedSupport& support) {
  const Figures figures = Analyze(design, catalogs);
  if (support.Where == Opening::Primary) return {JudgePrimaryBolts(design, figures)};
  return {JudgeSupport(design, figures, support.Where, SystemIndex(support.What))};
}

}  // namespace orby
