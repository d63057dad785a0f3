#include <algorithm>
#include <functional>

#include "base/all_cores.h"
#include "sampling/ranks.h"
#include "sampling/study_gathering.h"

namespace orby {
namespace {

using Column = std::vector<Single>;

bool HasValue(Single value) { return value == value; }

bool IsConstant(const Column& figure) {
  return std::ranges::adjacent_find(figure, std::not_equal_to<>()) == figure.end();
}

// Only samples in which the figure has a value count.
std::vector<std::optional<double>> CorrelationsOfRest(const Column& figure, const std::vector<Column>& inputs) {
  Column values;
  std::ranges::copy_if(figure, std::back_inserter(values), HasValue);
  const std::vector<float> ranks = RanksOf(values);
  std::vector<std::optional<double>> correlations;
  for (const Column& input : inputs) {
    Column rest;
    for (std::size_t i = 0; i < input.size(); ++i) {
      if (HasValue(figure[i])) rest.push_back(input[i]);
    }
    correlations.push_back(RankCorrelation(RanksOf(rest), ranks));
  }
  return correlations;
}

}  // namespace

void FindRankCorrelations(StudyResult& result, unsigned threads) {
  const Subsample& chosen = result.Chosen;
  std::vector<std::vector<float>> inputRanks(chosen.Inputs.size());
  const auto rankInput = [&](std::size_t i, std::size_t) { inputRanks[i] = RanksOf(chosen.Inputs[i]); };
  InPieces(inputRanks.size(), 1, rankInput, threads);
  const auto correlateFigure = [&](std::size_t i, std::size_t) {
    const Column& figure = chosen.Figures[i];
    auto& correlations = result.Figures[i].RankCorrelations;
    if (!std::ranges::all_of(figure, HasValue)) {
      correlations = CorrelationsOfRest(figure, chosen.Inputs);
      return;
    }
    if (IsConstant(figure)) {
      correlations.resize(chosen.Inputs.size());
      return;
    }
    const std::vector<float> ranks = RanksOf(figure);
    for (const auto& input : inputRanks) correlations.push_back(RankCorrelation(input, ranks));
  };
  InPieces(result.Figures.size(), 1, correlateFigure, threads);
}

}  // namespace orby
