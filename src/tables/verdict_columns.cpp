// Columns of the judgements: for each one its result, what is supplied and demanded, and by how much it falls short.
#include <array>
#include <cmath>

#include "reports/verdict_text.h"
#include "tables/column_list.h"

namespace orby {
namespace {

constexpr std::array PrimaryAspects{Aspect::Span,         Aspect::SpanAndWidth, Aspect::BoltLength,
                                    Aspect::BoltCapacity, Aspect::Psup,         Aspect::Supplement};
constexpr std::array SecondaryAspects{Aspect::Cables,        Aspect::CableAnchorage, Aspect::Trusses, Aspect::Bolts,
                                      Aspect::BoltAnchorage, Aspect::BoltCapacity,   Aspect::Standing};

// Returns null if the judgement is not made.
const Verdict* VerdictOn(const TableRow& row, Aspect what, Opening where) {
  for (const Verdict& verdict : row.Judged.All()) {
    if (verdict.What == what && verdict.Where == where) return &verdict;
  }
  return nullptr;
}

Cell ShortBy(const Verdict& verdict) {
  if (verdict.Result != Holding::Short) return {};
  const double percent = ShareMissing(verdict) * 100;
  const double rounded = std::round(percent);
  if (rounded >= 1) return NumberCell(static_cast<Single>(rounded), "0");
  Cell cell = NumberCell(static_cast<Single>(percent), "0");
  cell.Text = LessThanOne;
  return cell;
}

void AddJudgement(const ColumnList& all, Aspect what, Opening where) {
  ColumnList list = all.Below(AspectKey(what), AspectName(what));
  const auto add = [&](std::string_view key, std::string_view head, CellUnit unit, auto get) {
    list.AddAs(key, head, unit, [what, where, get](const TableRow& row) {
      const Verdict* verdict = VerdictOn(row, what, where);
      return verdict == nullptr ? Cell{} : get(*verdict);
    });
  };
  const CellUnit unit{.Suffix = VerdictUnit(what, where), .Before = {}};
  const auto addNumber = [&](std::string_view key, std::string_view head, Single Verdict::*number) {
    add(key, head, unit, [number](const Verdict& verdict) {
      if (verdict.Result == Holding::Uncomputed) return NoResultCell();
      return NumberCell(verdict.*number, VerdictPattern(verdict));
    });
  };
  add("", "", {}, [](const Verdict& verdict) { return TextCell(HoldingWord(verdict.Result)); });
  addNumber("-supply", ", supply", &Verdict::Supply);
  addNumber("-demand", ", demand", &Verdict::Demand);
  const bool isLimit = IsUpperLimit(what);
  add(isLimit ? "-over-by" : "-short-by", isLimit ? ", over by" : ", short by",
      {.Suffix = UnitSuffix::None, .Before = "%"}, ShortBy);
}

void AddCounts(std::vector<Column>& columns) {
  ColumnList list(columns, ColumnGroup::Verdicts, "verdicts-", "Judgements: ");
  const auto add = [&](std::string_view label, Holding result) {
    list.Add(label, {},
             [result](const TableRow& row) { return NumberCell(static_cast<Single>(row.Judged.Count(result))); });
  };
  add("short", Holding::Short);
  add("not computed", Holding::Uncomputed);
  add("to check", Holding::Check);
  add("holding", Holding::Holds);
}

}  // namespace

void AddVerdictColumns(std::vector<Column>& columns) {
  AddCounts(columns);
  const ColumnList list(columns, ColumnGroup::Verdicts, "verdict-", "Judgement: ");
  for (const Aspect what : PrimaryAspects) AddJudgement(list.Below("primary-", "Primary: "), what, Opening::Primary);
  for (const Aspect what : SecondaryAspects) AddJudgement(list.Below("entry-", "Entries: "), what, Opening::Entries);
  for (const Aspect what : SecondaryAspects) {
    AddJudgement(list.Below("intersection-", "Intersections: "), what, Opening::Intersections);
  }
}

}  // namespace orby
