// The page of a chart for the wall.
#include "sheet/chart_page.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "sheet/sheets.h"

namespace orby::test {
namespace {

ChartPage WallChart(std::size_t inputs) {
  ChartPage page{.Title = "Suggested PSUP",
                 .Project = "Cinder Hollow, fault zone",
                 .Titles = {"Brannock Coal", "Cinder Hollow", "3 East", "M. Delacroix", "T. Okonjo", "B"},
                 .Date = "2031-03-09",
                 .Version = "1.0.00",
                 .Inputs = {},
                 .Foot = "panel 3.ORB",
                 .Draw = [](const PageSize& room) {
                   Scene scene{.Width = room.Width, .Height = room.Height, .Outlines = {}, .Labels = {}};
                   scene.Labels.push_back({.Text = "top", .At = {0, 0}});
                   scene.Labels.push_back({.Text = "bottom", .At = {room.Width, room.Height}});
                   return scene;
                 }};
  for (std::size_t i = 0; i < inputs; ++i) page.Inputs.push_back({"Entry Width (ft)", "20"});
  return page;
}

const SceneLabel& LabelOf(const Scene& page, std::string_view text) {
  const auto found = std::ranges::find(page.Labels, text, &SceneLabel::Text);
  if (found == page.Labels.end()) throw std::runtime_error("no " + std::string(text));
  return *found;
}

TEST(WallChartPage, StandsInLandscape) {
  const Scene page = PageOf(WallChart(5), A4, PageTextWidth);

  EXPECT_EQ(page.Width, 842);
  EXPECT_EQ(page.Height, 595);
  EXPECT_EQ(PageOf(WallChart(5), Letter, PageTextWidth).Width, 792);
}

TEST(WallChartPage, GivesTheChartTheRoomBetweenHeadAndTitleBlock) {
  const Scene page = PageOf(WallChart(5), A4, PageTextWidth);

  const SceneLabel& top = LabelOf(page, "top");
  const SceneLabel& bottom = LabelOf(page, "bottom");
  EXPECT_GT(top.At.Y, LabelOf(page, "Cinder Hollow, fault zone").At.Y);
  EXPECT_LT(bottom.At.Y, LabelOf(page, "Company").At.Y);
  EXPECT_LT(bottom.At.X, LabelOf(page, "Entry Width (ft)").At.X);
  EXPECT_GT((bottom.At.X - top.At.X) * (bottom.At.Y - top.At.Y), 0.4 * 842 * 595) << "most of the page";
}

TEST(WallChartPage, FitsTheInputsOfAnyDesign) {
  for (const std::size_t count : {0U, 10U, 60U}) {
    const Scene page = PageOf(WallChart(count), A4, PageTextWidth);
    const double block = LabelOf(page, "Company").At.Y;

    EXPECT_EQ(std::ranges::count(page.Labels, "Entry Width (ft)", &SceneLabel::Text), static_cast<long>(count));
    for (const SceneLabel& label : page.Labels) {
      if (label.Text != "Entry Width (ft)") continue;
      EXPECT_LT(label.At.Y, block);
    }
  }
}

TEST(WallChartPage, HasItsTitleBlock) {
  const Scene page = PageOf(WallChart(3), A4, PageTextWidth);

  for (const char* text :
       {"Company", "Brannock Coal", "Mine", "Cinder Hollow", "Section", "3 East", "Author", "M. Delacroix", "Checker",
        "T. Okonjo", "Revision", "B", "Date", "2031-03-09", "1.0.00", "panel 3.ORB"}) {
    EXPECT_NO_THROW(LabelOf(page, text)) << text;
  }
}

}  // namespace
}  // namespace orby::test
