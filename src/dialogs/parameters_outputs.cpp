// The signs beside the outputs of the parameters dialog: the judgement, and a text that is of earlier inputs.
#include <algorithm>

#include "dialogs/parameters_dialog.h"
#include "dialogs/verdict_marks.h"

namespace orby {
namespace {

constexpr std::string_view EarlierInputs = "Of earlier inputs";

// An output without a figure shows "--", and "---" before its first one.
bool ShowsFigure(std::string_view text) { return text.find_first_not_of('-') != std::string_view::npos; }

bool ShowsAnother(std::string_view shown, std::string_view now) {
  return ShowsFigure(shown) || ShowsFigure(now) ? shown != now : false;
}

// The result of each judgement that is made, by what is judged and where.
class Results {
 public:
  explicit Results(const Verdicts& found) {
    for (const Verdict& verdict : found.All()) At(verdict.What, verdict.Where) = MarkOf(verdict.Result);
  }

  std::string_view& At(Aspect what, Opening where) {
    return marks_.at(static_cast<std::size_t>(what)).at(static_cast<std::size_t>(where));
  }

 private:
  std::array<std::array<std::string_view, OpeningCount>, AspectCount> marks_{};
};

}  // namespace

void ParametersDialog::TieOutputs() {
  constexpr auto Primary = Opening::Primary;
  outputs_ = {{&txtSugPSUP, &texts_.SugPSUP, Aspect::Supplement, Primary, true},
              {&txtActualPSUP, &texts_.ActualPSUP, Aspect::Psup, Primary, true},
              {&txtSuggestBoltLength, &texts_.SugLength, Aspect::BoltLength, Primary, true},
              {&txtSugSumDiagonals, &texts_.SuggestedSpan, Aspect::Span, Primary, true}};
  const auto add = [this](OutputControls& outputs, const SupportTexts& texts, Opening where) {
    for (std::size_t i = 0; i < SystemCount; ++i) {
      outputs_.push_back({&outputs.RockLoad[i], &texts.RockLoad, SystemAspects.at(i), where, false});
      outputs_.push_back({&outputs.SupportCap[i], &texts.Capacities[i], SystemAspects.at(i), where, false});
      outputs_.push_back({&outputs.StabFactor[i], &texts.Factors[i], SystemAspects.at(i), where, true});
    }
  };
  add(EntryOutputs, texts_.Entries, Opening::Entries);
  add(InterOutputs, texts_.Intersections, Opening::Intersections);
}

void ParametersDialog::MarkOutputs(const Figures& figures, const Verdicts& found) {
  texts_.Take(figures);
  Results results(found);
  for (const LiveOutput& output : outputs_) {
    output.box->SetSign(
        {.Judgement = output.showsJudgement ? results.At(output.what, output.where) : std::string_view(),
         .IsOfEarlierInputs = ShowsAnother(output.box->Text(), output.text->Last())});
  }
  const std::optional<SuggestedFigures> suggested = figures.LiveSuggestion.ValueOr({});
  const bool isNow = suggested && warned_ == std::array{suggested->SpanIsTooLarge, suggested->SpanAndWidthMismatch};
  txtMessage.SetSign({.Judgement = {}, .IsOfEarlierInputs = txtMessage.Visible() && !isNow});
}

std::vector<std::string> ParametersDialog::HintOf(const Control& control) const {
  if (&control == &txtMessage && txtMessage.Sign().IsOfEarlierInputs) return {"Warnings", std::string(EarlierInputs)};
  const auto output = std::ranges::find(outputs_, &control, &LiveOutput::box);
  if (output == outputs_.end()) return ParametersControls::HintOf(control);

  std::vector<std::string> lines{std::string(FieldCaption(control))};
  if (output->box->Sign().IsOfEarlierInputs) {
    const std::string& now = output->text->Last();
    lines.push_back(std::string(EarlierInputs) + ": the fields as they stand give " +
                    (ShowsFigure(now) ? now : "no result"));
  }
  for (const VerdictRow& row : verdicts_) {
    if (row.verdict.What == output->what && row.verdict.Where == output->where) lines.push_back(row.text);
  }
  return lines;
}

}  // namespace orby
