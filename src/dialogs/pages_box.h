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

class PagesBox : public Control {
 public:
  // `title` is the name of the pages for screen readers.
  PagesBox(Form& form, std::string_view name, std::string_view title) : Control(form, name), title_(title) {}

  std::string_view Title() const { return title_; }
  const std::vector<Scene>& Pages() const { return pages_; }
  void Fill(std::vector<Scene> pages);

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

  // The page that is on view, as the view tells it after scrolling.
  std::size_t PageOnView() const { return onView_; }
  void TellPage(std::size_t page);
  // Returns the texts of the page on view, for screen readers.
  std::string Words() const;

  Event PageChanged;

 private:
  std::string_view title_;
  std::vector<Scene> pages_;
  PagePlace place_;
  int moves_ = 0;
  std::optional<Found> found_;
  std::size_t onView_ = 0;
};

}  // namespace orby
