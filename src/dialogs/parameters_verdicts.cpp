// The strip of judgements under the tabs of the parameters dialog.
#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "dialogs/parameters_dialog.h"
#include "dialogs/shown_design.h"
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

std::string_view MarkOf(Holding result) {
  constexpr std::array<std::string_view, 4> Marks{"holds", "check", "uncomputed", "short"};
  return Marks.at(static_cast<std::size_t>(result));
}

const Verdict& SameOf(const Verdicts& verdicts, const Verdict& wanted) {
  const auto same = [&](const Verdict& other) { return other.What == wanted.What && other.Where == wanted.Where; };
  const auto found = std::ranges::find_if(verdicts.All(), same);
  return found == verdicts.All().end() ? wanted : *found;
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
  const Design committed = AsCommitted(typed_);
  ReadPart(DesignPart::Place);  // with the rating as it was typed
  const Verdicts found = Judge(typed_, Analyze(typed_, catalogs));
  const bool differs = committed.Support() != typed_.Support();
  const Verdicts committedVerdicts = differs ? Judge(committed, Analyze(committed, catalogs)) : found;

  std::vector<Verdict> sorted(found.All().begin(), found.All().end());
  std::ranges::stable_sort(sorted, std::ranges::greater(), &Verdict::Result);
  std::vector<VerdictRow> rows;
  rows.reserve(sorted.size());
  for (const Verdict& verdict : sorted) {
    VerdictRow row{verdict, SameOf(committedVerdicts, verdict), {}};
    const auto shown = std::ranges::find_if(
        verdicts_, [&](const VerdictRow& old) { return old.verdict == row.verdict && old.afterOk == row.afterOk; });
    row.text = shown == verdicts_.end() ? TextOf(row, Units()) : std::move(shown->text);
    rows.push_back(std::move(row));
  }
  verdicts_ = std::move(rows);
  ShowVerdictRows();
  lblVerdicts.SetCaption("Judgements: " + VerdictCounts(found));
}

void ParametersDialog::ShowVerdictRows() {
  if (std::ranges::equal(verdicts_, lstVerdicts.Items(), {}, &VerdictRow::text, &ComboItem::text)) return;
  std::vector<ComboItem> items;
  items.reserve(verdicts_.size());
  for (const VerdictRow& row : verdicts_) items.push_back({.text = row.text, .mark = MarkOf(row.verdict.Result)});
  lstVerdicts.Fill(std::move(items));
}

void ParametersDialog::GoToVerdict(std::size_t row) {
  const Verdict& verdict = verdicts_.at(row).verdict;
  const auto field = std::ranges::find_if(DecidingFields, [&](const DecidingField& entry) {
    return entry.What == verdict.What && entry.Where == verdict.Where;
  });
  ShowControl(*Find(field->Name));
}

}  // namespace orby
