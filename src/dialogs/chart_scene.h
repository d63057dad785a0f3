// A chart as a drawing, for files of pictures.
#pragma once

#include "controls/chart.h"
#include "controls/form.h"
#include "drawings/scene.h"
#include "sketches/drafting.h"

namespace orby {

inline constexpr SheetSize ChartSheet{800, 560};

// A chart without a window.
class ChartOnPaper : public Form {
 public:
  Chart chart{*this, "chart"};

  ChartOnPaper() : Form("frmPaper", "") {}

 protected:
  void OnOpen() override {}
};

// Returns the whole chart, whatever part of it is on view: heading, axes, ticks and grid lines, series, the own point,
// reference lines and the legend. The point that is read out is left out.
Scene ChartScene(const Chart& chart, const SheetSize& sheet = ChartSheet);

}  // namespace orby
