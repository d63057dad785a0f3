#include "drawings/scene_svg.h"

#include <gmock/gmock.h>

#include "drawings/pictures.h"

namespace orby::test {
namespace {

TEST(SceneSvg, WritesEachPartOfAScene) {
  Scene scene{100, 50.5, {}, {}};
  scene.Outlines.push_back({PathSteps("M1 2L3.25 4.126C5 6 7 8 9 10Z"),
                            {Ink::Rock, 0.2},
                            {.Colour = Ink::Bolt, .Width = 1.5, .Opacity = 0.5}});
  scene.Outlines.push_back(
      {PathSteps("M0 0L10 0"), {}, {.Colour = Ink::Text, .Width = 1, .IsRound = true, .IsDashed = true}});
  scene.Labels.push_back({.Text = "Cover < 900 ft & \"more\"", .At = {5, 6}});
  scene.Labels.push_back({.Text = "d1", .At = {7, 8}, .Side = Anchor::Middle, .Size = 11, .IsBold = true, .Turn = -90});

  EXPECT_EQ(SceneSvg(scene),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100\" height=\"50.5\" viewBox=\"0 0 100 50.5\">\n"
            "<rect width=\"100\" height=\"50.5\" fill=\"#ffffff\"/>\n"
            "<path d=\"M1 2L3.25 4.13C5 6 7 8 9 10Z\" fill=\"#c1662f\" fill-opacity=\"0.2\" stroke=\"#2f7fc1\" "
            "stroke-width=\"1.5\" stroke-opacity=\"0.5\"/>\n"
            "<path d=\"M0 0L10 0\" fill=\"none\" stroke=\"#1f1f1f\" stroke-width=\"1\" stroke-linecap=\"round\" "
            "stroke-linejoin=\"round\" stroke-dasharray=\"4 3\"/>\n"
            "<g font-family=\"sans-serif\" fill=\"#1f1f1f\">\n"
            "<text x=\"5\" y=\"6\" text-anchor=\"start\" font-size=\"13\">Cover &lt; 900 ft &amp; &quot;more&quot;"
            "</text>\n"
            "<text x=\"7\" y=\"8\" text-anchor=\"middle\" font-size=\"11\" font-weight=\"bold\" "
            "transform=\"rotate(-90 7 8)\">d1</text>\n"
            "</g>\n"
            "</svg>\n");
}

TEST(SceneSvg, WritesNoMinusBeforeZero) {
  Scene scene{10, 10, {{PathSteps("M-0.001 1L2 3"), {}, {}}}, {}};

  EXPECT_THAT(SceneSvg(scene), testing::HasSubstr("d=\"M0 1L2 3\""));
}

TEST(SceneSvg, WritesACircleAsTwoArcs) {
  Scene scene{20, 20, {}, {}};
  scene.Outlines.push_back({{{PathStep::Kind::Circle, {10, 8}, {14, 8}, {}}}, {}, {.Colour = Ink::Bolt}});
  EXPECT_THAT(SceneSvg(scene), testing::HasSubstr("d=\"M14 8A4 4 0 0 1 6 8A4 4 0 0 1 14 8Z\""));
}

TEST(SceneSvg, WritesBlanksForCharactersThatXmlCannotHold) {
  Scene scene{10, 10, {}, {{.Text = "a\x01\tb", .At = {}}}};

  EXPECT_THAT(SceneSvg(scene), testing::HasSubstr(">a  b</text>"));
}

TEST(SceneSvg, WritesEveryOutlineOfAPicture) {
  const std::string text = SceneSvg(PictureScene("region_3"));

  std::size_t found = 0;
  for (std::size_t at = text.find("<path "); at != std::string::npos; at = text.find("<path ", at + 1)) ++found;
  EXPECT_EQ(found, 4U);
}

}  // namespace
}  // namespace orby::test
