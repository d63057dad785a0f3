// A chart that is computed on threads of its own, so that the window stays alive.
#pragma once

#include <chrono>
#include <future>
#include <utility>

#include "dialogs/chart_making.h"

namespace orby {

class ChartRunner {
 public:
  // Starts the computation.
  ChartRunner(Design design, Catalogs catalogs, ChartRequest request)
      : design_(std::move(design)), catalogs_(std::move(catalogs)), request_(std::move(request)) {
    made_ = std::async(std::launch::async, [this] { return Compute(design_, catalogs_, request_, &progress_); });
  }
  // Cancels it and waits for the rows under way.
  ~ChartRunner() {
    progress_.IsCancelled = true;
    if (made_.valid()) made_.wait();
  }
  ChartRunner(const ChartRunner&) = delete;
  ChartRunner& operator=(const ChartRunner&) = delete;

  const ChartRequest& Request() const { return request_; }
  int PercentDone() const { return static_cast<int>(progress_.RowsDone * 100 / request_.Points); }
  bool HasEnded() const { return made_.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }
  // Waits for the end and returns the chart. Throws what has ended it. May be called once.
  ComputedChart Take() { return made_.get(); }

 private:
  Design design_;
  Catalogs catalogs_;
  ChartRequest request_;
  ChartProgress progress_;
  std::future<ComputedChart> made_;
};

}  // namespace orby
