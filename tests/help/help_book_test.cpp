#include "help/help_book.h"

#include <gmock/gmock.h>

#include "help/markup.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* Contents = R"(<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">
<HTML><HEAD><!-- contents --></HEAD><BODY>
<UL>
<LI><OBJECT type="text/sitemap"><param name="Name" value="Getting started"></OBJECT>
<UL>
<LI><OBJECT type="text/sitemap"><param name="Name" value="Welcome"><param name="Local" value="welcome.html"></OBJECT>
</UL>
<LI><OBJECT type="text/sitemap"><param name="Name" value="Windows &amp; dialogs"></OBJECT>
<UL>
<LI><OBJECT type="text/sitemap"><param name="Name" value="Graph"><param name="Local" value="graph.html"></OBJECT>
<LI><OBJECT type="text/sitemap"><param name="Name" value="Cost"><param name="Local" value="cost.html"></OBJECT>
</UL>
</UL></BODY></HTML>)";

constexpr const char* Index = R"(<UL>
<LI><OBJECT type="text/sitemap"><param name="Name" value="bolt"><param name="Local" value="cost.html"></OBJECT>
<LI><OBJECT type="text/sitemap"><param name="Name" value="Bolt"><param name="Local" value="graph.html#frmGraph"></OBJECT>
<LI><OBJECT type="text/sitemap"><param name="Name" value="crew"><param name="Local" value="cost.html"></OBJECT>
</UL>)";

HelpBook BookOf(std::map<std::string, std::string> files) {
  return HelpBook([files = std::move(files)](const std::string& name) -> std::optional<std::string> {
    const auto found = files.find(name);
    if (found == files.end()) return std::nullopt;
    return found->second;
  });
}

HelpBook MineBook() {
  return BookOf({
      {"ORBY.hhc", Contents},
      {"ORBY.hhk", Index},
      {"topics.txt",
       "frmGraph\tgraph.html\nfrmGraph.cmdPrint\tgraph.html\nfrmGraph.Text1\tgraph.html\n"
       "frmGraph.Text1_3\tcost.html\nfrmTULKCost.txtnboltsRow\tcost.html\n"},
      {"welcome.html", "<html><head><title>Welcome bolt</title></head><body><h1>Welcome</h1><p>Roof support."},
      {"graph.html", "<h1>Graph</h1><p>A curve of a roof <b>b</b>olt, and of bolts.</p><ul><li>Roof<li>x</ul>"},
      {"cost.html", "<h1>Cost</h1><p>Roof&nbsp;bolts cost money; a BOLT costs 5.72.</p>"},
  });
}

// ---- first sentences ------------------------------------------------------------------------------------------------

TEST(FirstSentences, AreTakenFromTheDescriptionsByTheirAnchors) {
  const Sentences sentences = FirstSentences(
      "<p><a name=\"graph-marks\"></a>Marks.</p><dl>"
      "<dt><a name=\"frmA.txtCover\"></a><a name=\"frmA.cmbCover\"></a><b>Cover</b></dt>"
      "<dd><p>The <b>thickness</b> of\nrock &amp; soil, 1.5 ft or <a href=\"x.html\">more</a>. A second "
      "one.</p><p>Third.</p>"
      "</dd><dt><a name=\"frmA.txtWidth\"></a><b>Width</b></dt>\n<dd>Rib to rib</dd></dl>");

  EXPECT_THAT(sentences, testing::UnorderedElementsAre(
                             testing::Pair("frmA.txtCover", "The thickness of rock & soil, 1.5 ft or more."),
                             testing::Pair("frmA.cmbCover", "The thickness of rock & soil, 1.5 ft or more."),
                             testing::Pair("frmA.txtWidth", "Rib to rib")));
}

