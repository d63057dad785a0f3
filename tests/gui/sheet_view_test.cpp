// The calculation sheet on the screen: its pages scroll, change their size and show what was found.
#include <gmock/gmock.h>

#include <QListWidget>
#include <QScrollBar>

#include "dialogs/sheet_window.h"
#include "gui_bench.h"
#include "qt/pages_view.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct SheetOnView : GuiTest {
  SheetWindow window{program, SheetOfProject(program)};
};

QScrollBar& BarOf(QDialog& view) { return *Find<PagesView>(view, "picPages").verticalScrollBar(); }

TEST_F(SheetOnView, GoesToTheSectionThatIsClicked) {
  Work(window, [this](QDialog& view) {
    auto& list = Find<QListWidget>(view, "lstContents");
    list.setCurrentRow(6);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Return);
    Settle();

    EXPECT_GT(BarOf(view).value(), 0);
    EXPECT_THAT(window.lblPage.Caption(), StartsWith("Page " + std::to_string(window.picPages.Place().Page + 1)));
  });
}

TEST_F(SheetOnView, TellsThePageThatTheUserScrollsTo) {
  Work(window, [this](QDialog& view) {
    auto& pages = Find<PagesView>(view, "picPages");
    pages.setFocus();
    QTest::keyClick(&pages, Qt::Key_End);
    Settle();

    const std::string last = std::to_string(window.picPages.Pages().size());
    EXPECT_EQ(window.lblPage.Caption(), "Page " + last + " of " + last);
    EXPECT_THAT(pages.accessibleDescription().toStdString(), HasSubstr("Page " + last + " of " + last));
  });
}

TEST_F(SheetOnView, MakesItsPagesLargerAndSmallerByKeys) {
  Work(window, [](QDialog& view) {
    auto& pages = Find<PagesView>(view, "picPages");
    pages.setFocus();
    const int before = BarOf(view).maximum();
    QTest::keyClick(&pages, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(BarOf(view).maximum(), before);
    QTest::keyClick(&pages, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(BarOf(view).maximum(), before);
    QTest::keyClick(&pages, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_LT(BarOf(view).maximum(), before);
  });
}

TEST_F(SheetOnView, ShowsTheTextThatIsFound) {
  Work(window, [this](QDialog& view) {
    auto& pages = Find<PagesView>(view, "picPages");
    const QImage before = pages.grab().toImage();

    TypeInto(view, "txtFind", "total");
    Click(view, "cmdFind");

    EXPECT_TRUE(window.picPages.Marked());
    EXPECT_NE(pages.grab().toImage(), before);
  });
}

}  // namespace
}  // namespace orby::test
