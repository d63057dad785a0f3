#include "dialogs/options_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using bolt_catalog::Australian;
using bolt_list::Diameter;
using bolt_list::Grade;
using bolt_list::UTS;

struct BoltLists : OptionsFixture {
  // Types a text into the entry field and presses Add.
  void Add(std::size_t catalog, std::size_t list, std::string text) {
    dialog.bolts[catalog].optBolt.SetValue(static_cast<int>(list), true);
    dialog.bolts[catalog].txtItem.SetText(std::move(text));
    dialog.bolts[catalog].cmdAddBolt.Press();
  }

  void Delete(std::size_t catalog, std::size_t list) {
    dialog.bolts[catalog].optBolt.SetValue(static_cast<int>(list), true);
    dialog.bolts[catalog].cmdDeleteBolt.Press();
  }
};

TEST_F(BoltLists, ShowTheCatalogs) {
  dialog.Open();

  EXPECT_THAT(Entries(EnglishPage, Grade), ElementsAre("40", "55", "60", "75", "90", "100"));
  EXPECT_THAT(Entries(EnglishPage, UTS), ElementsAre("70", "85", "90", "100", "116", "125"));
  EXPECT_THAT(Entries(EnglishPage, Diameter), ElementsAre("0.625", "0.75", "0.875", "0.688", "0.804"));
  EXPECT_THAT(Entries(MetricPage, Grade), ElementsAre("280", "390", "420", "520", "620", "690"));
  EXPECT_THAT(Entries(MetricPage, UTS), ElementsAre("480", "590", "620", "690", "800", "860"));
  EXPECT_THAT(Entries(MetricPage, Diameter), ElementsAre("15.88", "19", "22.22", "17.48", "20.42"));
}

TEST_F(BoltLists, ShowTheAustralianStrengthsAndDiametersUnderTheirOwnNames) {
  dialog.Open();

  EXPECT_EQ(dialog.bolts[Australian].lists[Grade], nullptr);
  EXPECT_THAT(Entries(Australian, UTS), ElementsAre("840", "440"));
  EXPECT_THAT(Entries(Australian, Diameter), ElementsAre("21.7", "21.7"));
}

TEST_F(BoltLists, ShowOnlyTheEntriesInUse) {
  program.session.catalogs.DefaultBoltGradeArrayENG.HighestIndex = 2;

  dialog.Open();

  EXPECT_THAT(Entries(EnglishPage, Grade), ElementsAre("40", "55", "60"));
}

TEST_F(BoltLists, BeginWithTheFirstListOfEachCatalog) {
  dialog.Open();

  EXPECT_TRUE(dialog.bolts[EnglishPage].optBolt.Value(Grade));
  EXPECT_TRUE(dialog.bolts[MetricPage].optBolt.Value(Grade));
  EXPECT_TRUE(dialog.bolts[Australian].optBolt.Value(UTS));
}

// ---- adding --------------------------------------------------------------------------------------------------------

TEST_F(BoltLists, AddANewEntryAtTheEndAndSelectIt) {
  dialog.Open();

  Add(MetricPage, UTS, "950");

  EXPECT_THAT(Entries(MetricPage, UTS), ElementsAre("480", "590", "620", "690", "800", "860", "950"));
  EXPECT_EQ(dialog.bolts[MetricPage].lists[UTS]->ListIndex(), 6);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(BoltLists, StoreAnAddedEntryOnlyOnOK) {
  dialog.Open();

  Add(EnglishPage, Grade, "80");

  EXPECT_EQ(program.session.catalogs.DefaultBoltGradeArrayENG.HighestIndex, 5);
  Accept();
  EXPECT_THAT(Values(program.session.catalogs.DefaultBoltGradeArrayENG), ElementsAre(40, 55, 60, 75, 90, 100, 80));
}

TEST_F(BoltLists, AskForAValue) {
  dialog.Open();

  Add(EnglishPage, Diameter, "  ");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Please enter a value in the text box above."));
  EXPECT_EQ(Entries(EnglishPage, Diameter).size(), 5U);
}

TEST_F(BoltLists, RefuseADuplicateEntry) {
  dialog.Open();

  Add(EnglishPage, Grade, "60");
  Add(EnglishPage, UTS, "90");
  Add(EnglishPage, Diameter, "0.75");

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Grade entry exists. New value not added", "UTS entry exists. New value not added",
                          "Diameter entry exists. New value not added"));
  EXPECT_EQ(Entries(EnglishPage, Grade).size(), 6U);
}

