#include "tables/row_choice.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "base/all_cores.h"
#include "base/text.h"

namespace orby {
namespace {

constexpr std::size_t PieceSize = 128;

bool IsFile(const Column& column) { return column.Key == "file"; }

// What a row is sorted by.
struct SortKey {
  enum class Kind : std::uint8_t { Number, Text, Nothing };
  Kind What = Kind::Nothing;
  Single Value = 0;
  std::string Words{};  // in upper case
};

SortKey KeyOfRow(const RowChoice& choice, const TableRow& row) {
  const Cell cell = CellOf(*choice.SortedBy, row, choice.Units);
  // A value that is no number has no place among others.
  if (cell.IsNumber() && std::isnan(cell.Value)) return {};
  if (cell.IsNumber()) return {.What = SortKey::Kind::Number, .Value = cell.Value};
  if (cell.Kind != CellKind::Text || cell.Text.empty()) return {};
  return {.What = SortKey::Kind::Text, .Words = UpperCase(cell.Text)};
}

// Negative if `a` stands before `b`.
int Compare(const SortKey& a, const SortKey& b, bool isDescending) {
  if (a.What != b.What) return a.What < b.What ? -1 : 1;
  const int upward = a.Value != b.Value ? (a.Value < b.Value ? -1 : 1) : a.Words.compare(b.Words);
  return isDescending ? -upward : upward;
}

bool Contains(const TableRow& row, const RowChoice& choice) {
  if (choice.Containing.empty()) return true;
  return std::ranges::any_of(choice.Shown, [&](const Column* column) {
    return ContainsWithoutCase(TextInFolder(*column, row, choice.Units, choice.Folder), choice.Containing);
  });
}

}  // namespace

bool IsInState(const TableRow& row, RowState state) {
  const auto has = [&](Holding result) { return row.IsRead() && row.Judged.Count(result) > 0; };
  switch (state) {
    case RowState::Any: return true;
    case RowState::Short: return has(Holding::Short);
    case RowState::Uncomputed: return has(Holding::Uncomputed);
    case RowState::Check: return has(Holding::Check);
    case RowState::Holding: return has(Holding::Holds) && row.Judged.Count(Holding::Holds) == row.Judged.All().size();
    case RowState::NotRead: return !row.IsRead();
  }
  return false;
}

std::string TextInFolder(const Column& column, const TableRow& row, UnitSystem units, const std::string& folder) {
  std::string text = ShownText(CellOf(column, row, units));
  if (IsFile(column) && text.size() > folder.size() && text.starts_with(folder)) text.erase(0, folder.size());
  return text;
}

std::vector<std::size_t> ChosenRows(const std::vector<const TableRow*>& rows, const RowChoice& choice, unsigned threads,
                                    const std::function<bool()>& goesOn) {
  std::vector<char> isChosen(rows.size());
  std::vector<SortKey> keys(rows.size());
  const auto look = [&](std::size_t first, std::size_t last) {
    if (!goesOn()) return;
    for (std::size_t i = first; i < last; ++i) {
      isChosen[i] = IsInState(*rows[i], choice.State) && Contains(*rows[i], choice) ? 1 : 0;
      if (isChosen[i] == 1 && choice.SortedBy != nullptr) keys[i] = KeyOfRow(choice, *rows[i]);
    }
  };
  InPieces(rows.size(), PieceSize, look, threads);
  std::vector<std::size_t> places(rows.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  std::erase_if(places, [&](std::size_t place) { return isChosen[place] == 0; });
  if (!goesOn()) return {};
  std::ranges::sort(places, [&](std::size_t a, std::size_t b) {
    const int difference = Compare(keys[a], keys[b], choice.IsDescending);
    return difference != 0 ? difference < 0 : rows[a]->File < rows[b]->File;
  });
  return places;
}

}  // namespace orby
