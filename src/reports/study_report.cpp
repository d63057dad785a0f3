#include "reports/study_report.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <vector>

#include "base/number_text.h"
#include "reports/text_table.h"
#include "reports/verdict_text.h"
#include "sampling/prepared_distribution.h"

namespace orby {
namespace {

constexpr NumberPattern Probabilities{"0.00000"};
constexpr NumberPattern FigureDecimals{"0.000"};
constexpr NumberPattern Correlations{"0.000"};
constexpr std::string_view NoNumberText = "--";

struct Quantile {
  std::string_view Name;
  double Share;
};
constexpr Quantile Quantiles[] = {{"P5", 0.05}, {"P50", 0.5}, {"P95", 0.95}};

std::string_view EndText(StudyEnd end) {
  switch (end) {
    case StudyEnd::NarrowEnough: return "; ended because the intervals are narrow enough";
    case StudyEnd::Cancelled: return "; cancelled";
    case StudyEnd::Complete: break;
  }
  return "";
}

std::string Heading(const StudyResult& result, const Study& study) {
  std::string text = CountWithCommas(result.Samples) + " samples in " + CountWithCommas(result.Batches) + " batches, ";
  text.append(SchemeName(study.Sampling)).append(", seed ").append(std::to_string(study.Seed));
  text.append(EndText(result.End)).append(".\n\n");
  return text;
}

std::string InputTable(const Study& study) {
  TextTable table({"Input", "distribution", "mean", "deviation"});
  for (const StudyInput& input : study.Inputs) {
    const PreparedDistribution prepared(input.Law);
    std::string law(LawName(input.Law.Law));
    if (input.Law.Lowest || input.Law.Highest) law += ", cut off";
    table.Add({input.Name, std::move(law), FormatNumber(prepared.Mean(), FigureDecimals),
               FormatNumber(prepared.Deviation(), FigureDecimals)});
  }
  return table.Text();
}

std::string VerdictTable(const StudyResult& result, double confidence) {
  TextTable table(
      {"Judgement", "now", "falls short", NumberText(confidence * 100) + " % from", "to", "to check", "not computed"});
  for (const VerdictResult& verdict : result.Verdicts) {
    const auto share = [&](Holding holding) {
      const std::uint64_t count = verdict.Counts.Of[static_cast<std::size_t>(holding)];
      if (count == 0) return std::string();
      return FormatNumber(static_cast<double>(count) / static_cast<double>(result.Samples), Probabilities);
    };
    const auto bound = [&](double Interval::*end) {
      return verdict.Confidence ? FormatNumber((*verdict.Confidence).*end, Probabilities) : std::string(NoNumberText);
    };
    table.Add({VerdictName(verdict.Judged), std::string(ResultWord(verdict.AtDesign)),
               FormatNumber(verdict.Probability, Probabilities), bound(&Interval::Low), bound(&Interval::High),
               share(Holding::Check), share(Holding::Uncomputed)});
  }
  return table.Text();
}

std::string FigureName(const StudiedFigure& figure, UnitSystem units) {
  std::string name(figure.Name);
  if (figure.Unit != UnitSuffix::None) name.append(", ").append(UnitName(figure.Unit, units));
  return name;
}

std::string FigureTable(const StudyResult& result, UnitSystem units) {
  TextTable table({"Figure", "now", "mean", "deviation", "least", "P5", "P50", "P95", "greatest", "no value"});
  for (const FigureResult& figure : result.Figures) {
    const auto number = [](double value) { return FormatNumber(value, FigureDecimals); };
    const bool any = figure.Sums.Count() > 0;
    const auto numberIfAny = [&](double value) { return any ? number(value) : std::string(NoNumberText); };
    std::vector<std::string> row{FigureName(*figure.Figure, units),
                                 figure.AtDesign.IsThere() ? number(figure.AtDesign.Value) : std::string(NoNumberText),
                                 numberIfAny(figure.Sums.Mean()), numberIfAny(figure.Sums.Deviation()),
                                 numberIfAny(figure.Sums.Least())};
    for (const Quantile& quantile : Quantiles) {
      row.push_back(any ? number(figure.Sums.Percentile(quantile.Share, figure.Histogram)) : std::string(NoNumberText));
    }
    row.push_back(numberIfAny(figure.Sums.Greatest()));
    const std::uint64_t without = figure.Missing + figure.Failed;
    row.push_back(without == 0 ? std::string() : CountWithCommas(without));
    table.Add(std::move(row));
  }
  return table.Text();
}

bool DependsOnAnInput(const FigureResult& figure) {
  return std::ranges::any_of(figure.RankCorrelations, [](const auto& correlation) { return correlation.has_value(); });
}

// Figures that are the same in all samples are left out.
std::string CorrelationTable(const StudyResult& result, const Study& study) {
  std::vector<std::string> heads{"Rank correlation with"};
  for (const StudyInput& input : study.Inputs) heads.push_back(input.Name);
  TextTable table(std::move(heads));
  for (const FigureResult& figure : result.Figures) {
    if (!DependsOnAnInput(figure)) continue;
    std::vector<std::string> row{std::string(figure.Figure->Name)};
    for (const auto& correlation : figure.RankCorrelations) {
      row.push_back(correlation ? FormatNumber(*correlation, Correlations) : std::string(NoNumberText));
    }
    table.Add(std::move(row));
  }
  return table.Text();
}

// Returns a sentence for each figure with errors.
std::string FailureLines(const StudyResult& result) {
  std::string text;
  for (const FigureResult& figure : result.Figures) {
    if (figure.Failed == 0) continue;
    text.append(figure.Figure->Name).append(" could not be computed in ").append(CountWithCommas(figure.Failed));
    text.append(" samples: ").append(RuntimeError(figure.FirstError).what()).append(".\n");
  }
  return text.empty() ? text : "\n" + text;
}

class StudyLines {
 public:
  std::string Take() { return std::move(text_); }

