#include "core/dialog_helpers.h"
#include "core/program_bench.h"

namespace orby::test {
namespace {

TEST(FontList, IsSearchedWithoutRegardToCase) {
  const std::vector<std::string> fonts{"Sans", "Courier New", "ARIAL"};

  EXPECT_EQ(FontIndexOf("Sans", fonts), 0);
  EXPECT_EQ(FontIndexOf("courier new", fonts), 1);
  EXPECT_EQ(FontIndexOf("Arial", fonts), 2);
}

TEST(FontList, FindsTheFirstOfEqualNames) { EXPECT_EQ(FontIndexOf("Sans", {"Serif", "SANS", "Sans"}), 1); }

TEST(FontList, DoesNotFindAMissingFont) {
  EXPECT_EQ(FontIndexOf("Courier", {"Courier New"}), -1);
  EXPECT_EQ(FontIndexOf("Courier New", {"Courier"}), -1);
  EXPECT_EQ(FontIndexOf("Arial", {}), -1);
}

using FontChoice = ProgramBench;

TEST_F(FontChoice, ForTheScreenIsTheFirstOfItsListThatIsInstalled) {
  platform.fonts.screen = {"Sans", "Terminal", "System", "Courier New", "Arial"};
  EXPECT_EQ(ChooseDisplayFont(program), "Arial");

  platform.fonts.screen = {"Sans", "Terminal", "System", "Courier New"};
  EXPECT_EQ(ChooseDisplayFont(program), "Courier New");

  platform.fonts.screen = {"Sans", "Terminal", "System"};
  EXPECT_EQ(ChooseDisplayFont(program), "System");

  platform.fonts.screen = {"Sans", "Terminal"};
  EXPECT_EQ(ChooseDisplayFont(program), "Terminal");
}

TEST_F(FontChoice, ForTheScreenIsTheFirstInstalledFontOtherwise) {
  platform.fonts.screen = {"Sans", "Serif"};
  platform.fonts.printer = {"Arial"};

  EXPECT_EQ(ChooseDisplayFont(program), "Sans");
}

TEST_F(FontChoice, ForThePrinterIsTheFirstOfItsListThatIsInstalled) {
  platform.fonts.printer = {"Sans", "Arial", "Courier", "Courier New"};
  EXPECT_EQ(ChoosePrinterFont(program), "Courier New");

  platform.fonts.printer = {"Sans", "Arial", "Courier"};
  EXPECT_EQ(ChoosePrinterFont(program), "Courier");

  platform.fonts.printer = {"Sans", "Arial"};
  EXPECT_EQ(ChoosePrinterFont(program), "Arial");
}

TEST_F(FontChoice, ForThePrinterIsItsFirstFontOtherwise) {
  platform.fonts.screen = {"Courier New"};
  platform.fonts.printer = {"Serif", "Sans"};

  EXPECT_EQ(ChoosePrinterFont(program), "Serif");
}

TEST_F(FontChoice, IsEmptyWhenNoFontIsInstalled) {
  EXPECT_EQ(ChooseDisplayFont(program), "");
  EXPECT_EQ(ChoosePrinterFont(program), "");
}

using DecimalSeparator = ProgramBench;

TEST_F(DecimalSeparator, OfAMachineWithCommasIsRecordedAsAComma) {
  platform.locale.separator = ",";

  FixDecimalSeparator(program);

  EXPECT_EQ(program.session.SavedDecimalSeparator, ",");
}

TEST_F(DecimalSeparator, OfAnyOtherMachineIsRecordedAsAPoint) {
  for (const auto* separator : {".", "'", ",,", "\xD9\xAB", ""}) {
    program.session.SavedDecimalSeparator.clear();
    platform.locale.separator = separator;

    FixDecimalSeparator(program);

    EXPECT_EQ(program.session.SavedDecimalSeparator, ".") << "separator " << separator;
  }
}

}  // namespace
}  // namespace orby::test
