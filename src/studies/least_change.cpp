#include "studies/least_change.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "design/choices.h"
#include "studies/lever_table.h"
#include "studies/trial.h"

namespace orby {
namespace {

// A value of the lever, or the index of an item.
struct Candidate {
  double Distance = 0;  // from the present value
  double Size = 0;      // the value itself, or the strength of the item
  Single Value = 0;
};

// Sets the lever to a value.
using LeverSetter = void (*)(Design& design, const Catalogs& catalogs, const StudiedSupport& support, Lever lever,
                             Single value);

void SetNumber(Design& design, const Catalogs&, const StudiedSupport& support, Lever lever, Single value) {
  LeversInTable(support).Of(lever).Field->In(design) = value;
}

void SetItemByValue(Design& design, const Catalogs& catalogs, const StudiedSupport& support, Lever, Single value) {
  SetItem(design, catalogs, support, static_cast<std::size_t>(value));
}

void SetDiameter(Design& design, const Catalogs&, const StudiedSupport& support, Lever, Single value) {
  BoltSelection& bolts = *BoltsOf(design, support);
  bolts.DiameterMode = ValueSource::Standard;
  bolts.DiameterStd = value;
}

void SetGrade(Design& design, const Catalogs&, const StudiedSupport& support, Lever, Single value) {
  BoltSelection& bolts = *BoltsOf(design, support);
  bolts.GradeMode = ValueSource::Standard;
  bolts.GradeStd = value;
}

// By Lever.
constexpr std::array<LeverSetter, LeverCount> Setters{SetNumber,      SetNumber,   SetNumber,
                                                      SetItemByValue, SetDiameter, SetGrade};

// Collects the values of a lever other than the present one, the nearest first.
class CandidateList {
 public:
  CandidateList(const Design& design, const Catalogs& catalogs, const PriceList& prices, const StudiedSupport& support)
      : design_(design), catalogs_(catalogs), prices_(prices), support_(support) {}

  std::vector<Candidate> Of(Lever lever) {
    switch (lever) {
      case Lever::Spacing:
      case Lever::Number:
      case Lever::Length: AddNumbers(lever); break;
      case Lever::Item: AddItems(); break;
      case Lever::Diameter:
        AddEntries(OfferedBoltDiameters(catalogs_, design_.Units), SelectedBolt(*BoltsOf(design_, support_)).Diameter);
        break;
      case Lever::Grade:
        AddEntries(OfferedBoltGrades(catalogs_, design_.Units, design_.Basis),
                   SelectedBolt(*BoltsOf(design_, support_)).Grade);
        break;
    }
    std::ranges::sort(candidates_, {}, [](const Candidate& candidate) {
      return std::tuple(candidate.Distance, candidate.Size, candidate.Value);
    });
    return std::move(candidates_);
  }

 private:
  void Add(double size, Single value, double present) {
    // A present number that nothing can hold is as far from all values as 0 is.
    candidates_.push_back({std::abs(size - (std::isfinite(present) ? present : 0)), size, value});
  }

  void AddNumbers(Lever lever) {
    const Single present = LeversInTable(support_).Of(lever).Field->In(design_);
    const LeverRange range = RangeOf(WidestLimits(design_.Units, support_), lever);
    for (const Single value : BuiltValues(support_, lever, range, design_.Units, prices_)) {
      if (value != present) Add(value, value, present);
    }
  }

  void AddItems() {
    const auto presentItem = PatternOf(design_, catalogs_, support_).Item;
    const double present = StrengthOf(design_, catalogs_, support_);
    Design changed = design_;
    for (const std::size_t item : BuiltItems(catalogs_, design_.Units, support_)) {
      if (item == presentItem) continue;
      SetItem(changed, catalogs_, support_, item);
      Add(StrengthOf(changed, catalogs_, support_), static_cast<Single>(item), present);
    }
  }

  void AddEntries(const CatalogList& list, Single present) {
    for (std::size_t i = 0; i < list.Count(); ++i) {
      const Single value = InSevenDigits(list[i]);
      if (value != present) Add(value, value, present);
    }
  }

  const Design& design_;
  const Catalogs& catalogs_;
  const PriceList& prices_;
  const StudiedSupport& support_;
  std::vector<Candidate> candidates_;
};

// The judgements that have not let the support hold with any value so far.
class Obstacles {
 public:
  explicit Obstacles(const Assessment& present) : present_(present) { Note(present); }

  void Note(const Assessment& tried) {
    const auto all = tried.Found.All();
    for (std::size_t i = 0; i < all.size(); ++i) isMet_.at(i) = isMet_.at(i) || LetsHold(all[i]);
  }
  std::optional<Verdict> First() const {
    const auto all = present_.Found.All();
    for (std::size_t i = 0; i < all.size(); ++i) {
      if (!isMet_.at(i)) return all[i];
    }
    return std::nullopt;
  }

 private:
  Assessment present_;
  std::array<bool, Verdicts::Most> isMet_{};
};

}  // namespace

LeverChange LeastChange(const Design& design, const Catalogs& catalogs, const PriceList& prices,
                        const StudiedSupport& support, Lever lever) {
  Trial trial(design, catalogs, support);
  LeverChange change;
  const auto end = [&](LeverOutcome outcome, const Design& after) {
    change.Outcome = outcome;
    change.After = after;
    change.NewPattern = PatternOf(after, catalogs, support);
    change.Cost = CostOf(after, catalogs, prices, support);
    return change;
  };
  change.Judged = trial.Judge();
  if (!std::ranges::count(LeversOf(design, support), lever)) return end(LeverOutcome::NoLever, design);
  if (change.Judged.Holds()) return end(LeverOutcome::Holds, design);

  Obstacles obstacles(change.Judged);
  for (const Candidate& candidate : CandidateList(design, catalogs, prices, support).Of(lever)) {
    trial.Tried() = design;
    Setters[static_cast<std::size_t>(lever)](trial.Tried(), catalogs, support, lever, candidate.Value);
    const Assessment tried = trial.Judge();
    obstacles.Note(tried);
    if (!tried.Holds()) continue;
    change.Judged = tried;
    change.Value = candidate.Value;
    return end(LeverOutcome::Changed, trial.Tried());
  }
  change.Obstacle = obstacles.First();
  return end(LeverOutcome::NoHelp, design);
}

}  // namespace orby
