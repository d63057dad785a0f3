// The drawings of the parameters dialog. Only the one on the tab on view is made.
#include <array>

#include "dialogs/parameters_dialog.h"
#include "sketches/sketches.h"

namespace orby {
namespace {

struct DrawingOnTab {
  Drawing ParametersControls::*Shown;
  Sketch (*Make)(const RoofSupport& design, const SketchFigures& figures, const SheetSize& sheet);
};

constexpr std::array<DrawingOnTab, 4> DrawingsOnTabs{{{&ParametersControls::Picture1, DiagonalsSketch},
                                                      {&ParametersControls::Image1, PrimarySketch},
                                                      {&ParametersControls::picEntries, EntrySketch},
                                                      {&ParametersControls::picIntersections, IntersectionSketch}}};

}  // namespace

void ParametersDialog::TieDrawings() {
  for (const DrawingOnTab& entry : DrawingsOnTabs) {
    Drawing& drawing = this->*entry.Shown;
    drawing.Resize = [this] { ReadAndDraw(); };
    drawing.Command = [this, &drawing](DrawingCommand command) { RunDrawingCommand(program_, drawing, command); };
  }
  SSTab1.Click = [this, others = SSTab1.Click] {
    Fire(others);
    ReadAndDraw();
  };
}

void ParametersDialog::ShowDrawing() {
  const DrawingOnTab& entry = DrawingsOnTabs.at(static_cast<std::size_t>(SSTab1.Tab()));
  Drawing& drawing = this->*entry.Shown;
  drawing.Show(entry.Make(typed_, SketchFiguresOf(typed_, program_.session.catalogs), drawing.Sheet()));
}

void ParametersDialog::ReadAndDraw() {
  if (!IsOpen() || HoldEvents) return;
  ReadFields();
  ReadPart(DesignPart::Place);  // with the rating as it was typed
  ShowDrawing();
}

}  // namespace orby
