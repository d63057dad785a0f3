// A drawing of the design in a dialog, to scale, and what the user can do with it.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "controls/control.h"
#include "controls/event.h"
#include "core/program.h"
#include "sketches/drafting.h"

namespace orby {

enum class DrawingCommand : std::uint8_t { Copy, SaveSvg, SavePdf };

// The entries of the menu of a drawing, by DrawingCommand.
inline constexpr std::array<std::string_view, 3> DrawingCommands{"&Copy as Picture", "Save as &SVG...",
                                                                 "Save as &PDF..."};

// Keys that move over a drawing.
enum class DrawingKey : std::uint8_t { Left, Right, Up, Down, Home };

class Drawing : public Control {
 public:
  // `title` is the name of the drawing for screen readers and files.
  Drawing(Form& form, std::string_view name, std::string_view title) : Control(form, name), title_(title) {}

  std::string_view Title() const { return title_; }
  // Requires a title that outlives the drawing.
  void SetTitle(std::string_view title) { Mirror(title_, title); }
  const Scene& Picture();
  // Returns what the drawing shows, in words: the main dimensions and the supports.
  std::string Words();

  // Tells that the sketch may be another one now. It is made when somebody looks at it, so that a key need not wait.
  void Outdate();
  // Returns a number that is another one for each other sketch.
  int Edition();

  const SheetSize& Sheet() const { return sheet_; }
  // Tells how large the drawing is on view, in units of its scene.
  void SetSheet(const SheetSize& sheet);

  std::function<Sketch(const SheetSize&)> Make;  // for the sheet
  Event Resize;                                  // the sheet has another size
  std::function<void(DrawingCommand)> Command;
  // Of drawings that are read out: the pointer is at a place of the sheet, or a key was pressed. Both or none are set.
  std::function<void(const ScenePoint&)> Point;
  std::function<void(DrawingKey)> Key;

 private:
  void Refresh();

  std::string_view title_;
  Sketch sketch_;
  bool isOutdated_ = false;
  int edition_ = 0;
  SheetSize sheet_{420, 330};
};

// Copies the drawing, or saves it under the name that the user chooses. Shows a message for an error; never throws.
void RunDrawingCommand(Program& program, Drawing& drawing, DrawingCommand command);

}  // namespace orby
