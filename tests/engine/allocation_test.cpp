// The analysis of a design allocates no memory.
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "engine/analysis.h"
#include "engine/designs.h"

namespace {

thread_local long allocations = 0;

void* Allocate(std::size_t size) {
  ++allocations;
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

void* operator new(std::size_t size) { return Allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace orby::test {
namespace {

TEST(Analysis, AllocatesNothing) {
  const Catalogs lists = BuiltInLists();
  const Design design = FullDesign();
  ASSERT_GT(allocations, 0);
  allocations = 0;

  const Figures figures = Analyze(design, lists);

  EXPECT_EQ(allocations, 0);
  EXPECT_TRUE(figures.EntryReinforcement.IsThere());
}

}  // namespace
}  // namespace orby::test