  void Add(std::string_view kind, std::string_view item, std::string_view quantity, double value) {
    std::array<char, 32> digits{};
    // Counts are written without an exponent.
    constexpr double Most = 1e15;
    const bool isCount = value == std::floor(value) && std::abs(value) < Most;
    char* const last = digits.data() + digits.size();
    char* const end = isCount ? std::to_chars(digits.data(), last, static_cast<std::int64_t>(value)).ptr
                              : std::to_chars(digits.data(), last, value).ptr;
    text_.append(kind).append(",").append(item).append(",").append(quantity).append(",");
    text_.append(digits.data(), end).append("\n");
  }

  void Add(const VerdictResult& verdict) {
    std::string item(OpeningKey(verdict.Judged.Where));
    item.append(".").append(AspectKey(verdict.Judged.What));
    Add("judgement", item, "probability", verdict.Probability);
    if (verdict.Confidence) {
      Add("judgement", item, "low", verdict.Confidence->Low);
      Add("judgement", item, "high", verdict.Confidence->High);
    }
    for (std::size_t i = 0; i < HoldingCount; ++i) {
      Add("judgement", item, HoldingKey(static_cast<Holding>(i)), static_cast<double>(verdict.Counts.Of[i]));
    }
  }

  void Add(const FigureResult& figure, const Study& study) {
    const std::string_view key = figure.Figure->Key;
    if (figure.AtDesign.IsThere()) Add("figure", key, "design", figure.AtDesign.Value);
    Add("figure", key, "values", static_cast<double>(figure.Sums.Count()));
    Add("figure", key, "missing", static_cast<double>(figure.Missing));
    Add("figure", key, "failed", static_cast<double>(figure.Failed));
    if (figure.Sums.Count() == 0) return;
    Add("figure", key, "mean", figure.Sums.Mean());
    Add("figure", key, "deviation", figure.Sums.Deviation());
    Add("figure", key, "least", figure.Sums.Least());
    Add("figure", key, "greatest", figure.Sums.Greatest());
    for (const int percent : WrittenPercentiles) {
      Add("figure", key, "p" + NumberText(percent), figure.Sums.Percentile(percent / 100.0, figure.Histogram));
    }
    for (std::size_t i = 0; i < study.Inputs.size(); ++i) {
      if (figure.RankCorrelations[i]) Add("rank correlation", key, study.Inputs[i].Name, *figure.RankCorrelations[i]);
    }
  }

 private:
  std::string text_ = "kind,item,quantity,value\n";
};

}  // namespace

std::string_view ResultWord(Holding result) {
  constexpr std::array<std::string_view, HoldingCount> Words{"holds", "check", "--", "short"};
  return Words.at(static_cast<std::size_t>(result));
}

std::string VerdictName(const StudiedVerdict& verdict) {
  std::string name(AspectName(verdict.What));
  if (verdict.Where != Opening::Primary) name.append(", ").append(OpeningKey(verdict.Where));
  return name;
}

std::string CountWithCommas(std::uint64_t count) {
  std::string digits = std::to_string(count);
  for (std::size_t end = digits.size(); end > 3; end -= 3) digits.insert(end - 3, ",");
  return digits;
}

std::string StudyText(const StudyResult& result, const Study& study, UnitSystem units) {
  return Heading(result, study) + InputTable(study) + "\n" + VerdictTable(result, study.Confidence) + "\n" +
         FigureTable(result, units) + "\n" + CorrelationTable(result, study) + FailureLines(result);
}

std::string StudyCsv(const StudyResult& result, const Study& study) {
  StudyLines lines;
  lines.Add("study", "", "samples", static_cast<double>(result.Samples));
  lines.Add("study", "", "batches", result.Batches);
  for (const VerdictResult& verdict : result.Verdicts) lines.Add(verdict);
  for (const FigureResult& figure : result.Figures) lines.Add(figure, study);
  return lines.Take();
}

}  // namespace orby
