// The committed manual and papers: they are complete, match their pages, and have no bad page breaks.
#include <gmock/gmock.h>

#include <QRegularExpression>
#include <algorithm>
#include <set>

#include "core/program.h"
#include "core/version.h"
#include "gui/help_bench.h"
#include "gui/pdf_bench.h"
#include "help/markup.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int BodyLetters = 14;  // larger letters belong to headings
constexpr int TitleLetters = 25;

// Returns the words of a text and how often each occurs. Skips short words, because they may be parts of formulas.
std::map<std::string, int> WordsOf(const std::string& text) {
  std::map<std::string, int> words;
  const QRegularExpression word("[A-Za-z]{4,}");
  for (auto found = word.globalMatch(ToQt(text)); found.hasNext();) ++words[FromQt(found.next().captured())];
  return words;
}

// Returns the words that the page has more often than the paper.
std::vector<std::string> WordsMissing(const std::string& page, const std::string& paper) {
  std::vector<std::string> missing;
  std::map<std::string, int> printed = WordsOf(paper);
  for (const auto& [word, count] : WordsOf(page)) {
    if (printed[word] < count) missing.push_back(word);
  }
  return missing;
}

std::string TitleOf(std::string_view page) {
  while (!page.empty()) {
    if (const MarkupPiece piece = TakeMarkup(page); piece.tag == "/TITLE") return DecodedText(piece.text);
  }
  return {};
}

std::vector<std::string> LinksOf(std::string_view page) {
  std::vector<std::string> links;
  while (!page.empty()) {
    const MarkupPiece piece = TakeMarkup(page);
    if (piece.tag != "A") continue;
    if (const std::string link = AttributeOf(piece, "href"); !link.empty()) links.push_back(link);
  }
  return links;
}

// A PDF file of the help.
class Paper {
 public:
  explicit Paper(const std::string& path) : path_(ToQt(path)), bytes_(FileBytes(path)) {}

  const QByteArray& Bytes() const { return bytes_; }
  const std::vector<std::string>& Pages() const { return pages_; }
  const PdfParts& Parts() const { return parts_; }
  const std::map<std::string, int>& Places() const { return places_; }
  std::string Properties() const { return Answer("pdfinfo", {path_}); }

  // Returns the text of the pages first..last, counted from 1.
  std::string Text(int first, int last) const {
    std::string text;
    for (int page = first; page <= last; ++page) text += pages_.at(static_cast<std::size_t>(page - 1));
    return text;
  }

  // Returns the largest heading of a page, joined if it has several lines.
  std::string TitleOn(int page) const {
    QStringList title;
    for (const PdfText& text : parts_.texts) {
      if (text.page == page && text.letters >= TitleLetters) title.append(ToQt(text.text));
    }
    return FromQt(title.join(' ').simplified());
  }

  // Returns the pages that have only a header and a footer.
  std::vector<int> EmptyPages() const {
    std::vector<int> empty;
    for (int page = 1; page <= static_cast<int>(pages_.size()); ++page) {
      std::set<int> lines;
      for (const PdfText& text : parts_.texts) {
        if (text.page == page) lines.insert(text.top);
      }
      if (lines.size() < 4) empty.push_back(page);
    }
    return empty;
  }

  // Returns the headings without a line after them on their page.
  std::vector<std::string> LonelyHeadings() const {
    std::vector<std::string> lonely;
    for (int page = 1; page <= static_cast<int>(pages_.size()); ++page) {
      const PdfText* lowest = nullptr;
      for (const PdfText& text : parts_.texts) {
        if (text.page == page && text.top < Foot && (lowest == nullptr || text.top > lowest->top)) lowest = &text;
      }
      if (lowest != nullptr && lowest->letters > BodyLetters) lonely.push_back(lowest->text);
    }
    return lonely;
  }

  // Returns the link targets that do not exist.
  std::vector<std::string> LooseLinks() const {
    std::vector<std::string> loose;
    for (const std::string& target : Targets()) {
      if (!places_.contains(target)) loose.push_back(target);
    }
    return loose;
  }

  // Returns the targets of all links.
  const std::set<std::string>& Targets() const { return targets_; }

 private:
  static constexpr int Foot = 1170;  // the height at which the page numbers are

  std::set<std::string> ReadTargets() const {
    std::set<std::string> targets;
    const QRegularExpression link("/Dest \\(([^)]*)\\)");
    for (auto found = link.globalMatch(QString::fromLatin1(bytes_)); found.hasNext();) {
      targets.insert(FromQt(found.next().captured(1)));
    }
    return targets;
  }

  QString path_;
  QByteArray bytes_;
  std::vector<std::string> pages_ = PdfPages(path_);
  PdfParts parts_ = PartsOfPdf(path_);
  std::map<std::string, int> places_ = PdfPlaces(path_);
  std::set<std::string> targets_ = ReadTargets();
};

class Manual : public testing::Test, protected CommittedBook {
 protected:
  static void SetUpTestSuite() { manual = new Paper(HelpFolder + "/ORBY.PDF"); }
  static void TearDownTestSuite() { delete manual; }

  static std::string PageOfHelp(const std::string& name) {
    return FileBytes(HelpFolder + "/pages/" + name).toStdString();
  }

  const std::vector<HelpEntry> entries = AllEntries(book.Contents());
  static const Paper* manual;
};

const Paper* Manual::manual = nullptr;

