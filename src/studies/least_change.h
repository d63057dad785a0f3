// The least change of one lever that makes a support hold.
#pragma once

#include <cstdint>
#include <optional>

#include "studies/pattern_cost.h"

namespace orby {

enum class LeverOutcome : std::uint8_t {
  Changed,  // the change makes the support hold
  Holds,    // the support holds as it is
  NoHelp,   // no value of the lever makes the support hold
  NoLever,  // the support has no such lever in this design
};

struct LeverChange {
  LeverOutcome Outcome = LeverOutcome::NoLever;
  // The design with the change. Otherwise the design as it is.
  Design After;
  Assessment Judged;   // of the support in that design
  Pattern NewPattern;  // of the support in that design
  Single Value = 0;    // of Changed: the new value of the lever; of Lever::Item its index
  PatternCost Cost;
  // Of NoHelp: the first judgement that keeps the support from holding with every value of the lever, as it is in the
  // present design. Nothing if each judgement lets it hold with some value.
  std::optional<Verdict> Obstacle;
};

// Looks for the value nearest to the present one with which the support holds. Items, diameters and grades are nearer
// the less their strength differs. Of two values at the same distance, the lower one is taken.
LeverChange LeastChange(const Design& design, const Catalogs& catalogs, const PriceList& prices,
                        const StudiedSupport& support, Lever lever);

}  // namespace orby
