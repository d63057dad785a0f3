// A chart that is computed on threads of its own, so that the window stays alive.
#pragma once

#include <utility>

#include "dialogs/background_work.h"
#include "dialogs/chart_making.h"

namespace orby {

class ChartRunner {
 public:
  // Starts the computation. The destructor cancels it and waits for the rows under way.
  ChartRunner(Design design, Catalogs catalogs, ChartRequest request)
      : design_(std::move(design)),
        catalogs_(std::move(catalogs)),
        request_(std::move(request)),
        work_([this](const std::stop_token& stop) {
          const std::stop_callback cancel(stop, [this] { progress_.IsCancelled = true; });
          made_ = Compute(design_, catalogs_, request_, &progress_);
        }) {}

  const ChartRequest& Request() const { return request_; }
  int PercentDone() const { return static_cast<int>(progress_.RowsDone * 100 / request_.Points); }
  bool HasEnded() const { return work_.HasEnded(); }
  // Waits for the end and returns the chart. Throws what has ended it. May be called once.
  ComputedChart Take() {
    work_.Finish();
    return std::move(made_);
  }

 private:
  Design design_;
  Catalogs catalogs_;
  ChartRequest request_;
  ChartProgress progress_;
  ComputedChart made_;
  BackgroundWork work_;  // last: it uses the others
};

}  // namespace orby
