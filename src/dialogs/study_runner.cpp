#include "dialogs/study_runner.h"

#include <utility>

namespace orby {

StudyRunner::StudyRunner(Design design, Catalogs catalogs, Study study)
    : design_(std::move(design)), catalogs_(std::move(catalogs)), study_(std::move(study)) {
  thread_ = std::thread([this] { Run(); });
}

StudyRunner::~StudyRunner() {
  Cancel();
  if (thread_.joinable()) thread_.join();
}

void StudyRunner::Run() {
  try {
    result_ = RunStudy(design_, catalogs_, study_, 0, [this](const StudyProgress& progress) {
      batchesDone_ = progress.BatchesDone;
      return !isCancelled_;
    });
  } catch (...) {
    error_ = std::current_exception();
  }
  hasEnded_ = true;
}

StudyProgress StudyRunner::Progress() const {
  const BatchPlan plan = PlanOf(study_);
  const std::uint32_t done = batchesDone_;
  return {done, plan.Count, done * plan.Size};
}

StudyResult StudyRunner::Take() {
  thread_.join();
  if (error_) std::rethrow_exception(error_);
  return std::move(result_);
}

}  // namespace orby
