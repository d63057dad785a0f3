#include "base/all_cores.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace orby {
namespace {

class PieceWork {
 public:
  PieceWork(std::size_t count, std::size_t size, const std::function<void(std::size_t, std::size_t)>& work)
      : count_(count), size_(size), work_(work) {}

  void Run() {
    try {
      for (std::size_t first = Take(); first < count_; first = Take()) work_(first, std::min(first + size_, count_));
    } catch (...) {
      const std::lock_guard lock(failing_);
      if (!failure_) failure_ = std::current_exception();
      next_ = count_;
    }
  }

  void ThrowFailure() const {
    if (failure_) std::rethrow_exception(failure_);
  }

 private:
  std::size_t Take() { return next_.fetch_add(size_); }

  std::size_t count_;
  std::size_t size_;
  const std::function<void(std::size_t, std::size_t)>& work_;
  std::atomic<std::size_t> next_{0};
  std::mutex failing_;
  std::exception_ptr failure_;
};

}  // namespace

void InPieces(std::size_t count, std::size_t size, const std::function<void(std::size_t, std::size_t)>& work,
              unsigned threads) {
  PieceWork pieces(count, size, work);
  if (threads == 0) threads = std::max(1U, std::thread::hardware_concurrency());
  const std::size_t wanted = std::min<std::size_t>(threads, (count + size - 1) / size);
  std::vector<std::jthread> others;
  for (std::size_t i = 1; i < wanted; ++i) others.emplace_back([&pieces] { pieces.Run(); });
  pieces.Run();
  others.clear();
  pieces.ThrowFailure();
}

}  // namespace orby
