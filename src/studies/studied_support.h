// The supports of a design that are studied: which of its judgements belong to each, and whether a support holds.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "design/prices.h"
#include "engine/verdicts.h"

namespace orby {

// The primary bolts are {Opening::Primary, PricedSupport::Bolt}. A support system is in entries or in intersections.
struct StudiedSupport {
  Opening Where{};
  PricedSupport What{};
  bool operator==(const StudiedSupport&) const = default;
};

// Returns the index of a system in SecondarySupport::Systems.
std::size_t SystemIndex(PricedSupport what);

// Returns the supports that are analysed and in use, in the order of the tabs.
std::vector<StudiedSupport> StudiedSupports(const RoofSupport& design);

// Returns the support that a judgement is on. Returns nothing for the sum of the diagonals, its fit with the entry
// width and the need of supplemental support: they follow from the site, and no pattern of support changes them.
std::optional<StudiedSupport> SupportOf(const Verdict& verdict);

// Returns true if the judgement lets its support hold: it holds, with a factor that reaches that of the project. A bolt
// longer than needed also holds.
bool LetsHold(const Verdict& verdict);

// Returns true if trusses of entries have no figures because the standing supports there have no row spacing. No lever
// of the trusses changes that.
bool LacksStandingSpacing(const RoofSupport& design, const StudiedSupport& support);

// The judgements on one support.
struct Assessment {
  Verdicts Found;

  bool Holds() const;
  bool IsLongerThanNeeded() const;  // of primary bolts
  // Returns the least of supply / demand - 1 over the judgements with a demand: 0.25 for 25 % more than is needed.
  // Negative if one is short. Requires that it holds.
  double Margin() const;
};

Assessment Assess(const RoofSupport& design, const Catalogs& catalogs, const StudiedSupport& support);

}  // namespace orby
