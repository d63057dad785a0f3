// The drawings of the parameters dialog. Only the one on the tab on view is made, from the design as it is typed then.
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
    drawing.Make = [this, make = entry.Make](const SheetSize& sheet) {
      return make(typed_, SketchFiguresOf(typed_, program_.session.catalogs), sheet);
    };
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
  (this->*entry.Shown).Outdate();
}

void ParametersDialog::ReadAndDraw() {
  if (!IsOpen() || HoldEvents) return;
  ReadFields();
  ReadPart(DesignPart::Place);  // with the rating as it was typed
  ShowDrawing();
}

}  // namespace orby
