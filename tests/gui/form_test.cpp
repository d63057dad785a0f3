// Rules for every form of the program: each control has its widget and each widget its control, the tab key reaches all
// widgets in visual order, and screen readers can name them.
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <map>
#include <set>

#include "gui/forms.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

using testing::IsEmpty;
using testing::Not;

using Names = std::vector<std::string>;

std::string NameOf(const QObject& object) { return object.objectName().toStdString(); }

// Returns true for widgets that only hold others, and for those that the toolkit makes for itself.
bool IsStructure(const std::string& name) {
  return name.empty() || name.starts_with("qt_") || name.starts_with("view") || name == "ScrollLeftButton" ||
         name == "ScrollRightButton";
}

// Returns the names of the widgets and actions of a control: one, or one per member.
Names WantedNames(const Control& control) {
  const std::string name(control.Name());
  Names names;
  const auto members = [&](int count) {
    for (int i = 0; i < count; ++i) names.push_back(MemberName(control, i));
  };
  if (const auto* options = dynamic_cast<const OptionArray*>(&control)) {
    for (std::size_t i = 0; i < options->Count(); ++i) {
      if (!options->Caption(i).empty()) names.push_back(MemberName(control, static_cast<int>(i)));
    }
  } else if (const auto* actions = dynamic_cast<const ActionArray*>(&control)) {
    for (int i = 0; i < actions->Count(); ++i) {
      const std::string& caption = actions->Caption(i);
      if (!caption.empty() && caption != ActionArray::Separator) names.push_back(MemberName(control, i));
    }
  } else {
    names.push_back(name);
    if (const auto* tabs = dynamic_cast<const TabSet*>(&control)) members(tabs->Count());
  }
  return names;
}

class EveryForm : public GuiTest, public testing::WithParamInterface<FormMaker> {
 protected:
  // Shows the form with all tabs enabled.
  void Show() {
    program.windows.curve.CurvePointCount = 0;
    form = GetParam().make(program);
    form->Open();
    window = MakeWindow(*form, nullptr);
    view = std::make_unique<BoundForm>(*form, *window);
    for (TabSet* tabs : TabSets()) {
      for (int tab = 0; tab < tabs->Count(); ++tab) tabs->SetTabEnabled(tab, true);
    }
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  std::vector<TabSet*> TabSets() const {
    std::vector<TabSet*> found;
    for (Control* control : form->Controls()) {
      if (auto* tabs = dynamic_cast<TabSet*>(control)) found.push_back(tabs);
    }
    return found;
  }

  // Runs `act` on every page of the tabs, including inner tabs.
  void OnEveryPage(const std::function<void()>& act) {
    const auto all = TabSets();
    if (all.empty()) return act();
    for (int outer = 0; outer < all.front()->Count(); ++outer) {
      all.front()->SetTab(outer);
      for (int inner = 0; inner < 4; ++inner) {
        for (std::size_t i = 1; i < all.size(); ++i) all[i]->SetTab(inner);
        Settle();
        SCOPED_TRACE("page " + std::to_string(outer) + "." + std::to_string(inner));
        act();
      }
    }
  }

  // Returns the first widget in tab order that is visible and enabled.
  QWidget* FirstOnView() const {
    for (const Control* control : form->Controls()) {
      for (const std::string& name : WantedNames(*control)) {
        auto* widget = window->findChild<QWidget*>(QString::fromStdString(name));
        if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) continue;
        if ((widget->focusPolicy() & Qt::TabFocus) != 0) return widget;
      }
    }
    return nullptr;
  }

  std::unique_ptr<Form> form;
  std::unique_ptr<QWidget> window;
  std::unique_ptr<BoundForm> view;
};

TEST_P(EveryForm, HasOneWidgetForEachControl) {
  Show();

  for (const Control* control : form->Controls()) {
    for (const std::string& name : WantedNames(*control)) {
      const auto found = window->findChildren<QObject*>(QString::fromStdString(name));
      EXPECT_EQ(found.size(), 1) << name;
    }
  }
}

