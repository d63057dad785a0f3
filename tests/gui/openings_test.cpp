// Dialogs that are opened many times, as in a long working day.
#include <malloc.h>

#include <QApplication>

#include <algorithm>
#include <cstddef>
#include <limits>

#include "core/dialog_helpers.h"
#include "gui/forms.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

class Openings : public GuiTest, public testing::WithParamInterface<FormMaker> {
 protected:
  void OpenAndClose(int times) {
    for (int i = 0; i < times; ++i) {
      scripts.Add([](QDialog& window) {
        window.close();
        // Only its buttons close the disclaimer.
        if (window.isVisible()) Click(window, "cmdNoAccept");
      });
      const auto form = GetParam().make(program);
      ShowForm(program, *form);
      program.session.history.Text.clear();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Settle();
  }

  static std::size_t MemoryInUse() { return mallinfo2().uordblks; }
};

// The toolkit fills its caches during the first openings. A window that is not freed shows in every round.
TEST_P(Openings, LeakNoMemory) {
  constexpr int Rounds = 6;
  constexpr int Times = 8;
  constexpr std::ptrdiff_t Tolerance = 4096;  // bytes per opening; the smallest window has more than ten times as much
  OpenAndClose(Times);
  const auto widgets = QApplication::allWidgets().size();
  std::ptrdiff_t leastGrowth = std::numeric_limits<std::ptrdiff_t>::max();

  for (int round = 0; round < Rounds && leastGrowth > Times * Tolerance; ++round) {
    const std::size_t before = MemoryInUse();
    OpenAndClose(Times);
    leastGrowth = std::min(leastGrowth, static_cast<std::ptrdiff_t>(MemoryInUse() - before));
  }

  EXPECT_EQ(QApplication::allWidgets().size(), widgets);
  EXPECT_LE(leastGrowth, Times * Tolerance);
}

std::vector<FormMaker> Dialogs() {
  std::vector<FormMaker> dialogs;
  for (const FormMaker& maker : FormMakers) {
    if (maker.name != "frmMain" && maker.name != "frmSummary" && maker.name != "frmGraph") dialogs.push_back(maker);
  }
  return dialogs;
}

INSTANTIATE_TEST_SUITE_P(Of, Openings, testing::ValuesIn(Dialogs()),
                         [](const auto& maker) { return std::string(maker.param.name); });

}  // namespace
}  // namespace orby::test
