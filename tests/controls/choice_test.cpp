#include <gmock/gmock.h>
#include <rapidcheck.h>

#include "base/runtime_error.h"
#include "controls/controls.h"
#include "controls/plain_form.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CheckBox, StartsUnchecked) {
  PlainForm form;
  const CheckBox cable(form, "chkCable", "Cable bolts");

  EXPECT_EQ(cable.Value(), 0);
  EXPECT_FALSE(cable.Checked());
  EXPECT_EQ(cable.Caption(), "Cable bolts");
}

TEST(CheckBox, FiresClickWhenItsValueChanges) {
  PlainForm form;
  CheckBox cable(form, "chkCable", "Cable bolts");
  std::vector<Integer> seen;
  cable.Click = [&] { seen.push_back(cable.Value()); };

  cable.SetValue(1);
  cable.SetValue(0);

  EXPECT_THAT(seen, ElementsAre(1, 0));
}

TEST(CheckBox, FiresNothingWhenItsValueStaysTheSame) {
  PlainForm form;
  CheckBox cable(form, "chkCable", "Cable bolts");
  int clicks = 0;
  cable.Click = [&] { ++clicks; };

  cable.SetValue(0);
  cable.SetValue(1);
  cable.SetValue(1);

  EXPECT_TRUE(cable.Checked());
  EXPECT_EQ(clicks, 1);
}

TEST(CheckBox, WithoutAHandlerStillChangesItsValue) {
  PlainForm form;
  CheckBox cable(form, "chkCable", "Cable bolts");

  cable.SetValue(1);

  EXPECT_TRUE(cable.Checked());
}

struct AnOptionArray : testing::Test {
  AnOptionArray() {
    source.Click = [this](Integer index) { clicks.push_back(index); };
  }

  std::vector<bool> Values() const {
    std::vector<bool> values;
    for (std::size_t i = 0; i < source.Count(); ++i) values.push_back(source.Value(i));
    return values;
  }

  PlainForm form;
  OptionArray source{form, "optSource", {{"Table"}, {"Diameter", UnitSuffix::Diameter}, {"Typed"}}};
  std::vector<Integer> clicks;
};

TEST_F(AnOptionArray, StartsWithNothingChosen) {
  EXPECT_THAT(Values(), ElementsAre(false, false, false));
  EXPECT_EQ(GetArrayIndex(source), 0);
}

TEST_F(AnOptionArray, ChoiceClearsTheOthersAndFiresClickOnce) {
  source.SetValue(0, true);
  clicks.clear();

  source.SetValue(2, true);

  EXPECT_THAT(Values(), ElementsAre(false, false, true));
  EXPECT_THAT(clicks, ElementsAre(2));
}

TEST_F(AnOptionArray, FiresNothingWhenTheChosenOptionIsChosenAgain) {
  source.SetValue(1, true);
  clicks.clear();

  source.SetValue(1, true);

  EXPECT_THAT(clicks, IsEmpty());
}

TEST_F(AnOptionArray, FiresNothingAndHasNoChoiceAfterTheChosenOptionIsCleared) {
  source.SetValue(1, true);
  clicks.clear();

  source.SetValue(1, false);

  EXPECT_THAT(Values(), ElementsAre(false, false, false));
  EXPECT_THAT(clicks, IsEmpty());
}

TEST_F(AnOptionArray, NotifiesTheViewWhenAnOptionIsCleared) {
  source.SetValue(1, true);
  const RecordingView view(form);

  source.SetValue(1, false);

  EXPECT_THAT(view.told, ElementsAre("optSource"));
}

TEST_F(AnOptionArray, KeepsItsChoiceWhenAnotherOptionIsCleared) {
  source.SetValue(2, true);
  clicks.clear();

  source.SetValue(0, false);

  EXPECT_THAT(Values(), ElementsAre(false, false, true));
  EXPECT_THAT(clicks, IsEmpty());
}

TEST_F(AnOptionArray, HasItsNewChoiceBeforeItFiresClick) {
  Integer chosen = -1;
  source.SetValue(0, true);
  source.Click = [&](Integer) { chosen = GetArrayIndex(source); };

  source.SetValue(2, true);

  EXPECT_EQ(chosen, 2);
}

TEST_F(AnOptionArray, WithoutAHandlerStillChangesItsChoice) {
  source.Click = nullptr;

  source.SetValue(1, true);

  EXPECT_EQ(GetArrayIndex(source), 1);
}

TEST_F(AnOptionArray, RefusesAnOptionOutsideItsBounds) {
  EXPECT_EQ(ErrorNumberOf([this] { source.SetValue(3, true); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { source.SetValue(-1, true); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { source.SetValue(3, false); }), 9);
}

TEST_F(AnOptionArray, KeepsItsChoiceAfterItRefusedAnOption) {
  source.SetValue(1, true);

  EXPECT_THROW(source.SetValue(3, true), RuntimeError);

  EXPECT_THAT(Values(), ElementsAre(false, true, false));
}

TEST_F(AnOptionArray, CanDisableASingleOption) {
  source.SetMemberEnabled(1, false);

  EXPECT_TRUE(source.MemberEnabled(0));
  EXPECT_FALSE(source.MemberEnabled(1));
  EXPECT_TRUE(source.MemberEnabled(2));
}

TEST_F(AnOptionArray, CanBeDisabledAndEnabledAsAWhole) {
  source.SetAllEnabled(false);
  EXPECT_FALSE(source.MemberEnabled(0) || source.MemberEnabled(1) || source.MemberEnabled(2));

  source.SetAllEnabled(true);
  EXPECT_TRUE(source.MemberEnabled(0) && source.MemberEnabled(1) && source.MemberEnabled(2));
}

TEST_F(AnOptionArray, LetsCodeChooseADisabledOption) {
  source.SetMemberEnabled(1, false);

  source.SetValue(1, true);

  EXPECT_TRUE(source.Value(1));
  EXPECT_THAT(clicks, ElementsAre(1));
}

TEST_F(AnOptionArray, HasACaptionAndAUnitForEachOption) {
  source.SetCaption(2, "Typed by hand");

  EXPECT_EQ(source.Caption(0), "Table");
  EXPECT_EQ(source.Caption(2), "Typed by hand");
  EXPECT_EQ(source.Suffix(0), UnitSuffix::None);
  EXPECT_EQ(source.Suffix(1), UnitSuffix::Diameter);
}

TEST(OptionArrayChoice, IsNeverTwoOptions) {
  EXPECT_TRUE(rc::check("only the option that was clicked last is true", [] {
    const auto turns = *rc::gen::nonEmpty(rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 4)));
    PlainForm form;
    OptionArray options(form, "optOptions", {{"A"}, {"B"}, {"C"}, {"D"}});
    int last = -1;
    options.Click = [&](Integer index) { last = index; };

    for (const int turn : turns) options.SetValue(turn, true);

    int chosen = 0;
    for (std::size_t i = 0; i < options.Count(); ++i) chosen += options.Value(i) ? 1 : 0;
    RC_ASSERT(chosen == 1);
    RC_ASSERT(last == turns.back());
    RC_ASSERT(GetArrayIndex(options) == turns.back());
  }));
}

}  // namespace
}  // namespace orby::test
