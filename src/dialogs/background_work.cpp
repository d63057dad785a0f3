#include "dialogs/background_work.h"

#include <algorithm>
#include <utility>

namespace orby {

BackgroundWork::BackgroundWork(std::function<void(const std::stop_token& stop)> work)
    : work_(std::move(work)), thread_([this](const std::stop_token& stop) {
        try {
          work_(stop);
        } catch (...) {
          error_ = std::current_exception();
        }
        hasEnded_ = true;
      }) {}

void BackgroundWork::Finish() {
  if (thread_.joinable()) thread_.join();
  if (error_) std::rethrow_exception(error_);
}

unsigned ThreadsBesideTheWindow() { return std::max(2U, std::thread::hardware_concurrency()) - 1; }

}  // namespace orby
