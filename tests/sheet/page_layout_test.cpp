// The pages of a sheet.
#include "sheet/page_layout.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "sheet/page_flow.h"
#include "sheet/sheets.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

PagedSheet Paged(const DesignSheet& sheet, const PageSize& size = A4) {
  return PagesOf(sheet, size, {.Left = "Panel 3", .Date = "2026-11-21"}, PageTextWidth);
}

bool Shows(const Scene& page, const std::string& text) {
  return std::ranges::any_of(page.Labels, [&](const SceneLabel& label) { return label.Text == text; });
}

std::size_t PagesWith(const PagedSheet& paged, const std::string& text) {
  return static_cast<std::size_t>(
      std::ranges::count_if(paged.Pages, [&](const Scene& page) { return Shows(page, text); }));
}

TEST(SheetPages, HaveTextsOnlyBetweenTheirMargins) {
  DesignsOfSheets designs(3);
  for (int i = 0; i < 40; ++i) {
    const SheetOf sheet(designs.Next());
    const PageSize size = i % 2 == 0 ? A4 : Letter;
    for (const Scene& page : Paged(sheet.Made, size).Pages) {
      EXPECT_EQ(page.Width, size.Width);
      for (const SceneLabel& label : page.Labels) {
        ASSERT_GE(label.At.X, PageMargin - 0.01) << label.Text;
        const double right = label.At.X + PageTextWidth(label.Text, {.Size = label.Size});
        ASSERT_LE(right, size.Width - PageMargin + 0.01) << label.Text;
        ASSERT_GE(label.At.Y - label.Size * 0.8, PageMargin - 0.01 - label.Size) << label.Text;
        ASSERT_LE(label.At.Y, size.Height - PageMargin + 16) << label.Text;
      }
    }
  }
}

TEST(SheetPages, ShowEachStepAndEachNumberOfPages) {
  const SheetOf sheet(FullDesign());
  const PagedSheet paged = Paged(sheet.Made);

  for (std::size_t i = 0; i < sheet.Made.Sections.size(); ++i) {
    int number = 0;
    for (const SheetPart& part : sheet.Made.Sections[i].Parts) {
      const auto* step = std::get_if<SheetStep>(&part);
      if (step == nullptr) continue;
      const std::string title = std::to_string(i + 1) + "." + std::to_string(++number) + "  " + step->Title;
      EXPECT_EQ(PagesWith(paged, title), 1U) << title;
    }
  }
  const std::string of = " of " + std::to_string(paged.Pages.size());
  for (std::size_t i = 0; i < paged.Pages.size(); ++i) {
    EXPECT_TRUE(Shows(paged.Pages[i], "Page " + std::to_string(i + 1) + of));
    EXPECT_TRUE(Shows(paged.Pages[i], "Panel 3"));
  }
}

TEST(SheetPages, ListTheirSectionsWithTheRightPages) {
  const SheetOf sheet(FullDesign());
  const PagedSheet paged = Paged(sheet.Made);

  ASSERT_THAT(paged.Contents, SizeIs(sheet.Made.Sections.size()));
  for (const PageEntry& entry : paged.Contents) {
    const Scene& page = paged.Pages.at(entry.Page);
    EXPECT_TRUE(Shows(page, entry.Title)) << entry.Title;
    EXPECT_TRUE(Shows(paged.Pages[0], entry.Title)) << "in the contents";
    EXPECT_TRUE(Shows(paged.Pages[0], std::to_string(entry.Page + 1)));
  }
}

TEST(SheetPages, ShowLongTitlesInSeveralLines) {
  SheetOf sheet(FullDesign());
  sheet.Made.Project.Title =
      "Second north mains, belt entry between crosscuts 14 and 32 with the longwall recovery room";

  const Scene first = Paged(sheet.Made).Pages[0];

  EXPECT_FALSE(Shows(first, sheet.Made.Project.Title));
  EXPECT_TRUE(std::ranges::any_of(first.Labels, [](const SceneLabel& label) { return label.Text.ends_with("room"); }));
}

// ---- blocks on pages
// -------------------------------------------------------------------------------------------------

PageBlock BlockOf(const std::string& text, double height) {
  PageBlock block{.Box = {}, .Height = height, .Entry = {}, .Head = {}};
  block.Box.Labels.push_back({.Text = text, .At = {}});
  return block;
}

std::vector<std::string> TextsOn(const Scene& page) {
  std::vector<std::string> texts;
  for (const SceneLabel& label : page.Labels) texts.push_back(label.Text);
  return texts;
}

std::vector<std::vector<std::string>> TextsOfPages(const std::vector<PageBlock>& blocks) {
  PageFlow flow({300, 2 * PageMargin + 14 + 100});
  flow.Place(blocks);
  std::vector<std::vector<std::string>> texts;
  for (const Scene& page : flow.Take().Pages) texts.push_back(TextsOn(page));
  return texts;
}

TEST(PageFlow, BeginsAPageForABlockThatDoesNotFit) {
  EXPECT_THAT(TextsOfPages({BlockOf("a", 60), BlockOf("b", 60), BlockOf("c", 40)}),
              ElementsAre(ElementsAre("a"), ElementsAre("b", "c")));
}

TEST(PageFlow, LeavesNoHeadingAlone) {
  PageBlock heading = BlockOf("heading", 20);
  heading.KeepsNext = true;

  EXPECT_THAT(TextsOfPages({BlockOf("a", 60), heading, BlockOf("b", 30)}),
              ElementsAre(ElementsAre("a"), ElementsAre("heading", "b")));
}

TEST(PageFlow, LeavesTheSpaceAboveABlockOutAtTheTopOfAPage) {
  PageBlock second = BlockOf("b", 60);
  second.Before = 30;
  PageFlow flow({300, 2 * PageMargin + 14 + 100});
  flow.Place({BlockOf("a", 60), second});

  EXPECT_EQ(flow.Take().Pages[1].Labels[0].At.Y, PageMargin);
}

TEST(PageFlow, RepeatsTheHeadOfATableThatGoesOn) {
  PageBlock head = BlockOf("head", 20);
  head.KeepsNext = true;
  std::vector<PageBlock> blocks{head};
  for (const char* row : {"1", "2", "3"}) {
    blocks.push_back(BlockOf(row, 40));
    blocks.back().Head = {head.Box};
  }

  EXPECT_THAT(TextsOfPages(blocks), ElementsAre(ElementsAre("head", "1", "2"), ElementsAre("head", "3")));
}

}  // namespace
}  // namespace orby::test