TEST(FirstSentences, AreTakenFromTheCellsOfTables) {
  EXPECT_THAT(
      FirstSentences("<table><tr><th>Field</th></tr><tr><td><a name=\"frmA.txtCover\"></a><b>Cover</b> of a new "
                     "project</td><td>400 ft</td></tr></table>"),
      testing::ElementsAre(testing::Pair("frmA.txtCover", "Cover of a new project")));
}

TEST(FirstSentences, ServeSeveralTermsWithOneDescription) {
  EXPECT_THAT(FirstSentences("<dl><dt><a name=\"a\"></a>A<dt><a name=\"b\"></a>B<dd>Both.<dt><a name=\"c\"></a>C<dd>"
                             "<p></p><p>The last"),
              testing::UnorderedElementsAre(testing::Pair("a", "Both."), testing::Pair("b", "Both."),
                                            testing::Pair("c", "The last")));
}

TEST(FirstSentences, AreFoundByTheTopicOrItsArray) {
  HelpBook book =
      BookOf({{"topics.txt", "frmA\ta.html\nfrmA.Text1\ta.html\nfrmA.Text2\ta.html\n"},
              {"a.html", "<a name=\"frmA\"></a><dl><dt><a name=\"frmA.Text1\"></a><dd>The load. More.</dl>"}});

  EXPECT_EQ(book.FirstSentenceOf("frmA.Text1"), "The load.");
  EXPECT_EQ(book.FirstSentenceOf("frmA.Text1_2"), "The load.");
  EXPECT_EQ(book.FirstSentenceOf("frmA.Text2"), "") << "its topic is not in the page";
  EXPECT_EQ(book.FirstSentenceOf("frmA.Text3"), "");
  EXPECT_EQ(book.FirstSentenceOf("frmA"), "");
}

TEST(FirstSentences, OfABookThatIsNoHelpFileAreEmpty) { EXPECT_EQ(BookOf({}).FirstSentenceOf("frmA.Text1"), ""); }

// ---- contents and index --------------------------------------------------------------------------------------------

TEST(HelpContents, AreATreeOfHeadingsAndPages) {
  EXPECT_THAT(ReadSitemap(Contents),
              ElementsAre(HelpEntry{"Getting started", "", {HelpEntry{"Welcome", "welcome.html", {}}}},
                          HelpEntry{"Windows & dialogs",
                                    "",
                                    {HelpEntry{"Graph", "graph.html", {}}, HelpEntry{"Cost", "cost.html", {}}}}));
}

TEST(HelpContents, MayLackQuotesEndsAndOrder) {
  EXPECT_THAT(ReadSitemap("<ul><li><object><param value=Welcome name=Name><PARAM NAME='local' VALUE='w.html'></object"),
              ElementsAre(HelpEntry{"Welcome", "w.html", {}}));
  EXPECT_THAT(ReadSitemap("</ul></ul><object><param name=\"Name\" value=\"a > b\"></object>"),
              ElementsAre(HelpEntry{"a > b", "", {}}));
}

TEST(HelpContents, HaveNoEntriesWithoutATitle) {
  EXPECT_THAT(ReadSitemap("<ul><object><param name=\"Local\" value=\"w.html\"></object></ul>"), IsEmpty());
  EXPECT_THAT(ReadSitemap(""), IsEmpty());
  EXPECT_THAT(ReadSitemap("<"), IsEmpty());
  EXPECT_THAT(ReadSitemap("<object><param name=\"Name"), IsEmpty());
}

TEST(HelpContents, OfADamagedFileHaveALimitedDepth) {
  std::string source;
  for (int i = 0; i < 100000; ++i) source += "<ul><object><param name=Name value=x></object>";

  std::size_t depth = 0;
  const auto entries = ReadSitemap(source);
  for (const auto* at = &entries; !at->empty(); at = &at->front().entries) ++depth;

  EXPECT_EQ(depth, 15U);
}

TEST(HelpIndex, HasOneEntryForAKeywordOfSeveralPlaces) {
  EXPECT_THAT(ReadIndex(Index), ElementsAre(HelpKeyword{"bolt", {"cost.html", "graph.html#frmGraph"}},
                                            HelpKeyword{"crew", {"cost.html"}}));
}

