#include "apps/orby-cli/study_json_output.h"

#include "base/json_writer.h"
#include "reports/study_report.h"
#include "reports/verdict_text.h"
#include "sampling/prepared_distribution.h"

namespace orby::cli {
namespace {

constexpr int ResultFormat = 1;

class StudyWriter {
 public:
  StudyWriter(const StudyResult& result, const Study& study, UnitSystem units)
      : result_(result), study_(study), units_(units) {}

  std::string Write() {
    json_.OpenObject();
    json_.Number("format", ResultFormat);
    json_.Text("units", units_ == Metric ? "metric" : "english");
    json_.Text("sampling", SchemeName(study_.Sampling));
    // As a text, because many readers of JSON round whole numbers of this size.
    json_.Text("seed", std::to_string(study_.Seed));
    Count("samples", result_.Samples);
    Count("batches", result_.Batches);
    Count("batchSize", result_.BatchSize);
    json_.Number("confidence", study_.Confidence);
    json_.Flag("narrowEnough", result_.End == StudyEnd::NarrowEnough);
    Inputs();
    json_.Name("judgements");
    json_.OpenArray();
    for (const VerdictResult& verdict : result_.Verdicts) Judgement(verdict);
    json_.Close();
    json_.Name("figures");
    json_.OpenArray();
    for (const FigureResult& figure : result_.Figures) Figure(figure);
    json_.Close();
    json_.Close();
    return json_.Take();
  }

 private:
  void Count(std::string_view name, std::uint64_t count) { json_.Number(name, static_cast<double>(count)); }

  void Inputs() {
    json_.Name("inputs");
    json_.OpenArray();
    for (const StudyInput& input : study_.Inputs) {
      const PreparedDistribution prepared(input.Law);
      json_.OpenObject(true);
      json_.Text("field", input.Name);
      json_.Text("distribution", LawName(input.Law.Law));
      json_.Number("mean", prepared.Mean());
      json_.Number("deviation", prepared.Deviation());
      json_.Close();
    }
    json_.Close();
  }

  void Judgement(const VerdictResult& verdict) {
    json_.OpenObject();
    json_.Text("where", OpeningKey(verdict.Judged.Where));
    json_.Text("what", AspectKey(verdict.Judged.What));
    json_.Text("name", VerdictName(verdict.Judged));
    json_.Text("design", HoldingKey(verdict.AtDesign));
    json_.Number("probability", verdict.Probability);
    if (verdict.Confidence) {
      json_.Number("low", verdict.Confidence->Low);
      json_.Number("high", verdict.Confidence->High);
    }
    for (const Holding holding : {Holding::Holds, Holding::Check, Holding::Uncomputed, Holding::Short}) {
      Count(HoldingKey(holding), verdict.Counts.Of[static_cast<std::size_t>(holding)]);
    }
    json_.Close();
  }

  void Figure(const FigureResult& figure) {
    json_.OpenObject();
    json_.Text("key", figure.Figure->Key);
    json_.Text("name", figure.Figure->Name);
    json_.Text("unit", figure.Figure->Unit == UnitSuffix::None ? "" : UnitName(figure.Figure->Unit, units_));
    if (figure.AtDesign.IsThere()) json_.Number("design", figure.AtDesign.Value);
    Count("values", figure.Sums.Count());
    Count("missing", figure.Missing);
    Count("failed", figure.Failed);
    if (figure.FirstError != 0) json_.Number("error", figure.FirstError);
    if (figure.Sums.Count() > 0) Statistics(figure);
    json_.Close();
  }

  void Statistics(const FigureResult& figure) {
    json_.Number("mean", figure.Sums.Mean());
    if (figure.MeanInterval) {
      json_.Number("meanLow", figure.MeanInterval->Low);
      json_.Number("meanHigh", figure.MeanInterval->High);
    }
    json_.Number("deviation", figure.Sums.Deviation());
    json_.Number("least", figure.Sums.Least());
    json_.Number("greatest", figure.Sums.Greatest());
    json_.Name("percentiles");
    json_.OpenObject(true);
    for (const int percent : WrittenPercentiles) {
      json_.Number(std::to_string(percent), figure.Sums.Percentile(percent / 100.0, figure.Histogram));
    }
    json_.Close();
    Histogram(figure);
    json_.Name("rankCorrelations");
    json_.OpenObject(true);
    for (std::size_t i = 0; i < study_.Inputs.size(); ++i) {
      json_.Name(study_.Inputs[i].Name);
      if (figure.RankCorrelations[i]) {
        json_.Number(*figure.RankCorrelations[i]);
      } else {
        json_.Null();
      }
    }
    json_.Close();
  }

  // A hundred bins, each of several narrow ones. The counts of values outside them come first and last.
  void Histogram(const FigureResult& figure) {
    constexpr std::size_t Wide = 100;
    constexpr std::size_t Each = Bins::Count / Wide;
    const auto counts = figure.Sums.Counts();
    json_.Name("histogram");
    json_.OpenObject(true);
    json_.Number("from", figure.Histogram.From);
    json_.Number("width", figure.Histogram.Width * static_cast<double>(Each));
    json_.Name("counts");
    json_.OpenArray(true);
    json_.Number(static_cast<double>(counts.front()));
    for (std::size_t bin = 0; bin < Wide; ++bin) {
      std::uint64_t sum = 0;
      for (const std::uint64_t count : counts.subspan(1 + bin * Each, Each)) sum += count;
      json_.Number(static_cast<double>(sum));
    }
    json_.Number(static_cast<double>(counts.back()));
    json_.Close();
    json_.Close();
  }

  const StudyResult& result_;
  const Study& study_;
  UnitSystem units_;
  JsonWriter json_;
};

}  // namespace

std::string StudyJson(const StudyResult& result, const Study& study, UnitSystem units) {
  return StudyWriter(result, study, units).Write();
}

}  // namespace orby::cli
