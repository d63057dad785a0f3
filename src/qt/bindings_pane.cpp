// The pane of a long text.
#include "qt/bindings.h"
#include "qt/find_bar.h"
#include "qt/lines_view.h"

namespace orby {
namespace {

class PaneBinding : public Binding {
 public:
  PaneBinding(BindingHost& host, const TextPane& pane)
      : pane_(pane), widget_(FindNamed<LinesView>(host, std::string(pane.Name()))) {
    bar_ = dynamic_cast<FindBar*>(widget_.parentWidget()->findChild<QWidget*>("viewFindBar"));
    if (bar_ != nullptr) bar_->Attach(widget_);
  }

  void Show() override {
    ShowState(widget_, pane_);
    if (bar_ != nullptr) bar_->setVisible(pane_.Visible());
    if (pane_.Font() != shownFont_) {
      shownFont_ = pane_.Font();
      widget_.setFont(FontOf(shownFont_, widget_));
    }
    widget_.ShowText(pane_.Bytes());
  }
  std::vector<QWidget*> Widgets() const override { return {&widget_}; }
  bool KeepsPlace() const override { return true; }

 private:
  const TextPane& pane_;
  LinesView& widget_;
  FindBar* bar_ = nullptr;  // below it
  FontChoice shownFont_;
};

}  // namespace

BindingPointer BindTextPane(BindingHost& host, const TextPane& pane) {
  return std::make_unique<PaneBinding>(host, pane);
}

}  // namespace orby
