#include "dialogs/curve_table.h"

#include <algorithm>

#include "base/arithmetic.h"
#include "base/csv_text.h"
#include "base/number_text.h"
#include "base/text.h"

namespace orby {
namespace {

std::string Quoted(std::string_view text) {
  std::string field;
  AppendCsvField(field, text);
  return field;
}

std::string TableField(const std::vector<double>& numbers, std::size_t row) {
  return row < numbers.size() ? NumberText(ToSingle(numbers[row])) : std::string();
}

// Joins the fields of one record, two for each series.
template <class FieldsOf>
std::string Record(const std::vector<ChartSeries>& all, const FieldsOf& fieldsOf) {
  std::string record;
  for (const ChartSeries& series : all) {
    const auto [x, y] = fieldsOf(series);
    if (!record.empty()) record += ',';
    record.append(x).append(",").append(y);
  }
  return record.append(LineEnd);
}

}  // namespace

std::string CurveTable(const std::string& xHeader, const std::string& yHeader, const std::vector<ChartSeries>& all) {
  std::string table = Record(all, [&](const ChartSeries& series) {
    return std::pair(Quoted(xHeader), Quoted(series.isKept ? yHeader + ", " + series.legend : yHeader));
  });
  std::size_t rows = 0;
  for (const ChartSeries& series : all) rows = std::max(rows, series.x.size());
  for (std::size_t row = 0; row < rows; ++row) {
    table += Record(all, [&](const ChartSeries& series) {
      return std::pair(TableField(series.x, row), TableField(series.y, row));
    });
  }
  return table;
}

}  // namespace orby