TEST_F(BoltLists, CompareEntriesAsTexts) {
  dialog.Open();
  Add(EnglishPage, Diameter, "0.50");

  Add(EnglishPage, Diameter, "0.5");

  EXPECT_THAT(Entries(EnglishPage, Diameter), ElementsAre("0.625", "0.75", "0.875", "0.688", "0.804", "0.50", "0.5"));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(BoltLists, SayThatTheyAreFullEvenForADuplicate) {
  dialog.Open();
  for (const char* grade : {"101", "102", "103", "104"}) Add(EnglishPage, Grade, grade);
  for (const char* strength : {"131", "132", "133", "134"}) Add(EnglishPage, UTS, strength);
  for (const char* diameter : {"1", "1.1", "1.2", "1.3", "1.4"}) Add(EnglishPage, Diameter, diameter);

  Add(EnglishPage, Grade, "60");
  Add(EnglishPage, UTS, "140");
  Add(EnglishPage, Diameter, "1.5");

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Maximum grade entries have been reached. Please delete a value first",
                          "Maximum UTS entries have been reached. Please delete a value first",
                          "Maximum diameter entries have been reached. Please delete a value first"));
  EXPECT_EQ(Entries(EnglishPage, Grade).size(), 10U);
}

TEST_F(BoltLists, HoldTenAustralianEntries) {
  dialog.Open();

  for (const char* strength : {"450", "460", "470", "480", "490", "500", "510", "520"}) {
    Add(Australian, UTS, strength);
  }
  Add(Australian, UTS, "530");

  EXPECT_EQ(Entries(Australian, UTS).size(), 10U);
  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Maximum UTS entries have been reached. Please delete a value first"));
}

// ---- deleting ------------------------------------------------------------------------------------------------------

TEST_F(BoltLists, AskForASelectionToDelete) {
  dialog.Open();

  Delete(MetricPage, Grade);
  Delete(MetricPage, UTS);
  Delete(MetricPage, Diameter);

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Please select a grade value to delete", "Please select a UTS value to delete",
                          "Please select a diameter value to delete"));
}

TEST_F(BoltLists, DeleteTheSelectedEntryAndSelectTheNextOne) {
  dialog.Open();
  dialog.bolts[EnglishPage].lists[Grade]->ClickItem(1);

  Delete(EnglishPage, Grade);

  EXPECT_THAT(Entries(EnglishPage, Grade), ElementsAre("40", "60", "75", "90", "100"));
  EXPECT_EQ(dialog.bolts[EnglishPage].lists[Grade]->ListIndex(), 1);
}

TEST_F(BoltLists, AreChosenByAClick) {
  dialog.Open();
  dialog.bolts[EnglishPage].lists[Diameter]->ClickItem(0);
  dialog.bolts[EnglishPage].lists[UTS]->ClickItem(5);

  EXPECT_TRUE(dialog.bolts[EnglishPage].optBolt.Value(UTS));
  dialog.bolts[EnglishPage].cmdDeleteBolt.Press();
  EXPECT_THAT(Entries(EnglishPage, UTS), ElementsAre("70", "85", "90", "100", "116"));
  EXPECT_EQ(Entries(EnglishPage, Diameter).size(), 5U);

  dialog.bolts[EnglishPage].lists[Diameter]->ClickItem(0);
  dialog.bolts[EnglishPage].cmdDeleteBolt.Press();
  EXPECT_THAT(Entries(EnglishPage, Diameter), ElementsAre("0.75", "0.875", "0.688", "0.804"));
  EXPECT_EQ(Entries(EnglishPage, UTS).size(), 5U);
}