TEST_P(EveryForm, HasAControlForEachWidget) {
  Show();
  std::set<std::string> wanted;
  for (const Control* control : form->Controls()) {
    for (std::string& name : WantedNames(*control)) wanted.insert(std::move(name));
    // A tool bar has the name of its array. A separator that can be hidden is an action of it.
    const auto* actions = dynamic_cast<const ActionArray*>(control);
    if (actions == nullptr) continue;
    wanted.emplace(control->Name());
    for (int i = 0; i < actions->Count(); ++i) wanted.insert(MemberName(*control, i));
  }

  Names strangers;
  for (const auto* object : window->findChildren<QObject*>()) {
    if (!object->isWidgetType() && qobject_cast<const QAction*>(object) == nullptr) continue;
    const std::string name = NameOf(*object);
    if (!IsStructure(name) && !wanted.contains(name)) strangers.push_back(name);
  }

  EXPECT_THAT(strangers, IsEmpty());
}

// ---- the tab key ---------------------------------------------------------------------------------------------------

// Returns the window's widgets in the order of the tab key, starting at the one with the focus.
std::vector<QWidget*> TabWalk(QWidget& window) {
  std::vector<QWidget*> walk;
  std::set<const QWidget*> seen;
  if (QApplication::focusWidget() == nullptr) QTest::keyClick(&window, Qt::Key_Tab);
  constexpr int Endless = 200;
  for (int i = 0; i < Endless; ++i) {
    QWidget* at = QApplication::focusWidget();
    if (at == nullptr) return walk;
    // A grid that is edited keeps the focus from its first cell to its last.
    if (walk.empty() || at != walk.back()) {
      if (!seen.insert(at).second) return walk;
      walk.push_back(at);
    }
    QTest::keyClick(at, Qt::Key_Tab);
  }
  if (walk.size() == 1) return walk;
  ADD_FAILURE() << "the tab key never comes back to where it began";
  return walk;
}

QRect PlaceIn(const QWidget& window, const QWidget& widget) {
  return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
}

// Returns the widgets around this one up to the window, the outermost first, and itself last.
std::vector<const QWidget*> Nest(const QWidget& window, const QWidget& widget) {
  std::vector<const QWidget*> nest;
  for (const QWidget* at = &widget; at != &window; at = at->parentWidget()) nest.insert(nest.begin(), at);
  return nest;
}

// Returns true if the second of two rectangles comes first in visual order: above the first one in the same column, to
// the left of it in the same line, or above and to the left.
bool EyeMeetsSecondFirst(const QRect& first, const QRect& second) {
  const bool above = second.bottom() < first.top();
  const bool below = second.top() > first.bottom();
  const bool left = second.right() < first.left();
  const bool right = second.left() > first.right();
  return (above && !right) || (left && !below);
}

// If a tab bar comes first in its set, it stands for the whole set.
std::pair<QRect, QRect> PlacesToCompare(const QWidget& window, const QWidget& a, const QWidget& b) {
  const auto nestA = Nest(window, a);
  const auto nestB = Nest(window, b);
  std::size_t common = 0;
  while (common + 1 < nestA.size() && common + 1 < nestB.size() && nestA[common] == nestB[common]) ++common;
  return {PlaceIn(window, *nestA[common]), PlaceIn(window, *nestB[common])};
}

TEST_P(EveryForm, HasATabOrderInVisualOrder) {
  Show();

  OnEveryPage([this] {
    if (QWidget* first = FirstOnView()) first->setFocus(Qt::TabFocusReason);
    const auto walk = TabWalk(*window);
    for (std::size_t i = 0; i < walk.size(); ++i) {
      for (std::size_t j = i + 1; j < walk.size(); ++j) {
        const auto [first, second] = PlacesToCompare(*window, *walk[i], *walk[j]);
        EXPECT_FALSE(EyeMeetsSecondFirst(first, second)) << NameOf(*walk[i]) << " comes before " << NameOf(*walk[j]);
      }
    }
  });
}

TEST_P(EveryForm, LetsTheTabKeyReachEveryUsableWidget) {
  Show();

  OnEveryPage([this] {
    const auto walk = TabWalk(*window);
    const std::set<const QWidget*> reached(walk.begin(), walk.end());
    for (const auto* widget : window->findChildren<QWidget*>()) {
      const bool stays = (widget->focusPolicy() & Qt::TabFocus) == 0 || widget->focusProxy() != nullptr ||
                         !widget->isEnabled() || !widget->isVisible() || NameOf(*widget).starts_with("view");
      EXPECT_TRUE(stays || reached.contains(widget)) << NameOf(*widget) << " of " << NameOf(*widget->parentWidget());
    }
  });
}

// ---- letters and names ---------------------------------------------------------------------------------------------

QString LetterOf(const QString& text) { return QKeySequence::mnemonic(text).toString(); }

