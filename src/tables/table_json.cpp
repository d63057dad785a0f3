// A table of designs as JSON.
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

void WriteValue(JsonWriter& json, const Cell& cell) {
  if (cell.IsNumber()) {
    json.Number(SevenDigitValue(cell));
  } else if (cell.Kind == CellKind::Text) {
    json.Text(cell.Text);
  } else {
    json.Null();
  }
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
  for (const TableRow& row : table.Rows) {
    json.OpenObject(true);
    for (const Column* column : table.Shown) {
      json.Name(column->Key);
      WriteValue(json, CellOf(*column, row, table.Units));
    }
    json.Close();
  }
  json.Close();
  json.Close();
  return json.Take();
}

}  // namespace orby
