#include "dialogs/graph_options_dialog.h"

#include "dialogs/graph_fixture.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

constexpr int DefaultFormat = 0;
constexpr int LastUsedFormat = 1;

// The rock load over the entry width is shown, in a user-defined format.
struct GraphFormat : GraphBench {
  GraphFormat() {
    program.session.graph.GraphSetParams = FormatParameters::LastUsed;
    program.session.graph.GraphTitle = "Panel 3";
    window.ShowCurve(5);
    program.session.graph.XAxisTitle[5] = "Width of the entry";
    program.session.graph.YAxisTitle[1] = "Load";
  }

  std::vector<std::string> ItemsOf(const Combo& list) const {
    std::vector<std::string> texts;
    for (const ComboItem& item : list.Items()) texts.push_back(item.text);
    return texts;
  }

  // Returns for titles, lists and legend whether the fields can be edited.
  std::vector<bool> EditingEnabled() const {
    std::vector<bool> enabled{dialog.Text1.Enabled(), dialog.Combo1.Enabled(), dialog.Combo2.Enabled(),
                              dialog.Check1.Enabled()};
    for (const TextBox& box : dialog.Text2) enabled.push_back(box.Enabled());
    for (const TextBox& box : dialog.Text3) enabled.push_back(box.Enabled());
    return enabled;
  }

  GraphOptionsDialog dialog{program, window.graph1};
};

// Changes every field. The sixth curve is shown.
void EditEveryField(GraphOptionsDialog& dialog) {
  dialog.Text1.SetText("Tailgate");
  dialog.Text2[5].SetText("Span of the entry");
  dialog.Text3[1].SetText("Weight of the rock");
  dialog.Combo1.SetListIndex(1);
  dialog.Combo2.SetListIndex(1);
  dialog.Check1.SetValue(0);
  dialog.HScroll1.SetValue(10);
}

TEST_F(GraphFormat, HasItsCaptions) {
  EXPECT_EQ(dialog.Name(), "frmGraphOpt");
  EXPECT_EQ(dialog.Caption(), "Graph Parameters and Options");
  EXPECT_EQ(dialog.Frame1.Caption(), "Options");
  EXPECT_EQ(dialog.Option1.Caption(0), "Set default format parameters");
  EXPECT_EQ(dialog.Option1.Caption(1), "Set format parameters to last used");
  EXPECT_EQ(dialog.Frame2.Caption(), "Basic Formatting Parameters");
  EXPECT_EQ(dialog.lblGraphTitle.Caption(), "Graph Title");
  EXPECT_EQ(dialog.lblXAxisTitle.Caption(), "X-axis Title");
  EXPECT_EQ(dialog.lblYAxisTitle.Caption(), "Y-axis Title");
  EXPECT_EQ(dialog.lblGridStyle.Caption(), "Grid Style");
  EXPECT_EQ(dialog.lblGraphStyle.Caption(), "Graph Style");
  EXPECT_EQ(dialog.Check1.Caption(), "Curve Legend");
  EXPECT_EQ(dialog.lblSymbolSize.Caption(), "Symbol Size");
  EXPECT_EQ(dialog.Command1.Caption(), "Cancel");
  EXPECT_EQ(dialog.Command2.Caption(), "OK");
  EXPECT_EQ(dialog.Command3.Caption(), "Help");
}

TEST_F(GraphFormat, ShowsTheStoredValues) {
  program.session.graph.GridStyle = GridLines::Vertical;
  program.session.graph.GraphStyle = CurveStyle::SymbolsOnly;
  program.session.graph.CurveLegend = 0;
  program.session.graph.SymbolSize = 11;

  dialog.Open();

  EXPECT_TRUE(dialog.Option1.Value(LastUsedFormat));
  EXPECT_EQ(dialog.Text1.Text(), "Panel 3");
  EXPECT_EQ(dialog.Text2[5].Text(), "Width of the entry");
  EXPECT_EQ(dialog.Text3[1].Text(), "Load");
  EXPECT_EQ(dialog.Combo1.Text(), "Vertical");
  EXPECT_EQ(dialog.Combo2.Text(), "Symbols Only");
  EXPECT_FALSE(dialog.Check1.Checked());
  EXPECT_EQ(dialog.HScroll1.Value(), 11);
  EXPECT_EQ(dialog.txtSS.Text(), "11");
}

