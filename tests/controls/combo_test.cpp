#include <gmock/gmock.h>
#include <rapidcheck.h>

#include "base/runtime_error.h"
#include "controls/controls.h"
#include "controls/plain_form.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

// Standing supports with their capacities.
struct ACombo : testing::Test {
  ACombo() {
    combo.Fill({{"Hardwood crib", 50}, {"Steel prop", 120}, {"Steel prop, heavy", 200}});
    combo.Change = [this] { ++changes; };
  }

  PlainForm form;
  Combo combo{form, "cmbSupport"};
  int changes = 0;
};

TEST_F(ACombo, StartsWithoutTextAndSelection) {
  EXPECT_EQ(combo.Text(), "");
  EXPECT_EQ(combo.ListIndex(), -1);
  EXPECT_FALSE(combo.HasSelection());
}

TEST_F(ACombo, FiresNothingWhenItIsFilled) {
  combo.SetListIndex(1);
  changes = 0;

  combo.Fill({{"Hardwood crib", 50}, {"Concrete crib", 300}});

  EXPECT_EQ(changes, 0);
  EXPECT_EQ(combo.Text(), "Steel prop");
  EXPECT_EQ(combo.Items().size(), 2U);
  EXPECT_EQ(combo.Items()[1].data, 300);
}

TEST_F(ACombo, KeepsASelectionWithinTheNewList) {
  combo.SetListIndex(1);

  combo.Fill({{"Hardwood crib", 50}, {"Steel prop", 130}});

  EXPECT_EQ(combo.ListIndex(), 1);
}

TEST_F(ACombo, RemovesASelectionBeyondTheNewListAndKeepsTheText) {
  combo.SetListIndex(2);
  changes = 0;

  combo.Fill({{"Hardwood crib", 50}});

  EXPECT_EQ(combo.ListIndex(), -1);
  EXPECT_EQ(combo.Text(), "Steel prop, heavy");
  EXPECT_EQ(changes, 0);
}

TEST_F(ACombo, RemovesASelectionJustBeyondTheNewList) {
  combo.SetListIndex(1);

  combo.Fill({{"Hardwood crib", 50}});

  EXPECT_EQ(combo.ListIndex(), -1);
  EXPECT_EQ(combo.Text(), "Steel prop");
}

TEST_F(ACombo, SelectsTheItemThatATextEquals) {
  combo.SetText("Steel prop");

  EXPECT_EQ(combo.ListIndex(), 1);
  EXPECT_EQ(combo.Text(), "Steel prop");
  EXPECT_EQ(changes, 1);
}

TEST_F(ACombo, SelectsTheFirstOfEqualItems) {
  combo.Fill({{"27", 0}, {"33", 1}, {"33", 2}});

  combo.SetText("33");

  EXPECT_EQ(combo.ListIndex(), 1);
}

TEST_F(ACombo, KeepsTheSelectedOneOfEqualItemsWhenItsTextIsSetAgain) {
  combo.Fill({{"27", 0}, {"33", 1}, {"33", 2}});
  combo.SetListIndex(2);
  changes = 0;

  combo.SetText("33");
  EXPECT_EQ(combo.ListIndex(), 2);
  EXPECT_EQ(changes, 0);

  combo.BlankText();
  combo.SetText("33");
  EXPECT_EQ(combo.ListIndex(), 2);
}

TEST_F(ACombo, SelectsNothingForATextThatIsNotInTheList) {
  combo.SetListIndex(0);
  changes = 0;

  combo.SetText("27");

  EXPECT_EQ(combo.Text(), "27");
  EXPECT_EQ(combo.Value(), 27.0);
  EXPECT_FALSE(combo.HasSelection());
  EXPECT_EQ(changes, 1);
}

TEST_F(ACombo, SelectsAnItemOnlyForAnExactlyEqualText) {
  combo.SetText("steel prop");
  EXPECT_EQ(combo.ListIndex(), -1);

  combo.SetText("Steel prop ");
  EXPECT_EQ(combo.ListIndex(), -1);

  combo.SetText("Steel");
  EXPECT_EQ(combo.ListIndex(), -1);
}

TEST_F(ACombo, FiresNothingWhenTheSameTextIsSetAgain) {
  combo.SetText("Steel prop");
  changes = 0;

  combo.SetText("Steel prop");

  EXPECT_EQ(changes, 0);
}

