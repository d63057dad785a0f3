// The binding of a drawing.
#include "qt/bindings.h"
#include "qt/boundary.h"
#include "qt/drawing_view.h"
#include "qt/texts.h"

namespace orby {
namespace {

class DrawingBinding : public WidgetBinding<DrawingView, Drawing> {
 public:
  DrawingBinding(BindingHost& host, Drawing& drawing) : WidgetBinding(host, drawing) {
    // No edit of the user, and outside the events of one.
    widget_.Resized = [this](const SheetSize& sheet) { RunGuarded([&] { control_.SetSheet(sheet); }); };
    widget_.Chosen = [this](DrawingCommand command) {
      if (!IsUsable(widget_)) return;
      host_.ActLater([this, command] {
        if (control_.Command) control_.Command(command);
      });
    };
  }

  void Show() override {
    if (control_.Point && !widget_.Pointed) ReadOut();
    ShowState(widget_, control_);
    if (const QString title = ToQt(control_.Title()); widget_.accessibleName() != title) {
      widget_.setAccessibleName(title);
    }
    widget_.ShowDrawing(control_);
  }
  bool RetainsSize() const override { return true; }
  bool HasOwnMenu() const override { return true; }

 private:
  // Follows the pointer and the keys.
  void ReadOut() {
    widget_.setMouseTracking(true);
    widget_.Pointed = [this](const ScenePoint& place) {
      if (!IsUsable(widget_)) return;
      host_.Act([&] { control_.Point(place); });
    };
    widget_.Moved = [this](DrawingKey key) {
      if (!IsUsable(widget_)) return;
      host_.Act([&] { control_.Key(key); });
    };
  }
};

}  // namespace

BindingPointer BindDrawing(BindingHost& host, Drawing& drawing) {
  return std::make_unique<DrawingBinding>(host, drawing);
}

}  // namespace orby
