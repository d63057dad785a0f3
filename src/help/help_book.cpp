#include "help/help_book.h"

#include <algorithm>

#include "base/text.h"
#include "help/markup.h"
#include "help/word_search.h"

namespace orby {
namespace {

// No book is nested deeper, but a damaged file may be.
constexpr std::size_t DeepestLevel = 16;

// Calls `act` for the lines of the contents in their order until it returns true.
template <class Act>
bool AnyEntry(const std::vector<HelpEntry>& entries, const Act& act) {
  return std::ranges::any_of(entries,
                             [&act](const HelpEntry& entry) { return act(entry) || AnyEntry(entry.entries, act); });
}

std::string_view FormOf(std::string_view topic) { return topic.substr(0, topic.find('.')); }

// Returns "Text1" for "Text1_2". Empty for a name that is not that of a member of an array.
std::string_view ArrayOf(std::string_view name) {
  const std::size_t end = name.find_last_not_of("0123456789");
  const bool isMember = end != std::string_view::npos && end + 1 < name.size() && name[end] == '_';
  return isMember ? name.substr(0, end) : std::string_view();
}

}  // namespace

std::vector<HelpEntry> ReadSitemap(std::string_view source) {
  std::vector<HelpEntry> entries;
  std::vector<std::vector<HelpEntry>*> levels{&entries};
  HelpEntry entry;
  while (!source.empty()) {
    const MarkupPiece piece = TakeMarkup(source);
    if (piece.tag == "OBJECT") {
      entry = {};
    } else if (piece.tag == "PARAM") {
      const std::string name = AttributeOf(piece, "name");
      if (SameWithoutCase(name, "Name")) entry.title = AttributeOf(piece, "value");
      if (SameWithoutCase(name, "Local")) entry.place = AttributeOf(piece, "value");
    } else if (piece.tag == "/OBJECT") {
      if (!entry.title.empty()) levels.back()->push_back(std::move(entry));
      entry = {};
    } else if (piece.tag == "UL") {
      // The outermost list does not belong to an entry.
      const bool isInner = !levels.back()->empty() && levels.size() < DeepestLevel;
      levels.push_back(isInner ? &levels.back()->back().entries : levels.back());
    } else if (piece.tag == "/UL" && levels.size() > 1) {
      levels.pop_back();
    }
  }
  return entries;
}

std::vector<HelpKeyword> ReadIndex(std::string_view source) {
  std::vector<HelpKeyword> index;
  std::map<std::string, std::size_t> known;
  AnyEntry(ReadSitemap(source), [&](const HelpEntry& entry) {
    const auto [found, isNew] = known.emplace(UpperCase(entry.title), index.size());
    if (isNew) index.push_back({entry.title, {}});
    if (!entry.place.empty()) index[found->second].places.push_back(entry.place);
    return false;
  });
  return index;
}

std::string_view PageOf(std::string_view place) { return place.substr(0, place.find('#')); }

std::string HelpBook::TextOf(std::string_view name) const { return read_(std::string(name)).value_or(std::string()); }

const std::vector<HelpEntry>& HelpBook::Contents() {
  if (!contents_) contents_ = ReadSitemap(TextOf(ContentsFile));
  return *contents_;
}

const std::vector<HelpKeyword>& HelpBook::Index() {
  if (!index_) index_ = ReadIndex(TextOf(IndexFile));
  return *index_;
}

std::string HelpBook::FirstPage() {
  std::string first;
  AnyEntry(Contents(), [&first](const HelpEntry& entry) {
    first = entry.place;
    return !first.empty();
  });
  return first;
}

std::string HelpBook::TitleOf(std::string_view place) {
  std::string title(PageOf(place));
  AnyEntry(Contents(), [&](const HelpEntry& entry) {
    const bool isIt = PageOf(entry.place) == PageOf(place);
    if (isIt) title = entry.title;
    return isIt;
  });
  return title;
}

const std::map<std::string, std::string, std::less<>>& HelpBook::Topics() {
  if (topics_) return *topics_;
  topics_.emplace();
  const std::string source = TextOf(TopicsFile);
  std::string_view rest = source;
  while (!rest.empty()) {
    const std::string_view line = TakeLine(rest);
    const std::size_t tab = line.find('\t');
    if (tab == std::string_view::npos || tab == 0) continue;
    const std::string topic(line.substr(0, tab));
    topics_->emplace(topic, std::string(line.substr(tab + 1)) + "#" + topic);
  }
  return *topics_;
}

std::string HelpBook::OwnPlaceOf(std::string_view topic) {
  for (const std::string_view name : {topic, ArrayOf(topic)}) {
    if (const auto found = Topics().find(name); found != Topics().end()) return found->second;
  }
  return {};
}

std::string HelpBook::PlaceOf(std::string_view topic) {
  for (const std::string_view name : {topic, FormOf(topic)}) {
    if (std::string place = OwnPlaceOf(name); !place.empty()) return place;
  }
  return FirstPage();
}

std::string HelpBook::FirstSentenceOf(std::string_view topic) {
  const std::string place = OwnPlaceOf(topic);
  if (place.empty()) return {};
  const std::string page(PageOf(place));
  auto found = sentences_.find(page);
  if (found == sentences_.end()) found = sentences_.emplace(page, FirstSentences(TextOf(page))).first;
  const auto sentence = found->second.find(place.substr(page.size() + 1));
  return sentence == found->second.end() ? std::string() : sentence->second;
}

const std::vector<HelpBook::Page>& HelpBook::Pages() {
  if (pages_) return *pages_;
  pages_.emplace();
  AnyEntry(Contents(), [this](const HelpEntry& entry) {
    if (!entry.place.empty()) pages_->push_back({entry.title, entry.place, TextOfPage(TextOf(PageOf(entry.place)))});
    return false;
  });
  return *pages_;
}

std::vector<HelpHit> HelpBook::Search(std::string_view words) {
  const WordSearch search(words);
  std::vector<HelpHit> found;
  for (const Page& page : Pages()) {
    const WordHits hits = search.In(page.text);
    if (hits.count > 0) found.push_back({page.title, page.place, hits.count, Snippet(page.text, hits.first)});
  }
  std::ranges::stable_sort(found, [](const HelpHit& a, const HelpHit& b) {
    return a.hits != b.hits ? a.hits > b.hits : UpperCase(a.title) < UpperCase(b.title);
  });
  return found;
}

}  // namespace orby
