#include "dialogs/results_window.h"

#include "core/dialog_helpers.h"

namespace orby {

void ShowResults(Program& program) {
  ResultsWindow window(program);
  ShowForm(program, window);
}

}  // namespace orby
