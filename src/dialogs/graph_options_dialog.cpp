#include "dialogs/graph_options_dialog.h"

#include "base/number_text.h"
#include "config/settings_sections.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/graph.h"

namespace orby {
namespace {

// Graph styles count from 1, the items of the list from 0.
int ItemOf(CurveStyle style) { return NumberOf(style) - NumberOf(CurveStyle::LinesOnly); }
CurveStyle StyleOf(int item) { return static_cast<CurveStyle>(item + NumberOf(CurveStyle::LinesOnly)); }

}  // namespace

GraphOptionsDialog::GraphOptionsDialog(Program& program, Chart& chart)
    : ProgramForm(program, "frmGraphOpt", "Graph Parameters and Options"), chart_(chart) {
  Option1.Click = [this](Integer option) { ChooseFormat(FormatParameters{option}); };
  Combo1.Change = [this] { lastGridItem_ = ValidItem(Combo1, lastGridItem_); };
  Combo2.Change = [this] {
    lastStyleItem_ = ValidItem(Combo2, lastStyleItem_);
    EnableSymbolSize();
  };
  HScroll1.Change = [this] { txtSS.SetText(NumberText(HScroll1.Value())); };
}

void GraphOptionsDialog::OnOpen() {
  PrepareForm(program_, MessageModule::GraphOptions);
  Combo1.Fill({{"None"}, {"Horizontal"}, {"Vertical"}, {"Horizontal & Vertical"}});
  Combo2.Fill({{"Lines Only"}, {"Symbols Only"}, {"Lines & Symbols"}});
  FillFields();
  SetArrayIndex(program_, Option1, NumberOf(program_.session.graph.GraphSetParams));
  const Integer curve = program_.windows.curve.CurveIndex;
  for (std::size_t i = 0; i < Text2.size(); ++i) Text2[i].SetVisible(static_cast<int>(i) == curve);
  for (std::size_t i = 0; i < Text3.size(); ++i) Text3[i].SetVisible(static_cast<int>(i) == DependentVariable(curve));
}

void GraphOptionsDialog::FillFields() {
  const GraphSettings& graph = program_.session.graph;
  Text1.SetText(graph.GraphTitle);
  for (std::size_t i = 0; i < Text2.size(); ++i) Text2[i].SetText(graph.XAxisTitle[i]);
  for (std::size_t i = 0; i < Text3.size(); ++i) Text3[i].SetText(graph.YAxisTitle[i]);
  Combo1.SetListIndex(NumberOf(graph.GridStyle));
  Combo2.SetListIndex(ItemOf(graph.GraphStyle));
  Check1.SetValue(graph.CurveLegend);
  HScroll1.SetValue(graph.SymbolSize);
  txtSS.SetText(NumberText(HScroll1.Value()));
}

void GraphOptionsDialog::ChooseFormat(FormatParameters format) {
  if (format == FormatParameters::Default) {
    // The default titles apply at once. Cancelling the dialog does not restore the previous ones.
    program_.session.graph.GraphSetParams = FormatParameters::Default;
    ComposeAxisTitles(program_);
    FillFields();
  }
  EnableFields(format == FormatParameters::LastUsed);
}

void GraphOptionsDialog::EnableFields(bool enabled) {
  Text1.SetEnabled(enabled);
  for (TextBox& box : Text2) box.SetEnabled(enabled);
  for (TextBox& box : Text3) box.SetEnabled(enabled);
  Combo1.SetEnabled(enabled);
  Combo2.SetEnabled(enabled);
  Check1.SetEnabled(enabled);
  EnableSymbolSize();
}

void GraphOptionsDialog::EnableSymbolSize() {
  const bool drawsSymbols = StyleOf(Combo2.ListIndex()) != CurveStyle::LinesOnly;
  lblSymbolSize.SetEnabled(drawsSymbols);
  txtSS.SetEnabled(drawsSymbols && Combo2.Enabled());
  HScroll1.SetEnabled(drawsSymbols && Combo2.Enabled());
}

int GraphOptionsDialog::ValidItem(Combo& list, int lastValid) {
  if (list.HasSelection()) return list.ListIndex();
  ShowMessage(program_, "Please select a valid entry");
  list.SetListIndex(lastValid);
  return lastValid;
}

void GraphOptionsDialog::ReadFields() const {
  GraphSettings& graph = program_.session.graph;
  const auto curve = static_cast<std::size_t>(program_.windows.curve.CurveIndex);
  const auto dependent = static_cast<std::size_t>(DependentVariable(program_.windows.curve.CurveIndex));
  graph.GraphTitle = Text1.Text();
  graph.XAxisTitle[curve] = Text2[curve].Text();
  graph.YAxisTitle[dependent] = Text3[dependent].Text();
  graph.GridStyle = static_cast<GridLines>(Combo1.ListIndex());
  graph.GraphStyle = StyleOf(Combo2.ListIndex());
  graph.CurveLegend = Check1.Value();
  graph.SymbolSize = static_cast<Integer>(HScroll1.Value());
  graph.GraphSetParams = Chosen<FormatParameters>(Option1);
}

void GraphOptionsDialog::Accept() {
  ReadFields();
  WriteDefaults(program_, StoredSettings::Graph);
  Reformat(program_.session.graph, program_.windows.curve.CurveIndex, chart_);
  Close();
}

}  // namespace orby