TEST_F(GraphFormat, OffersTheStylesInOrder) {
  dialog.Open();

  EXPECT_THAT(ItemsOf(dialog.Combo1), ElementsAre("None", "Horizontal", "Vertical", "Horizontal & Vertical"));
  EXPECT_THAT(ItemsOf(dialog.Combo2), ElementsAre("Lines Only", "Symbols Only", "Lines & Symbols"));
  EXPECT_EQ(dialog.HScroll1.Minimum(), 3);
  EXPECT_EQ(dialog.HScroll1.Maximum(), 20);
}

TEST_F(GraphFormat, LinesOnlyIsTheFirstStyleOfTheList) {
  program.session.graph.GraphStyle = CurveStyle::LinesOnly;

  dialog.Open();

  EXPECT_EQ(dialog.Combo2.ListIndex(), 0);
}

TEST_F(GraphFormat, ShowsTheTitlesOfTheShownCurve) {
  dialog.Open();

  for (std::size_t i = 0; i < 10; ++i) EXPECT_EQ(dialog.Text2[i].Visible(), i == 5) << i;
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(dialog.Text3[i].Visible(), i == 1) << i;
}

TEST_F(GraphFormat, SetsTheTitlesOfItsMessages) {
  program.windows.titles.ErrorTitle = "Project Parameters: Error";
  platform.windows.waitCursor = true;

  dialog.Open();

  EXPECT_EQ(program.windows.titles.ErrorTitle, "Error");
  EXPECT_FALSE(platform.windows.waitCursor);
}

TEST_F(GraphFormat, LastUsedCanBeEdited) {
  dialog.Open();

  EXPECT_THAT(EditingEnabled(), AllOf(SizeIs(17), Each(true)));
  EXPECT_TRUE(dialog.HScroll1.Enabled());
  EXPECT_TRUE(dialog.txtSS.Enabled());
}

TEST_F(GraphFormat, DefaultActsAtOnce) {
  dialog.Open();
  dialog.Text1.SetText("Tailgate");
  dialog.Combo1.SetListIndex(0);

  dialog.Option1.SetValue(DefaultFormat, true);

  EXPECT_EQ(program.session.graph.GraphSetParams, FormatParameters::Default);
  EXPECT_EQ(program.session.graph.XAxisTitle[5], "Entry Width (ft)");
  EXPECT_EQ(program.session.graph.YAxisTitle[1], "Rock Load Entries (tons/ft)");
  EXPECT_EQ(dialog.Text1.Text(), "Panel 3");
  EXPECT_EQ(dialog.Text2[5].Text(), "Entry Width (ft)");
  EXPECT_EQ(dialog.Text3[1].Text(), "Rock Load Entries (tons/ft)");
  EXPECT_EQ(dialog.Combo1.ListIndex(), 3);
}

TEST_F(GraphFormat, DefaultCannotBeEdited) {
  dialog.Open();

  dialog.Option1.SetValue(DefaultFormat, true);

  EXPECT_THAT(EditingEnabled(), AllOf(SizeIs(17), Each(false)));
  EXPECT_FALSE(dialog.HScroll1.Enabled());
  EXPECT_FALSE(dialog.txtSS.Enabled());
}

TEST_F(GraphFormat, DefaultAppliesWhenTheDialogOpensOnIt) {
  program.session.graph.GraphSetParams = FormatParameters::Default;

  dialog.Open();

  EXPECT_TRUE(dialog.Option1.Value(DefaultFormat));
  EXPECT_EQ(dialog.Text2[5].Text(), "Entry Width (ft)");
  EXPECT_EQ(program.session.graph.XAxisTitle[5], "Entry Width (ft)");
  EXPECT_THAT(EditingEnabled(), Each(false));
}

TEST_F(GraphFormat, DefaultStillAppliesAfterCancel) {
  dialog.Open();
  dialog.Option1.SetValue(DefaultFormat, true);

  dialog.Command1.Press();

  EXPECT_EQ(program.session.graph.GraphSetParams, FormatParameters::Default);
  EXPECT_EQ(program.session.graph.XAxisTitle[5], "Entry Width (ft)");
  EXPECT_FALSE(platform.files.files.contains("/home/user/ORBY.INI"));
}

TEST_F(GraphFormat, LastUsedAfterDefaultKeepsWhatTheFieldsShow) {
  dialog.Open();
  dialog.Option1.SetValue(DefaultFormat, true);

  dialog.Option1.SetValue(LastUsedFormat, true);

  EXPECT_EQ(dialog.Text2[5].Text(), "Entry Width (ft)");
  EXPECT_THAT(EditingEnabled(), Each(true));
  EXPECT_TRUE(dialog.HScroll1.Enabled());
  EXPECT_EQ(program.session.graph.GraphSetParams, FormatParameters::Default);
}

