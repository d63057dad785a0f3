// The strip of judgements under the tabs of the parameters dialog.
#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>

#include "dialogs/parameters_dialog.h"
#include "dialogs/verdict_marks.h"
#include "files/shown_design.h"
#include "reports/verdict_text.h"

namespace orby {
namespace {

// The field that decides a judgement.
struct DecidingField {
  Aspect What;
  Opening Where;
  std::string_view Name;
};

constexpr auto DecidingFields = std::to_array<DecidingField>({
    {Aspect::Span, Opening::Primary, "txtActualSpanDiagonals"},
    {Aspect::SpanAndWidth, Opening::Primary, "txtEntryWidth"},
    {Aspect::Supplement, Opening::Primary, "txtDepthofCover"},
    {Aspect::BoltLength, Opening::Primary, "txtBoltLengthPrimary"},
    {Aspect::BoltCapacity, Opening::Primary, "optBoltOptionsPrimary"},
    {Aspect::Psup, Opening::Primary, "txtRowSpacingPrimary"},
    {Aspect::Cables, Opening::Entries, "txtCableRowSpacingSecEntry"},
    {Aspect::CableAnchorage, Opening::Entries, "txtCableLengthSecEntry"},
    {Aspect::Trusses, Opening::Entries, "txtTrussSpacingSecEntry"},
    {Aspect::Bolts, Opening::Entries, "txtRowSpacingSecEntry"},
    {Aspect::BoltAnchorage, Opening::Entries, "txtBoltLengthSecEntry"},
    {Aspect::BoltCapacity, Opening::Entries, "optBoltOptionsSecEntry"},
    {Aspect::Standing, Opening::Entries, "txtSupportRowSpacingSecEntry"},
    {Aspect::Cables, Opening::Intersections, "txtCableNumberSecInter"},
    {Aspect::CableAnchorage, Opening::Intersections, "txtCableLengthSecInter"},
    {Aspect::Trusses, Opening::Intersections, "txtTrussNumberSecInter"},
    {Aspect::Bolts, Opening::Intersections, "txtBoltNumberSecInter"},
    {Aspect::BoltAnchorage, Opening::Intersections, "txtBoltLengthSecInter"},
    {Aspect::BoltCapacity, Opening::Intersections, "optBoltOptionsSecInter"},
    {Aspect::Standing, Opening::Intersections, "txtSupportNumberSecInter"},
});

// Returns the same judgement on the committed design. It has the same place, unless a commit changes what is judged.
const Verdict& SameOf(const Verdicts& committed, std::size_t place, const Verdict& wanted) {
  const auto same = [&](const Verdict& other) { return other.What == wanted.What && other.Where == wanted.Where; };
  const std::span<const Verdict> all = committed.All();
  if (place < all.size() && same(all[place])) return all[place];
  const auto found = std::ranges::find_if(all, same);
  return found == all.end() ? wanted : *found;
}

std::string TextOf(const VerdictRow& row, UnitSystem units) {
  std::string text = VerdictLine(row.verdict, units);
  if (row.afterOk == row.verdict) return text;
  const std::string after = VerdictLine(row.afterOk, units);
  return after == text ? text : text + " (after OK: " + after + ")";
}

}  // namespace

void ParametersDialog::ShowVerdicts() {
  const Catalogs& catalogs = program_.session.catalogs;
  ReadFields();
  const Single committedRating = typed_.Place.CMRR;
  ReadPart(DesignPart::Place);  // with the rating as it was typed
  const Figures figures = Analyze(typed_, catalogs);
  const Verdicts found = Judge(typed_, figures);
  if (committedRating == typed_.Place.CMRR && CommitKeepsFigures(typed_)) {
    TakeVerdicts(found, found);
  } else {
    Design committed = AsCommitted(typed_);
    committed.Place.CMRR = committedRating;
    TakeVerdicts(found, Judge(committed, Analyze(committed, catalogs)));
  }
  MarkOutputs(figures, found);
}

// Writes only the texts of judgements that have changed.
void ParametersDialog::TakeVerdicts(const Verdicts& found, const Verdicts& committed) {
  const std::span<const Verdict> all = found.All();
  bool isSameOrder = verdicts_.size() == all.size() && !all.empty();
  std::uint32_t changed = 0;  // a bit for each judgement
  verdicts_.resize(all.size());
  for (std::size_t i = 0; i < all.size(); ++i) {
    const Verdict& afterOk = SameOf(committed, i, all[i]);
    VerdictRow& row = verdicts_[i];
    if (!row.text.empty() && row.verdict == all[i] && row.afterOk == afterOk) continue;
    isSameOrder = isSameOrder && row.verdict.Result == all[i].Result;
    row = {all[i], afterOk, {}};
    row.text = TextOf(row, Units());
    changed |= 1U << i;
  }
  if (isSameOrder && changed == 0) return;
  if (!isSameOrder) OrderVerdicts(found);
  ShowVerdictRows(changed, isSameOrder);
}

void ParametersDialog::OrderVerdicts(const Verdicts& found) {
  order_ = WorstFirst(found);
  lblVerdicts.SetCaption("Judgements: " + VerdictCounts(found));
}

void ParametersDialog::ShowVerdictRows(std::uint32_t changed, bool isSameOrder) {
  std::vector<ComboItem> items = lstVerdicts.TakeItems();
  items.resize(verdicts_.size());
  for (std::size_t place = 0; place < order_.size(); ++place) {
    const std::size_t i = order_[place];
    if (isSameOrder && (changed & 1U << i) == 0) continue;
    items[place].text = verdicts_[i].text;
    items[place].mark = MarkOf(verdicts_[i].verdict.Result);
  }
  lstVerdicts.Fill(std::move(items));
}

void ParametersDialog::GoToVerdict(std::size_t row) {
  const Verdict& verdict = verdicts_.at(order_.at(row)).verdict;
  const auto field = std::ranges::find_if(DecidingFields, [&](const DecidingField& entry) {
    return entry.What == verdict.What && entry.Where == verdict.Where;
  });
  ShowControl(*Find(field->Name));
}

}  // namespace orby
