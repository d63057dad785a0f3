// A table of designs as JSON.
#include "base/all_cores.h"
#include "base/json_writer.h"
#include "core/version.h"
#include "tables/design_table.h"

namespace orby {
namespace {

constexpr double TableFormat = 1;

void WriteColumns(JsonWriter& json, const DesignTable& table) {
  json.Name("columns");
  json.OpenArray();
  for (const Column* column : table.Shown) {
    json.OpenObject(true);
    json.Text("key", column->Key);
    json.Text("head", column->Head);
    json.Text("unit", UnitText(column->Unit, table.Units));
    json.Close();
  }
  json.Close();
}

std::string TextAsJson(std::string_view text) {
  JsonWriter json;
  json.Text(text);
  std::string quoted = json.Take();
  quoted.pop_back();  // the line end
  return quoted;
}

// The names of the members of a row, which are the same in all rows.
std::vector<std::string> MemberNames(const DesignTable& table) {
  std::vector<std::string> names;
  for (const Column* column : table.Shown) {
    names.push_back((names.empty() ? "" : ", ") + TextAsJson(column->Key) + ": ");
  }
  return names;
}

// The text of a number with seven digits is a number of JSON, too.
std::string ValueAsJson(const Cell& cell) {
  if (cell.IsNumber()) return NumberText(cell.Value);
  return cell.Kind == CellKind::Text ? TextAsJson(cell.Text) : "null";
}

std::vector<std::string> RowsAsJson(const DesignTable& table) {
  constexpr std::size_t PieceSize = 64;
  const std::vector<std::string> names = MemberNames(table);
  std::vector<std::string> rows(table.Rows.size());
  InPieces(rows.size(), PieceSize, [&](std::size_t first, std::size_t last) {
    for (std::size_t i = first; i < last; ++i) {
      std::string& row = rows[i];
      row = "{";
      for (std::size_t place = 0; place < names.size(); ++place) {
        row += names[place];
        row += ValueAsJson(CellOf(*table.Shown[place], table.Rows[i], table.Units));
      }
      row += '}';
    }
  });
  return rows;
}

}  // namespace

std::string TableAsJson(const DesignTable& table) {
  JsonWriter json;
  json.OpenObject();
  json.Number("format", TableFormat);
  json.Name("program");
  json.OpenObject(true);
  json.Text("name", ProgramTitle);
  json.Text("version", VersionText());
  json.Close();
  json.Text("units", table.Units == Metric ? "metric" : "english");
  WriteColumns(json, table);
  json.Name("rows");
  json.OpenArray();
  for (const std::string& row : RowsAsJson(table)) json.Made(row);
  json.Close();
  json.Close();
  return json.Take();
}

}  // namespace orby
