#include "qt/bindings.h"

#include <QApplication>
#include <stdexcept>

#include "controls/chart.h"
#include "dialogs/drawing.h"
#include "dialogs/pages_box.h"

namespace orby {
namespace {

// Tries one type. Derived types are tried before their base.
template <class T, class Make>
BindingPointer As(Control& control, const Make& make) {
  auto* typed = dynamic_cast<T*>(&control);
  return typed == nullptr ? nullptr : make(*typed);
}

}  // namespace

QObject& FindObject(const BindingHost& host, const std::string& name) {
  const QString wanted = QString::fromStdString(name);
  if (host.Root().objectName() == wanted) return host.Root();
  auto* found = host.Root().findChild<QObject*>(wanted);
  if (found == nullptr) throw std::logic_error("no widget " + name);
  return *found;
}

bool ShowsControlNames() { return qEnvironmentVariable("ORBY_ACCESSIBLE_IDS") == "1"; }

bool IsBlocked(const QWidget& widget) {
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal == nullptr) return false;
  for (const QWidget* window = widget.window(); window != nullptr; window = window->parentWidget()) {
    if (window == modal) return false;
  }
  return true;
}

bool IsUsable(const QWidget& widget) { return widget.isEnabled() && !widget.isHidden() && !IsBlocked(widget); }

std::string MemberName(const Control& control, int index) {
  return std::string(control.Name()) + "_" + std::to_string(index);
}

BindingPointer Bind(BindingHost& host, Control& control) {
  const auto with = [&host](auto* bind) { return [&host, bind](auto& typed) { return bind(host, typed); }; };
  BindingPointer found;
  const auto fits = [&found](BindingPointer binding) { return (found = std::move(binding)) != nullptr; };
  fits(As<Menu>(control, with(BindMenu))) || fits(As<Frame>(control, with(BindFrame))) ||
      fits(As<Label>(control, with(BindLabel))) || fits(As<Button>(control, with(BindButton))) ||
      fits(As<TextBox>(control, with(BindTextBox))) || fits(As<CheckBox>(control, with(BindCheckBox))) ||
      fits(As<OptionArray>(control, with(BindOptionArray))) || fits(As<Combo>(control, with(BindCombo))) ||
      fits(As<List>(control, with(BindList))) || fits(As<Slider>(control, with(BindSlider))) ||
      fits(As<TextPane>(control, with(BindTextPane))) || fits(As<ProgressBar>(control, with(BindProgressBar))) ||
      fits(As<Grid>(control, with(BindGrid))) || fits(As<RowTable>(control, with(BindRowTable))) ||
      fits(As<TabSet>(control, with(BindTabSet))) || fits(As<ActionArray>(control, with(BindActionArray))) ||
      fits(As<Chart>(control, with(BindChart))) || fits(As<Drawing>(control, with(BindDrawing))) ||
      fits(As<PagesBox>(control, with(BindPages))) || fits(BindPlain(host, control));
  return found;
}

}  // namespace orby
