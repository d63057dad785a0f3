#include "sampling/batch_values.h"

namespace orby {

BatchAnalysis::BatchAnalysis(const Design& design, const Catalogs& catalogs, const Study& study,
                             std::span<const StudiedFigure* const> figures)
    : design_(design), catalogs_(catalogs), study_(study), figures_(figures) {}

void BatchAnalysis::Clear(BatchValues& values, std::size_t samples) const {
  values.Figures.resize(figures_.size());
  for (auto& column : values.Figures) column.resize(samples);
  values.Missing.assign(figures_.size(), 0);
  values.Failed.assign(figures_.size(), 0);
  values.FirstError.assign(figures_.size(), 0);
  values.Results.assign(Verdicts::Most, {});
}

void BatchAnalysis::Run(const BatchMaker& maker, std::uint32_t batch, BatchValues& values) {
  maker.Fill(batch, values.Inputs, values.Workspace);
  Clear(values, maker.Samples());
  for (std::size_t sample = 0; sample < maker.Samples(); ++sample) {
    for (std::size_t i = 0; i < study_.Inputs.size(); ++i) {
      study_.Inputs[i].Field.In(design_) = static_cast<Single>(values.Inputs.Column(i)[sample]);
    }
    Analyse(values, sample);
  }
}

void BatchAnalysis::Analyse(BatchValues& values, std::size_t sample) {
  const Figures figures = Analyze(design_, catalogs_);
  for (std::size_t i = 0; i < figures_.size(); ++i) {
    const FigureValue value = figures_[i]->Of(figures);
    values.Figures[i][sample] = value.Value;
    if (value.IsThere()) continue;
    ++(value.Error == 0 ? values.Missing : values.Failed)[i];
    if (values.FirstError[i] == 0) values.FirstError[i] = value.Error;
  }
  const Verdicts verdicts = Judge(design_, figures);
  const std::span<const Verdict> all = verdicts.All();
  for (std::size_t i = 0; i < all.size(); ++i) ++values.Results[i].Of[static_cast<std::size_t>(all[i].Result)];
}

std::vector<const StudiedFigure*> FollowedFigures(const Study& study, const RoofSupport& design) {
  std::vector<const StudiedFigure*> figures;
  for (const std::string& key : study.Figures) figures.push_back(FigureWithKey(key));
  return figures.empty() ? FiguresInUse(design) : figures;
}

}  // namespace orby
