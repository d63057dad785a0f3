#include "sketches/contours.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace orby {
namespace {

// A point of a contour: a point of the grid, or the cut between it and the next one of its row or of its column.
enum class Spot : std::uint8_t { Node, ToNextColumn, ToNextRow };
using SpotId = std::uint64_t;
constexpr SpotId Spots = 3;

struct Step {
  SpotId From = 0;
  SpotId To = 0;
};

// Goes around each cell with the inside on its left, and collects the steps of the contour.
class Tracer {
 public:
  Tracer(const ContourGrid& grid, double level, const ContourCuts* cuts) : grid_(grid), level_(level), cuts_(cuts) {}

  void Trace(bool hasBorders) {
    for (std::size_t row = 0; row + 1 < grid_.Rows; ++row) {
      for (std::size_t column = 0; column + 1 < grid_.Columns; ++column) {
        if (!IsWhole(column, row)) continue;
        AddCuts(column, row);
        if (hasBorders) AddBorders(column, row);
      }
    }
  }

  // Links the steps to lines: first those that begin somewhere, then the closed ones.
  std::vector<ContourLine> Take() {
    std::ranges::sort(steps_, {}, [](const Step& step) { return std::pair(step.From, step.To); });
    isUsed_.assign(steps_.size(), false);
    std::vector<SpotId> ends(steps_.size());
    std::ranges::transform(steps_, ends.begin(), &Step::To);
    std::ranges::sort(ends);
    std::vector<ContourLine> lines;
    for (const bool isClosed : {false, true}) {
      for (std::size_t i = 0; i < steps_.size(); ++i) {
        const bool begins = !std::ranges::binary_search(ends, steps_[i].From);
        if (!isUsed_[i] && (isClosed || begins)) lines.push_back(LineFrom(i, isClosed));
      }
    }
    return lines;
  }

 private:
  struct Corner {
    std::size_t Column = 0;
    std::size_t Row = 0;
  };

  bool IsInside(const Corner& at) const { return grid_.At(at.Column, at.Row) >= level_; }

  bool IsWhole(std::size_t column, std::size_t row) const {
    return column + 1 < grid_.Columns && row + 1 < grid_.Rows && grid_.Has(column, row) && grid_.Has(column + 1, row) &&
           grid_.Has(column, row + 1) && grid_.Has(column + 1, row + 1);
  }

  static std::array<Corner, 4> CornersOf(std::size_t column, std::size_t row) {
    return {{{column, row}, {column + 1, row}, {column + 1, row + 1}, {column, row + 1}}};
  }

  SpotId IdOf(const Corner& at, Spot spot) const {
    return (at.Row * grid_.Columns + at.Column) * Spots + static_cast<SpotId>(spot);
  }
  SpotId NodeAt(const Corner& at) const { return IdOf(at, Spot::Node); }
  SpotId CutBetween(const Corner& one, const Corner& other) const {
    const Corner first{std::min(one.Column, other.Column), std::min(one.Row, other.Row)};
    return IdOf(first, one.Row == other.Row ? Spot::ToNextColumn : Spot::ToNextRow);
  }

  void AddCuts(std::size_t column, std::size_t row) {
    const std::array<Corner, 4> corners = CornersOf(column, row);
    std::array<SpotId, 2> exits{};
    std::array<SpotId, 2> entries{};
    std::size_t count = 0;
    // Begins at a side on which the way goes out, so that an entry follows each exit.
    std::size_t first = 0;
    while (first < 4 && !(IsInside(corners[first]) && !IsInside(corners[(first + 1) % 4]))) ++first;
    if (first == 4) return;
    for (std::size_t i = first; i < first + 4; ++i) {
      const Corner& from = corners[i % 4];
      const Corner& to = corners[(i + 1) % 4];
      if (IsInside(from) && !IsInside(to)) exits.at(count) = CutBetween(from, to);
      if (!IsInside(from) && IsInside(to)) entries.at(count++) = CutBetween(from, to);
    }
    double mean = 0;
    for (const Corner& corner : corners) mean += grid_.At(corner.Column, corner.Row) / 4;
    const bool isApart = count == 2 && mean < level_;
    for (std::size_t i = 0; i < count; ++i) steps_.push_back({exits[i], entries[isApart ? 1 - i : i]});
  }

  // Adds the inner parts of those sides that no other whole cell shares.
  void AddBorders(std::size_t column, std::size_t row) {
    const std::array<Corner, 4> corners = CornersOf(column, row);
    const std::array<bool, 4> isShared{row > 0 && IsWhole(column, row - 1), IsWhole(column + 1, row),
                                       IsWhole(column, row + 1), column > 0 && IsWhole(column - 1, row)};
    for (std::size_t side = 0; side < 4; ++side) {
      const Corner& from = corners[side];
      const Corner& to = corners[(side + 1) % 4];
      if (isShared[side] || (!IsInside(from) && !IsInside(to))) continue;
      steps_.push_back(
          {IsInside(from) ? NodeAt(from) : CutBetween(from, to), IsInside(to) ? NodeAt(to) : CutBetween(from, to)});
    }
  }

  ContourLine LineFrom(std::size_t step, bool isClosed) {
    ContourLine line;
    line.IsClosed = isClosed;
    const SpotId start = steps_[step].From;
    line.Points.push_back(PointOf(start));
    while (true) {
      isUsed_[step] = true;
      const SpotId end = steps_[step].To;
      if (end == start) return line;
      line.Points.push_back(PointOf(end));
      const auto next = std::ranges::lower_bound(steps_, end, {}, &Step::From);
      step = static_cast<std::size_t>(next - steps_.begin());
      while (step < steps_.size() && steps_[step].From == end && isUsed_[step]) ++step;
      if (step == steps_.size() || steps_[step].From != end) return line;
    }
  }

  ScenePoint PointOf(SpotId id) const {
    const std::size_t index = id / Spots;
    const std::size_t column = index % grid_.Columns;
    const std::size_t row = index / grid_.Columns;
    const auto x = static_cast<double>(column);
    const auto y = static_cast<double>(row);
    switch (static_cast<Spot>(id % Spots)) {
      case Spot::ToNextColumn: return {x + ShareTo(index, index + 1, true), y};
      case Spot::ToNextRow: return {x, y + ShareTo(index, index + grid_.Columns, false)};
      case Spot::Node: break;
    }
    return {x, y};
  }

  double ShareTo(std::size_t from, std::size_t to, bool isColumn) const {
    if (cuts_ != nullptr) return (isColumn ? cuts_->ToNextColumn : cuts_->ToNextRow)[from];
    return (level_ - grid_.Values[from]) / (grid_.Values[to] - grid_.Values[from]);
  }

  const ContourGrid& grid_;
  double level_;
  const ContourCuts* cuts_;
  std::vector<Step> steps_;
  std::vector<bool> isUsed_;
};

}  // namespace

std::vector<ContourLine> ContourLines(const ContourGrid& grid, double level, const ContourCuts* cuts) {
  Tracer tracer(grid, level, cuts);
  tracer.Trace(false);
  return tracer.Take();
}

std::vector<ContourLine> RegionAbove(const ContourGrid& grid, double level) {
  Tracer tracer(grid, level, nullptr);
  tracer.Trace(true);
  return tracer.Take();
}

}  // namespace orby
