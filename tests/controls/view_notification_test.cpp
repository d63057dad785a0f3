// Each change of a control that its window shows notifies the view of the form.
#include <gmock/gmock.h>

#include <functional>

#include "controls/chart.h"
#include "controls/controls.h"
#include "controls/grid.h"
#include "controls/plain_form.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

struct Controls : PlainForm {
  Label label{*this, "label", "Depth"};
  Button button{*this, "button", "OK"};
  TextBox text{*this, "text"};
  CheckBox check{*this, "check", "Truss Bolts"};
  OptionArray options{*this, "options", {{"Standard"}, {"Manual"}}};
  Combo combo{*this, "combo"};
  TabSet tabs{*this, "tabs", {"General", "Entries"}};
  List list{*this, "list"};
  ActionArray actions{*this, "actions", {"Open", "Save"}};
  Slider slider{*this, "slider", 0, 10};
  ProgressBar progress{*this, "progress"};
  TextPane pane{*this, "pane"};
  Grid grid{*this, "grid"};
  Chart chart{*this, "chart"};
};

// A change of a control that its window shows.
struct Change {
  const char* name;
  const char* control;
  std::function<void(Controls&)> act;
};

void PrintTo(const Change& change, std::ostream* out) { *out << change.name; }

const std::vector<Change>& Changes() {
  static const std::vector<Change> changes{
      {"Enabled", "label", [](auto& c) { c.label.SetEnabled(false); }},
      {"Visible", "label", [](auto& c) { c.label.SetVisible(false); }},
      {"CaptionOfALabel", "label", [](auto& c) { c.label.SetCaption("Width"); }},
      {"CaptionOfAButton", "button", [](auto& c) { c.button.SetCaption("Next"); }},
      {"Text", "text", [](auto& c) { c.text.SetText("45"); }},
      {"FontOfAText", "text",
       [](auto& c) {
         c.text.SetFont({"Arial", 12, false, false});
       }},
      {"Check", "check", [](auto& c) { c.check.SetValue(1); }},
      {"Option", "options", [](auto& c) { c.options.SetValue(1, true); }},
      {"OptionEnabled", "options", [](auto& c) { c.options.SetMemberEnabled(1, false); }},
      {"OptionsEnabled", "options", [](auto& c) { c.options.SetAllEnabled(false); }},
      {"CaptionOfAnOption", "options", [](auto& c) { c.options.SetCaption(0, "Table"); }},
      {"ItemsOfACombo", "combo",
       [](auto& c) {
         c.combo.Fill({{"0.6"}, {"0.7"}});
       }},
      {"TextOfACombo", "combo", [](auto& c) { c.combo.SetText("0.65"); }},
      {"Tab", "tabs", [](auto& c) { c.tabs.SetTab(1); }},
      {"TabEnabled", "tabs", [](auto& c) { c.tabs.SetTabEnabled(1, false); }},
      {"ItemsOfAList", "list",
       [](auto& c) {
         c.list.Fill({{"40"}, {"60"}});
       }},
      {"CaptionOfAnEntry", "actions", [](auto& c) { c.actions.SetCaption(0, "New"); }},
      {"EntryEnabled", "actions", [](auto& c) { c.actions.SetItemEnabled(0, false); }},
      {"EntryVisible", "actions", [](auto& c) { c.actions.SetItemVisible(0, false); }},
      {"EntryChecked", "actions", [](auto& c) { c.actions.SetItemChecked(0, true); }},
      {"Slider", "slider", [](auto& c) { c.slider.SetValue(4); }},
      {"Progress", "progress", [](auto& c) { c.progress.SetValue(40); }},
      {"LinesOfAPane", "pane", [](auto& c) { c.pane.Append("weak roof\n"); }},
      {"FontOfAPane", "pane",
       [](auto& c) {
         c.pane.SetFont({"Arial", 12, false, false});
       }},
      {"SizeOfAGrid", "grid", [](auto& c) { c.grid.SetSize(3, 2, 1); }},
      {"ColumnWidths", "grid",
       [](auto& c) {
         c.grid.SetColumnWidths({300, 2200});
       }},
      {"HeadingOfAChart", "chart", [](auto& c) { c.chart.SetHeading("PSUP"); }},
      {"AxisOfAChart", "chart",
       [](auto& c) {
         c.chart.SetAxisX({"Depth", true});
       }},
      {"OtherAxisOfAChart", "chart",
       [](auto& c) {
         c.chart.SetAxisY({"PSUP", true});
       }},
      {"LegendOfAChart", "chart", [](auto& c) { c.chart.SetLegendShown(true); }},
      {"SeriesOfAChart", "chart", [](auto& c) { c.chart.SetSeries(std::vector<ChartSeries>(1)); }},
  };
  return changes;
}

class AView : public testing::TestWithParam<Change> {};

TEST_P(AView, IsNotifiedOfTheChange) {
  Controls controls;
  const RecordingView view(controls);

  GetParam().act(controls);

  EXPECT_THAT(view.told, AllOf(Not(IsEmpty()), Each(GetParam().control)));
}

INSTANTIATE_TEST_SUITE_P(Of, AView, testing::ValuesIn(Changes()), [](const auto& change) { return change.param.name; });

TEST(AViewOfAGrid, IsNotifiedWhenARowOrCellIsSelectedOrChanged) {
  Controls controls;
  controls.grid.SetSize(3, 2, 1);
  const RecordingView view(controls);

  controls.grid.SelectCell(2, 1);
  controls.grid.SetCell(1, 0, "0.6");
  controls.grid.EditCell(1, 1, "27");
  controls.grid.AddRow();
  controls.grid.RemoveRow(1);

  EXPECT_THAT(view.told, ElementsAre("grid", "grid", "grid", "grid", "grid"));
}

TEST(AViewOfAList, IsNotifiedOfAClickOnAnItem) {
  Controls controls;
  controls.list.Fill({{"40"}, {"60"}});
  const RecordingView view(controls);

  controls.list.ClickItem(1);

  EXPECT_THAT(view.told, ElementsAre("list"));
}

TEST(AViewOfAText, IsNotifiedWhenTheTextIsCleared) {
  Controls controls;
  controls.combo.SetText("0.65");
  controls.pane.Append("weak roof\n");
  const RecordingView view(controls);

  controls.combo.BlankText();
  controls.pane.Clear();

  EXPECT_THAT(view.told, ElementsAre("combo", "pane"));
}

TEST(AViewOfControls, IsNotNotifiedWhenAValueStaysTheSame) {
  Controls controls;
  const RecordingView view(controls);

  controls.label.SetCaption("Depth");
  controls.text.SetText("");
  controls.check.SetValue(0);
  controls.combo.SetText("");
  controls.tabs.SetTab(0);
  controls.slider.SetValue(0);
  controls.progress.SetValue(0);

  EXPECT_THAT(view.told, IsEmpty());
}

}  // namespace
}  // namespace orby::test