// Returns the visible captions with a mnemonic letter.
std::map<QString, Names> LettersOnView(const QWidget& window) {
  std::map<QString, Names> letters;
  const auto note = [&](const QString& text) {
    if (const QString letter = LetterOf(text); !letter.isEmpty()) letters[letter].push_back(text.toStdString());
  };
  for (const auto* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible()) continue;
    if (const auto* tabs = qobject_cast<const QTabWidget*>(widget)) {
      for (int i = 0; i < tabs->count(); ++i) note(tabs->tabText(i));
    } else if (const auto* label = qobject_cast<const QLabel*>(widget)) {
      if (label->buddy() != nullptr) note(label->text());
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
      if (!IsStructure(NameOf(*widget))) note(button->text());
    }
  }
  if (const auto* bar = window.findChild<QMenuBar*>()) {
    for (const auto* action : bar->actions()) note(action->text());
  }
  return letters;
}

TEST_P(EveryForm, GivesEachLetterToOneVisibleCaption) {
  Show();

  OnEveryPage([this] {
    for (const auto& [letter, captions] : LettersOnView(*window)) {
      EXPECT_EQ(captions.size(), 1U) << testing::PrintToString(captions);
    }
  });
}

TEST_P(EveryForm, GivesALetterToEveryButton) {
  Show();

  for (const auto* button : window->findChildren<QPushButton*>()) {
    const QString text = button->text();
    if (text == "OK" || text == "Cancel") continue;  // the Enter and Escape keys press them
    EXPECT_FALSE(LetterOf(text).isEmpty()) << NameOf(*button);
  }
}

bool HasLabelLetter(const QWidget& window, const QWidget& field) {
  const auto labels = window.findChildren<QLabel*>();
  return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
    return label->buddy() == &field && !LetterOf(label->text()).isEmpty();
  });
}

TEST_P(EveryForm, NamesEveryFieldForScreenReaders) {
  Show();

  for (const Control* control : form->Controls()) {
    const QWidget* field = view->WidgetOf(*control);
    if (field == nullptr || field->focusPolicy() == Qt::NoFocus) continue;
    if (qobject_cast<const QAbstractButton*>(field) != nullptr || dynamic_cast<TabSet*>(form->Find(control->Name()))) {
      continue;  // a screen reader reads its own text
    }
    EXPECT_TRUE(HasLabelLetter(*window, *field) || !field->accessibleName().isEmpty()) << control->Name();
  }
}

TEST_P(EveryForm, HasACaptionOnEveryButtonAndTab) {
  Show();

  for (const auto* button : window->findChildren<QPushButton*>()) {
    EXPECT_THAT(button->text().toStdString(), Not(IsEmpty())) << NameOf(*button);
  }
  for (const auto* tabs : window->findChildren<QTabWidget*>()) {
    for (int i = 0; i < tabs->count(); ++i) EXPECT_THAT(tabs->tabText(i).toStdString(), Not(IsEmpty()));
  }
}

TEST_P(EveryForm, ShowsItsControlNamesToScriptsOnDemand) {
  qputenv("ORBY_ACCESSIBLE_IDS", "1");
  Show();
  qunsetenv("ORBY_ACCESSIBLE_IDS");

  for (const Control* control : form->Controls()) {
    for (const std::string& name : WantedNames(*control)) {
      const auto* widget = window->findChild<QWidget*>(QString::fromStdString(name));
      const bool isPage = dynamic_cast<const TabSet*>(control) != nullptr && name != control->Name();
      if (widget == nullptr || isPage || dynamic_cast<const Menu*>(control) != nullptr) continue;
      EXPECT_EQ(widget->accessibleDescription().toStdString(), name);
    }
  }
}

TEST_P(EveryForm, HidesItsControlNamesOtherwise) {
  Show();

  for (const auto* widget : window->findChildren<QWidget*>()) {
    if (widget->accessibleDescription().isEmpty()) continue;
    EXPECT_NE(widget->accessibleDescription(), widget->objectName());
  }
}

TEST_P(EveryForm, FitsASmallScreen) {
  Show();

  EXPECT_LE(window->minimumSizeHint().width(), 1366);
  EXPECT_LE(window->minimumSizeHint().height(), 768);
}

INSTANTIATE_TEST_SUITE_P(Of, EveryForm, testing::ValuesIn(FormMakers),
                         [](const auto& maker) { return std::string(maker.param.name); });

}  // namespace
}  // namespace orby::test
