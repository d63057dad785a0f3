#include "controls/plain_form.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "core/program_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct OptionArrayIndex : ProgramBench {
  OptionArrayIndex() {
    SetMessageTitles(program, MessageModule::Parameters);
    source.Click = [this](Integer index) { clicks.push_back(index); };
  }

  PlainForm form;
  OptionArray source{form, "optBoltOptionsPrimary", {{"Table"}, {"Typed"}, {"Estimated"}}};
  std::vector<Integer> clicks;
};

TEST_F(OptionArrayIndex, FiresOneClickForANewChoice) {
  source.SetValue(0, true);
  clicks.clear();

  SetArrayIndex(program, source, 2);

  EXPECT_EQ(GetArrayIndex(source), 2);
  EXPECT_THAT(clicks, ElementsAre(2));
}

TEST_F(OptionArrayIndex, FiresOneClickForTheSameChoice) {
  source.SetValue(1, true);
  clicks.clear();

  SetArrayIndex(program, source, 1);

  EXPECT_EQ(GetArrayIndex(source), 1);
  EXPECT_THAT(clicks, ElementsAre(1));
}

TEST_F(OptionArrayIndex, FiresOneClickForAFirstChoice) {
  SetArrayIndex(program, source, 0);

  EXPECT_TRUE(source.Value(0));
  EXPECT_THAT(clicks, ElementsAre(0));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(OptionArrayIndex, BeyondTheArrayShowsAnErrorAndIsASubscriptError) {
  source.SetValue(1, true);
  clicks.clear();

  EXPECT_EQ(ErrorNumberOf([this] { SetArrayIndex(program, source, 3); }), 9);

  EXPECT_THAT(platform.boxes.shown, ElementsAre(IsBox("Internal Error: SetArrayIndex. Check input/form data.",
                                                      BoxButtons::Ok, "Project Parameters: Range Error")));
  EXPECT_FALSE(source.Value(0) || source.Value(1) || source.Value(2));
  EXPECT_THAT(clicks, IsEmpty());
}

TEST_F(OptionArrayIndex, BelowTheArrayShowsAnErrorAndIsASubscriptError) {
  EXPECT_EQ(ErrorNumberOf([this] { SetArrayIndex(program, source, -1); }), 9);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Internal Error: SetArrayIndex. Check input/form data."));
}

}  // namespace
}  // namespace orby::test
