// Work in pieces on all cores.
#include "base/all_cores.h"

#include <gmock/gmock.h>

#include <atomic>
#include <stdexcept>
#include <vector>

namespace orby::test {
namespace {

TEST(WorkInPieces, VisitsEachNumberOnceOnAllThreads) {
  for (const std::size_t count : {0U, 1U, 7U, 64U, 65U, 1000U}) {
    std::vector<std::atomic<int>> visits(count);
    InPieces(count, 8, [&](std::size_t first, std::size_t last) {
      EXPECT_LE(last - first, 8U);
      for (std::size_t i = first; i < last; ++i) ++visits[i];
    });
    for (const auto& visited : visits) EXPECT_EQ(visited, 1);
  }
}

TEST(WorkInPieces, ThrowsWhatAPieceThrowsOnAnyOfItsThreads) {
  EXPECT_THROW(InPieces(1000, 1,
                        [](std::size_t first, std::size_t) {
                          if (first == 500) throw std::invalid_argument("500");
                        }),
               std::invalid_argument);
}

}  // namespace
}  // namespace orby::test
