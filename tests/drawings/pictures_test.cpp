#include "drawings/pictures.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace orby::test {
namespace {

class EveryDrawing : public testing::TestWithParam<std::string_view> {};

TEST_P(EveryDrawing, StaysWithinItsEdges) {
  const Scene scene = PictureScene(GetParam());

  ASSERT_FALSE(scene.Outlines.empty());
  for (const SceneOutline& outline : scene.Outlines) {
    EXPECT_EQ(outline.Steps.front().What, PathStep::Kind::Move);
    for (const PathStep& step : outline.Steps) {
      EXPECT_GE(step.To.X, 0);
      EXPECT_LE(step.To.X, scene.Width);
      EXPECT_GE(step.To.Y, 0);
      EXPECT_LE(step.To.Y, scene.Height);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Pictures, EveryDrawing, testing::ValuesIn(PictureNames()),
                         [](const auto& entry) { return std::string(entry.param); });

TEST(PictureNames, NameEachPictureOnce) {
  const auto names = PictureNames();

  EXPECT_EQ(std::set<std::string_view>(names.begin(), names.end()).size(), names.size());
  EXPECT_EQ(names.size(), 23U);
}

TEST(Pictures, AreEmptyForAnUnknownName) { EXPECT_TRUE(PictureScene("nothing").Outlines.empty()); }

}  // namespace
}  // namespace orby::test
