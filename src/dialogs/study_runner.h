// A study that runs on threads of its own, so that the window stays alive.
#pragma once

#include <atomic>

#include "dialogs/background_work.h"
#include "sampling/study_run.h"

namespace orby {

class StudyRunner {
 public:
  // Starts the study. Requires FaultOf(study) to be empty. Its end cancels the study and waits for the batches under
  // way.
  StudyRunner(Design design, Catalogs catalogs, Study study);

  const Study& Settings() const { return study_; }
  // Ends the study after the batches under way.
  void Cancel() { work_.Cancel(); }
  // Returns how much has been done. The study may be ahead of it.
  StudyProgress Progress() const;
  bool HasEnded() const { return work_.HasEnded(); }
  // Waits for the end and returns the result. Throws what has ended the study. May be called once.
  StudyResult Take();

 private:
  void Run(const std::stop_token& stop);

  Design design_;
  Catalogs catalogs_;
  Study study_;
  std::atomic<std::uint32_t> batchesDone_ = 0;
  StudyResult result_;
  BackgroundWork work_;  // last: it uses the others
};

}  // namespace orby