TEST_F(GraphFormat, LinesOnlyDisablesTheSymbolSize) {
  dialog.Open();

  dialog.Combo2.SetListIndex(0);
  EXPECT_FALSE(dialog.lblSymbolSize.Enabled());
  EXPECT_FALSE(dialog.txtSS.Enabled());
  EXPECT_FALSE(dialog.HScroll1.Enabled());

  for (const int style : {1, 2}) {
    dialog.Combo2.SetListIndex(style);
    EXPECT_TRUE(dialog.lblSymbolSize.Enabled()) << style;
    EXPECT_TRUE(dialog.txtSS.Enabled()) << style;
    EXPECT_TRUE(dialog.HScroll1.Enabled()) << style;
  }
}

TEST_F(GraphFormat, LinesOnlyDisablesTheSymbolSizeWhenLastUsedIsChosenAgain) {
  program.session.graph.GraphStyle = CurveStyle::LinesOnly;
  dialog.Open();
  dialog.Option1.SetValue(DefaultFormat, true);

  dialog.Option1.SetValue(LastUsedFormat, true);

  EXPECT_TRUE(dialog.Combo2.Enabled());
  EXPECT_FALSE(dialog.HScroll1.Enabled());
}

TEST_F(GraphFormat, LinesOnlyKeepsTheStoredSymbolSize) {
  program.session.graph.SymbolSize = 14;
  dialog.Open();

  dialog.Combo2.SetListIndex(0);
  dialog.Command2.Press();

  EXPECT_EQ(program.session.graph.GraphStyle, CurveStyle::LinesOnly);
  EXPECT_EQ(program.session.graph.SymbolSize, 14);
}

TEST_F(GraphFormat, ShowsTheSymbolSizeBesideItsSlider) {
  dialog.Open();

  dialog.HScroll1.SetValue(17);

  EXPECT_EQ(dialog.txtSS.Text(), "17");
}

TEST_F(GraphFormat, RefusesAStyleThatIsNoItem) {
  dialog.Open();
  dialog.Combo1.SetListIndex(1);

  dialog.Combo1.SetText("Dotted");
  dialog.Combo2.SetText("Bars");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Please select a valid entry", "Please select a valid entry"));
  EXPECT_EQ(dialog.Combo1.ListIndex(), 1);
  EXPECT_EQ(dialog.Combo1.Text(), "Horizontal");
  EXPECT_EQ(dialog.Combo2.ListIndex(), 2);
  EXPECT_EQ(dialog.Combo2.Text(), "Lines & Symbols");
}

TEST_F(GraphFormat, AcceptsATypedItem) {
  dialog.Open();

  dialog.Combo1.SetText("Vertical");

  EXPECT_EQ(dialog.Combo1.ListIndex(), 2);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(GraphFormat, IsStoredWithOK) {
  dialog.Open();
  EditEveryField(dialog);

  dialog.Command2.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.session.graph.GraphSetParams, FormatParameters::LastUsed);
  EXPECT_EQ(program.session.graph.GraphTitle, "Tailgate");
  EXPECT_EQ(program.session.graph.XAxisTitle[5], "Span of the entry");
  EXPECT_EQ(program.session.graph.YAxisTitle[1], "Weight of the rock");
  EXPECT_EQ(program.session.graph.GridStyle, GridLines::Horizontal);
  EXPECT_EQ(program.session.graph.GraphStyle, CurveStyle::SymbolsOnly);
  EXPECT_EQ(program.session.graph.CurveLegend, 0);
  EXPECT_EQ(program.session.graph.SymbolSize, 10);
}

TEST_F(GraphFormat, WithOKIsWrittenToTheConfiguration) {
  dialog.Open();
  dialog.Text1.SetText("Tailgate");

  dialog.Command2.Press();

  const std::string& written = platform.files.files["/home/user/ORBY.INI"];
  EXPECT_THAT(written, HasSubstr("[Graph]"));
  EXPECT_THAT(written, HasSubstr("Tailgate"));
  EXPECT_THAT(written, Not(HasSubstr("[Settings]")));
  EXPECT_EQ(program.session.history.Text, "1. Saving default settings to file: /home/user/ORBY.INI\r\n");
}

