// Samples and inputs for the tests of this folder.
#pragma once

#include <vector>

#include "engine/designs.h"
#include "sampling/batch.h"
#include "sampling/study_run.h"

namespace orby::test {

// The distribution functions of these laws are written out in the test of distributions.
inline const Distribution RatingLaw{NormalLaw{45, 6}};
inline const Distribution DepthLaw{LognormalLaw{500, 120}};
inline const Distribution LengthLaw{TriangularLaw{10, 14, 24}};
inline const Distribution WidthLaw{UniformLaw{2, 8}};
inline const Distribution AngleLaw{BetaLaw{2, 3, 0, 10}};

inline constexpr Scheme AllSchemes[] = {Scheme::LatinHypercube, Scheme::Sobol, Scheme::Random};

// Returns the numbers of all batches one after the other.
inline std::vector<std::vector<double>> SamplesOf(const BatchMaker& maker, std::uint32_t batches, std::size_t inputs) {
  std::vector<std::vector<double>> columns(inputs);
  SampleTable table;
  BatchMaker::Workspace workspace;
  for (std::uint32_t batch = 0; batch < batches; ++batch) {
    maker.Fill(batch, table, workspace);
    for (std::size_t i = 0; i < inputs; ++i) {
      columns[i].insert(columns[i].end(), table.Column(i).begin(), table.Column(i).end());
    }
  }
  return columns;
}

inline const SingleField RatingField([](auto& d) { return &d.Place.CMRR; });
inline const SingleField DepthField([](auto& d) { return &d.Place.DepthofCover; });
inline const SingleField SpanField([](auto& d) { return &d.Place.ActualSpanDiagonals; });
inline const SingleField HeightField([](auto& d) { return &d.Entries.RockLoadHeight; });

// Rating, depth and rock height of a design vary.
inline Study SmallStudy() {
  Study study;
  study.Inputs = {{"roof rating", RatingField, {NormalLaw{45, 6}, 25, 80}},
                  {"depth of cover", DepthField, {LognormalLaw{500, 120}}},
                  {"rock load height in entries", HeightField, {TriangularLaw{5, 8, 12}}}};
  study.Samples = 20'000;
  study.BatchSize = 1000;
  study.Seed = 1907;
  return study;
}

}  // namespace orby::test
