// Rows of designs for the tests of this folder.
#pragma once

#include <stdexcept>
#include <string>

#include "design/catalogs.h"
#include "support/recording_platform.h"
#include "tables/column.h"

namespace orby::test {

// A run with the built-in catalogs.
struct TableRun {
  TableRun() { SetBuiltInCatalogs(program.session.catalogs); }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
};

inline TableRow RowOfDesign(const TableRun& run, const Design& design) {
  Project project;
  project.WorkParms = design;
  return RowMaker(run.program).RowOfProject("panel.ORB", project);
}

inline const Column& ColumnWith(std::string_view key) {
  for (const Column& column : AllColumns()) {
    if (column.Key == key) return column;
  }
  throw std::out_of_range("no column " + std::string(key));
}

// Returns what the cell shows in the units of the design.
inline std::string OwnText(const TableRow& row, std::string_view key) {
  return ShownText(CellOf(ColumnWith(key), row, row.Shown.Units));
}

}  // namespace orby::test
