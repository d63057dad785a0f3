#include <gmock/gmock.h>

#include "controls/controls.h"
#include "controls/plain_form.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

// Controls whose handlers set each other and record the order of the events.
struct NestedEvents : testing::Test {
  PlainForm form;
  TextBox depth{form, "txtDepth", TextKind::Number};
  TextBox span{form, "txtSpan", TextKind::Number};
  CheckBox typed{form, "chkTyped", "Typed"};
  OptionArray source{form, "optSource", {{"Table"}, {"Typed"}, {"Estimated"}}};
  Combo diameter{form, "cmbDiameter"};
  TabSet tabs{form, "SSTab1", {"Geology", "Primary"}};
  std::vector<std::string> said;
};

TEST_F(NestedEvents, RunInsideTheEventThatCausesThem) {
  typed.Click = [this] {
    said.push_back("box begins");
    depth.SetText("150");
    said.push_back("box ends");
  };
  depth.Change = [this] { said.push_back("text " + depth.Text()); };

  typed.SetValue(1);

  EXPECT_THAT(said, ElementsAre("box begins", "text 150", "box ends"));
}

TEST_F(NestedEvents, EndWhenNoValueChanges) {
  depth.Change = [this] {
    said.push_back("depth " + depth.Text());
    span.SetText(depth.Text());
  };
  span.Change = [this] {
    said.push_back("span " + span.Text());
    depth.SetText(span.Text());
  };

  span.SetText("60");

  EXPECT_THAT(said, ElementsAre("span 60", "depth 60"));
}

TEST_F(NestedEvents, LetAHandlerCorrectTheTextOfItsOwnField) {
  depth.Change = [this] {
    said.push_back(depth.Text());
    if (depth.Value() > 100) depth.SetText("100");
  };

  depth.SetText("450");

  EXPECT_EQ(depth.Text(), "100");
  EXPECT_THAT(said, ElementsAre("450", "100"));
}

TEST_F(NestedEvents, LetAHandlerReplaceTheChoiceOfItsOwnOptions) {
  source.SetValue(0, true);
  source.Click = [this](Integer index) {
    said.push_back(std::to_string(index));
    if (index == 2) source.SetValue(1, true);
  };

  source.SetValue(2, true);

  EXPECT_EQ(GetArrayIndex(source), 1);
  EXPECT_FALSE(source.Value(0) || source.Value(2));
  EXPECT_THAT(said, ElementsAre("2", "1"));
}

TEST_F(NestedEvents, LetAHandlerRefillAndSetItsOwnCombo) {
  diameter.Fill({{"0.625"}, {"0.75"}});
  diameter.Change = [this] {
    said.push_back(diameter.Text());
    if (diameter.Text() != "0.75") return;
    diameter.Fill({{"20"}, {"22"}});
    diameter.SetText("22");
  };

  diameter.SetListIndex(1);

  EXPECT_EQ(diameter.Text(), "22");
  EXPECT_EQ(diameter.ListIndex(), 1);
  EXPECT_THAT(said, ElementsAre("0.75", "22"));
}

TEST_F(NestedEvents, LetAHandlerOfATabChangeAnotherControlAndReturn) {
  tabs.Click = [this] {
    said.push_back("tab " + std::to_string(tabs.Tab()));
    typed.SetValue(1);
    tabs.SetTab(0);
  };
  typed.Click = [this] { said.push_back("box"); };

  tabs.ClickTab(1);

  EXPECT_EQ(tabs.Tab(), 0);
  EXPECT_THAT(said, ElementsAre("tab 1", "box", "tab 0"));
}

TEST_F(NestedEvents, KeepTheNewTextWhenAHandlerThrows) {
  depth.Change = [] { throw std::bad_alloc(); };

  EXPECT_THROW(depth.SetText("150"), std::bad_alloc);

  EXPECT_EQ(depth.Text(), "150");
}

}  // namespace
}  // namespace orby::test
