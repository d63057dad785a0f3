// The binding of a text pane.
#include "qt/bindings.h"
#include "qt/find_bar.h"
#include "qt/lines_view.h"

namespace orby {
namespace {

class PaneBinding : public WidgetBinding<LinesView, const TextPane> {
 public:
  PaneBinding(BindingHost& host, const TextPane& pane) : WidgetBinding(host, pane), bar_(FindBarBeside(widget_)) {
    if (bar_ != nullptr) bar_->Attach(widget_, widget_);
  }

  void Show() override {
    ShowState(widget_, control_);
    if (bar_ != nullptr) {
      bar_->ShowLetters(host_.Letters());
      bar_->setVisible(control_.Visible());
    }
    if (control_.Font() != shownFont_) {
      shownFont_ = control_.Font();
      widget_.setFont(FontOf(shownFont_, widget_));
    }
    widget_.ShowText(control_.Bytes());
  }
  std::vector<CaptionSlot> Captions() const override {
    return bar_ == nullptr ? std::vector<CaptionSlot>() : bar_->Captions();
  }
  bool RetainsSize() const override { return true; }

 private:
  FindBar* bar_;  // the bar below the pane
  FontChoice shownFont_;
};

}  // namespace

BindingPointer BindTextPane(BindingHost& host, const TextPane& pane) {
  return std::make_unique<PaneBinding>(host, pane);
}

}  // namespace orby
