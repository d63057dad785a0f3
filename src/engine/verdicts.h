// The judgements on a design: for each one what the design demands, what it supplies, and whether that holds.
//
// Where the report judges, these are its judgements. They may be made on any thread, and allocate no memory.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/analysis.h"

namespace orby {

enum class Aspect : std::uint8_t {
  Span,          // the sum of the diagonals is not above the suggested one
  SpanAndWidth,  // the sum of the diagonals fits the entry width
  BoltLength,    // of primary bolts, against the suggested one
  BoltCapacity,  // of one bolt, against the smallest one of the standard
  Psup,          // against the suggested one
  Supplement,    // the suggested PSUP needs no supplemental support
  Cables,        // the capacity of a system, against the rock load
  Trusses,
  Bolts,
  Standing,
  CableAnchorage,  // the length beyond the rock load height
  BoltAnchorage,
};
inline constexpr std::size_t AspectCount = 12;

// The judgement on the capacity of each system, in the order of SecondarySupport::Systems.
inline constexpr std::array<Aspect, SystemCount> SystemAspects{Aspect::Cables, Aspect::Trusses, Aspect::Bolts,
                                                               Aspect::Standing};

// Where the judged support is.
enum class Opening : std::uint8_t { Primary, Entries, Intersections };
inline constexpr std::size_t OpeningCount = 3;

// From the best to the worst.
enum class Holding : std::uint8_t { Holds, Check, Uncomputed, Short };

// Why a judgement cannot be made.
enum class Missing : std::uint8_t {
  Nothing,
  Site,      // roof rating, depth, span or entry width
  Pattern,   // length, number, diameter, grade or row spacing of the primary bolts
  RockLoad,  // there is none for the unit weight, height, width, span and angles
  Spacing,   // the system has no row spacing, or no bolts in a row
  Result,    // the computation ended with a run-time error
};

struct Verdict {
  Aspect What{};
  Opening Where{};
  Holding Result{};
  Missing Reason{};  // of Uncomputed
  int Error = 0;     // the number of the run-time error, for Missing::Result
  // In the units of the design: ft (m) for spans and lengths, tons (kN) for a bolt and for intersections, tons/ft
  // (kN/m) for the systems of entries.
  Single Demand = 0;
  Single Supply = 0;
  Single Factor = 0;           // the unrounded stability factor of a system
  Single WantedFactor = 0;     // that of the project
  bool ReportDiffers = false;  // the report judges by a field of another tab

  bool operator==(const Verdict&) const = default;
};

// Returns true when the demand is the most that the supply may be, as for the sum of the diagonals.
constexpr bool IsUpperLimit(Aspect what) { return what == Aspect::Span || what == Aspect::Supplement; }

// Returns how much of the demand is missing, or how far the supply is above its limit: 0.32 for 32 %. Returns 0 when
// nothing is missing.
double ShareMissing(const Verdict& verdict);

class Verdicts {
 public:
  static constexpr std::size_t Most = 20;

  std::span<const Verdict> All() const { return {verdicts_.data(), count_}; }
  // A verdict with a number that no Single can hold becomes an overflow.
  void Add(const Verdict& verdict);
  std::size_t Count(Holding result) const;

 private:
  std::array<Verdict, Most> verdicts_{};
  std::size_t count_ = 0;
};

// Returns the places of the judgements in All, the worst first. Equal ones keep their order. Allocates memory.
std::vector<std::size_t> WorstFirst(const Verdicts& verdicts);

// Judges those parts of the design that are to be analysed, and those support systems that are in use.
Verdicts Judge(const RoofSupport& design, const Figures& figures) noexcept;

// Make those of these judgements that are on one support, which must be analysed and in use: the primary bolts, or a
// system of entries or of intersections by its index in SecondarySupport::Systems.
Verdicts JudgePrimaryBolts(const RoofSupport& design, const Figures& figures) noexcept;
Verdicts JudgeSupport(const RoofSupport& design, const Figures& figures, Opening where, std::size_t system) noexcept;

}  // namespace orby
