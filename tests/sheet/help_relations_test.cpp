// The relations on the pages of the help. To renew them: build/dev/tests/sheet/sheet_files --help help/pages
#include "sheet/help_relations.h"

#include <gmock/gmock.h>

#include <array>
#include <fstream>
#include <set>
#include <sstream>

#include "sheet/help_titles.h"
#include "sheet/sheets.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string HelpPageText(std::string_view name) {
  std::ifstream file(std::string(EXAMPLES_DIR) + "/../help/pages/" + std::string(name), std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

TEST(TheHelp, HasTheBlockOfEachRelationAsTheTableGivesIt) {
  for (const Relation& relation : Relations()) {
    const std::string page = HelpPageText(PlaceInHelp(relation).Page);

    EXPECT_EQ(BlockOnPage(page, relation.Key), HelpBlock(relation)) << relation.Key;
  }
}

TEST(TheHelp, HasTheBlockOfARelationBelowItsAnchor) {
  for (const Relation& relation : Relations()) {
    const auto [name, anchor] = PlaceInHelp(relation);
    const std::string page = HelpPageText(name);
    const auto block = static_cast<std::size_t>(BlockOnPage(page, relation.Key).data() - page.data());

    const std::size_t heading = page.rfind("<h2>", block);

    EXPECT_THAT(page.substr(heading, block - heading), HasSubstr("<a name=\"" + std::string(anchor) + "\""))
        << relation.Key;
  }
}

TEST(TheHelp, HasNoBlockWithoutARelation) {
  std::set<std::string_view> pages;
  for (const Relation& relation : Relations()) pages.insert(PlaceInHelp(relation).Page);
  std::size_t blocks = 0;
  for (const std::string_view name : pages) {
    const std::string page = HelpPageText(name);
    for (std::size_t at = page.find("<!-- relation "); at != std::string::npos;
         at = page.find("<!-- relation ", at + 1))
      ++blocks;
  }

  EXPECT_EQ(blocks, Relations().size());
}

TEST(TheTitlesOfTheHelp, AreThoseOfItsPages) {
  for (const Relation& relation : Relations()) {
    EXPECT_THAT(HelpPageText(PlaceInHelp(relation).Page),
                HasSubstr("<h1>" + std::string(HelpTitle(relation.HelpPage)) + "</h1>"))
        << relation.Key;
  }
  EXPECT_THROW(static_cast<void>(HelpTitle("glossary.html")), std::logic_error);
}

TEST(ABlockOfTheHelp, ShowsFormulaSymbolsAndUnitsOfBothSystems) {
  EXPECT_EQ(HelpBlock(RelationOf(Law::RockSection)),
            "\n<p><b>Section of the rock</b><br><i>A</i> = <i>W</i> × <i>h</i><sub>max</sub> / 2 if <i>b</i> &lt; 0; "
            "else (<i>W</i> + <i>b</i>) / 2 × <i>h</i></p>\n"
            "<p><i>A</i>: section of the rock, ft<sup>2</sup> (m<sup>2</sup>)<br><i>W</i>: entry width, ft (m)"
            "<br><i>b</i>: width at the top, ft (m)<br><i>h</i>: rock load height, ft (m)"
            "<br><i>h</i><sub>max</sub>: greatest rock height, ft (m)</p>\n");
}

TEST(ABlockOfTheHelp, SaysWhereTheFormulaHolds) {
  EXPECT_EQ(HelpBlock(RelationOf(Law::RoofWeakness)),
            "\n<p><b>Weakness of the roof</b><br><i>w</i> = (100 − <i>CMRR</i>) / 100</p>\n"
            "<p><i>w</i>: share of the rating that the roof lacks<br><i>CMRR</i>: Coal Mine Roof Rating"
            "<br>Valid for: a rating of at most 100</p>\n");
}

TEST(ABlockOfTheHelp, NamesTheOnlyUnitsThatItIsFor) {
  EXPECT_THAT(
      HelpBlock(RelationOf(Law::BoltsInEntryInKilonewtons)),
      StartsWith("\n<p><b>Capacity of bolts in rows, Metric designs</b><br><i>R</i> = <i>N</i> × (<i>G</i> × 1000) "
                 "× π × (<i>d</i> / 1000)<sup>2</sup> / 4 / <i>S</i></p>\n"
                 "<p><i>R</i>: capacity of the system, kN/m<br>"));
}

TEST(ABlockOfTheHelp, IsReplacedOnItsPageAlone) {
  const std::string page = "<p>Before</p><!-- relation cost-per-shift --><p>old</p><!-- /relation cost-per-shift -->";

  EXPECT_EQ(BlockOnPage(page, "cost-per-shift"), "<p>old</p>");
  EXPECT_THROW(static_cast<void>(BlockOnPage(page, "cost-per-ton")), std::runtime_error);
  EXPECT_THROW(static_cast<void>(BlockOnPage(page + page, "cost-per-shift")), std::runtime_error);
  EXPECT_EQ(WithHelpBlocks(page, "glossary.html"), page);
}

TEST(TheRelations, AreUsedByTheDesignsThatTheyAreFor) {
  std::array<std::set<Law>, 2> used;
  DesignsOfSheets designs(20260);
  constexpr int Count = 2000;
  for (int i = 0; i < Count; ++i) {
    const SheetOf sheet(designs.Next());
    for (const SheetStep* step : sheet.Steps()) {
      if (step->Law != nullptr) used.at(PlaceOf(sheet.Made.Units)).insert(step->Law->What);
    }
  }

  for (const Relation& relation : Relations()) {
    for (const UnitSystem units : {English, Metric}) {
      EXPECT_EQ(used.at(PlaceOf(units)).contains(relation.What), relation.OnlyIn.value_or(units) == units)
          << relation.Key;
    }
  }
}

}  // namespace
}  // namespace orby::test
