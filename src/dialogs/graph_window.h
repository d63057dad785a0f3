// The graph window: shows the last computed curve beside those kept for comparison, reads off its points, prints,
// copies, saves and exports it.
#pragma once

#include <vector>

#include "controls/chart.h"
#include "controls/controls.h"
#include "core/program_form.h"

namespace orby {

class GraphWindow : public ProgramForm {
 public:
  Menu GraphFile{*this, "GraphFile", "&File"};
  ActionArray GraphFileItem{
      *this, "GraphFileItem", {"&Print", ActionArray::Separator, "Export", ActionArray::Separator, "E&xit"}};
  Menu GraphEdit{*this, "GraphEdit", "&Edit"};
  ActionArray GraphEditItem{*this, "GraphEditItem", {"Copy "}};
  Menu GraphOptions{*this, "GraphOptions", "&Options"};
  ActionArray GraphOptionsItem{*this, "GraphOptionsItem", {"Point ID", "Basic &Options"}};

  Chart graph1{*this, "graph1"};

  // read-out of the point under the pointer
  Frame Frame1{*this, "Frame1", "Point ID"};
  Label lblXCaption{*this, "lblXCaption", "X-coord:"};
  Label lblX{*this, "lblX", ""};
  Label lblSFCaption{*this, "lblSFCaption", "Y-Coord:"};
  Label lblSF{*this, "lblSF", ""};
  Label lblCurveCaption{*this, "lblCurveCaption", "Curve:"};
  Label lblCurve{*this, "lblCurve", ""};

  Button cmdSaveAs{*this, "cmdSaveAs", "&Save As...", [this] { SaveAs(); }};
  Button cmdKeep{*this, "cmdKeep", "&Keep Curve", [this] { Keep(); }};
  Button cmdForget{*this, "cmdForget", "For&get Kept", [this] { ForgetKept(); }};
  Label lblKept{*this, "lblKept", ""};

  explicit GraphWindow(Program& program);

  // Draws the points in `program.windows.curve` as the curve of this index, and opens the window or brings it to the
  // front. Throws RuntimeError 9 for an index outside 0..9.
  void ShowCurve(Integer index);

  // Prepares titles, grid lines and heading of the chart for one curve. Throws RuntimeError 9 for an index outside
  // 0..9.
  void GraphInit(Integer index);
  // Loads the points into the chart, `program.windows.curve.CurveCount` times. Throws RuntimeError 9 after the sixth
  // series, because there are six colours.
  void DrawCurve();
  // Empties the chart. Nothing calls it, because each curve replaces the one before.
  void ClearGraph();

 protected:
  void OnOpen() override;
  void OnClose() override;

 private:
  // Shows the series, and after them the kept curves that have their axes.
  void DrawWithKept(std::vector<ChartSeries> drawn);
  void Keep();
  void ForgetKept();
  void DrawKeptAnew();
  void ReadOut(const ChartHit& hit);
  void ClearReadOut();
  void Print();
  void SaveAs();
  void AskAndExport();
  void Export();
  void TogglePointID();
  void EditOptions();
};

}  // namespace orby
