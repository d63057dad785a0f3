#include "dialogs/unit_calculator_window.h"

#include <gmock/gmock.h>

#include "base/number_text.h"
#include "support/number_texts.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> TextsOf(const UnitCalculator::Results& boxes) {
  std::vector<std::string> texts;
  for (const TextBox& box : boxes) texts.push_back(box.Text());
  return texts;
}

struct ACalculator : testing::Test {
  ACalculator() { calculator.Open(); }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  UnitCalculator calculator{program};
};

TEST_F(ACalculator, IsLoggedWhenItOpens) {
  EXPECT_THAT(program.session.history.Text, HasSubstr("Loading Unit Conversion Form"));
}

TEST_F(ACalculator, TitlesItsMessagesWithoutItsOwnName) {
  EXPECT_EQ(program.windows.titles.MessageTitle, "Message");
  EXPECT_EQ(program.windows.titles.ErrorTitle, "Error");
}

TEST_F(ACalculator, HasItsCaptions) {
  struct Kind {
    std::string_view tab;
    const Frame& units;
    std::string_view caption;
  };
  const std::array<Kind, 5> kinds{{{"Length", calculator.fraLengthUnits, "Length units"},
                                   {"Load", calculator.fraLoadUnits, "Load units"},
                                   {"Load Grad", calculator.fraLoadGradUnits, "Load gradient units"},
                                   {"Stress", calculator.fraStressUnits, "Pressure/stress units"},
                                   {"Stress Grad", calculator.fraStressGradUnits, "Pressure/stress gradient units"}}};
  ASSERT_EQ(calculator.SSTab1.Count(), 5);
  for (int tab = 0; tab < calculator.SSTab1.Count(); ++tab) {
    const Kind& kind = kinds[static_cast<std::size_t>(tab)];
    EXPECT_EQ(calculator.SSTab1.Caption(tab), kind.tab);
    EXPECT_EQ(kind.units.Caption(), kind.caption);
  }
}

TEST_F(ACalculator, StartsWithTheFirstUnitOfEachKindAndTheFirstTab) {
  for (const OptionArray* units :
       {&calculator.Option1, &calculator.Option2, &calculator.Option3, &calculator.Option4, &calculator.Option5}) {
    EXPECT_TRUE(units->Value(0)) << units->Name();
  }
  EXPECT_EQ(calculator.SSTab1.Tab(), 0);
  EXPECT_EQ(calculator.FocusRequest(), &calculator.txtLength);
}

TEST_F(ACalculator, ShowsZerosForABlankInput) {
  EXPECT_THAT(TextsOf(calculator.LengthResults), Each("0"));
  EXPECT_THAT(TextsOf(calculator.LoadResults), Each("0"));
  EXPECT_THAT(TextsOf(calculator.LoadGradResults), Each("0"));
  EXPECT_THAT(TextsOf(calculator.StressResults), Each("0"));
  EXPECT_THAT(TextsOf(calculator.StressGradResults), Each("0"));
}

TEST_F(ACalculator, ShowsOneFootInAllLengths) {
  calculator.txtLength.SetText("1");
  calculator.Option2.SetValue(1, true);

  EXPECT_THAT(TextsOf(calculator.LengthResults), ElementsAre("12", "1", "30.48", "0.3048"));
}

TEST_F(ACalculator, FollowsTheTyping) {
  calculator.Option5.SetValue(1, true);
  calculator.txtLoad.SetText("2");
  calculator.txtLoad.SetText("27");

  EXPECT_THAT(TextsOf(calculator.LoadResults),
              ElementsAre("54000", "27", "240.203906427234", "0.240203906427234", "54"));
}

