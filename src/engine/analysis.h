// Every figure of a design and each judgement on it, computed from the design and the lists alone.
//
// A figure that cannot be computed says so and gives the number of the run-time error. The functions may run on any
// thread; they allocate nothing unless a figure fails.
#pragma once

#include <array>
#include <optional>

#include "base/computed.h"
#include "design/catalog_lists.h"
#include "design/design.h"
#include "engine/primary_support.h"
#include "engine/secondary_support.h"

namespace orby {

// Primary support as the report judges it, in the design's units.
struct PrimaryFigures {
  Single ActualPSUP = 0;
  Single RDI = 0;
  Single PRSUP = 0;
  Single Capacity = 0;  // of one bolt, tons (kN), as the report labels it
  LengthVerdict Length = LengthVerdict::Fine;
  PsupVerdict Psup = PsupVerdict::Fine;
  bool FailsASTM = false;
};

using SystemFigures = std::array<Computed<std::optional<SupportResult>>, SystemCount>;

// What the dialog shows of the secondary support of entries or of intersections, in the design's units.
struct SupportFigures {
  Computed<std::optional<Single>> RockLoad;  // nothing for implausible rock, or none
  // Of the systems in use, under that load; nothing of the others, and of those that lack a number that decides on
  // them.
  SystemFigures Systems;
};

// What the report adds to the secondary support. The figures of a system that is not in use stay 0.
struct Reinforcement {
  Single HighestRock = 0;  // that the fall angle allows
  bool HeightIsAdjusted = false;
  Single CableSRDI = 0;   // entries
  Single CablePRSUP = 0;  // entries
  Single BoltSRDI = 0;    // entries
  Single BoltPRSUP = 0;   // entries
  bool CablesAreShort = false;
  bool BoltsAreShort = false;
  bool BoltsFailASTM = false;
};

// What the report computes from, in English units whatever the design's are.
struct WorkingNumbers {
  Feet Depth{};
  Feet Span{};
  BoltPattern Primary{};
  BoltPattern EntryBolts{};
  WorkingBolt IntersectionBolt{};
  SupportPattern EntryCables{};  // its width is 0 in a design without cables in entries
};

struct Figures {
  // As the dialog shows them.
  Computed<std::optional<SuggestedFigures>> LiveSuggestion;
  Computed<std::optional<Single>> LivePSUP;
  SupportFigures Entries;
  SupportFigures Intersections;

  // As the report has them. Of a design whose working numbers are beyond a Single all but the suggestions fail.
  Computed<WorkingNumbers> Working;
  Computed<SuggestedFigures> Suggested;
  Computed<PrimaryFigures> Primary;
  Computed<Reinforcement> EntryReinforcement;
  Computed<Reinforcement> IntersectionReinforcement;
};

Figures Analyze(const RoofSupport& design, const Catalogs& catalogs) noexcept;

// Parts of the analysis, for a dialog that refreshes one of them. A number that is Unfit is an overflow in each figure
// that needs it.
Computed<std::optional<SuggestedFigures>> LiveSuggestion(const RoofSupport& design) noexcept;
Computed<std::optional<Single>> LivePSUP(const RoofSupport& design, const Catalogs& catalogs) noexcept;
SupportFigures EntryFigures(const RoofSupport& design, const Catalogs& catalogs) noexcept;
SupportFigures IntersectionFigures(const RoofSupport& design, const Catalogs& catalogs) noexcept;

}  // namespace orby
