// Pages below each other, which the user scrolls and makes larger or smaller.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "controls/control.h"
#include "controls/event.h"
#include "drawings/scene.h"

namespace orby {

// A place on a page, in units of its scene.
struct PagePlace {
  std::size_t Page = 0;
  double Top = 0;

  bool operator==(const PagePlace&) const = default;
};

enum class PagesUse {
  Reading,
  Choosing,  // small, with the page on view marked
};

class PagesBox : public Control {
 public:
  // `title` is the name of the pages for screen readers.
  PagesBox(Form& form, std::string_view name, std::string_view title, PagesUse use = PagesUse::Reading)
      : Control(form, name), title_(title), use_(use) {}

  std::string_view Title() const { return title_; }
  PagesUse Use() const { return use_; }
  const std::vector<Scene>& Pages() const { return pages_; }
  // Shows other pages from the first one on.
  void Fill(std::vector<Scene> pages);
  // Shows the same pages with other contents, and stays where the user is.
  void Refill(std::vector<Scene> pages);

  // Scrolls to a place, also if the user has scrolled away from it since.
  void GoTo(const PagePlace& place);
  const PagePlace& Place() const { return place_; }
  // Grows with each call of GoTo.
  int Moves() const { return moves_; }

  // Marks a label of a page, or none.
  struct Found {
    std::size_t Page = 0;
    std::size_t Label = 0;

    bool operator==(const Found&) const = default;
  };
  void Mark(const std::optional<Found>& found) { Mirror(found_, found); }
  const std::optional<Found>& Marked() const { return found_; }

  // The page that is on view, as the view tells it after scrolling; of small pages the marked one.
  std::size_t PageOnView() const { return onView_; }
  void TellPage(std::size_t page);
  // Chooses a page as a click does. Does nothing if there is no such page.
  void Choose(std::size_t page);
  // Returns the texts of the page on view, for screen readers.
  std::string Words() const;

  Event PageChanged;
  Event Chosen;  // the user has chosen the page on view

 private:
  std::string_view title_;
  PagesUse use_;
  std::vector<Scene> pages_;
  PagePlace place_;
  int moves_ = 0;
  std::optional<Found> found_;
  std::size_t onView_ = 0;
};

}  // namespace orby