// ---- places --------------------------------------------------------------------------------------------------------

TEST(HelpPlaces, BeginWithTheFirstPage) {
  EXPECT_EQ(MineBook().FirstPage(), "welcome.html");
  EXPECT_EQ(BookOf({}).FirstPage(), "");
}

TEST(HelpPlaces, AreNotReadFromALineWithoutATopic) {
  HelpBook book = BookOf({{"ORBY.hhc", Contents}, {"topics.txt", "\tgraph.html\nfrmGraph\n"}});

  EXPECT_EQ(book.PlaceOf("frmGraph"), "welcome.html");
}

TEST(HelpPlaces, HaveTheTitleOfTheirPage) {
  EXPECT_EQ(MineBook().TitleOf("graph.html#frmGraph.Text1"), "Graph");
  EXPECT_EQ(MineBook().TitleOf("else.html#x"), "else.html");
}

struct TopicCase {
  const char* what;
  const char* topic;
  const char* place;
};

class HelpTopic : public testing::TestWithParam<TopicCase> {};

TEST_P(HelpTopic, IsFound) { EXPECT_EQ(MineBook().PlaceOf(GetParam().topic), GetParam().place); }

INSTANTIATE_TEST_SUITE_P(
    Topics, HelpTopic,
    testing::Values(TopicCase{"OfAForm", "frmGraph", "graph.html#frmGraph"},
                    TopicCase{"OfAControl", "frmGraph.cmdPrint", "graph.html#frmGraph.cmdPrint"},
                    TopicCase{"OfAnArrayForItsMember", "frmGraph.Text1_2", "graph.html#frmGraph.Text1"},
                    TopicCase{"OfAnArrayForItsTenthMember", "frmGraph.Text1_10", "graph.html#frmGraph.Text1"},
                    TopicCase{"OfAMemberThatHasOneOfItsOwn", "frmGraph.Text1_3", "cost.html#frmGraph.Text1_3"},
                    TopicCase{"OfTheFormForAControlWithoutOne", "frmGraph.cmdClose", "graph.html#frmGraph"},
                    TopicCase{"OfTheFormForAMemberWithoutOne", "frmGraph.Text7_1", "graph.html#frmGraph"},
                    TopicCase{"AsTheFirstPageForAFormWithoutOne", "frmTULKCost.txtCrew", "welcome.html"},
                    TopicCase{"AsTheFirstPageForNothing", "", "welcome.html"},
                    TopicCase{"WithTheCaseOfItsLetters", "frmTULKCost.txtnboltsRow",
                              "cost.html#frmTULKCost.txtnboltsRow"}),
    [](const auto& entry) { return std::string(entry.param.what); });

// ---- search --------------------------------------------------------------------------------------------------------

TEST(HelpSearch, OrdersPagesByHitsAndThenByTitle) {
  const auto found = MineBook().Search("roof");

  EXPECT_THAT(found, ElementsAre(AllOf(Field(&HelpHit::title, "Graph"), Field(&HelpHit::hits, 2)),
                                 AllOf(Field(&HelpHit::title, "Cost"), Field(&HelpHit::hits, 1)),
                                 AllOf(Field(&HelpHit::title, "Welcome"), Field(&HelpHit::hits, 1))));
}

TEST(HelpSearch, ShowsTheWordsAroundTheFirstHit) {
  EXPECT_EQ(MineBook().Search("money").front().snippet, "Cost Roof bolts cost money; a BOLT costs 5.72.");
}

TEST(HelpSearch, FindsOnlyPagesWithAllWords) {
  EXPECT_THAT(MineBook().Search("roof curve"), ElementsAre(Field(&HelpHit::place, "graph.html")));
  EXPECT_THAT(MineBook().Search("curve money"), IsEmpty());
}

