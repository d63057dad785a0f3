// Long tasks between the events of the window.
#include "qt/piece_task.h"

#include "gui/gui_bench.h"

namespace orby::test {
namespace {

TEST(PieceTask, ContinuesWithATaskThatItsLastPieceStarted) {
  PieceTask task;
  int pieces = 0;
  task.Start([&] {
    task.Start([&] { return ++pieces < 3; });
    return false;
  });
  EXPECT_TRUE(task.IsRunning());

  while (task.IsRunning()) QCoreApplication::processEvents();

  EXPECT_EQ(pieces, 3);
}

TEST(PieceTask, EndsWithItsLastPiece) {
  PieceTask task;

  task.Start([] { return false; });

  EXPECT_FALSE(task.IsRunning());
}

}  // namespace
}  // namespace orby::test
