// The window "Designs in a Folder" on the screen: worked by keys and the mouse.
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "dialogs/designs_fixture.h"
#include "gui_bench.h"
#include "qt/rows_view.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;

RealDoors WithFiles(FileSystem& files) {
  RealDoors doors;
  doors.files = &files;
  return doors;
}

struct MineOnDisk {
  MineOnDisk() { StoreMine(mine); }
  TemporaryFolder mine;
  DiskFiles disk{"/opt/orby"};
};

struct DesignsOnView : MineOnDisk, GuiTest {
  DesignsOnView() : GuiTest(WithFiles(disk)) {
    program.session.settings.DataPath = mine.Path() + "/";
    program.session.IniFilePath = mine.At("orby.ini");
    mine.Store("orby.ini", "");
  }

  void Wait() {
    while (window.IsBusy()) {
      platform.clock.Pass();
      Settle();
    }
    Settle();
  }
  static RowsView& Table(const QWidget& view) { return Find<RowsView>(view, "tblDesigns"); }
  static std::string CellOn(const QWidget& view, int row, int column) {
    return Table(view).model()->index(row, column).data().toString().toStdString();
  }
  static std::vector<std::string> CellsOfColumn(const QWidget& view, int column) {
    std::vector<std::string> cells;
    for (int row = 0; row < Table(view).model()->rowCount(); ++row) cells.push_back(CellOn(view, row, column));
    return cells;
  }
  static std::vector<int> MarkedOn(const QWidget& view) {
    std::vector<int> rows;
    for (const QModelIndex& index : Table(view).selectionModel()->selectedRows()) rows.push_back(index.row());
    std::ranges::sort(rows);
    return rows;
  }
  static void ClickHead(const QWidget& view, int column) {
    const QHeaderView& header = *Table(view).horizontalHeader();
    const QPoint at(header.sectionViewportPosition(column) + 10, header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, at);
    Settle();
  }

  DesignsWindow window{program};
};

TEST_F(DesignsOnView, OpensTheDesignUnderTheArrowKeysWithEnter) {
  Use(window, [this](QDialog& view) {
    Wait();
    EXPECT_EQ(FocusName(), "txtFolder");
    Table(view).setFocus();
    for (int i = 0; i < 3; ++i) Press(Qt::Key_Down);
    EXPECT_THAT(MarkedOn(view), ElementsAre(3));
    Press(Qt::Key_Return);
  });

  ASSERT_TRUE(window.Chosen);
  EXPECT_THAT(*window.Chosen, EndsWith("weak.ORB"));
}

TEST_F(DesignsOnView, OpensADesignWithADoubleClick) {
  Use(window, [this](QDialog& view) {
    Wait();
    const QRect cell = Table(view).visualRect(Table(view).model()->index(0, 1));
    QTest::mouseClick(Table(view).viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(Table(view).viewport(), Qt::LeftButton, {}, cell.center());
    Settle();
  });

  ASSERT_TRUE(window.Chosen);
  EXPECT_THAT(*window.Chosen, EndsWith("Crosscut.ORB"));
}

TEST_F(DesignsOnView, SortsAtAClickOnAHead) {
  Work(window, [this](QDialog& view) {
    Wait();
    ClickHead(view, 2);
    Wait();
    EXPECT_THAT(CellsOfColumn(view, 2), ElementsAre("25", "48", "55", ""));
    EXPECT_EQ(Table(view).horizontalHeader()->sortIndicatorSection(), 2);
    EXPECT_EQ(Table(view).horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);

    ClickHead(view, 2);
    Wait();
    EXPECT_THAT(CellsOfColumn(view, 2), ElementsAre("55", "48", "25", ""));
    EXPECT_EQ(Table(view).horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
  });
}

TEST_F(DesignsOnView, FiltersWithEachKeyAndKeepsTheMarks) {
  Work(window, [this](QDialog& view) {
    Wait();
    Table(view).setFocus();
    Press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_THAT(window.SelectedFiles(), SizeIs(3));
    TypeInto(view, "txtContaining", "weak");
    Wait();
    EXPECT_EQ(Table(view).model()->rowCount(), 1);
    EXPECT_THAT(MarkedOn(view), ElementsAre(0));

    TypeInto(view, "txtContaining", "nothing of it");
    Wait();
    EXPECT_EQ(Table(view).model()->rowCount(), 0);
    EXPECT_FALSE(Find<QPushButton>(view, "cmdOpen").isEnabled());
  });
}

TEST_F(DesignsOnView, CopiesTheMarkedRowsWithTheKeysOfEveryProgram) {
  Work(window, [this](QDialog& view) {
    Wait();
    Table(view).setFocus();
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_C, Qt::ControlModifier);
    Wait();

    EXPECT_EQ(std::ranges::count(platform.clipboard.text, '\n'), 5);
    EXPECT_EQ(CaptionOn(view, "lblDone"), "Copied 4 rows");
  });
}

TEST_F(DesignsOnView, ReadsTheTypedFolderWithEnter) {
  Work(window, [this](QDialog& view) {
    Wait();
    TypeInto(view, "txtFolder", mine.At("north"));
    Press(Qt::Key_Return);
    Wait();

    EXPECT_THAT(CellsOfColumn(view, 0), ElementsAre("gate.ORB"));
    EXPECT_EQ(FocusName(), "tblDesigns");
  });
}

TEST_F(DesignsOnView, TellsScreenReadersTheWholeHead) {
  Work(window, [this](QDialog& view) {
    Wait();
    const auto& model = *Table(view).model();
    EXPECT_EQ(model.headerData(3, Qt::Horizontal, Qt::AccessibleTextRole).toString(), "Depth of Cover (ft)");
    EXPECT_EQ(Table(view).accessibleName(), "Designs in a Folder");
    EXPECT_THAT(Find<QLineEdit>(view, "txtContaining").accessibleName().toStdString(), "Rows that contain");
  });
}

TEST_F(DesignsOnView, MakesNoCellsThatAreNotOnView) {
  for (int i = 0; i < 300; ++i) StoreExample(mine, "development-entry", "panel" + std::to_string(i) + ".ORB");
  Work(window, [this](QDialog& view) {
    Wait();
    EXPECT_EQ(Table(view).model()->rowCount(), 304);
    std::set<int> rows;
    const auto cellAt = std::exchange(window.tblDesigns.CellAt, {});
    window.tblDesigns.CellAt = [&](int row, int column) {
      rows.insert(row);
      return cellAt(row, column);
    };
    Table(view).viewport()->update();
    Settle();

    EXPECT_LT(rows.size(), 60U);
    EXPECT_FALSE(rows.empty());
    window.tblDesigns.CellAt = cellAt;
  });
}

}  // namespace
}  // namespace orby::test
