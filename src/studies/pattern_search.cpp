#include "studies/pattern_search.h"

#include <algorithm>
#include <array>

#include "studies/lever_table.h"
#include "studies/pattern_ranking.h"
#include "studies/trial.h"

namespace orby {

// Turns the levers like the wheels of a counter, the spacing first.
class PatternSearch::Work {
 public:
  Work(const Design& design, const Catalogs& catalogs, const PriceList& prices, const StudiedSupport& support,
       const PatternLimits& limits, std::size_t mostKept)
      : catalogs_(catalogs),
        support_(support),
        levers_(LeversInTable(support)),
        trial_(design, catalogs_, support),
        mostKept_(mostKept),
        best_(mostKept) {
    if (FaultOf(limits, design.Units, prices, support)) return;
    for (const Lever lever : NumberLevers) {
      if (!levers_.Of(lever).Field) continue;
      ValuesOf(lever) = BuiltValues(support, lever, RangeOf(limits, lever), design.Units, prices);
      wheels_[WheelOf(lever)].Positions = ValuesOf(lever).size();
    }
    if (support.What != PricedSupport::Truss) {
      items_ = BuiltItems(catalogs, design.Units, support);
      wheels_[ItemWheel].Positions = items_.size();
    }
    total_ = 1;
    for (const Wheel& wheel : wheels_) total_ *= wheel.Positions;
    for (std::size_t wheel = 0; wheel < wheels_.size() && total_ > 0; ++wheel) Set(wheel);
    LoadPrices(prices);
  }

  bool Step(std::size_t count) {
    for (; count > 0 && done_ < total_; --count) {
      Examine();
      ++done_;
      if (done_ < total_) Turn();
    }
    return done_ == total_;
  }

  std::size_t Total() const { return total_; }
  std::size_t Done() const { return done_; }

  FoundPatterns Found() const {
    std::vector<Ranked> ranked = best_.All();
    for (const auto& [cost, pattern] : front_.ByCost()) ranked.push_back(pattern);
    std::ranges::sort(ranked, Before);
    const auto isSame = [](const Ranked& a, const Ranked& b) { return a.Order == b.Order; };
    ranked.erase(std::unique(ranked.begin(), ranked.end(), isSame), ranked.end());

    FoundPatterns found{.Ranked = {}, .NotPriced = notPriced_, .HoldingPriced = priced_, .HoldingNotPriced = unpriced_};
    found.Ranked.reserve(ranked.size());
    for (const Ranked& pattern : ranked) {
      const auto onFront = front_.ByCost().find(*pattern.Found.Cost.Dollars);
      found.Ranked.push_back(pattern.Found);
      found.Ranked.back().IsOnFront = onFront != front_.ByCost().end() && onFront->second.Order == pattern.Order;
    }
    return found;
  }

 private:
  // A lever that the search turns: the number of its positions and the present one.
  struct Wheel {
    std::size_t Positions = 1;
    std::size_t At = 0;
  };

  static constexpr std::size_t SpacingWheel = 0;
  static constexpr std::size_t NumberWheel = 1;
  static constexpr std::size_t LengthWheel = 2;
  static constexpr std::size_t ItemWheel = 3;

  static std::size_t WheelOf(Lever lever) {
    if (lever == Lever::Spacing) return SpacingWheel;
    return lever == Lever::Number ? NumberWheel : LengthWheel;
  }
  std::vector<Single>& ValuesOf(Lever lever) { return values_[WheelOf(lever)]; }

  // Finds the price of each piece, by item and length.
  void LoadPrices(const PriceList& prices) {
    const std::size_t lengths = wheels_[LengthWheel].Positions;
    for (std::size_t item = 0; item < wheels_[ItemWheel].Positions; ++item) {
      for (std::size_t length = 0; length < lengths; ++length) {
        Pattern pattern;
        if (!items_.empty()) pattern.Item = items_[item];
        if (!values_[LengthWheel].empty()) pattern.Length = values_[LengthWheel][length];
        prices_.push_back(PriceOfPiece(prices, catalogs_, trial_.Tried().Units, support_, pattern));
      }
    }
  }

  void Turn() {
    for (std::size_t wheel = 0; wheel < wheels_.size(); ++wheel) {
      const bool isRound = ++wheels_[wheel].At == wheels_[wheel].Positions;
      if (isRound) wheels_[wheel].At = 0;
      if (wheels_[wheel].Positions > 1) Set(wheel);
      if (!isRound) return;
    }
  }

  // Sets the lever of a wheel in the design that is tried.
  void Set(std::size_t wheel) {
    const std::size_t at = wheels_[wheel].At;
    if (wheel == ItemWheel) {
      if (items_.empty()) return;
      pattern_.Item = items_[at];
      SetItem(trial_.Tried(), catalogs_, support_, items_[at]);
      return;
    }
    if (values_[wheel].empty()) return;
    constexpr std::array<Lever, 3> Turned{Lever::Spacing, Lever::Number, Lever::Length};
    const std::array<Single*, 3> members{&pattern_.Spacing, &pattern_.Number, &pattern_.Length};
    *members.at(wheel) = values_[wheel][at];
    levers_.Of(Turned.at(wheel)).Field->In(trial_.Tried()) = values_[wheel][at];
  }

  void Examine() {
    const Assessment judged = trial_.Judge();
    if (!judged.Holds()) return;
    const auto price = prices_[wheels_[ItemWheel].At * wheels_[LengthWheel].Positions + wheels_[LengthWheel].At];
    const FoundPattern found{.Values = pattern_,
                             .Cost = CostOf(trial_.Tried().Cost, support_, pattern_, price),
                             .Margin = judged.Margin(),
                             .Pieces = PiecesPerAdvance(support_, pattern_),
                             .IsLongerThanNeeded = judged.IsLongerThanNeeded()};
    if (!found.Cost.Dollars) {
      ++unpriced_;
      if (notPriced_.size() < mostKept_) notPriced_.push_back(found);
      return;
    }
    ++priced_;
    const Ranked ranked{found, done_};
    best_.Add(ranked);
    front_.Add(ranked);
  }

  Catalogs catalogs_;
  StudiedSupport support_;
  const SupportLevers& levers_;
  Trial trial_;
  std::size_t mostKept_;

  std::array<std::vector<Single>, 3> values_;  // of the wheels of numbers; empty without such a lever
  std::vector<std::size_t> items_;
  std::vector<std::optional<Single>> prices_;
  std::array<Wheel, 4> wheels_{};
  Pattern pattern_;
  std::size_t total_ = 0;
  std::size_t done_ = 0;

  BestPatterns best_;
  Front front_;
  std::vector<FoundPattern> notPriced_;
  std::size_t priced_ = 0;
  std::size_t unpriced_ = 0;
};

PatternSearch::PatternSearch(const Design& design, const Catalogs& catalogs, const PriceList& prices,
                             const StudiedSupport& support, const PatternLimits& limits, std::size_t mostKept)
    : work_(std::make_unique<Work>(design, catalogs, prices, support, limits, mostKept)) {}

PatternSearch::~PatternSearch() = default;
PatternSearch::PatternSearch(PatternSearch&&) noexcept = default;
PatternSearch& PatternSearch::operator=(PatternSearch&&) noexcept = default;

bool PatternSearch::Step(std::size_t count) { return work_->Step(count); }
std::size_t PatternSearch::Total() const { return work_->Total(); }
std::size_t PatternSearch::Done() const { return work_->Done(); }
FoundPatterns PatternSearch::Found() const { return work_->Found(); }

}  // namespace orby
