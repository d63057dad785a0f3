// Changes of the inputs of a study that keep its rank correlations.
#pragma once

#include "sampling/study.h"

namespace orby {

void AddInput(Study& study, StudyInput input);
// Requires an input at this place, as all functions below do. Another number of the design has no correlations yet.
void ReplaceInput(Study& study, std::size_t place, StudyInput input);
void RemoveInput(Study& study, std::size_t place);

double RankOf(const Study& study, std::size_t one, std::size_t other);
// Sets the rank correlation of two inputs. Requires that they are not the same.
void SetRankOf(Study& study, std::size_t one, std::size_t other, double rank);

}  // namespace orby
