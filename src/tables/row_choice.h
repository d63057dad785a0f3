// Which rows of a table are shown, and in which order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "tables/column.h"

namespace orby {

// What the judgements of a row are.
enum class RowState : std::uint8_t {
  Any,
  Short,       // at least one falls short
  Uncomputed,  // at least one cannot be computed
  Check,       // at least one needs a look
  Holding,     // there are judgements, and all hold
  NotRead,     // the file cannot be read
};

bool IsInState(const TableRow& row, RowState state);

struct RowChoice {
  Columns Shown;
  UnitSystem Units = English;
  std::string Folder;      // the start of paths that is not shown, with a trailing separator
  std::string Containing;  // a part of a cell that is shown, ignoring the case of A to Z; empty: any row
  RowState State = RowState::Any;
  const Column* SortedBy = nullptr;  // null: the paths of the files
  bool IsDescending = false;
};

// Returns the text of a cell in a window about a folder: the path of the file is shown from the folder on.
std::string TextInFolder(const Column& column, const TableRow& row, UnitSystem units, const std::string& folder);

// Returns the places of the chosen rows in their order: numbers before texts, and cells without either last in both
// directions. Equal ones are in the order of their paths. Uses `threads` threads. The result is of no use after
// `goesOn` has returned false, which is called from any of them.
std::vector<std::size_t> ChosenRows(const std::vector<const TableRow*>& rows, const RowChoice& choice, unsigned threads,
                                    const std::function<bool()>& goesOn);

}  // namespace orby
