// The page of "What Would Hold" that searches all patterns of a support for the cheapest ones that hold.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>

#include "core/program.h"
#include "dialogs/would_hold_controls.h"
#include "studies/pattern_search.h"

namespace orby {

class PatternsPage {
 public:
  // Patterns that are examined between two events of the window.
  static constexpr std::size_t PieceSize = 5000;
  // The patterns in the grid, apart from those on the front.
  static constexpr std::size_t MostListed = 200;

  // The controls must outlive this object.
  PatternsPage(Program& program, PatternControls& controls);

  // Takes the design and the support to search for, with the usual limits.
  void Start(const Design& design, const StudiedSupport& support);
  // Ends without a support: nothing can be searched.
  void Disable();
  // Drops what was found, and stops the search. Prices or limits have changed.
  void Clear();
  // Drops what was found if the limits have changed since.
  void FollowLimits();

  // Checks the limits, and searches in pieces between the events of the window.
  void Search();

  // Returns the design with the selected pattern, or nothing if there is none.
  std::optional<Design> Selected() const;
  // Marks the selected pattern in the chart.
  void ShowSelected();

  std::function<void()> Ended;  // a search has ended or was cancelled

 private:
  struct Subject {
    Design Studied;
    StudiedSupport Support;
  };

  PatternLimits Limits() const;
  void ShowLimits(const PatternLimits& limits);
  bool Has(Lever lever) const;
  // Requires a support.
  FieldRange RangeOfLimit(Lever lever) const;
  void ReportFault(Lever lever);
  void SearchOn();
  void End();
  void ShowFound(const FoundPatterns& found);
  void ShowRows(std::vector<std::vector<std::string>> rows);
  void ShowChart(const FoundPatterns& found);
  std::optional<ChartPoint> OwnPoint() const;
  std::vector<std::string> Headers() const;
  std::vector<std::string> RowOf(const FoundPattern& found) const;
  const PriceList& Prices() const { return program_.session.prices[PlaceOf(subject_->Studied.Units)]; }

  Program& program_;
  PatternControls& controls_;
  std::optional<Subject> subject_;
  PatternLimits searched_;                 // the limits of what is shown
  std::shared_ptr<PatternSearch> search_;  // while it goes on
  std::vector<FoundPattern> listed_;       // by row of the grid
  std::vector<int> pointOfRow_;            // in the chart, of the first rows, which have a cost
};

}  // namespace orby
