// Shares work out among threads.
#pragma once

#include <atomic>
#include <cstddef>
#include <thread>
#include <vector>

namespace orby {

// Calls act(0) to act(count - 1), each once, on this thread and others. 0 threads: as many as there are processors.
// `act` must not throw.
template <class Act>
void InParallel(std::size_t count, unsigned threads, const Act& act) {
  if (threads == 0) threads = std::thread::hardware_concurrency();
  std::atomic<std::size_t> next{0};
  const auto work = [&] {
    for (std::size_t i = next++; i < count; i = next++) act(i);
  };
  std::vector<std::jthread> others;
  for (unsigned i = 1; i < threads && i < count; ++i) others.emplace_back(work);
  work();
}

}  // namespace orby