TEST_F(ACalculator, ConvertsEachKindByItself) {
  calculator.txtLoadGrad.SetText("75");
  calculator.txtStress.SetText("145");
  calculator.txtStressGrad.SetText("0.09375");

  EXPECT_THAT(TextsOf(calculator.LoadGradResults),
              ElementsAre("75", "900", "13.1345093190745", "1.31345093190745E-02"));
  EXPECT_THAT(TextsOf(calculator.StressResults),
              ElementsAre("145", "0.145", "20880", "999739.807485", "0.999739807485"));
  EXPECT_THAT(TextsOf(calculator.StressGradResults),
              ElementsAre("0.09375", "1.125", "25448.1691424705", "2.54481691424705E-02"));
  EXPECT_THAT(TextsOf(calculator.LengthResults), Each("0"));
}

TEST_F(ACalculator, ReadsANumberUpToItsSecondPoint) {
  calculator.txtLength.SetText("1.5.5");

  EXPECT_EQ(calculator.LengthResults[0].Text(), "1.5");
  EXPECT_EQ(calculator.LengthResults[1].Text(), "0.125");
}

TEST_F(ACalculator, AcceptsNumbersAndASecondPointButNoLetters) {
  for (TextBox* input : {&calculator.txtLength, &calculator.txtLoad, &calculator.txtLoadGrad, &calculator.txtStress,
                         &calculator.txtStressGrad}) {
    input->SetText("1.5");
    EXPECT_EQ(input->KeyPress('7'), '7') << input->Name();
    EXPECT_EQ(input->KeyPress('.'), '.') << input->Name();
    EXPECT_EQ(input->KeyPress('x'), 0) << input->Name();
  }
}

TEST_F(ACalculator, MovesTheFocusToTheInputOfANewTabAndClearsNothing) {
  calculator.txtLength.SetText("6");
  const std::array<const TextBox*, 5> inputs{&calculator.txtLength, &calculator.txtLoad, &calculator.txtLoadGrad,
                                             &calculator.txtStress, &calculator.txtStressGrad};

  for (const int tab : {1, 2, 3, 4, 0}) {
    calculator.SSTab1.ClickTab(tab);
    EXPECT_EQ(calculator.FocusRequest(), inputs[static_cast<std::size_t>(tab)]);
  }

  EXPECT_EQ(calculator.txtLength.Text(), "6");
  EXPECT_EQ(calculator.LengthResults[1].Text(), "0.5");
}

TEST_F(ACalculator, ShowsADashForAResultThatCannotBeComputed) {
  calculator.txtStress.SetText("1E306");
  EXPECT_THAT(TextsOf(calculator.StressResults), ElementsAre("1E+306", "1E+303", "1.44E+308", "--", "--"));

  calculator.txtStress.SetText("145");
  EXPECT_EQ(calculator.StressResults[2].Text(), "20880");
}

TEST_F(ACalculator, ShowsDashesForANumberThatIsTooLarge) {
  calculator.txtLoad.SetText("1E400");

  EXPECT_THAT(TextsOf(calculator.LoadResults), Each("--"));
  EXPECT_THAT(TextsOf(calculator.LengthResults), Each("0"));
}

TEST_F(ACalculator, ShowsAFigureOrADashWhateverIsTyped) {
  EXPECT_TRUE(rc::check("each result is a number or a dash", [this] {
    calculator.Option5.SetValue(*rc::gen::inRange(0, 5), true);

    calculator.txtLoad.SetText(*FieldTexts());

    for (const std::string& text : TextsOf(calculator.LoadResults)) {
      RC_ASSERT(text == "--" || LooseNumber(text).has_value());
    }
  }));
}

TEST_F(ACalculator, OpensTheHelp) {
  platform.files.files["/program/ORBY.CHM"] = "help";

  calculator.Command3.Press();

  EXPECT_THAT(platform.help.shown, ElementsAre("topic /program/ORBY.CHM frmUnits"));
}

TEST_F(ACalculator, Closes) {
  calculator.Command1.Press();

  EXPECT_FALSE(calculator.IsOpen());
}

}  // namespace
}  // namespace orby::test
