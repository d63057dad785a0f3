#include "dialogs/study_runner.h"

#include <utility>

namespace orby {

StudyRunner::StudyRunner(Design design, Catalogs catalogs, Study study)
    : design_(std::move(design)),
      catalogs_(std::move(catalogs)),
      study_(std::move(study)),
      work_([this](const std::stop_token& stop) { Run(stop); }) {}

void StudyRunner::Run(const std::stop_token& stop) {
  result_ = RunStudy(design_, catalogs_, study_, 0, [&](const StudyProgress& progress) {
    batchesDone_ = progress.BatchesDone;
    return !stop.stop_requested();
  });
}

StudyProgress StudyRunner::Progress() const {
  const BatchPlan plan = PlanOf(study_);
  const std::uint32_t done = batchesDone_;
  return {done, plan.Count, done * plan.Size};
}

StudyResult StudyRunner::Take() {
  work_.Finish();
  return std::move(result_);
}

}  // namespace orby
