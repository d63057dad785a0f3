// Bindings of tabs, menus, tool bars, and widgets that only show something.
#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>

#include "qt/bindings.h"
#include "qt/chart_view.h"
#include "qt/mnemonics.h"
#include "qt/texts.h"

namespace orby {
namespace {

// Returns the caption without trailing spaces, which only the models use. If two letters are marked, the first one
// counts.
QString EntryText(const QString& caption) {
  QString text;
  bool isMarked = false;
  for (const QChar letter : caption.trimmed()) {
    const bool isMark = letter == '&' && !text.endsWith('&');
    if (!isMark || !isMarked) text += letter;
    isMarked = isMarked || isMark;
  }
  return text;
}

class TabBinding : public QObject, public WidgetBinding<QTabWidget, TabSet> {
 public:
  TabBinding(BindingHost& host, TabSet& tabs) : WidgetBinding(host, tabs) {
    QObject::connect(&widget_, &QTabWidget::currentChanged, &widget_, [this](int tab) { Turn(tab); });
    widget_.tabBar()->installEventFilter(this);
    // All tabs are on view. A window that is too small scrolls as a whole.
    widget_.setUsesScrollButtons(false);
  }

  // On a disabled tab, a partial wheel step makes the toolkit search for the next tab in an endless loop.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Wheel || widget_.isTabEnabled(widget_.currentIndex())) {
      return QObject::eventFilter(watched, event);
    }
    event->ignore();
    return true;
  }

  void Show() override {
    const QSignalBlocker quiet(widget_);
    ShowState(widget_, control_);
    for (int tab = 0; tab < control_.Count(); ++tab) {
      widget_.setTabText(tab, host_.Letters().Marked(&widget_, tab, control_.Caption(tab)));
      widget_.setTabEnabled(tab, control_.TabEnabled(tab));
    }
    // The widget leaves a tab that is disabled, but the model stays on it.
    widget_.setCurrentIndex(control_.Tab());
  }
  std::vector<CaptionSlot> Captions() const override {
    std::vector<CaptionSlot> captions;
    captions.reserve(static_cast<std::size_t>(control_.Count()));
    for (int tab = 0; tab < control_.Count(); ++tab)
      captions.push_back({&widget_, tab, &widget_, control_.Caption(tab)});
    return captions;
  }

 private:
  // A screen reader can press the tab of a disabled page.
  void Turn(int tab) {
    if (IsUsable(widget_)) host_.Act([this, tab] { control_.ClickTab(tab); });
    if (widget_.currentIndex() != control_.Tab()) Show();
  }
};

class MenuBinding : public WidgetBinding<QMenu, const Menu> {
 public:
  using WidgetBinding::WidgetBinding;

  void Show() override { widget_.setTitle(ToQt(control_.Caption())); }
  std::vector<QWidget*> Widgets() const override { return {}; }
  std::vector<CaptionSlot> Captions() const override { return {{&widget_, 0, &widget_, control_.Caption()}}; }
};

// The items of a menu, or the buttons of a tool bar with the name of the array.
class ActionBinding : public Binding {
 public:
  ActionBinding(BindingHost& host, const ActionArray& actions)
      : host_(host), actions_(actions), bar_(host.Root().findChild<QToolBar*>(ToQt(actions.Name()))) {
    for (int i = 0; i < actions.Count(); ++i) {
      const auto* entry = host.Root().findChild<QAction*>(QString::fromStdString(MemberName(actions, i)));
      if (entry == nullptr) continue;
      QObject::connect(entry, &QAction::triggered, entry, [this, i] {
        if (IsUsable(host_.Root())) host_.ActLater([this, i] { actions_.ClickItem(i); });
      });
    }
  }

  void Show() override {
    if (bar_ != nullptr) bar_->setVisible(actions_.Visible());
    for (int i = 0; i < actions_.Count(); ++i) {
      auto* entry = host_.Root().findChild<QAction*>(QString::fromStdString(MemberName(actions_, i)));
      if (entry != nullptr) ShowEntry(*entry, i);
    }
  }
  std::vector<QWidget*> Widgets() const override {
    if (bar_ == nullptr) return {};
    return {bar_};
  }

 private:
  void ShowEntry(QAction& entry, int index) {
    entry.setSeparator(actions_.Caption(index) == ActionArray::Separator);
    const QString text = EntryText(ToQt(actions_.Caption(index)));
    // A disabled item gets no letter, because it would block another item's.
    if (!entry.isSeparator()) entry.setText(actions_.ItemEnabled(index) ? text : QString(text).remove('&'));
    entry.setVisible(actions_.Visible() && actions_.ItemVisible(index));
    entry.setEnabled(actions_.Enabled() && actions_.ItemEnabled(index));
    if (entry.isCheckable()) entry.setChecked(actions_.ItemChecked(index));
  }

  BindingHost& host_;
  const ActionArray& actions_;
  QToolBar* bar_;
};

class PlainBinding : public WidgetBinding<QWidget, const Control> {
 public:
  using WidgetBinding::WidgetBinding;

  void Show() override { widget_.setVisible(control_.Visible()); }
  bool RetainsSize() const override { return true; }
};

class ProgressBinding : public WidgetBinding<QProgressBar, const ProgressBar> {
 public:
  ProgressBinding(BindingHost& host, const ProgressBar& bar) : WidgetBinding(host, bar) {
    widget_.setRange(0, ProgressBar::Whole);
  }

  void Show() override {
    ShowState(widget_, control_);
    widget_.setValue(control_.Value());
  }
  bool RetainsSize() const override { return true; }
};

class ChartBinding : public WidgetBinding<ChartView, const Chart> {
 public:
  ChartBinding(BindingHost& host, const Chart& chart) : WidgetBinding(host, chart) {
    widget_.SetMouseHandler([this, &host](const ChartHit& hit) {
      host.Act([this, &hit] {
        if (control_.MouseMove) control_.MouseMove(hit);
      });
    });
  }

  void Show() override { widget_.ShowChart(control_); }
};

}  // namespace

BindingPointer BindTabSet(BindingHost& host, TabSet& tabs) { return std::make_unique<TabBinding>(host, tabs); }
BindingPointer BindMenu(BindingHost& host, const Menu& menu) { return std::make_unique<MenuBinding>(host, menu); }
BindingPointer BindActionArray(BindingHost& host, const ActionArray& actions) {
  return std::make_unique<ActionBinding>(host, actions);
}
BindingPointer BindPlain(BindingHost& host, const Control& control) {
  return std::make_unique<PlainBinding>(host, control);
}
BindingPointer BindProgressBar(BindingHost& host, const ProgressBar& bar) {
  return std::make_unique<ProgressBinding>(host, bar);
}
BindingPointer BindChart(BindingHost& host, const Chart& chart) { return std::make_unique<ChartBinding>(host, chart); }

}  // namespace orby
