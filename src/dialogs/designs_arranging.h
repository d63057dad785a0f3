// A choice of rows that is made on threads of their own.
#pragma once

#include <utility>

#include "dialogs/designs_window.h"

namespace orby {

struct DesignsWindow::Arranging {
  Arranging(std::vector<RowPointer> rows, RowChoice choice)
      : Rows(std::move(rows)), Choice(std::move(choice)), Work([this](const std::stop_token& stop) {
          std::vector<const TableRow*> all;
          all.reserve(Rows.size());
          for (const RowPointer& row : Rows) all.push_back(row.get());
          Order = ChosenRows(all, Choice, ThreadsBesideTheWindow(), [&stop] { return !stop.stop_requested(); });
        }) {}

  std::vector<RowPointer> Rows;
  RowChoice Choice;
  std::vector<std::size_t> Order;
  BackgroundWork Work;  // last: it uses the others
};

}  // namespace orby
