#include "dialogs/graph_window.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/chart_scene.h"
#include "dialogs/curve_table.h"
#include "dialogs/graph.h"
#include "dialogs/graph_options_dialog.h"
#include "dialogs/kept_curves.h"
#include "dialogs/save_in_format.h"
#include "drawings/scene_svg.h"
#include "reports/printing.h"

namespace orby {
namespace {

enum class GraphFileEntry : Integer { Print = 0, Export = 2, Exit = 4 };
enum class GraphOptionsEntry : Integer { PointID, BasicOptions };

constexpr double ReadOutDistance = 4;  // pixels
constexpr double HoleValue = 1e308;    // marks a missing point
constexpr NumberPattern CoordinateFormat{"##0.00"};

bool IsPoint(const std::vector<ChartSeries>& all, const ChartHit& hit) {
  if (hit.series < 0 || static_cast<std::size_t>(hit.series) >= all.size() || hit.point < 0) return false;
  const ChartSeries& series = all[static_cast<std::size_t>(hit.series)];
  const auto point = static_cast<std::size_t>(hit.point);
  return point < series.x.size() && series.x[point] != HoleValue && series.y[point] != HoleValue;
}

}  // namespace

GraphWindow::GraphWindow(Program& program)
    : ProgramForm(program, "frmGraph", CaptionWithProject("Graph", program.project)) {
  graph1.MouseMove = [this](const ChartHit& hit) { ReadOut(hit); };
  GraphFileItem.Click = [this](Integer item) {
    switch (GraphFileEntry{item}) {
      case GraphFileEntry::Print: Print(); break;
      case GraphFileEntry::Export: AskAndExport(); break;
      case GraphFileEntry::Exit: Close(); break;
    }
  };
  GraphEditItem.Click = [this](Integer) { program_.platform.clipboard.SetPicture(graph1); };
  GraphOptionsItem.Click = [this](Integer item) {
    switch (GraphOptionsEntry{item}) {
      case GraphOptionsEntry::PointID: TogglePointID(); break;
      case GraphOptionsEntry::BasicOptions: EditOptions(); break;
    }
  };
}

void GraphWindow::ShowCurve(Integer index) {
  GraphInit(index);
  DrawCurve();
  Open();
  program_.platform.windows.Show(*this);
}

void GraphWindow::OnOpen() {
  program_.windows.curve.GraphClosed = false;
  GraphOptionsItem.SetItemChecked(NumberOf(GraphOptionsEntry::PointID), false);
  Frame1.SetVisible(false);
  ClearReadOut();
}

void GraphWindow::OnClose() {
  StoreFormat(graph1, program_.windows.curve.CurveIndex, program_.session.graph);
  program_.windows.curve.GraphClosed = true;
}

void GraphWindow::GraphInit(Integer index) {
  PrepareAxisTitles(program_, index);
  program_.windows.curve.CurveIndex = index;
  ApplyTitlesAndGrid(program_.session.graph, index, graph1);
  program_.windows.curve.CurveCount = 1;
}

void GraphWindow::DrawCurve() {
  const DrawnCurve& curve = program_.windows.curve;
  std::vector<ChartSeries> drawn;
  for (Integer number = 1; number <= curve.CurveCount; ++number) {
    ChartSeries series = PointsOf(curve);
    series.colour = CurveColors(number);
    series.legend = LegendText(curve.CurveIndex);
    series.shortName = ShortCurveName(curve.CurveIndex);
    ApplyStyle(program_.session.graph, series);
    drawn.push_back(std::move(series));
  }
  DrawWithKept(std::move(drawn));
  MarkDesign(curve.Own, curve.References, curve.CurveIndex, graph1);
  graph1.SetLegendShown(program_.session.graph.CurveLegend == 1);
}

void GraphWindow::DrawWithKept(std::vector<ChartSeries> drawn) {
  const DrawnCurve& curve = program_.windows.curve;
  const UnitSystem units = program_.project.WorkParms.Units;
  for (ChartSeries& series : KeptSeries(curve, units, program_.session.graph.SymbolSize)) {
    drawn.push_back(std::move(series));
  }
  graph1.SetReadPoint({});
  graph1.SetSeries(std::move(drawn));
  cmdKeep.SetEnabled(MayKeep(curve, units));
  cmdForget.SetEnabled(!curve.Kept.empty());
  lblKept.SetCaption(KeptSummary(curve, units));
}

void GraphWindow::Keep() {
  KeepCurve(program_.windows.curve, program_.project.WorkParms.Units);
  DrawKeptAnew();
}

void GraphWindow::ForgetKept() {
  program_.windows.curve.Kept.clear();
  DrawKeptAnew();
}

void GraphWindow::DrawKeptAnew() {
  std::vector<ChartSeries> drawn = graph1.Series();
  std::erase_if(drawn, [](const ChartSeries& series) { return series.isKept; });
  DrawWithKept(std::move(drawn));
}

void GraphWindow::ClearGraph() {
  graph1.SetSeries({});
  program_.windows.curve.CurveCount = 0;
}

void GraphWindow::ReadOut(const ChartHit& hit) {
  if (!GraphOptionsItem.ItemChecked(NumberOf(GraphOptionsEntry::PointID)) || !Frame1.Visible()) return;
  if (!hit.inPlot) {
    ClearReadOut();
    return;
  }
  // Away from every point, the read-out keeps the last one.
  if (!IsPoint(graph1.Series(), hit) || hit.distance >= ReadOutDistance) return;
  const ChartSeries& series = graph1.Series()[static_cast<std::size_t>(hit.series)];
  const auto point = static_cast<std::size_t>(hit.point);
  lblX.SetCaption(FormatNumber(ToSingle(series.x[point]), CoordinateFormat));
  lblSF.SetCaption(FormatNumber(ToSingle(series.y[point]), CoordinateFormat));
  lblCurve.SetCaption(series.shortName);
  graph1.SetReadPoint(ChartPlace{hit.series, hit.point});
}

void GraphWindow::ClearReadOut() {
  for (Label* label : {&lblX, &lblSF, &lblCurve}) label->SetCaption({});
  graph1.SetReadPoint({});
}

void GraphWindow::Print() {
  const std::string title = CurveTitle(program_.windows.curve.CurveIndex);
  const auto outcome =
      RunTrapped(program_, [&] { program_.platform.printer.Choose(PrintedName(program_.project) + " " + title); });
  if (outcome != StepOutcome::Done) return;
  AddHistoryLine(program_, "Printing Graph");
  RunTrapped(program_, [&] { program_.platform.printer.PrintChart(graph1, ChartHeading(program_, title)); });
}

void GraphWindow::SaveAs() {
  const Integer index = program_.windows.curve.CurveIndex;
  const std::string title = CurveTitle(index);
  PictureFiles& pictures = program_.platform.pictures;
  const AxisTitles heads = ComposedTitles(index, program_.project.WorkParms.Units);
  const std::string path =
      SaveInFormat(program_, "Save Curve", PrintedName(program_.project) + " " + title,
                   {{"Picture", "png", [&] { return pictures.AsPng(ChartScene(graph1)); }},
                    {"Drawing", "svg", [&] { return SceneSvg(ChartScene(graph1)); }},
                    {"Page", "pdf", [&] { return pictures.AsPdf(ChartScene(graph1), title); }},
                    {"Table of Values", "csv", [&] { return CurveTable(heads.X, heads.Y, graph1.Series()); }}});
  if (!path.empty()) AddHistoryLine(program_, "Curve saved as: " + path);
}

void GraphWindow::AskAndExport() {
  if (program_.session.options.AskOfficeInstall == 0) {
    const BoxResult answer =
        ShowMessage(program_, "This option will only work if Microsoft Excel is installed on this computer. Proceed?",
                    BoxButtons::YesNo);
    if (answer != BoxResult::Yes) return;
  }
  Export();
}

void GraphWindow::Export() {
  Sheet sheet{graph1.Heading(), graph1.AxisX().title, graph1.AxisY().title, {}};
  for (const ChartSeries& series : graph1.Series()) {
    sheet.series.push_back({"X-coord", series.shortName, series.x, series.y});
  }
  const std::string path =
      program_.session.folders.ProgramTemporary + "ORBY " + CurveTitle(program_.windows.curve.CurveIndex) + ".xlsx";
  const auto outcome = RunTrapped(program_, [&] { program_.platform.documents.OpenSheet(sheet, path); });
  if (outcome != StepOutcome::Done) return;
  const auto count = static_cast<int>(sheet.series.size());
  ShowMessage(program_, "Exported " + NumberText(count) + (count == 1 ? " Curve" : " Curves"));
}

void GraphWindow::TogglePointID() {
  const bool shown = !GraphOptionsItem.ItemChecked(NumberOf(GraphOptionsEntry::PointID));
  GraphOptionsItem.SetItemChecked(NumberOf(GraphOptionsEntry::PointID), shown);
  Frame1.SetVisible(shown);
  if (!shown) graph1.SetReadPoint({});
}

void GraphWindow::EditOptions() {
  StoreFormat(graph1, program_.windows.curve.CurveIndex, program_.session.graph);
  GraphOptionsDialog dialog(program_, graph1);
  ShowForm(program_, dialog);
}

}  // namespace orby
