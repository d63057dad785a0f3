#include "dialogs/preview_window.h"

#include "core/dialog_helpers.h"

namespace orby {

void PreviewWindow::OnOpen() {
  pager_.Restart();
  program_.platform.windows.CenterForm(*this);
}

void ShowPreview(Program& program) {
  PreviewWindow window(program);
  ShowForm(program, window);
}

}  // namespace orby
