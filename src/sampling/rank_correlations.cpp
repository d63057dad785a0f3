#include <algorithm>
#include <atomic>
#include <thread>

#include "sampling/ranks.h"
#include "sampling/study_gathering.h"

namespace orby {
namespace {

using Column = std::vector<Single>;

bool HasValue(Single value) { return value == value; }

// Calls act(0) to act(count - 1), shared out among threads.
template <class Act>
void InParallel(std::size_t count, unsigned threads, const Act& act) {
  std::atomic<std::size_t> next{0};
  const auto work = [&] {
    for (std::size_t i = next++; i < count; i = next++) act(i);
  };
  std::vector<std::thread> others;
  for (unsigned i = 1; i < threads && i < count; ++i) others.emplace_back(work);
  work();
  for (std::thread& other : others) other.join();
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
  InParallel(inputRanks.size(), threads, [&](std::size_t i) { inputRanks[i] = RanksOf(chosen.Inputs[i]); });
  InParallel(result.Figures.size(), threads, [&](std::size_t i) {
    const Column& figure = chosen.Figures[i];
    auto& correlations = result.Figures[i].RankCorrelations;
    if (!std::ranges::all_of(figure, HasValue)) {
      correlations = CorrelationsOfRest(figure, chosen.Inputs);
      return;
    }
    const std::vector<float> ranks = RanksOf(figure);
    for (const auto& input : inputRanks) correlations.push_back(RankCorrelation(input, ranks));
  });
}

}  // namespace orby
