#include "tables/design_table.h"

#include <algorithm>

#include "base/all_cores.h"

namespace orby {

TableView ViewOf(const DesignTable& table) {
  TableView view{.Rows = {}, .Shown = table.Shown, .Units = table.Units};
  view.Rows.reserve(table.Rows.size());
  for (const TableRow& row : table.Rows) view.Rows.push_back(&row);
  return view;
}

TableRow ReadRow(const RowMaker& maker, FileSystem& files, const FoundProject& project) {
  if (project.Reason.empty()) return maker.RowOfFile(files, project.Path);
  TableRow row;
  row.File = project.Path;
  row.Reason = project.Reason;
  return row;
}

std::vector<TableRow> ReadRows(const RowMaker& maker, FileSystem& files, const std::vector<FoundProject>& projects) {
  constexpr std::size_t PieceSize = 64;
  std::vector<TableRow> rows(projects.size());
  InPieces(projects.size(), PieceSize, [&](std::size_t first, std::size_t last) {
    for (std::size_t i = first; i < last; ++i) rows[i] = ReadRow(maker, files, projects[i]);
  });
  return rows;
}

UnitSystem CommonUnits(const std::vector<TableRow>& rows) {
  const auto isEnglish = [](const TableRow& row) { return row.IsRead() && row.Shown.Units != Metric; };
  const bool hasDesign = std::ranges::any_of(rows, &TableRow::IsRead);
  return hasDesign && std::ranges::none_of(rows, isEnglish) ? Metric : English;
}

bool AllAreRead(const std::vector<TableRow>& rows) { return std::ranges::all_of(rows, &TableRow::IsRead); }

}  // namespace orby