TEST_F(Manual, HasTheNameAndTheVersionOfTheProgram) {
  EXPECT_THAT(manual->Properties(), ContainsRegex("Title: +" + std::string(ProgramTitle) + "\n"));
  EXPECT_THAT(manual->Pages().front(), HasSubstr(ProgramTitle));
  EXPECT_THAT(manual->Pages().front(), HasSubstr("Version " + VersionText() + "\n"));
}

TEST_F(Manual, HasEachPageOfTheHelpUnderItsTitle) {
  for (const HelpEntry& entry : entries) {
    if (entry.place.empty()) continue;
    EXPECT_EQ(manual->TitleOn(manual->Places().at(entry.place)), entry.title);
  }
}

TEST_F(Manual, HasAllWordsOfTheHelpPages) {
  int end = static_cast<int>(manual->Pages().size());
  for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
    if (entry->place.empty()) continue;
    const int page = manual->Places().at(entry->place);
    EXPECT_THAT(WordsMissing(TextOfPage(PageOfHelp(entry->place)), manual->Text(page, end)), IsEmpty()) << entry->place;
    end = page - 1;
  }
  EXPECT_EQ(end, 2) << "the cover and the contents";
}

TEST_F(Manual, HasThePageOfEachChapterInItsContents) {
  for (const HelpEntry& entry : entries) {
    if (entry.place.empty()) continue;
    const std::string page = std::to_string(manual->Places().at(entry.place));
    const QString line = QRegularExpression::escape(ToQt(entry.title)) + " *[. ]* " + ToQt(page) + "\n";
    EXPECT_TRUE(ToQt(manual->Text(2, 2)).contains(QRegularExpression(line))) << entry.title << " on page " << page;
  }
}

TEST_F(Manual, NumbersItsPagesAsAViewerCountsThem) {
  for (int page = 2; page <= static_cast<int>(manual->Pages().size()); ++page) {
    const QString foot = ToQt(manual->Text(page, page)).trimmed().split('\n').back();
    EXPECT_EQ(foot.simplified().toStdString(), std::string(ProgramTitle) + " " + std::to_string(page));
  }
}

TEST_F(Manual, HasBookmarksThatLeadToItsChapters) {
  std::vector<PdfBookmark> wanted{{1, "Contents", 2}};
  for (const HelpEntry& part : book.Contents()) {
    wanted.push_back({1, part.title, manual->Places().at(part.entries.at(0).place)});
    for (const HelpEntry& page : part.entries) {
      wanted.push_back({2, page.title, manual->Places().at(page.place)});
      for (const HelpEntry& inner : page.entries) {
        wanted.push_back({3, inner.title, manual->Places().at(inner.place)});
      }
    }
  }

  std::vector<PdfBookmark> found;
  for (const PdfBookmark& bookmark : manual->Parts().bookmarks) {
    if (std::ranges::find(wanted, bookmark) != wanted.end()) found.push_back(bookmark);
  }
  EXPECT_EQ(found, wanted);
  EXPECT_GT(manual->Parts().bookmarks.size(), wanted.size()) << "headings in the chapters have bookmarks too";
}

TEST_F(Manual, HasTheLinksOfThePagesAndNoBrokenOne) {
  for (const HelpEntry& entry : entries) {
    if (entry.place.empty()) continue;
    for (const std::string& link : LinksOf(PageOfHelp(entry.place))) {
      const std::string inside = link.starts_with('#') ? entry.place + link : link;
      EXPECT_THAT(manual->Targets(), Contains(ToQt(inside).replace('#', '/').toStdString())) << entry.place;
    }
  }
  EXPECT_THAT(manual->LooseLinks(), IsEmpty());
  EXPECT_FALSE(manual->Bytes().contains("/URI")) << "a link that leads out of the manual";
}

TEST_F(Manual, HasNoEmptyPageAndNoHeadingAtTheFootOfAPage) {
  EXPECT_THAT(manual->EmptyPages(), IsEmpty());
  EXPECT_THAT(manual->LonelyHeadings(), IsEmpty());
}

TEST_F(Manual, StaysSmallEnoughToBeSentByMail) { EXPECT_LT(manual->Bytes().size(), 2'000'000); }

// ---- papers ---------------------------------------------------------------------------------------------------------

class ResourcePaper : public testing::TestWithParam<const char*> {
 protected:
  const std::string name = HelpFolder + "/resources/" + GetParam();
  const std::string page = FileBytes(name + ".html").toStdString();
  const std::string title = TitleOf(page);
  const Paper paper{name + ".pdf"};
};

TEST_P(ResourcePaper, HasAllWordsOfItsPageUnderItsTitle) {
  EXPECT_THAT(paper.Properties(), ContainsRegex("Title: +" + title + "\n"));
  EXPECT_THAT(paper.Parts().bookmarks, Contains(PdfBookmark{1, title, 1}));
  EXPECT_THAT(WordsMissing(TextOfPage(page), paper.Text(1, static_cast<int>(paper.Pages().size()))), IsEmpty());
}

TEST_P(ResourcePaper, HasAFewPagesAndNoneOfThemEmpty) {
  EXPECT_GE(paper.Pages().size(), 2);
  EXPECT_LE(paper.Pages().size(), 12);
  EXPECT_THAT(paper.EmptyPages(), IsEmpty());
  EXPECT_THAT(paper.LonelyHeadings(), IsEmpty());
  EXPECT_THAT(paper.LooseLinks(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(All, ResourcePaper,
                         testing::Values("bolt-design", "bolting-history", "intersections", "pull-tests",
                                         "reading-curves", "roof-screening", "standing-supports", "weak-ground"),
                         [](const auto& entry) { return ToQt(entry.param).replace('-', '_').toStdString(); });

}  // namespace
}  // namespace orby::test
