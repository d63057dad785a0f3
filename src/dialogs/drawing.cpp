#include "dialogs/drawing.h"

#include "core/messages.h"
#include "dialogs/save_in_format.h"
#include "drawings/scene_svg.h"
#include "reports/printing.h"

namespace orby {
namespace {

void SaveDrawing(Program& program, const Drawing& drawing, const FileFormat& format) {
  const std::string title(drawing.Title());
  const std::string name = PrintedName(program.project) + " " + title;
  const std::string path = SaveInFormat(program, "Save Drawing", name, {format});
  if (!path.empty()) AddHistoryLine(program, "Drawing saved as: " + path);
}

}  // namespace

void Drawing::Outdate() {
  isOutdated_ = true;
  Touch();
}

void Drawing::Refresh() {
  if (!isOutdated_) return;
  isOutdated_ = false;
  Sketch sketch = Make(sheet_);
  if (sketch == sketch_) return;
  sketch_ = std::move(sketch);
  ++edition_;
}

const Scene& Drawing::Picture() {
  Refresh();
  return sketch_.Picture;
}

int Drawing::Edition() {
  Refresh();
  return edition_;
}

std::string Drawing::Words() {
  Refresh();
  std::string words;
  for (const std::string& fact : sketch_.Facts) {
    if (!words.empty()) words += ". ";
    words += fact;
  }
  return words;
}

void Drawing::SetSheet(const SheetSize& sheet) {
  if (sheet_ == sheet) return;
  sheet_ = sheet;
  Fire(Resize);
}

void RunDrawingCommand(Program& program, Drawing& drawing, DrawingCommand command) {
  const Scene& scene = drawing.Picture();
  switch (command) {
    case DrawingCommand::Copy: program.platform.clipboard.SetPicture(scene); break;
    case DrawingCommand::SaveSvg:
      SaveDrawing(program, drawing, {"Drawing", "svg", [&] { return SceneSvg(scene); }});
      break;
    case DrawingCommand::SavePdf:
      SaveDrawing(program, drawing, {"Document", "pdf", [&] {
                                       return program.platform.pictures.AsPdf(scene, std::string(drawing.Title()));
                                     }});
      break;
  }
}

}  // namespace orby
