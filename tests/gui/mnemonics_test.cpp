// The mnemonic letters of captions.
#include "qt/mnemonics.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>
#include <memory>

namespace orby::test {
namespace {

// A window of captions. Some of them are on the two pages of a tab set.
class LettersOfAWindow : public testing::Test {
 protected:
  LettersOfAWindow() {
    for (QWidget*& page : pages) {
      page = new QWidget;
      tabs->addTab(page, QString());
    }
  }

  // Adds a caption to the window or to a page.
  const QLabel* Add(const std::string& caption, QWidget* place = nullptr) {
    const auto* label = new QLabel(place == nullptr ? &window : place);
    captions.push_back({label, 0, label, caption});
    return label;
  }
  std::string Marked(const QLabel* label, const std::string& caption) {
    Mnemonics letters;
    letters.Assign(captions);
    return letters.Marked(label, 0, caption).toStdString();
  }

  QWidget window;
  QTabWidget* tabs = new QTabWidget(&window);
  QWidget* pages[2] = {};
  std::vector<CaptionSlot> captions;
};

TEST_F(LettersOfAWindow, AreTheFirstOfTheCaption) {
  const auto* label = Add("Depth of Cover (ft)");

  EXPECT_EQ(Marked(label, "Depth of Cover (ft)"), "&Depth of Cover (ft)");
}

TEST_F(LettersOfAWindow, AreTheFirstOfALaterWordIfThatOfTheFirstIsTaken) {
  Add("Depth of Cover (ft)");
  const auto* label = Add("Drill Width");

  EXPECT_EQ(Marked(label, "Drill Width"), "Drill &Width");
}

TEST_F(LettersOfAWindow, AreFromInsideAWordIfNoFirstLetterIsFree) {
  Add("Depth");
  const auto* label = Add("Drill");

  EXPECT_EQ(Marked(label, "Drill"), "D&rill");
}

TEST_F(LettersOfAWindow, AreTakenFromACaptionThatCanUseAnother) {
  const auto* delivery = Add("Delivery");
  Add("&Apply");
  const auto* add = Add("Add");

  EXPECT_EQ(Marked(add, "Add"), "A&dd");
  EXPECT_EQ(Marked(delivery, "Delivery"), "D&elivery");
}

TEST_F(LettersOfAWindow, KeepTheOwnLetterOfACaption) {
  const auto* label = Add("Cost");
  const auto* own = Add("&Copy Clip");

  EXPECT_EQ(Marked(own, "&Copy Clip"), "&Copy Clip");
  EXPECT_EQ(Marked(label, "Cost"), "C&ost");
}

TEST_F(LettersOfAWindow, AreNotGivenToButtonsOfEnterAndEscape) {
  const auto* ok = Add("OK");
  const auto* cancel = Add("Cancel");
  const auto* label = Add("Cover");

  EXPECT_EQ(Marked(ok, "OK"), "OK");
  EXPECT_EQ(Marked(cancel, "Cancel"), "Cancel");
  EXPECT_EQ(Marked(label, "Cover"), "&Cover");
}

TEST_F(LettersOfAWindow, RepeatOnPagesThatAreNeverVisibleTogether) {
  const auto* first = Add("Row Spacing", pages[0]);
  const auto* second = Add("Row Spacing", pages[1]);

  EXPECT_EQ(Marked(first, "Row Spacing"), "&Row Spacing");
  EXPECT_EQ(Marked(second, "Row Spacing"), "&Row Spacing");
}

TEST_F(LettersOfAWindow, DoNotRepeatThoseOutsideThePages) {
  const auto* inside = Add("Results of the Row", pages[0]);
  const auto* outside = Add("Results");

  EXPECT_EQ(Marked(outside, "Results"), "&Results");
  EXPECT_EQ(Marked(inside, "Results of the Row"), "Results &of the Row");
}

TEST_F(LettersOfAWindow, AreMissingIfAllAreTaken) {
  Add("A");
  const auto* label = Add("A");

  EXPECT_EQ(Marked(label, "A"), "A");
}

TEST_F(LettersOfAWindow, DoNotChangeWithTheCaption) {
  const auto* label = Add("Roof Bolt Yield Grade");
  Add("Results");

  EXPECT_EQ(Marked(label, "Roof Bolt Ultimate Grade"), "&Roof Bolt Ultimate Grade");
}

}  // namespace
}  // namespace orby::test
