#include "dialogs/study_editing.h"

#include <utility>
#include <vector>

namespace orby {
namespace {

// Gives the study a matrix of these inputs, by their places so far. A place that there was not is independent.
void TakePlaces(Study& study, const std::vector<std::size_t>& places) {
  if (study.Spearman.Size() == 0) return;
  SquareMatrix ranks = SquareMatrix::Identity(places.size());
  for (std::size_t row = 0; row < places.size(); ++row) {
    for (std::size_t column = 0; column < places.size(); ++column) {
      const bool areKnown = places[row] < study.Spearman.Size() && places[column] < study.Spearman.Size();
      if (row != column && areKnown) ranks(row, column) = study.Spearman(places[row], places[column]);
    }
  }
  study.Spearman = ranks == SquareMatrix::Identity(places.size()) ? SquareMatrix() : ranks;
}

std::vector<std::size_t> PlacesIn(const Study& study) {
  std::vector<std::size_t> places(study.Inputs.size());
  for (std::size_t i = 0; i < places.size(); ++i) places[i] = i;
  return places;
}

}  // namespace

void AddInput(Study& study, StudyInput input) {
  study.Inputs.push_back(std::move(input));
  TakePlaces(study, PlacesIn(study));
}

void ReplaceInput(Study& study, std::size_t place, StudyInput input) {
  std::vector<std::size_t> places = PlacesIn(study);
  if (!(study.Inputs[place].Field == input.Field)) places[place] = study.Inputs.size();
  study.Inputs[place] = std::move(input);
  TakePlaces(study, places);
}

void RemoveInput(Study& study, std::size_t place) {
  std::vector<std::size_t> places = PlacesIn(study);
  places.erase(places.begin() + static_cast<std::ptrdiff_t>(place));
  study.Inputs.erase(study.Inputs.begin() + static_cast<std::ptrdiff_t>(place));
  TakePlaces(study, places);
}

double RankOf(const Study& study, std::size_t one, std::size_t other) {
  if (one == other) return 1;
  return study.Spearman.Size() == 0 ? 0 : study.Spearman(one, other);
}

void SetRankOf(Study& study, std::size_t one, std::size_t other, double rank) {
  if (study.Spearman.Size() == 0) study.Spearman = SquareMatrix::Identity(study.Inputs.size());
  study.Spearman(one, other) = rank;
  study.Spearman(other, one) = rank;
  TakePlaces(study, PlacesIn(study));
}

}  // namespace orby
