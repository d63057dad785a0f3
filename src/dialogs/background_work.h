// Work on a thread of its own, so that the window stays alive.
#pragma once

#include <atomic>
#include <exception>
#include <functional>
#include <stop_token>
#include <thread>

namespace orby {

class BackgroundWork {
 public:
  // Starts the work. It should return soon after a stop is requested.
  explicit BackgroundWork(std::function<void(const std::stop_token& stop)> work);
  // Requests a stop and waits for the end.
  ~BackgroundWork() = default;
  BackgroundWork(const BackgroundWork&) = delete;
  BackgroundWork& operator=(const BackgroundWork&) = delete;

  void Cancel() { thread_.request_stop(); }
  bool IsCancelled() const { return thread_.get_stop_token().stop_requested(); }
  bool HasEnded() const { return hasEnded_; }
  // Waits for the end. Throws what has ended the work, at each call.
  void Finish();

 private:
  std::function<void(const std::stop_token& stop)> work_;
  std::exception_ptr error_;
  std::atomic<bool> hasEnded_ = false;
  std::jthread thread_;  // last: it uses the others
};

// Returns how many threads the work may have, so that one processor is left for the window.
unsigned ThreadsBesideTheWindow();

}  // namespace orby