TEST_F(GraphFormat, KeepsTheTitlesOfOtherCurves) {
  window.ShowCurve(4);
  dialog.Open();

  dialog.Text2[4].SetText("Height of the fall");
  dialog.Command2.Press();

  EXPECT_THAT(program.session.graph.XAxisTitle,
              ElementsAre("CMRR", "Depth of Cover (ft)", "Stability Factor", "Sum of Diagonals (ft)",
                          "Height of the fall", "Width of the entry", "Roof Fall Angle (deg)", "Rock Load Height (ft)",
                          "Sum of Diagonals (ft)", "Roof Fall Angle (deg)"));
  EXPECT_THAT(program.session.graph.YAxisTitle,
              ElementsAre("Suggested PSUP", "Load", "Rock Load Intersections (tons)"));
}

TEST_F(GraphFormat, WithOKIsAppliedToTheOpenChart) {
  dialog.Open();
  EditEveryField(dialog);

  dialog.Command2.Press();

  const Chart& chart = window.graph1;
  EXPECT_EQ(chart.Heading(), "Tailgate");
  EXPECT_EQ(chart.AxisX(), (ChartAxis{"Span of the entry", false}));
  EXPECT_EQ(chart.AxisY(), (ChartAxis{"Weight of the rock", true}));
  EXPECT_FALSE(chart.LegendShown());
  EXPECT_FALSE(Drawn().hasLine);
  EXPECT_TRUE(Drawn().hasSymbols);
  EXPECT_EQ(Drawn().symbolSize, 10);
  EXPECT_EQ(Drawn().colour, 16711680);
  EXPECT_THAT(Drawn().x, ElementsAre(200, 240, 280.5));
}

TEST_F(GraphFormat, IsWrittenToTheConfigurationBeforeItIsApplied) {
  dialog.Open();
  EditEveryField(dialog);
  std::vector<std::string> headings;
  std::vector<std::string> legends;
  program.session.history.Changed = [&] {
    headings.push_back(window.graph1.Heading());
    legends.push_back(Drawn().legend);
  };

  dialog.Command2.Press();

  EXPECT_THAT(headings, ElementsAre("Panel 3"));
  EXPECT_THAT(legends, ElementsAre("Rock Load Straights"));
  EXPECT_EQ(window.graph1.Heading(), "Tailgate");
}

TEST_F(GraphFormat, RenamesARockLoadInTheLegendUntilTheCurveIsRedrawn) {
  dialog.Open();

  dialog.Command2.Press();
  EXPECT_EQ(Drawn().legend, "RockLoad1");

  window.ShowCurve(5);
  EXPECT_EQ(Drawn().legend, "Rock Load Straights");
}

TEST_F(GraphFormat, NumbersTheRockLoadsOfSeveralSeries) {
  program.windows.curve.CurveCount = 2;
  window.DrawCurve();
  dialog.Open();

  dialog.Command2.Press();

  EXPECT_EQ(window.graph1.Series()[0].legend, "RockLoad1");
  EXPECT_EQ(window.graph1.Series()[1].legend, "RockLoad2");
}

TEST_F(GraphFormat, KeepsTheNameOfASuggestedSupportInTheLegend) {
  window.ShowCurve(3);
  dialog.Open();

  dialog.Command2.Press();

  EXPECT_EQ(Drawn().legend, "Sug.PSUP");
}

TEST_F(GraphFormat, CancelledStoresNothing) {
  dialog.Open();
  dialog.Text1.SetText("Tailgate");
  dialog.Combo1.SetListIndex(0);
  dialog.HScroll1.SetValue(20);

  dialog.Command1.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(program.session.graph.GraphTitle, "Panel 3");
  EXPECT_EQ(program.session.graph.GridStyle, GridLines::Both);
  EXPECT_EQ(program.session.graph.SymbolSize, 6);
  EXPECT_EQ(window.graph1.Heading(), "Panel 3");
  EXPECT_EQ(Drawn().legend, "Rock Load Straights");
  EXPECT_FALSE(platform.files.files.contains("/home/user/ORBY.INI"));
}

TEST_F(GraphFormat, HasItsHelp) {
  dialog.Open();
  platform.files.files["/program/ORBY.CHM"] = "help";

  dialog.Command3.Press();

  EXPECT_THAT(platform.help.shown, ElementsAre("topic /program/ORBY.CHM frmGraphOpt"));
  EXPECT_TRUE(dialog.IsOpen());
}

}  // namespace
}  // namespace orby::test