TEST_F(BoltLists, LeaveTheChoiceInOtherCatalogsUnchanged) {
  dialog.Open();

  dialog.bolts[Australian].lists[Diameter]->ClickItem(1);

  EXPECT_TRUE(dialog.bolts[Australian].optBolt.Value(Diameter));
  EXPECT_TRUE(dialog.bolts[EnglishPage].optBolt.Value(Grade));
  EXPECT_TRUE(dialog.bolts[MetricPage].optBolt.Value(Grade));
}

TEST_F(BoltLists, SelectTheNewLastEntryAfterTheLastOneIsDeleted) {
  dialog.Open();
  dialog.bolts[EnglishPage].lists[Diameter]->ClickItem(4);

  Delete(EnglishPage, Diameter);

  EXPECT_EQ(dialog.bolts[EnglishPage].lists[Diameter]->ListIndex(), 3);
}

TEST_F(BoltLists, CanBeEmptied) {
  dialog.Open();
  dialog.bolts[Australian].lists[Diameter]->ClickItem(0);

  Delete(Australian, Diameter);
  Delete(Australian, Diameter);
  Delete(Australian, Diameter);
  Accept();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Please select a diameter value to delete"));
  EXPECT_EQ(program.session.catalogs.DefaultBoltUTSArrayMETAUS.HighestIndex, -1);
  EXPECT_THAT(Values(program.session.catalogs.DefaultBoltDiamArrayMETAUS), ElementsAre(840, 440));
}

TEST_F(BoltLists, RemoveADeletedEntryOnlyOnOK) {
  dialog.Open();
  dialog.bolts[EnglishPage].lists[UTS]->ClickItem(0);

  Delete(EnglishPage, UTS);

  EXPECT_EQ(program.session.catalogs.DefaultBoltUTSArrayENG[0], 70);
  Accept();
  EXPECT_THAT(Values(program.session.catalogs.DefaultBoltUTSArrayENG), ElementsAre(85, 90, 100, 116, 125));
}

// ---- storing and resetting -----------------------------------------------------------------------------------------

TEST_F(BoltLists, StoreEachListInItsCatalog) {
  dialog.Open();
  Add(EnglishPage, Grade, "80");
  Add(EnglishPage, UTS, "130");
  Add(EnglishPage, Diameter, "1");
  Add(MetricPage, Grade, "550");
  Add(MetricPage, UTS, "900");
  Add(MetricPage, Diameter, "25");

  Accept();

  EXPECT_THAT(Values(program.session.catalogs.DefaultBoltGradeArrayENG), ElementsAre(40, 55, 60, 75, 90, 100, 80));
  EXPECT_THAT(Values(program.session.catalogs.DefaultBoltUTSArrayENG), ElementsAre(70, 85, 90, 100, 116, 125, 130));
  EXPECT_THAT(Values(program.session.catalogs.DefaultBoltDiamArrayENG),
              ElementsAre(0.625F, 0.75F, 0.875F, 0.688F, 0.804F, 1));
  EXPECT_THAT(Values(program.session.catalogs.DefaultBoltGradeArrayMET),
              ElementsAre(280, 390, 420, 520, 620, 690, 550));
  EXPECT_THAT(Values(program.session.catalogs.DefaultBoltUTSArrayMET), ElementsAre(480, 590, 620, 690, 800, 860, 900));
  EXPECT_THAT(Values(program.session.catalogs.DefaultBoltDiamArrayMET),
              ElementsAre(15.88F, 19, 22.22F, 17.48F, 20.42F, 25));
  EXPECT_EQ(Written("ORBYBoltParams", "DefaultBoltGradeIndexENG"), "6");
  EXPECT_EQ(Written("ORBYBoltParams", "DefaultBoltGradeArrayENG6"), "80");
}

