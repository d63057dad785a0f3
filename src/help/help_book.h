// The help as a book: its contents, its index, the topics of windows and fields, and a search in its pages.
//
// A place is a page, or a page and an anchor in it: "parameters.html#frmPENVParm.txtCMRR".
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "help/first_sentences.h"

namespace orby {

// A line of the contents. A heading has further lines below it, and may have no place.
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

// Returns the tree of a contents or an index file: lists of objects with the parameters Name and Local. Lists that are
// nested deeper than DeepestLevel belong to the deepest level.
std::vector<HelpEntry> ReadSitemap(std::string_view source);

// Returns the keywords of an index file in its order. Keywords that differ only in case are joined.
std::vector<HelpKeyword> ReadIndex(std::string_view source);

// Returns the page of a place, without the anchor.
std::string_view PageOf(std::string_view place);

class HelpBook {
 public:
  // The names of the files in the book.
  static constexpr std::string_view ContentsFile = "ORBY.hhc";
  static constexpr std::string_view IndexFile = "ORBY.hhk";
  static constexpr std::string_view TopicsFile = "topics.txt";

  // Returns a file of the book as UTF-8, or nothing if the book has no file of that name.
  using Reader = std::function<std::optional<std::string>(const std::string& name)>;

  // Each part of the book is read when it is first needed.
  explicit HelpBook(Reader read) : read_(std::move(read)) {}

  const std::vector<HelpEntry>& Contents();
  const std::vector<HelpKeyword>& Index();

  // Returns the first page of the contents. Empty for a book without pages.
  std::string FirstPage();
  // Returns the title of the page of a place in the contents, or the name of the page when it is not there.
  std::string TitleOf(std::string_view place);
  // Returns the place of a topic, such as "frmGraph.Text1" or "frmGraph". A member of an array ("frmGraph.Text1_2") has
  // the place of its array. A control without a topic has the place of its form, and a form without a topic the first
  // page.
  std::string PlaceOf(std::string_view topic);

  // Returns the first sentence about a control, such as "frmPENVParm.txtCMRR". A member of an array without a topic has
  // that of its array. Empty for a control without a topic of its own, and for a topic that is not in a list.
  std::string FirstSentenceOf(std::string_view topic);

  // Returns the pages that contain all these words, ordered by descending number of hits and then by title. Ignores
  // case. A word matches each word of a page that begins with it.
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

  // Returns the place of the topic or of its array. Empty if there is none.
  std::string OwnPlaceOf(std::string_view topic);

  Reader read_;
  std::optional<std::vector<HelpEntry>> contents_;
  std::optional<std::vector<HelpKeyword>> index_;
  std::optional<std::map<std::string, std::string, std::less<>>> topics_;
  std::optional<std::vector<Page>> pages_;
  std::map<std::string, Sentences, std::less<>> sentences_;  // by page
};

}  // namespace orby
