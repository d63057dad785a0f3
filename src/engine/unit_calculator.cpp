#include "engine/unit_calculator.h"

#include <array>
#include <span>

#include "base/arithmetic.h"
#include "base/attempt.h"

namespace orby {
namespace {

enum class Step { Multiply, Divide };

// The conversion to a unit from an earlier unit of its group.
struct UnitRow {
  std::size_t from;
  Step step;
  double factor;
};

// The first unit of a group has no conversion.
constexpr UnitRow First{0, Step::Multiply, 1};

constexpr std::array LengthUnits{First, UnitRow{0, Step::Divide, 12}, UnitRow{0, Step::Multiply, 2.54},
                                 UnitRow{2, Step::Divide, 100}};
constexpr std::array LoadUnits{First, UnitRow{0, Step::Divide, 2000}, UnitRow{0, Step::Multiply, 0.004448220489393218},
                               UnitRow{2, Step::Divide, 1000}, UnitRow{0, Step::Divide, 1000}};
constexpr std::array LoadGradientUnits{First, UnitRow{0, Step::Divide, 0.08333333333333333},
                                       UnitRow{1, Step::Multiply, 0.014593899243416069},
                                       UnitRow{2, Step::Divide, 1000}};
constexpr std::array StressUnits{First, UnitRow{0, Step::Divide, 1000}, UnitRow{0, Step::Divide, 0.006944444444444444},
                                 UnitRow{0, Step::Multiply, 6894.757293}, UnitRow{3, Step::Divide, 1000000}};
constexpr std::array StressGradientUnits{First, UnitRow{0, Step::Divide, 0.08333333333333333},
                                         UnitRow{0, Step::Multiply, 271447.137519685},
                                         UnitRow{2, Step::Divide, 1000000}};

// In the order of UnitGroup.
constexpr std::array<std::span<const UnitRow>, 5> Groups{LengthUnits, LoadUnits, LoadGradientUnits, StressUnits,
                                                         StressGradientUnits};

using Result = std::optional<double>;

Result Reach(const UnitRow& row, const Result& value) {
  if (!value) return std::nullopt;
  return OrNothing(
      [&] { return Result(row.step == Step::Multiply ? Multiply(*value, row.factor) : Divide(*value, row.factor)); });
}

UnitRow Inverse(const UnitRow& row) {
  return {row.from, row.step == Step::Multiply ? Step::Divide : Step::Multiply, row.factor};
}

}  // namespace

std::vector<std::optional<double>> ConvertUnits(UnitGroup group, double value, std::size_t unit) {
  const auto rows = Groups[static_cast<std::size_t>(group)];
  Result first = value;
  for (std::size_t at = unit; at != 0; at = rows[at].from) first = Reach(Inverse(rows[at]), first);
  std::vector<Result> results{first};
  for (std::size_t i = 1; i < rows.size(); ++i) results.push_back(Reach(rows[i], results[rows[i].from]));
  results[unit] = value;
  return results;
}

}  // namespace orby
