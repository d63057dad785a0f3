// The measures of docs/look.md, for every form: in English and Metric, with the usual text and a large one.
#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProxyStyle>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>
#include <functional>
#include <map>
#include <memory>
#include <set>

#include "dialogs/parameters_dialog.h"
#include "gui/forms.h"
#include "gui/gui_bench.h"
#include "qt/grid_view.h"
#include "qt/rows_view.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int LargeText = 14;  // points
constexpr QSize SmallScreen(1024, 768);
constexpr int TitleBar = 30;

struct Setting {
  FormMaker form;
  UnitSystem units;
  bool isLarge;
};

std::vector<Setting> Settings() {
  std::vector<Setting> settings;
  for (const FormMaker& form : FormMakers) {
    for (const UnitSystem units : {English, Metric}) {
      for (const bool isLarge : {false, true}) settings.push_back({form, units, isLarge});
    }
  }
  return settings;
}

std::string NameOfSetting(const testing::TestParamInfo<Setting>& info) {
  return std::string(info.param.form.name) + (info.param.units == Metric ? "Metric" : "English") +
         (info.param.isLarge ? "Large" : "");
}

// Returns true for widgets that the toolkit makes for itself, and for those that keep the place of others.
bool IsStructure(const QWidget& widget) {
  return widget.objectName().startsWith("qt_") || widget.objectName().startsWith("view");
}

class Measures : public GuiTest, public testing::WithParamInterface<Setting> {
 protected:
  Measures() : usual_(QApplication::font()) {
    QFont font = usual_;
    if (GetParam().isLarge) font.setPointSize(LargeText);
    QApplication::setFont(font);
    StartDesign(GetParam().units);
    form = GetParam().form.make(program);
    form->Open();
    window = MakeWindow(*form, nullptr);
    view = std::make_unique<BoundForm>(*form, *window);
    for (Control* control : form->Controls()) {
      auto* tabs = dynamic_cast<TabSet*>(control);
      for (int tab = 0; tabs != nullptr && tab < tabs->Count(); ++tab) tabs->SetTabEnabled(tab, true);
    }
    window->resize(WholeSize(*window));
    window->show();
    Settle();
  }
  ~Measures() override {
    view.reset();
    window.reset();
    form->Close();
    QApplication::setFont(usual_);
  }

  // Runs `act` on every page of the tabs, including inner tabs.
  void OnEveryPage(const std::function<void()>& act) {
    std::vector<TabSet*> all;
    for (Control* control : form->Controls()) {
      if (auto* tabs = dynamic_cast<TabSet*>(control)) all.push_back(tabs);
    }
    if (all.empty()) return act();
    for (int outer = 0; outer < all.front()->Count(); ++outer) {
      all.front()->SetTab(outer);
      for (int inner = 0; inner < (all.size() > 1 ? 4 : 1); ++inner) {
        for (std::size_t i = 1; i < all.size(); ++i) all[i]->SetTab(inner);
        Settle();
        act();
      }
    }
  }

  template <class Widget>
  std::vector<Widget*> OnView() const {
    std::vector<Widget*> found;
    for (auto* widget : window->findChildren<Widget*>()) {
      if (widget->isVisible() && !widget->objectName().isEmpty()) found.push_back(widget);
    }
    return found;
  }

  // Returns the fields for numbers, but for the editors of cells, which are as large as their cells.
  std::vector<QLineEdit*> NumberFieldsOnView() const {
    std::vector<QLineEdit*> found;
    for (auto* field : OnView<QLineEdit>()) {
      const auto* box = dynamic_cast<const TextBox*>(form->Find(field->objectName().toStdString()));
      const bool isInGrid = dynamic_cast<QTableWidget*>(field->parentWidget()->parentWidget()) != nullptr;
      if (box != nullptr && box->IsNumberField() && !isInGrid) found.push_back(field);
    }
    return found;
  }

  std::unique_ptr<Form> form;
  std::unique_ptr<QWidget> window;
  std::unique_ptr<BoundForm> view;

 private:
  QFont usual_;
};

TEST_P(Measures, GiveNumberFieldsOfADialogOneWidth) {
  if (dynamic_cast<QDialog*>(window.get()) == nullptr) return;
  std::set<int> widths;
  OnEveryPage([&] {
    for (const auto* field : NumberFieldsOnView()) widths.insert(field->width());
  });
  EXPECT_LE(widths.size(), 1) << testing::PrintToString(widths);
}

