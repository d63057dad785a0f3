#include "controls/plain_form.h"
#include "core/dialog_helpers.h"
#include "core/program_bench.h"

namespace orby::test {
namespace {

TEST(FormPlace, IsTheMiddleOfTheScreen) {
  const Position place = CenterForm({800, 600}, {1920, 1080});

  EXPECT_EQ(place.left, 560);
  EXPECT_EQ(place.top, 240);
}

TEST(FormPlace, HalvesTheSizesOfFormAndScreenSeparately) {
  const Position place = CenterForm({801, 601}, {1920, 1080});
  EXPECT_EQ(place.left, 560);
  EXPECT_EQ(place.top, 240);

  const Position onOddScreen = CenterForm({800, 601}, {1921, 1081});
  EXPECT_EQ(onOddScreen.left, 560);
  EXPECT_EQ(onOddScreen.top, 240);
}

TEST(FormPlace, OfAFormAsLargeAsTheScreenIsTheUpperLeftCorner) {
  const Position place = CenterForm({1024, 768}, {1024, 768});

  EXPECT_EQ(place.left, 0);
  EXPECT_EQ(place.top, 0);
}

TEST(FormPlace, OfATooWideFormIsAtTheLeftEdgeAndCenteredInHeight) {
  const Position place = CenterForm({1025, 600}, {1024, 768});

  EXPECT_EQ(place.left, 0);
  EXPECT_EQ(place.top, 84);
}

TEST(FormPlace, OfATooHighFormIsAtTheUpperEdgeAndCenteredInWidth) {
  const Position place = CenterForm({800, 1600}, {1024, 768});

  EXPECT_EQ(place.left, 112);
  EXPECT_EQ(place.top, 0);
}

TEST(FormPlace, OfAFormOnePixelTooLargeIsTheUpperLeftCorner) {
  const Position place = CenterForm({802, 602}, {801, 601});

  EXPECT_EQ(place.left, 0);
  EXPECT_EQ(place.top, 0);
}

TEST(FormCaption, ShowsThePathOfASavedProject) {
  EXPECT_EQ(SetFormCaption("Orby", "/mine/panel 3.ORB", true), "Orby: /mine/panel 3.ORB");
}

TEST(FormCaption, EndsWithAStarWhileThereAreUnsavedChanges) {
  EXPECT_EQ(SetFormCaption("Orby", "Untitled", false), "Orby: Untitled*");
}

TEST(FormCaption, ShowsAPathOf50CharactersWhole) {
  EXPECT_EQ(SetFormCaption("Orby", "/projects/north/mains/section-04/design-000001.ORB", true),
            "Orby: /projects/north/mains/section-04/design-000001.ORB");
}

TEST(FormCaption, ShowsTheFirst10AndLast37CharactersOfAPathOf51) {
  EXPECT_EQ(SetFormCaption("Orby", "/projects/north/mains/section-04/design-0000001.ORB", false),
            "Orby: /projects/...h/mains/section-04/design-0000001.ORB*");
}

TEST(FormCaption, CountsCharactersAndNotBytes) {
  const std::string fiftyCharacters = "/projects/n\xC3\xB6rth/mains/section-04/design-000001.ORB";

  EXPECT_EQ(SetFormCaption("Orby", fiftyCharacters, true), "Orby: " + fiftyCharacters);
}

Project ProjectIn(const std::string& file) {
  Project project;
  project.CurrentFile = file;
  return project;
}

TEST(CaptionOfADialog, EndsWithTheNameOfTheProjectWithoutItsFolder) {
  EXPECT_EQ(CaptionWithProject("Graph", ProjectIn("/mine/panel 3.ORB")), "Graph - panel 3.ORB");
  EXPECT_EQ(CaptionWithProject("Graph", ProjectIn("C:\\mine\\panel 3.ORB")), "Graph - panel 3.ORB");
}

TEST(CaptionOfADialog, CallsANewProjectUntitled) {
  EXPECT_EQ(CaptionWithProject("Graph", Project()), "Graph - Untitled");
}

TEST(CaptionOfADialog, NamesAPathWithoutAFileName) {
  EXPECT_EQ(CaptionWithProject("Graph", ProjectIn("/mine/")), "Graph - /mine/");
}

struct LabelledForm : PlainForm {
  Label lblDepth{*this, "lblDepth", "Depth of cover", UnitSuffix::Length};
  Label lblRating{*this, "lblRating", "Roof rating"};
  Frame fraDiameter{*this, "fraDiameter", "Diameter", UnitSuffix::Diameter};
  OptionArray optCapacity{*this, "optCapacity", {{"Capacity", UnitSuffix::Force}, {"By diameter"}}};
  TextBox txtDepth{*this, "txtDepth", TextKind::Number};
};

TEST(CaptionUnits, AreEnglishInAnEnglishProject) {
  LabelledForm form;

  AppendUnits(form, English);

  EXPECT_EQ(form.lblDepth.Caption(), "Depth of cover (ft)");
  EXPECT_EQ(form.fraDiameter.Caption(), "Diameter (in)");
  EXPECT_EQ(form.optCapacity.Caption(0), "Capacity (tons)");
}

TEST(CaptionUnits, AreMetricInAMetricProject) {
  LabelledForm form;

  AppendUnits(form, Metric);

  EXPECT_EQ(form.lblDepth.Caption(), "Depth of cover (m)");
  EXPECT_EQ(form.fraDiameter.Caption(), "Diameter (mm)");
  EXPECT_EQ(form.optCapacity.Caption(0), "Capacity (kN)");
}

TEST(CaptionUnits, AreNotAddedToCaptionsWithoutAUnit) {
  LabelledForm form;

  AppendUnits(form, Metric);

  EXPECT_EQ(form.lblRating.Caption(), "Roof rating");
  EXPECT_EQ(form.optCapacity.Caption(1), "By diameter");
  EXPECT_EQ(form.txtDepth.Text(), "");
}

using DialogShowing = ProgramBench;

TEST_F(DialogShowing, SetsTheTitlesOfMessagesAndTheNormalCursorFirst) {
  platform.windows.SetWaitCursor(true);

  PrepareForm(program, MessageModule::Settings);

  EXPECT_EQ(program.windows.titles.ErrorTitle, "Settings: Error");
  EXPECT_FALSE(platform.windows.waitCursor);
}

TEST_F(DialogShowing, OpensTheFormShowsItAndClosesIt) {
  PlainForm form;
  bool openWhileShown = false;
  platform.windows.onModal = [&](Form& shown) { openWhileShown = &shown == &form && form.IsOpen(); };

  ShowForm(program, form);

  EXPECT_TRUE(openWhileShown);
  EXPECT_FALSE(form.IsOpen());
  EXPECT_EQ(form.opened, 1);
  EXPECT_EQ(form.closed, 1);
  EXPECT_EQ(platform.windows.modalForms, 1);
}

TEST_F(DialogShowing, DoesNotCloseAFormThatTheUserHasClosed) {
  PlainForm form;
  platform.windows.onModal = [](Form& shown) { shown.Close(); };

  ShowForm(program, form);

  EXPECT_EQ(form.closed, 1);
}

}  // namespace
}  // namespace orby::test
