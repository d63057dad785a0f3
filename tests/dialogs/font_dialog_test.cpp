#include "dialogs/font_dialog.h"

#include <gmock/gmock.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::vector<std::string> Installed{"Sans", "Arial", "Courier New", "Sans"};
const FontChoice Present{"Courier New", 11, true, false};

// A machine with a few fonts, and a text in one of them.
struct AFontChoice : testing::Test {
  AFontChoice() { platform.fonts.screen = Installed; }

  static std::vector<std::string> NamesOf(const List& list) {
    std::vector<std::string> names;
    for (const ComboItem& item : list.Items()) names.push_back(item.text);
    return names;
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  FontDialog dialog{program, Present, Installed};
};

TEST_F(AFontChoice, BeginsWithThePresentFont) {
  dialog.Open();

  EXPECT_EQ(dialog.Caption(), "Font");
  EXPECT_THAT(NamesOf(dialog.lstFont), ElementsAre("Arial", "Courier New", "Sans"));
  EXPECT_EQ(dialog.lstFont.ListIndex(), 1);
  EXPECT_EQ(dialog.txtSize.Text(), "11");
  EXPECT_TRUE(dialog.chkBold.Checked());
  EXPECT_FALSE(dialog.chkItalic.Checked());
  EXPECT_EQ(dialog.txtSample.Font(), Present);
}

TEST_F(AFontChoice, FindsThePresentFontInAnyCase) {
  FontDialog other(program, {"courier new", 11}, Installed);

  other.Open();

  EXPECT_EQ(other.lstFont.ListIndex(), 1);
}

TEST_F(AFontChoice, ShowsASampleOfTheChoiceAtOnce) {
  dialog.Open();

  dialog.lstFont.ClickItem(0);
  dialog.txtSize.SetText("14");
  dialog.chkBold.SetValue(0);
  dialog.chkItalic.SetValue(1);

  EXPECT_EQ(dialog.txtSample.Font(), (FontChoice{"Arial", 14, false, true}));
}

TEST_F(AFontChoice, ShowsTheSampleWithinTheSizeLimits) {
  dialog.Open();

  dialog.txtSize.SetText("2");
  EXPECT_EQ(dialog.txtSample.Font().size, 7);

  dialog.txtSize.SetText("240");
  EXPECT_EQ(dialog.txtSample.Font().size, 24);
}

TEST_F(AFontChoice, RefusesASizeThatIsTooLargeToStore) {
  dialog.Open();

  for (const char* size : {"1E40", "1E999", "-", ""}) {
    platform.boxes.shown.clear();
    dialog.txtSize.SetText(size);
    EXPECT_EQ(dialog.txtSample.Font().size, 7) << size;

    dialog.cmdOK.Press();

    EXPECT_EQ(platform.boxes.shown.size(), 1U) << size;
    EXPECT_TRUE(dialog.IsOpen()) << size;
  }
}

TEST_F(AFontChoice, IsAcceptedByOk) {
  dialog.Open();
  dialog.lstFont.ClickItem(2);
  dialog.txtSize.SetText("24");

  dialog.cmdOK.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(dialog.Accepted, (FontChoice{"Sans", 24, true, false}));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(AFontChoice, IsDiscardedByCancel) {
  dialog.Open();
  dialog.lstFont.ClickItem(2);

  dialog.cmdCancel.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(dialog.Accepted, std::nullopt);
}

TEST_F(AFontChoice, RefusesASizeOutsideItsRange) {
  program.windows.titles.RangeErrorTitle = "Settings: Range Error";
  dialog.Open();

  for (const char* size : {"6", "25", ""}) {
    dialog.txtSize.SetText(size);
    dialog.cmdOK.Press();
  }

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Size: Value '6' is outside input range\r\nValid range is: 7-24",
                                                  "Size: Value '25' is outside input range\r\nValid range is: 7-24",
                                                  "Size: Blank field not allowed"));
  EXPECT_EQ(platform.boxes.shown.front().title, "Settings: Range Error");
  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_EQ(dialog.FocusRequest(), &dialog.txtSize);
}

TEST_F(AFontChoice, AcceptsTheSmallestAndTheLargestSize) {
  for (const auto& [size, expected] : {std::pair{"7", 7}, std::pair{"24", 24}, std::pair{"10.6", 11}}) {
    FontDialog other(program, Present, Installed);
    other.Open();
    other.txtSize.SetText(size);

    other.cmdOK.Press();

    ASSERT_TRUE(other.Accepted) << size;
    EXPECT_EQ(other.Accepted->size, expected);
  }
}

TEST_F(AFontChoice, RefusesAFontThatTheMachineNoLongerHas) {
  dialog.Open();
  platform.fonts.screen = {"Sans"};

  dialog.cmdOK.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid font selection"));
  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_EQ(dialog.Accepted, std::nullopt);
}

TEST_F(AFontChoice, KeepsAPresentFontThatIsNotOfferedUntilAnotherIsChosen) {
  FontDialog other(program, {"Sans", 10}, {"Courier New"});
  other.Open();
  EXPECT_EQ(other.lstFont.ListIndex(), -1);

  other.cmdOK.Press();

  EXPECT_EQ(other.Accepted, (FontChoice{"Sans", 10}));
}

TEST_F(AFontChoice, RefusesAPresentFontThatTheMachineLacksUntilAnotherIsChosen) {
  FontDialog other(program, {"Terminal", 10}, Installed);
  other.Open();

  other.cmdOK.Press();
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid font selection"));

  other.lstFont.ClickItem(0);
  other.cmdOK.Press();
  EXPECT_EQ(other.Accepted, (FontChoice{"Arial", 10}));
}

TEST_F(AFontChoice, IsReturnedByOneCall) {
  platform.windows.onModal = [](Form& form) {
    auto& asked = dynamic_cast<FontDialog&>(form);
    asked.chkItalic.SetValue(1);
    asked.cmdOK.Press();
  };

  const auto chosen = AskFont(program, Present, Installed);

  EXPECT_EQ(chosen, (FontChoice{"Courier New", 11, true, true}));
}

TEST_F(AFontChoice, IsNothingIfTheWindowIsClosed) { EXPECT_EQ(AskFont(program, Present, Installed), std::nullopt); }

TEST_F(AFontChoice, ForReadingOffersMonospacedAndKnownFonts) {
  platform.fonts.screen = {"Sans", "Mono", "arial", "Terminal", "Courier New", "Serif"};
  platform.fonts.fixedPitch = {"Mono", "Courier New"};

  EXPECT_THAT(ReadableFonts(program), ElementsAre("Courier New", "Mono", "Terminal", "arial"));
}

TEST_F(AFontChoice, ForReadingIsEmptyOnAMachineWithoutSuchFonts) {
  platform.fonts.screen = {"Sans"};

  EXPECT_THAT(ReadableFonts(program), IsEmpty());
}

}  // namespace
}  // namespace orby::test
