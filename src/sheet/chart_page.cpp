#include "sheet/chart_page.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "sheet/cell_grid.h"

namespace orby {
namespace {

constexpr double WallMargin = 36;
constexpr double WallGap = 12;
constexpr double InputsWidth = 196;
constexpr double FootHeight = 14;
constexpr TextStyle WallTitle{.Size = 17, .IsBold = true};

constexpr std::array<PageColumn, 2> FactColumns{{{0, 0.74}, {0.76, 1, Anchor::End}}};

class WallPage {
 public:
  WallPage(const ChartPage& chart, const PageSize& paper, const TextWidth& width)
      : chart_(chart), width_(width), page_{paper.Height, paper.Width, {}, {}} {}

  Scene Make() {
    const double across = page_.Width - 2 * WallMargin;
    Stack head;
    head.Add(Fitting(SetText(chart_.Title, WallTitle, width_), across), 0, 0);
    head.Add(Fitting(SetText(chart_.Project, page_style::Heading, width_), across), 0, 4);
    const double top = WallMargin + head.Height() + WallGap;
    Put(head.Take().Box, {WallMargin, WallMargin});

    const PageBlock block = Titles(across);
    const double blockTop = page_.Height - WallMargin - FootHeight - block.Height;
    Put(block.Box, {WallMargin, blockTop});
    Put(Fitting(SetText(chart_.Foot, page_style::Small, width_), across), {WallMargin, page_.Height - WallMargin});

    const double height = blockTop - WallGap - top;
    const PageSize room{across - InputsWidth - WallGap, height};
    const Scene scene = chart_.Draw(room);
    if (scene.Width > 0 && scene.Height > 0) Put(InRoom(scene, room.Width, room.Height).Box, {WallMargin, top});
    PutInputs({WallMargin + across - InputsWidth, top}, height);
    return std::move(page_);
  }

 private:
  void Put(FormulaBox box, const ScenePoint& at, double scale = 1) {
    box = Placed(std::move(box), at, scale);
    std::ranges::move(box.Labels, std::back_inserter(page_.Labels));
    std::ranges::move(box.Lines, std::back_inserter(page_.Outlines));
  }

  PageBlock Titles(double across) const {
    const PageParts parts(across, width_);
    const TitleBlock& titles = chart_.Titles;
    CellGrid grid(parts);
    grid.Row({{"Company", titles.Company, 0.3}, {"Mine", titles.Mine, 0.3}, {"Section", titles.Section, 0.4}});
    grid.Row({{"Author", titles.Author, 0.3},
              {"Checker", titles.Checker, 0.3},
              {"Revision", titles.Revision, 0.1},
              {"Date", chart_.Date, 0.12},
              {"Program", chart_.Version, 0.18}});
    return grid.Take();
  }

  // A table that is too long gets smaller. It ends at the right margin.
  void PutInputs(const ScenePoint& at, double height) {
    const PageParts parts(InputsWidth, width_);
    Stack table;
    const PageBlock head = parts.HeadRow(FactColumns, {"Input of this design", "Value"}, 0);
    const auto add = [&](const PageBlock& row) {
      table.AddAt(row.Box, {0, table.Height()});
      table.Space(row.Height);
    };
    add(head);
    for (const PageFact& fact : chart_.Inputs) add(parts.Row(FactColumns, {fact.Name, fact.Text}, page_style::Small));
    const double scale = std::min(1.0, height / table.Height());
    Put(table.Take().Box, {at.X + InputsWidth * (1 - scale), at.Y}, scale);
  }

  const ChartPage& chart_;
  const TextWidth& width_;
  Scene page_;
};

}  // namespace

Scene PageOf(const ChartPage& chart, const PageSize& paper, const TextWidth& width) {
  return WallPage(chart, paper, width).Make();
}

}  // namespace orby