TEST_P(Measures, CutNoText) {
  std::set<std::string> cut;
  const auto check = [&](const QWidget& widget) {
    if (widget.width() < widget.minimumSizeHint().width() || widget.height() < widget.minimumSizeHint().height()) {
      cut.insert(widget.objectName().toStdString());
    }
  };
  OnEveryPage([&] {
    for (const auto* widget : OnView<QPushButton>()) check(*widget);
    for (const auto* widget : OnView<QCheckBox>()) check(*widget);
    for (const auto* widget : OnView<QRadioButton>()) check(*widget);
    for (const auto* widget : OnView<QGroupBox>()) check(*widget);
    for (const auto* label : OnView<QLabel>()) check(*label);
    for (const auto* field : NumberFieldsOnView()) {
      const int inside = field->width() - 2 * field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth) -
                         field->textMargins().left() - field->textMargins().right();
      if (field->fontMetrics().horizontalAdvance(field->text()) > inside) cut.insert(field->objectName().toStdString());
    }
  });
  EXPECT_THAT(cut, IsEmpty());
}

TEST_P(Measures, LetNothingOverlap) {
  std::set<std::string> overlapping;
  OnEveryPage([&] {
    const auto widgets = OnView<QWidget>();
    for (std::size_t i = 0; i < widgets.size(); ++i) {
      for (std::size_t j = i + 1; j < widgets.size(); ++j) {
        const bool areBeside = widgets[i]->parentWidget() == widgets[j]->parentWidget() && !widgets[i]->isWindow() &&
                               !widgets[j]->isWindow() && !IsStructure(*widgets[i]) && !IsStructure(*widgets[j]);
        if (areBeside && widgets[i]->geometry().intersects(widgets[j]->geometry())) {
          overlapping.insert((widgets[i]->objectName() + " " + widgets[j]->objectName()).toStdString());
        }
      }
    }
  });
  EXPECT_THAT(overlapping, IsEmpty());
}

TEST_P(Measures, FitASmallScreenWithoutScrolling) {
  if (GetParam().isLarge) return;  // the windows then scroll
  const QSize most = SmallScreen - QSize(0, TitleBar);
  window->resize(WholeSize(*window).boundedTo(most));
  OnEveryPage([&] {
    EXPECT_LE(window->width(), most.width());
    EXPECT_LE(window->height(), most.height());
    const auto* scroll = window->findChild<QScrollArea*>("viewScroll");
    if (scroll == nullptr) return;
    EXPECT_EQ(scroll->horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(scroll->verticalScrollBar()->maximum(), 0);
  });
}

void ExpectWholeRows(const QTableView& grid) {
  const int row = grid.verticalHeader()->defaultSectionSize();
  const bool fits = grid.verticalHeader()->length() <= grid.viewport()->height();
  EXPECT_TRUE(fits || grid.viewport()->height() % row == 0) << grid.objectName().toStdString();
}

TEST_P(Measures, ShowWholeRowsOfGrids) {
  OnEveryPage([&] {
    for (const auto* grid : OnView<GridView>()) ExpectWholeRows(*grid);
    for (const auto* table : OnView<RowsView>()) ExpectWholeRows(*table);
  });
}

INSTANTIATE_TEST_SUITE_P(Windows, Measures, testing::ValuesIn(Settings()), NameOfSetting);

// ---- the order of the desktop ---------------------------------------------------------------------------------------

// A style with the order of buttons of another desktop.
class OrderedStyle : public QProxyStyle {
 public:
  explicit OrderedStyle(QDialogButtonBox::ButtonLayout layout) : QProxyStyle("Fusion"), layout_(layout) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_DialogButtonLayout ? layout_ : QProxyStyle::styleHint(hint, option, widget, data);
  }

 private:
  QDialogButtonBox::ButtonLayout layout_;
};

class DialogButtons : public GuiTest {
 protected:
  ~DialogButtons() override { QApplication::setStyle("Fusion"); }

  // Returns the captions of the row of buttons, from the left.
  std::vector<std::string> InOrderOf(QDialogButtonBox::ButtonLayout layout) {
    QApplication::setStyle(new OrderedStyle(layout));
    std::vector<std::string> captions;
    ParametersDialog dialog(program);
    Work(dialog, [&](QDialog& window) {
      std::map<int, std::string> found;
      for (const char* name : {"Command2", "Command1", "cmdresults", "Command5", "Command3"}) {
        found[Find(window, name).mapTo(&window, QPoint()).x()] = CaptionOn(window, name);
      }
      for (const auto& [x, caption] : found) captions.push_back(caption);
    });
    return captions;
  }
};

TEST_F(DialogButtons, StandInTheOrderOfTheDesktop) {
  EXPECT_THAT(InOrderOf(QDialogButtonBox::WinLayout), ElementsAre("OK", "Cancel", "Results", "Copy Clip", "Help"));
  EXPECT_THAT(InOrderOf(QDialogButtonBox::KdeLayout), ElementsAre("Help", "OK", "Results", "Copy Clip", "Cancel"));
  EXPECT_THAT(InOrderOf(QDialogButtonBox::GnomeLayout), ElementsAre("Help", "Copy Clip", "Results", "Cancel", "OK"));
}

}  // namespace
}  // namespace orby::test
