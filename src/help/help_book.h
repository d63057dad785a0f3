// The help as a book: its contents, its index, the topics of windows and fields, and the search through its pages.
//
// A place is a page, or a page and an anchor on it: "parameters.html#frmPENVParm.txtCMRR".
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orby {

// A line of the contents; a heading has lines of its own under it, and need have no place.
struct HelpEntry {
  std::string title;
  std::string place;
  std::vector<HelpEntry> entries;

  bool operator==(const HelpEntry&) const = default;
};

struct HelpKeyword {
  std::string keyword;
  std::vector<std::string> places;

  bool operator==(const HelpKeyword&) const = default;
};

struct HelpHit {
  std::string title;
  std::string place;
  int hits = 0;
  std::string snippet;  // the words around the first hit
};

// The tree of a contents or an index file: lists of objects with the parameters Name and Local. What is nested deeper
// than a book is stays on the deepest level.
std::vector<HelpEntry> ReadSitemap(std::string_view source);

// The keywords of an index file, in its order; those that are the same but for case become one.
std::vector<HelpKeyword> ReadIndex(std::string_view source);

// The page of a place, without the anchor.
std::string_view PageOf(std::string_view place);

class HelpBook {
 public:
  // The names of the files in the book.
  static constexpr std::string_view ContentsFile = "ORBY.hhc";
  static constexpr std::string_view IndexFile = "ORBY.hhk";
  static constexpr std::string_view TopicsFile = "topics.txt";

  // Returns a file of the book as UTF-8; nothing if the book has none of that name.
  using Reader = std::function<std::optional<std::string>(const std::string& name)>;

  // Each part is read when it is first asked for.
  explicit HelpBook(Reader read) : read_(std::move(read)) {}

  const std::vector<HelpEntry>& Contents();
  const std::vector<HelpKeyword>& Index();

  // The first page of the contents; empty in a book without pages.
  std::string FirstPage();
  // The title that the contents give to the page of a place; the page's name when it is not in them.
  std::string TitleOf(std::string_view place);
  // The place of a topic: "frmGraph.Text1", "frmGraph". A member of an array ("frmGraph.Text1_2") has that of its
  // array, a control without one that of its form, a form without one the first page.
  std::string PlaceOf(std::string_view topic);

  // The pages that have all these words, those with most hits first, then by title. A word counts without regard to
  // case, and wherever a word of a page begins with it.
  std::vector<HelpHit> Search(std::string_view words);

 private:
  struct Page {
    std::string title;
    std::string place;
    std::string text;
  };

  std::string TextOf(std::string_view name) const;
  const std::map<std::string, std::string, std::less<>>& Topics();
  const std::vector<Page>& Pages();

  Reader read_;
  std::optional<std::vector<HelpEntry>> contents_;
  std::optional<std::vector<HelpKeyword>> index_;
  std::optional<std::map<std::string, std::string, std::less<>>> topics_;
  std::optional<std::vector<Page>> pages_;
};

}  // namespace orby
