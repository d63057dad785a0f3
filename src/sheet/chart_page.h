// A chart on one page in landscape: the chart for the wall, with the inputs that it stands for and a title block.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/settings.h"
#include "drawings/scene.h"
#include "sheet/page_layout.h"

namespace orby {

struct PageFact {
  std::string Name;
  std::string Text;
};

struct ChartPage {
  std::string Title;
  std::string Project;
  TitleBlock Titles;
  std::string Date;
  std::string Version;           // of the program
  std::vector<PageFact> Inputs;  // that are the same all over the chart
  std::string Foot;
  // Draws the chart for a room in points. The texts of the scene get smaller with it.
  std::function<Scene(const PageSize& room)> Draw;
};

// Returns the page. `paper` is the size of the paper upright.
Scene PageOf(const ChartPage& chart, const PageSize& paper, const TextWidth& width);

}  // namespace orby
