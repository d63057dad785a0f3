// The strip of judgements under the tabs of the parameters dialog.
#include <algorithm>
#include <array>
#include <utility>

#include "dialogs/parameters_dialog.h"
#include "dialogs/shown_design.h"
#include "reports/verdict_text.h"

namespace orby {
namespace {

using D = ParametersDialog;

template <auto control>
Control& At(D& d) {
  return d.*control;
}

// The field that decides a judgement, and the tabs on which it is.
struct Decision {
  Aspect What;
  Opening Where;
  int OuterTab;
  TabSet ParametersControls::*Inner;
  int InnerTab;
  Control& (*Field)(D&);
};

constexpr auto Decisions = std::to_array<Decision>({
    {Aspect::Span, Opening::Primary, 0, nullptr, 0, At<&D::txtActualSpanDiagonals>},
    {Aspect::SpanAndWidth, Opening::Primary, 0, nullptr, 0, At<&D::txtEntryWidth>},
    {Aspect::Supplement, Opening::Primary, 0, nullptr, 0, At<&D::txtDepthofCover>},
    {Aspect::BoltLength, Opening::Primary, 1, nullptr, 0, At<&D::txtBoltLengthPrimary>},
    {Aspect::BoltCapacity, Opening::Primary, 1, nullptr, 0,
     [](D& d) -> Control& { return d.PrimaryBoltControls.Options; }},
    {Aspect::Psup, Opening::Primary, 1, nullptr, 0, At<&D::txtRowSpacingPrimary>},
    {Aspect::Cables, Opening::Entries, 2, &D::SSTab2, 0, At<&D::txtCableRowSpacingSecEntry>},
    {Aspect::CableAnchorage, Opening::Entries, 2, &D::SSTab2, 0, At<&D::txtCableLengthSecEntry>},
    {Aspect::Trusses, Opening::Entries, 2, &D::SSTab2, 1, At<&D::txtTrussSpacingSecEntry>},
    {Aspect::Bolts, Opening::Entries, 2, &D::SSTab2, 2, At<&D::txtRowSpacingSecEntry>},
    {Aspect::BoltAnchorage, Opening::Entries, 2, &D::SSTab2, 2, At<&D::txtBoltLengthSecEntry>},
    {Aspect::BoltCapacity, Opening::Entries, 2, &D::SSTab2, 2,
     [](D& d) -> Control& { return d.EntryBoltControls.Options; }},
    {Aspect::Standing, Opening::Entries, 2, &D::SSTab2, 3, At<&D::txtSupportRowSpacingSecEntry>},
    {Aspect::Cables, Opening::Intersections, 3, &D::SSTab3, 0, At<&D::txtCableNumberSecInter>},
    {Aspect::CableAnchorage, Opening::Intersections, 3, &D::SSTab3, 0, At<&D::txtCableLengthSecInter>},
    {Aspect::Trusses, Opening::Intersections, 3, &D::SSTab3, 1, At<&D::txtTrussNumberSecInter>},
    {Aspect::Bolts, Opening::Intersections, 3, &D::SSTab3, 2, At<&D::txtBoltNumberSecInter>},
    {Aspect::BoltAnchorage, Opening::Intersections, 3, &D::SSTab3, 2, At<&D::txtBoltLengthSecInter>},
    {Aspect::BoltCapacity, Opening::Intersections, 3, &D::SSTab3, 2,
     [](D& d) -> Control& { return d.InterBoltControls.Options; }},
    {Aspect::Standing, Opening::Intersections, 3, &D::SSTab3, 3, At<&D::txtSupportNumberSecInter>},
});

std::string_view MarkOf(Holding result) {
  constexpr std::array<std::string_view, 4> Marks{"holds", "check", "uncomputed", "short"};
  return Marks.at(static_cast<std::size_t>(result));
}

bool IsSameJudgement(const Verdict& a, const Verdict& b) { return a.What == b.What && a.Where == b.Where; }

}  // namespace

void ParametersDialog::ShowVerdicts() {
  const Catalogs& catalogs = program_.session.catalogs;
  ReadFields();
  const Design committed = AsCommitted(typed_);
  ReadPart(DesignPart::Place);  // with the rating as it was typed
  const Verdicts found = Judge(typed_, Analyze(typed_, catalogs));
  const bool differs = committed.Support() != typed_.Support();
  const Verdicts afterOk = differs ? Judge(committed, Analyze(committed, catalogs)) : found;

  verdicts_.assign(found.All().begin(), found.All().end());
  std::ranges::stable_sort(verdicts_, std::ranges::greater(), &Verdict::Result);
  std::vector<ComboItem> rows;
  rows.reserve(verdicts_.size());
  for (const Verdict& verdict : verdicts_) {
    std::string text = VerdictLine(verdict, Units());
    const auto after =
        std::ranges::find_if(afterOk.All(), [&](const Verdict& other) { return IsSameJudgement(other, verdict); });
    if (after != afterOk.All().end() && *after != verdict) {
      const std::string line = VerdictLine(*after, Units());
      if (line != text) text += " (after OK: " + line + ")";
    }
    rows.push_back({.text = std::move(text), .mark = MarkOf(verdict.Result)});
  }
  lblVerdicts.SetCaption("Judgements: " + VerdictCounts(found));
  if (!std::ranges::equal(rows, lstVerdicts.Items(), {}, &ComboItem::text, &ComboItem::text))
    lstVerdicts.Fill(std::move(rows));
}

void ParametersDialog::GoToVerdict(std::size_t row) {
  const Verdict& verdict = verdicts_.at(row);
  const auto decision = std::ranges::find_if(
      Decisions, [&](const Decision& entry) { return entry.What == verdict.What && entry.Where == verdict.Where; });
  SSTab1.SetTab(decision->OuterTab);
  if (decision->Inner != nullptr) (this->*decision->Inner).SetTab(decision->InnerTab);
  RequestFocus(decision->Field(*this));
}

}  // namespace orby
