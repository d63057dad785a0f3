// All figures of a design and all judgements on it, computed only from the design and the catalogs.
//
// A figure that cannot be computed has the number of its run-time error. The functions may run on any thread. They
// allocate no memory unless a figure fails.
#pragma once

#include <array>
#include <optional>

#include "base/computed.h"
#include "design/catalog_lists.h"
#include "design/design.h"
#include "engine/primary_support.h"
#include "engine/secondary_support.h"

namespace orby {

// Primary support, with the judgements of the report, in the units of the design.
struct PrimaryFigures {
  Single ActualPSUP = 0;
  Single RDI = 0;
  Single PRSUP = 0;
  Single Capacity = 0;  // of one bolt, as the report shows it, tons (kN)
  LengthVerdict Length = LengthVerdict::Fine;
  PsupVerdict Psup = PsupVerdict::Fine;
  bool FailsASTM = false;
};

using SystemFigures = std::array<Computed<std::optional<SupportResult>>, SystemCount>;

// The figures of the dialog for the secondary support of entries or of intersections, in the units of the design.
struct SupportFigures {
  Computed<std::optional<Single>> RockLoad;  // nothing when the rock is implausible or has no weight
  // Each system in use under that load. Nothing for a system that is not in use, or that lacks an input it needs.
  SystemFigures Systems;
};

// Figures of the secondary support that only the report shows. Those of a system that is not in use are 0.
struct Reinforcement {
  Single HighestRock = 0;  // the greatest height that the fall angle allows
  bool HeightIsAdjusted = false;
  Single CableSRDI = 0;   // entries
  Single CablePRSUP = 0;  // entries
  Single BoltSRDI = 0;    // entries
  Single BoltPRSUP = 0;   // entries
  bool CablesAreShort = false;
  bool BoltsAreShort = false;
  bool BoltsFailASTM = false;
};

// The inputs of the report in English units, whatever the units of the design.
struct WorkingNumbers {
  Feet Depth{};
  Feet Span{};
  BoltPattern Primary{};
  BoltPattern EntryBolts{};
  WorkingBolt IntersectionBolt{};
  SupportPattern EntryCables{};  // the width is 0 in a design without cables in entries
};

struct Figures {
  // Figures of the dialog.
  Computed<std::optional<SuggestedFigures>> LiveSuggestion;
  Computed<std::optional<Single>> LivePSUP;
  SupportFigures Entries;
  SupportFigures Intersections;

  // Figures of the report. All of these except Suggested fail when a working number is outside the range of a Single.
  Computed<WorkingNumbers> Working;
  Computed<SuggestedFigures> Suggested;
  Computed<PrimaryFigures> Primary;
  Computed<Reinforcement> EntryReinforcement;
  Computed<Reinforcement> IntersectionReinforcement;
};

Figures Analyze(const RoofSupport& design, const Catalogs& catalogs) noexcept;

// Parts of the analysis, for a dialog that refreshes one of them. A number that is Unfit makes each figure that needs
// it fail with an overflow.
Computed<std::optional<SuggestedFigures>> LiveSuggestion(const RoofSupport& design) noexcept;
Computed<std::optional<Single>> LivePSUP(const RoofSupport& design, const Catalogs& catalogs) noexcept;
SupportFigures EntryFigures(const RoofSupport& design, const Catalogs& catalogs) noexcept;
SupportFigures IntersectionFigures(const RoofSupport& design, const Catalogs& catalogs) noexcept;

// Returns the capacity of one cable in the units of the design. Throws RuntimeError 6 for a number that is Unfit.
Single CapacityOf(const CableSelection& cable, UnitSystem units, const Catalogs& catalogs);

// Compute again, after the pattern of one support has changed, what the judgements on it are made from. The other
// figures stay as they are: `figures` are those of the design with another pattern of this support.
void RefreshPrimary(Figures& figures, const RoofSupport& design, const Catalogs& catalogs) noexcept;
void RefreshEntrySystem(Figures& figures, const RoofSupport& design, const Catalogs& catalogs,
                        std::size_t system) noexcept;
void RefreshIntersectionSystem(Figures& figures, const RoofSupport& design, const Catalogs& catalogs,
                               std::size_t system) noexcept;

}  // namespace orby
