// A batch of a study allocates no memory once its buffers have their sizes.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "sampling/batch_values.h"
#include "sampling/samples.h"

namespace {

std::atomic<long> allocationsOfStudies = 0;

void* AllocateForStudies(std::size_t size) {
  ++allocationsOfStudies;
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

void* operator new(std::size_t size) { return AllocateForStudies(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace orby::test {
namespace {

TEST(StudyBatch, AllocatesNothingForASample) {
  Study study = SmallStudy();
  study.Spearman = SquareMatrix::Identity(3);
  study.Spearman(0, 1) = study.Spearman(1, 0) = -0.5;
  const Catalogs lists = BuiltInLists();
  const Design design = FullDesign();
  const std::vector<const StudiedFigure*> figures = FollowedFigures(study, design);
  const Distribution laws[] = {study.Inputs[0].Law, study.Inputs[1].Law, study.Inputs[2].Law};
  const auto allocationsOf = [&](std::size_t samples) {
    const BatchMaker maker(laws, study.Spearman, Scheme::LatinHypercube, 1, samples);
    BatchAnalysis analysis(design, lists, study, figures);
    BatchValues values;
    analysis.Run(maker, 0, values);
    const long before = allocationsOfStudies;
    analysis.Run(maker, 1, values);
    return allocationsOfStudies - before;
  };

  EXPECT_EQ(allocationsOf(5000), allocationsOf(500));
  EXPECT_LT(allocationsOf(5000), 100);
}

}  // namespace
}  // namespace orby::test
