#include "dialogs/pages_box.h"

namespace orby {

void PagesBox::Fill(std::vector<Scene> pages) {
  pages_ = std::move(pages);
  onView_ = 0;
  GoTo({});
}

void PagesBox::Refill(std::vector<Scene> pages) {
  pages_ = std::move(pages);
  found_.reset();
  if (onView_ >= pages_.size()) onView_ = pages_.empty() ? 0 : pages_.size() - 1;
  Touch();
}

void PagesBox::Choose(std::size_t page) {
  if (page >= pages_.size()) return;
  GoTo({page, 0});
  Fire(Chosen);
}

void PagesBox::GoTo(const PagePlace& place) {
  place_ = place;
  ++moves_;
  Touch();
  TellPage(place.Page);
}

void PagesBox::TellPage(std::size_t page) {
  if (page == onView_) return;
  onView_ = page;
  Fire(PageChanged);
}

std::string PagesBox::Words() const {
  std::string words;
  if (onView_ >= pages_.size()) return words;
  for (const SceneLabel& label : pages_[onView_].Labels) {
    if (!words.empty()) words += ' ';
    words += label.Text;
  }
  return words;
}

}  // namespace orby
