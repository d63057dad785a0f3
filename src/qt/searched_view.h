// What the find bar needs of a view.
#pragma once

#include <QString>
#include <functional>

#include "base/text_search.h"

namespace orby {

class SearchedView {
 public:
  SearchedView() = default;
  virtual ~SearchedView() = default;
  SearchedView(const SearchedView&) = delete;
  SearchedView& operator=(const SearchedView&) = delete;

  // Searches for the text after (or before) the selection, wraps around, and selects the match.
  virtual void Find(const QString& wanted, TextSearch::Direction direction) = 0;
  // Stops copying or searching. Returns false if neither was running.
  virtual bool Stop() { return false; }

  // Called while copying or searching, with the percentage done, and with 100 at the end.
  std::function<void(int percent)> Progressed;
  enum class Finding { Found, FoundAroundTheEnd, NotFound };
  std::function<void(Finding finding)> Searched;
};

}  // namespace orby
