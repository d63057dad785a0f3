#include "spreadsheet/sheet_file.h"

#include <xlsxwriter.h>

#include <algorithm>

#include "base/runtime_error.h"
#include "machine/plain_numbers.h"

namespace orby {
namespace {

constexpr const char* SheetName = "Curve";

void WriteColumn(lxw_worksheet* worksheet, lxw_col_t column, const std::string& header,
                 const std::vector<double>& values) {
  worksheet_write_string(worksheet, 0, column, header.c_str(), nullptr);
  lxw_row_t row = 1;
  for (const double value : values) worksheet_write_number(worksheet, row++, column, value, nullptr);
}

void AddSeries(lxw_chart* chart, const SheetSeries& series, lxw_col_t column) {
  // A series without points has one empty row, because a range cannot end before it starts.
  const auto last = static_cast<lxw_row_t>(std::max<std::size_t>(series.x.size(), 1));
  lxw_chart_series* added = chart_add_series(chart, nullptr, nullptr);
  chart_series_set_categories(added, SheetName, 1, column, last, column);
  const auto yColumn = static_cast<lxw_col_t>(column + 1);
  chart_series_set_values(added, SheetName, 1, yColumn, last, yColumn);
  chart_series_set_name(added, series.yHeader.c_str());
}

}  // namespace

void WriteSheetFile(const Sheet& sheet, const std::string& path) {
  const PlainNumbers plain;
  lxw_workbook* workbook = workbook_new(path.c_str());
  if (workbook == nullptr) throw RuntimeError(error_number::PathFileAccess);
  lxw_worksheet* worksheet = workbook_add_worksheet(workbook, SheetName);
  lxw_chart* chart = workbook_add_chart(workbook, LXW_CHART_SCATTER_STRAIGHT_WITH_MARKERS);
  lxw_col_t column = 0;
  for (const SheetSeries& series : sheet.series) {
    WriteColumn(worksheet, column, series.xHeader, series.x);
    WriteColumn(worksheet, static_cast<lxw_col_t>(column + 1), series.yHeader, series.y);
    AddSeries(chart, series, column);
    column = static_cast<lxw_col_t>(column + 2);
  }
  if (!sheet.title.empty()) chart_title_set_name(chart, sheet.title.c_str());
  chart_axis_set_name(chart->x_axis, sheet.xTitle.c_str());
  chart_axis_set_name(chart->y_axis, sheet.yTitle.c_str());
  worksheet_insert_chart(worksheet, 1, static_cast<lxw_col_t>(column + 1), chart);
  if (workbook_close(workbook) != LXW_NO_ERROR) throw RuntimeError(error_number::PathFileAccess);
}

}  // namespace orby