TEST_F(BoltLists, StoreAustralianStrengthsAndDiametersSwapped) {
  dialog.Open();
  Add(Australian, UTS, "650");
  Add(Australian, Diameter, "24");

  Accept();

  EXPECT_THAT(Values(program.session.catalogs.DefaultBoltDiamArrayMETAUS), ElementsAre(840, 440, 650));
  EXPECT_THAT(Values(program.session.catalogs.DefaultBoltUTSArrayMETAUS), ElementsAre(21.7F, 21.7F, 24));
  EXPECT_EQ(Written("ORBYBoltParams", "DefaultBoltUTSArrayMETAUS2"), "24");
}

TEST_F(BoltLists, AreResetAtOnceEvenIfTheDialogIsThenCancelled) {
  program.session.catalogs.DefaultBoltDiamArrayENG.HighestIndex = 1;
  program.session.catalogs.DefaultBoltGradeArrayENG.Set(0, 44);
  dialog.Open();

  dialog.bolts[EnglishPage].cmdSetDefaultBolt.Press();
  dialog.cmdCancel.Press();

  EXPECT_THAT(Entries(EnglishPage, Diameter), ElementsAre("0.625", "0.75", "0.875", "0.688", "0.804"));
  EXPECT_THAT(Entries(EnglishPage, Grade), ElementsAre("40", "55", "60", "75", "90", "100"));
  EXPECT_THAT(Values(program.session.catalogs.DefaultBoltDiamArrayENG),
              ElementsAre(0.625F, 0.75F, 0.875F, 0.688F, 0.804F));
  EXPECT_EQ(program.session.catalogs.DefaultBoltGradeArrayENG[0], 40);
}

TEST_F(BoltLists, AreResetCatalogByCatalog) {
  dialog.Open();
  Add(MetricPage, Grade, "550");
  Add(Australian, UTS, "650");
  program.session.catalogs.DefaultBoltGradeArrayMET.Set(0, 300);

  dialog.bolts[Australian].cmdSetDefaultBolt.Press();

  EXPECT_THAT(Entries(Australian, UTS), ElementsAre("840", "440"));
  EXPECT_THAT(Entries(MetricPage, Grade), ElementsAre("280", "390", "420", "520", "620", "690", "550"));
  EXPECT_EQ(program.session.catalogs.DefaultBoltGradeArrayMET[0], 300);
}

TEST_F(BoltLists, HaveNoSelectionAfterAReset) {
  dialog.Open();
  dialog.bolts[EnglishPage].lists[Grade]->ClickItem(2);
  dialog.bolts[EnglishPage].lists[UTS]->ClickItem(0);

  dialog.bolts[EnglishPage].cmdSetDefaultBolt.Press();
  Delete(EnglishPage, Grade);
  Delete(EnglishPage, UTS);

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Please select a grade value to delete", "Please select a UTS value to delete"));
  EXPECT_THAT(Entries(EnglishPage, Grade), ElementsAre("40", "55", "60", "75", "90", "100"));
  EXPECT_THAT(Entries(EnglishPage, UTS), ElementsAre("70", "85", "90", "100", "116", "125"));
}

TEST_F(BoltLists, KeepTheChosenListAfterAReset) {
  dialog.Open();
  dialog.bolts[MetricPage].optBolt.SetValue(Diameter, true);

  dialog.bolts[MetricPage].cmdSetDefaultBolt.Press();

  EXPECT_TRUE(dialog.bolts[MetricPage].optBolt.Value(Diameter));
}

TEST_F(BoltLists, AcceptOnlyNumbersInTheEntryField) {
  EXPECT_EQ(dialog.bolts[EnglishPage].txtItem.KeyPress('x'), 0);
  EXPECT_EQ(dialog.bolts[EnglishPage].txtItem.KeyPress('7'), '7');
}

TEST_F(BoltLists, HaveTheCaptionsOfTheirResetButtons) {
  EXPECT_EQ(dialog.bolts[EnglishPage].cmdSetDefaultBolt.Caption(), "Reset Default (US)");
  EXPECT_EQ(dialog.bolts[MetricPage].cmdSetDefaultBolt.Caption(), "Reset Default (US)");
  EXPECT_EQ(dialog.bolts[Australian].cmdSetDefaultBolt.Caption(), "Reset Default (AUS)");
}

}  // namespace
}  // namespace orby::test
