#include "sampling/study_run.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

#include "sampling/study_gathering.h"

namespace orby {
namespace {

// The threads of a study take batches by number and analyse them. The thread that runs the study merges them in their
// order. There are only a few buffers for batches, so no thread gets far ahead of the others.
class ParallelStudy {
 public:
  ParallelStudy(const Design& design, const Catalogs& catalogs, const Study& study, unsigned threads)
      : design_(design),
        catalogs_(catalogs),
        study_(study),
        plan_(PlanOf(study)),
        figures_(FollowedFigures(study, design)),
        maker_(LawsOf(study), study.Spearman, study.Sampling, study.Seed, plan_.Size),
        gathering_(design, catalogs, study, plan_, figures_),
        threads_(threads) {
    constexpr unsigned Spare = 2;
    for (unsigned i = 0; i < threads + Spare; ++i) free_.push_back(std::make_unique<BatchValues>());
  }

  ~ParallelStudy() { Join(); }
  ParallelStudy(const ParallelStudy&) = delete;
  ParallelStudy& operator=(const ParallelStudy&) = delete;

  StudyResult Run(const StudyListener& listener) {
    for (unsigned i = 0; i < threads_; ++i) workers_.emplace_back([this] { Work(); });
    for (std::uint32_t batch = 0; batch < plan_.Count; ++batch) {
      std::unique_ptr<BatchValues> values = Await(batch);
      gathering_.Merge(*values);
      GiveBack(std::move(values));
      const bool goesOn =
          !listener || listener({batch + 1, plan_.Count, static_cast<std::uint64_t>(batch + 1) * plan_.Size});
      if (batch + 1 == plan_.Count) break;
      if (!goesOn) gathering_.Result().End = StudyEnd::Cancelled;
      if (goesOn && gathering_.IsNarrowEnough()) gathering_.Result().End = StudyEnd::NarrowEnough;
      if (gathering_.Result().End != StudyEnd::Complete) break;
    }
    Join();
    return std::move(gathering_.Result());
  }

 private:
  using Buffer = std::unique_ptr<BatchValues>;

  static std::vector<Distribution> LawsOf(const Study& study) {
    std::vector<Distribution> laws;
    for (const StudyInput& input : study.Inputs) laws.push_back(input.Law);
    return laws;
  }

  void Work() {
    try {
      BatchAnalysis analysis(design_, catalogs_, study_, figures_);
      std::uint32_t batch = 0;
      while (Buffer values = Begin(batch)) {
        analysis.Run(maker_, batch, *values);
        if (!HasBins(batch, *values)) return;
        gathering_.Sum(*values);
        const std::lock_guard lock(mutex_);
        done_[batch] = std::move(values);
        changed_.notify_all();
      }
    } catch (...) {
      const std::lock_guard lock(mutex_);
      error_ = std::current_exception();
      ends_ = true;
      changed_.notify_all();
    }
  }

  // Returns a buffer for the next batch, or null when there is nothing left to do.
  Buffer Begin(std::uint32_t& batch) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return ends_ || next_ == plan_.Count || !free_.empty(); });
    if (ends_ || next_ == plan_.Count) return nullptr;
    batch = next_++;
    Buffer values = std::move(free_.back());
    free_.pop_back();
    return values;
  }

  // The first batch fixes the bins, and the others wait for it. Returns false when the study has ended meanwhile.
  bool HasBins(std::uint32_t batch, const BatchValues& values) {
    std::unique_lock lock(mutex_);
    if (batch == 0) {
      gathering_.FixBins(values);
      hasBins_ = true;
      changed_.notify_all();
    }
    changed_.wait(lock, [this] { return ends_ || hasBins_; });
    return hasBins_;
  }

  Buffer Await(std::uint32_t batch) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return error_ != nullptr || done_.contains(batch); });
    if (error_) std::rethrow_exception(error_);
    return std::move(done_.extract(batch).mapped());
  }

  void GiveBack(Buffer values) {
    const std::lock_guard lock(mutex_);
    free_.push_back(std::move(values));
    changed_.notify_all();
  }

  void Join() {
    {
      const std::lock_guard lock(mutex_);
      ends_ = true;
      changed_.notify_all();
    }
    for (std::thread& worker : workers_) worker.join();
    workers_.clear();
  }

  const Design& design_;
  const Catalogs& catalogs_;
  const Study& study_;
  BatchPlan plan_;
  std::vector<const StudiedFigure*> figures_;
  BatchMaker maker_;
  StudyGathering gathering_;
  unsigned threads_;

  std::mutex mutex_;
  std::condition_variable changed_;
  std::vector<Buffer> free_;
  std::map<std::uint32_t, Buffer> done_;
  std::uint32_t next_ = 0;
  bool hasBins_ = false;
  bool ends_ = false;
  std::exception_ptr error_;
  std::vector<std::thread> workers_;
};

}  // namespace

StudyResult RunStudy(const Design& design, const Catalogs& catalogs, const Study& study, unsigned threads,
                     const StudyListener& listener) {
  if (threads == 0) threads = std::max(std::thread::hardware_concurrency(), 1U);
  StudyResult result = ParallelStudy(design, catalogs, study, threads).Run(listener);
  FindRankCorrelations(result, threads);
  return result;
}

}  // namespace orby
