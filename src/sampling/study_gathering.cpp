#include "sampling/study_gathering.h"

#include <boost/random/uniform_int_distribution.hpp>

#include <algorithm>

namespace orby {
namespace {

std::uint64_t JudgedIn(const ResultCounts& counts) {
  return counts.Total() - counts.Of[static_cast<std::size_t>(Holding::Uncomputed)];
}

double ShareShort(const ResultCounts& counts) {
  const std::uint64_t judged = JudgedIn(counts);
  return judged == 0 ? 0 : static_cast<double>(counts.Short()) / static_cast<double>(judged);
}

void RefreshInterval(VerdictResult& verdict, const BatchMeans& means, double confidence) {
  verdict.Probability = ShareShort(verdict.Counts);
  verdict.Confidence = means.IntervalOf(confidence);
  if (!verdict.Confidence) return;
  const double least = LimitOfNone(JudgedIn(verdict.Counts), confidence);
  verdict.Confidence = Interval{std::max(std::min(verdict.Confidence->Low, verdict.Probability - least), 0.0),
                                std::min(std::max(verdict.Confidence->High, verdict.Probability + least), 1.0)};
}

}  // namespace

SampleChooser::SampleChooser(Subsample& chosen, std::uint64_t seed)
    : chosen_(chosen), engine_(EngineOf(seed, NoBatch)) {}

void SampleChooser::Put(const BatchValues& values, std::size_t sample, std::size_t place) {
  for (std::size_t i = 0; i < chosen_.Inputs.size(); ++i) {
    chosen_.Inputs[i][place] = static_cast<Single>(values.Inputs.Column(i)[sample]);
  }
  for (std::size_t i = 0; i < chosen_.Figures.size(); ++i) chosen_.Figures[i][place] = values.Figures[i][sample];
}

void SampleChooser::Take(const BatchValues& values) {
  for (std::size_t sample = 0; sample < values.Inputs.Rows(); ++sample, ++seen_) {
    if (seen_ < Subsample::Most) {
      for (auto& column : chosen_.Inputs) column.emplace_back();
      for (auto& column : chosen_.Figures) column.emplace_back();
      Put(values, sample, seen_);
    } else if (const auto place = boost::random::uniform_int_distribution<std::uint64_t>(0, seen_)(engine_);
               place < Subsample::Most) {
      Put(values, sample, place);
    }
  }
}

StudyGathering::StudyGathering(const Design& design, const Catalogs& catalogs, const Study& study,
                               const BatchPlan& plan, std::span<const StudiedFigure* const> figures)
    : study_(study), chooser_(result_.Chosen, study.Seed) {
  const Figures atDesign = Analyze(design, catalogs);
  result_.BatchSize = plan.Size;
  for (const StudiedFigure* figure : figures) {
    FigureResult& entry = result_.Figures.emplace_back();
    entry.Figure = figure;
    entry.AtDesign = figure->Of(atDesign);
  }
  const Verdicts verdicts = Judge(design, atDesign);
  for (const Verdict& verdict : verdicts.All()) {
    VerdictResult& entry = result_.Verdicts.emplace_back();
    entry.Judged = {verdict.Where, verdict.What};
    entry.AtDesign = verdict.Result;
  }
  result_.Chosen.Inputs.resize(study.Inputs.size());
  result_.Chosen.Figures.resize(figures.size());
  verdictMeans_.resize(result_.Verdicts.size());
  figureMeans_.resize(figures.size());
}

void StudyGathering::FixBins(const BatchValues& first) {
  for (std::size_t i = 0; i < result_.Figures.size(); ++i) result_.Figures[i].Histogram = BinsFor(first.Figures[i]);
}

void StudyGathering::Sum(BatchValues& values) const {
  values.Sums.resize(result_.Figures.size());
  for (std::size_t i = 0; i < values.Sums.size(); ++i) {
    values.Sums[i].Clear();
    values.Sums[i].Take(values.Figures[i], result_.Figures[i].Histogram);
  }
}

void StudyGathering::Merge(const BatchValues& values) {
  ++result_.Batches;
  result_.Samples += values.Inputs.Rows();
  for (std::size_t i = 0; i < result_.Figures.size(); ++i) {
    FigureResult& figure = result_.Figures[i];
    figure.Sums.Merge(values.Sums[i]);
    figure.Missing += values.Missing[i];
    figure.Failed += values.Failed[i];
    if (figure.FirstError == 0) figure.FirstError = values.FirstError[i];
    if (values.Sums[i].Count() > 0) figureMeans_[i].Add(values.Sums[i].Mean());
    figure.MeanInterval = figureMeans_[i].IntervalOf(study_.Confidence);
  }
  for (std::size_t i = 0; i < result_.Verdicts.size(); ++i) MergeVerdict(i, values.Results[i]);
  chooser_.Take(values);
  AddConvergence();
}

void StudyGathering::MergeVerdict(std::size_t place, const ResultCounts& counts) {
  VerdictResult& verdict = result_.Verdicts[place];
  for (std::size_t i = 0; i < HoldingCount; ++i) verdict.Counts.Of[i] += counts.Of[i];
  if (JudgedIn(counts) > 0) verdictMeans_[place].Add(ShareShort(counts));
  RefreshInterval(verdict, verdictMeans_[place], study_.Confidence);
}

void StudyGathering::AddConvergence() {
  ConvergencePoint& point = result_.Convergence.emplace_back();
  point.Samples = result_.Samples;
  for (const VerdictResult& verdict : result_.Verdicts) {
    point.Probabilities.push_back(verdict.Probability);
    if (result_.Batches > 1) point.Intervals.push_back(verdict.Confidence.value_or(Interval{0, 1}));
  }
  for (const FigureResult& figure : result_.Figures) point.Means.push_back(figure.Sums.Mean());
}

bool StudyGathering::IsNarrowEnough() const {
  if (!study_.StopWidth || result_.Batches < Study::LeastBatches || result_.Verdicts.empty()) return false;
  return std::ranges::all_of(result_.Verdicts, [&](const VerdictResult& verdict) {
    return JudgedIn(verdict.Counts) == 0 || (verdict.Confidence && verdict.Confidence->Width() <= *study_.StopWidth);
  });
}

}  // namespace orby
