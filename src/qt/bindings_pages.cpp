// The binding of pages.
#include "qt/bindings.h"
#include "qt/boundary.h"
#include "qt/pages_view.h"
#include "qt/texts.h"

namespace orby {
namespace {

class PagesBinding : public WidgetBinding<PagesView, PagesBox> {
 public:
  PagesBinding(BindingHost& host, PagesBox& pages) : WidgetBinding(host, pages) {
    widget_.setAccessibleName(ToQt(pages.Title()));
    // No edit of the user, and outside the events of one.
    widget_.Scrolled = [this](std::size_t page) {
      RunGuarded([&] { control_.TellPage(page); });
      Describe();
    };
    widget_.Chosen = [this](std::size_t page) {
      RunGuarded([&] { control_.Choose(page); });
      Describe();
    };
  }

  void Show() override {
    ShowState(widget_, control_);
    widget_.ShowPages(control_);
    Describe();
  }

 private:
  // Screen readers read the page on view.
  void Describe() {
    if (!ShowsControlNames()) widget_.setAccessibleDescription(ToQt(control_.Words()));
  }
};

}  // namespace

BindingPointer BindPages(BindingHost& host, PagesBox& pages) { return std::make_unique<PagesBinding>(host, pages); }

}  // namespace orby
