#include "monkey/sight.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTextEdit>
#include <algorithm>

namespace orby::monkey {
namespace {

bool IsInput(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) != nullptr || qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QTabBar*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
         qobject_cast<const QTextEdit*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSlider*>(&widget) != nullptr ||
         (qobject_cast<const QAbstractButton*>(&widget) != nullptr && widget.property("checkable").toBool());
}

bool IsButton(const QWidget& widget) {
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  return button != nullptr && !button->isCheckable() && !EndsProgram(button->text());
}

QPoint Somewhere(const QRect& area, Dice& dice) {
  return area.topLeft() + QPoint(dice.Below(area.width()), dice.Below(area.height()));
}

// Returns a position in the part of the widget that reacts, which need not be its middle.
Target PlaceIn(QWidget& widget, Dice& dice) {
  Target target{&widget, widget.rect().center(), WidgetName(widget)};
  const auto part = [&target](const QRect& area, int index) {
    target.place = area.center();
    target.name += "[" + QString::number(index) + "]";
  };
  if (auto* tabs = qobject_cast<QTabBar*>(&widget)) {
    const int tab = dice.Below(tabs->count());
    part(tabs->tabRect(tab), tab);
  } else if (auto* bar = qobject_cast<QMenuBar*>(&widget)) {
    const int menu = dice.Below(static_cast<int>(bar->actions().size()));
    if (!bar->actions().empty()) part(bar->actionGeometry(bar->actions()[menu]), menu);
  } else if (auto* view = qobject_cast<QAbstractItemView*>(&widget); view != nullptr && view->model() != nullptr) {
    const QModelIndex root = view->rootIndex();
    const int row = dice.Below(view->model()->rowCount(root));
    const QModelIndex index = view->model()->index(row, dice.Below(view->model()->columnCount(root)), root);
    target.widget = view->viewport();
    part(view->visualRect(index), row);
  } else if (const auto* button = qobject_cast<QAbstractButton*>(&widget); button != nullptr && button->isCheckable()) {
    constexpr int Mark = 8;
    target.place.setX(Mark);
  } else if (dice.OneIn(4)) {
    target.place = Somewhere(widget.rect(), dice);
  }
  return target;
}

template <class Fits>
Target One(QWidget& window, Dice& dice, const Fits& fits) {
  std::vector<QWidget*> found;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (widget->isVisible() && widget->window() == &window && fits(*widget)) found.push_back(widget);
  }
  if (found.empty()) return {};
  return PlaceIn(*dice.OneOf(found), dice);
}

}  // namespace

QString WidgetName(const QWidget& widget) {
  QString name = widget.objectName();
  if (!name.isEmpty() && !name.startsWith("qt_")) return name;
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget); button != nullptr) {
    return "'" + PlainCaption(button->text()) + "'";
  }
  const QString kind = widget.metaObject()->className();
  const QWidget* parent = widget.parentWidget();
  return parent == nullptr || parent->objectName().isEmpty() ? kind : parent->objectName() + "/" + kind;
}

QString WindowName(const QWidget& window) {
  const QString name = window.objectName();
  if (name.startsWith("frm") || name == "helpWindow") return name;
  if (qstrcmp(window.metaObject()->className(), "QMessageBox") == 0 && window.windowTitle().startsWith("About")) {
    return "about";
  }
  return window.metaObject()->className();
}

std::vector<QWidget*> WindowsOnView() {
  std::vector<QWidget*> windows;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    const bool popsUp = window->windowType() == Qt::Popup || window->windowType() == Qt::ToolTip;
    if (window->isVisible() && !popsUp) windows.push_back(window);
  }
  std::ranges::stable_sort(windows, {}, [](const QWidget* window) { return WindowName(*window); });
  return windows;
}

QWidget* WindowInUse() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  const auto windows = WindowsOnView();
  return windows.empty() ? nullptr : windows.front();
}

bool IsBlocked(const QWidget& window) {
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal == nullptr) return false;
  for (const QWidget* at = &window; at != nullptr; at = at->parentWidget()) {
    if (at == modal) return false;
  }
  return true;
}

QString PlainCaption(QString caption) { return caption.remove('&'); }

bool EndsProgram(const QString& caption) {
  const QString plain = PlainCaption(caption);
  return plain == "Exit" || plain == "I do not accept";
}

Target ButtonIn(QWidget& window, Dice& dice) {
  return One(window, dice, [](const QWidget& widget) { return IsButton(widget) && widget.isEnabled(); });
}

Target InputIn(QWidget& window, Dice& dice) {
  return One(window, dice, [](const QWidget& widget) { return IsInput(widget) && widget.isEnabled(); });
}

Target AnythingIn(QWidget& window, Dice& dice) {
  return One(window, dice, [](const QWidget& widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    return button == nullptr || !EndsProgram(button->text());
  });
}

Target EntryIn(QWidget& popup, Dice& dice) {
  if (auto* menu = qobject_cast<QMenu*>(&popup)) {
    const auto actions = menu->actions();
    if (actions.empty()) return {};
    QAction* action = dice.OneOf(actions);
    constexpr int Seldom = 20;
    if (action->isSeparator() || (EndsProgram(action->text()) && !dice.OneIn(Seldom))) return {};
    return {menu, menu->actionGeometry(action).center(), "entry '" + PlainCaption(action->text()) + "'"};
  }
  if (auto* view = popup.findChild<QAbstractItemView*>()) return PlaceIn(*view, dice);
  return AnythingIn(popup, dice);
}

}  // namespace orby::monkey