TEST_F(ACombo, ThatIsEmptyFiresNothingWhenItIsCleared) {
  combo.SetText("");

  EXPECT_EQ(changes, 0);
}

TEST_F(ACombo, HasTheTextOfTheSelectedItem) {
  combo.SetListIndex(2);

  EXPECT_EQ(combo.Text(), "Steel prop, heavy");
  EXPECT_EQ(combo.Items()[2].data, 200);
  EXPECT_TRUE(combo.HasSelection());
  EXPECT_EQ(changes, 1);
}

TEST_F(ACombo, FiresNothingWhenTheSameItemIsSelectedAgain) {
  combo.SetListIndex(2);
  changes = 0;

  combo.SetListIndex(2);

  EXPECT_EQ(changes, 0);
}

TEST_F(ACombo, FiresChangeForAnotherItemWithTheSameText) {
  combo.Fill({{"33", 1}, {"33", 2}});
  combo.SetListIndex(0);
  changes = 0;

  combo.SetListIndex(1);

  EXPECT_EQ(combo.ListIndex(), 1);
  EXPECT_EQ(changes, 1);
}

TEST_F(ACombo, KeepsItsTextWhenTheSelectionIsRemoved) {
  combo.SetListIndex(0);
  changes = 0;

  combo.SetListIndex(Combo::Nothing);

  EXPECT_EQ(combo.Text(), "Hardwood crib");
  EXPECT_FALSE(combo.HasSelection());
  EXPECT_EQ(changes, 1);
}

TEST_F(ACombo, FiresNothingWhenThereIsNoSelectionToRemove) {
  combo.SetListIndex(Combo::Nothing);

  EXPECT_EQ(changes, 0);
}

TEST_F(ACombo, KeepsItsSelectionWhenItsTextIsCleared) {
  combo.SetListIndex(1);
  changes = 0;

  combo.BlankText();

  EXPECT_EQ(combo.Text(), "");
  EXPECT_EQ(combo.ListIndex(), 1);
  EXPECT_EQ(changes, 1);
}

TEST_F(ACombo, FiresNothingWhenItsTextIsClearedTwice) {
  combo.SetListIndex(1);
  combo.BlankText();
  changes = 0;

  combo.BlankText();

  EXPECT_EQ(changes, 0);
}

TEST_F(ACombo, RestoresAClearedTextWhenItsItemIsSelectedAgain) {
  combo.SetListIndex(1);
  combo.BlankText();
  changes = 0;

  combo.SetListIndex(combo.ListIndex());

  EXPECT_EQ(combo.Text(), "Steel prop");
  EXPECT_EQ(changes, 1);
}

TEST_F(ACombo, RefusesAnItemOutsideItsList) {
  EXPECT_EQ(ErrorNumberOf([this] { combo.SetListIndex(3); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { combo.SetListIndex(-2); }), 9);
  EXPECT_EQ(changes, 0);
}

TEST_F(ACombo, HasTheNumberAtTheStartOfItsText) {
  combo.SetText("0.75 in");

  EXPECT_EQ(combo.Value(), 0.75);
}

TEST_F(ACombo, WithoutAHandlerStillChangesItsText) {
  combo.Change = nullptr;

  combo.SetText("Steel prop");

  EXPECT_EQ(combo.ListIndex(), 1);
}

TEST(ComboText, AgreesWithTheSelectionAfterAnyTyping) {
  EXPECT_TRUE(rc::check("the first item equal to the text is selected, if there is one", [] {
    const auto number = rc::gen::map(rc::gen::inRange(0, 6), [](int digit) { return std::to_string(digit); });
    const auto list = *rc::gen::container<std::vector<std::string>>(number);
    const auto typed = *rc::gen::nonEmpty(rc::gen::container<std::vector<std::string>>(number));
    PlainForm form;
    Combo combo(form, "cmbDiameter");
    std::vector<ComboItem> items;
    for (const auto& text : list) items.push_back({text});
    combo.Fill(items);

    for (const auto& text : typed) combo.SetText(text);

    const std::size_t before = combo.HasSelection() ? static_cast<std::size_t>(combo.ListIndex()) : list.size();
    for (std::size_t i = 0; i < before; ++i) RC_ASSERT(list[i] != typed.back());
    if (combo.HasSelection()) RC_ASSERT(list[before] == typed.back());
    RC_ASSERT(combo.Text() == typed.back());
  }));
}

}  // namespace
}  // namespace orby::test
