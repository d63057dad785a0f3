// A study that runs on threads of its own, so that the window stays alive.
#pragma once

#include <atomic>
#include <exception>
#include <thread>

#include "sampling/study_run.h"

namespace orby {

class StudyRunner {
 public:
  // Starts the study. Requires FaultOf(study) to be empty.
  StudyRunner(Design design, Catalogs catalogs, Study study);
  // Cancels the study and waits for the end of the batches under way.
  ~StudyRunner();
  StudyRunner(const StudyRunner&) = delete;
  StudyRunner& operator=(const StudyRunner&) = delete;

  const Study& Settings() const { return study_; }
  // Ends the study after the batches under way.
  void Cancel() { isCancelled_ = true; }
  // Returns how much has been done. The study may be ahead of it.
  StudyProgress Progress() const;
  bool HasEnded() const { return hasEnded_; }
  // Waits for the end and returns the result. Throws what has ended the study. May be called once.
  StudyResult Take();

 private:
  void Run();

  Design design_;
  Catalogs catalogs_;
  Study study_;
  std::atomic<bool> isCancelled_ = false;
  std::atomic<bool> hasEnded_ = false;
  std::atomic<std::uint32_t> batchesDone_ = 0;
  StudyResult result_;
  std::exception_ptr error_;
  std::thread thread_;
};

}  // namespace orby
