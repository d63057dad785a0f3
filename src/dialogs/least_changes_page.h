// The page of "What Would Hold" with the least change of each lever that makes a support hold.
#pragma once

#include <optional>
#include <vector>

#include "controls/grid.h"
#include "core/program.h"
#include "studies/least_change.h"

namespace orby {

class LeastChangesPage {
 public:
  // The grid must outlive this object.
  LeastChangesPage(Program& program, Grid& grid);

  // Shows the least change of each lever of the support, and then the levers that do not help. Shows none if the
  // support holds.
  void Show(const Design& design, const StudiedSupport& support);
  void Clear();

  // Returns the design with the selected change, or nothing if that row has none.
  const Design* Selected() const;

 private:
  using Row = std::vector<std::string>;

  void AddRow(Row texts, std::optional<Design> after);
  LeverChange ChangeOf(const Design& design, const StudiedSupport& support, Lever lever) const;
  Row TextsOf(const LeverChange& change, const Design& design, const StudiedSupport& support, Lever lever) const;

  Program& program_;
  Grid& grid_;
  std::vector<Row> rows_;
  std::vector<std::optional<Design>> after_;  // by row of the grid
};

}  // namespace orby
