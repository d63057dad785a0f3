// Texts in the fields of the options that are no numbers, or numbers too large to store.
#include "dialogs/options_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const std::vector<std::string> OddTexts{"", "-", "\xC3\xA9", "1E40", "1E400", "1E999", "-1E999"};

struct OptionsNumbers : OptionsFixture {
  struct Checked {
    OptionsControls::Numbers OptionsControls::*Boxes;
    const char* Message;
  };
};

TEST_F(OptionsNumbers, ShowTheMessageOfTheirFieldForEveryBadText) {
  using C = OptionsControls;
  const std::vector<Checked> fields{{&C::txtStabilityFactor, "Invalid stability factor"},
                                    {&C::txtActualBoltLength, "Invalid actual bolt length"},
                                    {&C::txtBoltDiameter, "Invalid bolt diameter"},
                                    {&C::txtBoltGrade, "Invalid bolt grade"},
                                    {&C::txtBoltsperRow, "Invalid number of roof bolts per row"},
                                    {&C::txtRowSpacing, "Invalid roof bolt row spacing"},
                                    {&C::txtCMRR, "Invalid CMRR"},
                                    {&C::txtDepthofCover, "Invalid depth of cover"},
                                    {&C::txtActualSpan, "Invalid actual intersection span"},
                                    {&C::txtEntryWidth, "Invalid entry width"}};
  dialog.Open();

  for (const auto& [boxes, message] : fields) {
    for (const std::size_t page : {EnglishPage, MetricPage}) {
      TextBox& field = (dialog.*boxes)[page];
      const std::string before = field.Text();
      for (const std::string& text : OddTexts) {
        platform.boxes.shown.clear();
        field.SetText(text);

        Accept();

        EXPECT_THAT(platform.boxes.Texts(), ElementsAre(message)) << text;
        EXPECT_EQ(dialog.FocusRequest(), &field) << message;
      }
      field.SetText(before);
    }
  }
  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_THAT(platform.files.files, IsEmpty());
}

TEST_F(OptionsNumbers, AreCalledTooLargeIfOnlyTheirSizeIsWrong) {
  dialog.Open();
  dialog.txtUnitWeight[EnglishPage].SetText("1E40");
  Accept();
  dialog.txtUnitWeight[EnglishPage].SetText("160");
  dialog.txtBoltUTS[MetricPage].SetText(" 1E999");
  Accept();

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Unit Weight: Value '1E40' is too large", "Bolt UTS: Value '1E999' is too large"));
  EXPECT_EQ(dialog.FocusRequest(), &dialog.txtBoltUTS[MetricPage]);
  EXPECT_EQ(dialog.SSTab1.Tab(), 2);
  EXPECT_TRUE(dialog.IsOpen());
}

TEST_F(OptionsNumbers, AreNotAddedToABoltListIfTheyAreTooLarge) {
  dialog.Open();

  for (const char* text : {"1E40", "1E999"}) {
    dialog.bolts[EnglishPage].txtItem.SetText(text);
    dialog.bolts[EnglishPage].cmdAddBolt.Press();
  }

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Grade: Value '1E40' is too large", "Grade: Value '1E999' is too large"));
  EXPECT_THAT(Entries(EnglishPage, bolt_list::Grade), SizeIs(6));
}

TEST_F(OptionsNumbers, StayInTheCellIfTheCableCannotBeStored) {
  dialog.Open();
  Edit(dialog.VSFlexGridMet, 2, 2, "1E40");

  Accept();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Cable bolt capacity (kN) and diameter (mm) specifications: Value "
                                                  "'1E40' is too large"));
  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_EQ(dialog.SSTab1.Tab(), 2);
  EXPECT_EQ(dialog.VSFlexGridMet.Row(), 2);
  EXPECT_EQ(dialog.VSFlexGridMet.Column(), 2);
  EXPECT_EQ(dialog.FocusRequest(), &dialog.txtCableMet);
  EXPECT_EQ(dialog.txtCableMet.Text(), "1E40");

  dialog.txtCableMet.SetText("600");
  Accept();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.session.catalogs.DefaultCableCapArrayMET[1], 600);
}

TEST_F(OptionsNumbers, StayInTheCellIfTheSupportsOtherUnitCannotBeStored) {
  dialog.Open();
  Edit(dialog.VSFlexGridStand, 3, 2, "1E38");

  Accept();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Standing Support Specifications: Value '1E38' is too large"));
  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_EQ(dialog.SSTab1.Tab(), 3);
  EXPECT_EQ(dialog.VSFlexGridStand.Row(), 3);
  EXPECT_EQ(dialog.FocusRequest(), &dialog.txtStand);
}

TEST_F(OptionsNumbers, CountAsZeroInACellIfTheyAreNoNumbers) {
  dialog.Open();
  Edit(dialog.VSFlexGridEng, 1, 2, "-");
  Edit(dialog.VSFlexGridStand, 1, 2, "");

  Accept();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.session.catalogs.DefaultCableCapArrayENG[0], 0);
  EXPECT_EQ(program.session.catalogs.StandSupports.DefaultStandSupportCap[0], (std::array<Single, 2>{0, 0}));
}

}  // namespace
}  // namespace orby::test