TEST(HelpSearch, IgnoresTheCaseOfLetters) { EXPECT_THAT(MineBook().Search("ROOF"), SizeIs(3)); }

TEST(HelpSearch, MatchesTheStartOfAWordButNotItsMiddle) {
  EXPECT_THAT(MineBook().Search("mon"), SizeIs(1));
  EXPECT_THAT(MineBook().Search("oney"), IsEmpty());
}

TEST(HelpSearch, CountsARepeatedWordOnce) { EXPECT_EQ(MineBook().Search("curve, Curve").front().hits, 1); }

TEST(HelpSearch, FindsNothingWithoutAWord) {
  EXPECT_THAT(MineBook().Search(""), IsEmpty());
  EXPECT_THAT(MineBook().Search(" ; - "), IsEmpty());
}

TEST(HelpSearch, IgnoresTheHeadOfAPage) { EXPECT_THAT(MineBook().Search("welcome bolt"), IsEmpty()); }

TEST(HelpSearch, CutsTheTextOfALongPageBetweenWords) {
  std::string page = "<p>";
  for (int i = 0; i < 40; ++i) page += "lagging ";
  page += "truss";
  for (int i = 0; i < 40; ++i) page += " lagging";
  HelpBook book = BookOf({{"ORBY.hhc", Contents}, {"cost.html", page}});

  const auto found = book.Search("truss");

  ASSERT_THAT(found, SizeIs(1));
  EXPECT_THAT(found.front().snippet, HasSubstr("lagging truss lagging"));
  EXPECT_TRUE(found.front().snippet.starts_with("...lagging "));
  EXPECT_TRUE(found.front().snippet.ends_with(" lagging..."));
}

// Returns the snippet for "truss" in a page with this text.
std::string SnippetOf(const std::string& text) {
  return BookOf({{"ORBY.hhc", Contents}, {"cost.html", text}}).Search("truss").front().snippet;
}

std::string Repeated(std::string_view word, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) text += word;
  return text;
}

TEST(HelpSearch, ShowsFortyBytesBeforeAHitAndAHundredAfterIt) {
  const std::string page = Repeated("lagging ", 40) + "truss" + Repeated(" lagging", 40);

  EXPECT_EQ(SnippetOf(page), "..." + Repeated("lagging ", 4) + "truss" + Repeated(" lagging", 12) + "...");
}

TEST(HelpSearch, ShowsTheStartOfAPageWithAHitInItsFirstFortyBytes) {
  EXPECT_EQ(SnippetOf("a roof is held by bolt or cables and by truss"),
            "a roof is held by bolt or cables and by truss");
  EXPECT_EQ(SnippetOf("a roof is held by bolts or cables and by truss"),
            "...roof is held by bolts or cables and by truss");
}

TEST(HelpSearch, BeginsAtTheHitWhenThereIsNoBlankShortlyBeforeIt) {
  EXPECT_EQ(SnippetOf(Repeated("-", 60) + "truss bolts"), "...truss bolts");
}

// ---- the text of a page --------------------------------------------------------------------------------------------

TEST(HelpPage, IsReadAsWords) {
  EXPECT_EQ(TextOfPage("<body><p>4 &lt; 5 &amp;amp;</p><td>a</td><td>b</td>c<br>d<!-- <p>e --> f<sub>g</sub>"),
            "4 < 5 &amp; a b c d fg");
}

TEST(HelpPage, KeepsAnUnknownEntity) { EXPECT_EQ(TextOfPage("a &frac12; & b"), "a &frac12; & b"); }

TEST(HelpPage, HasTheCharacterOfEachEntityInTheBook) {
  EXPECT_EQ(TextOfPage("the miner&#39;s &quot;roof&quot;: 5 &gt; 4 &lt; 6 &amp; 7&nbsp;ft"),
            "the miner's \"roof\": 5 > 4 < 6 & 7 ft");
}

}  // namespace
}  // namespace orby::test
