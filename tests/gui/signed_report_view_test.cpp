// The signed report on the screen: its small pages, and the page that the user chooses.
#include <gmock/gmock.h>

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabWidget>

#include "dialogs/signed_report_window.h"
#include "gui_bench.h"
#include "qt/pages_view.h"

namespace orby::test {
namespace {

using testing::StartsWith;

struct ReportOnView : GuiTest {
  SignedReportWindow window{program};
};

PagesView& Small(QDialog& view) { return Find<PagesView>(view, "picSmall"); }

QScrollBar& BarOfPages(QDialog& view) { return *Find<PagesView>(view, "picPages").verticalScrollBar(); }

TEST_F(ReportOnView, GoesToTheSmallPageThatIsClicked) {
  Work(window, [this](QDialog& view) {
    QWidget& small = *Small(view).viewport();
    QTest::mouseClick(&small, Qt::LeftButton, {}, {small.width() / 2, small.height() - 4});
    Settle();

    EXPECT_GT(BarOfPages(view).value(), 0);
    EXPECT_GT(window.picSmall.PageOnView(), 0U);
    EXPECT_THAT(window.lblPage.Caption(),
                StartsWith("Page " + std::to_string(window.picSmall.PageOnView() + 1) + " of "));
  });
}

TEST_F(ReportOnView, GoesFromPageToPageWithKeys) {
  Work(window, [this](QDialog& view) {
    PagesView& small = Small(view);
    small.setFocus();
    const std::size_t last = window.picPages.Pages().size() - 1;

    QTest::keyClick(&small, Qt::Key_Down);
    QTest::keyClick(&small, Qt::Key_Down);
    EXPECT_EQ(window.picSmall.PageOnView(), 2U);
    QTest::keyClick(&small, Qt::Key_Up);
    EXPECT_EQ(window.picSmall.PageOnView(), 1U);
    QTest::keyClick(&small, Qt::Key_End);
    EXPECT_EQ(window.picSmall.PageOnView(), last);
    EXPECT_GT(small.verticalScrollBar()->value(), 0) << "the chosen page is on view";
    QTest::keyClick(&small, Qt::Key_Down);
    EXPECT_EQ(window.picSmall.PageOnView(), last);
    QTest::keyClick(&small, Qt::Key_Home);
    QTest::keyClick(&small, Qt::Key_Up);
    EXPECT_EQ(window.picSmall.PageOnView(), 0U);
  });
}

TEST_F(ReportOnView, KeepsItsPlaceWhileTheUserTypes) {
  Work(window, [](QDialog& view) {
    QTest::keyClick(&Small(view), Qt::Key_End);
    Settle();
    const int before = BarOfPages(view).value();
    ASSERT_GT(before, 0);

    TypeInto(view, "txtChecker", "T. Okonjo");

    EXPECT_EQ(BarOfPages(view).value(), before);
  });
}

TEST_F(ReportOnView, TakesRemarksOfSeveralLines) {
  Work(window, [this](QDialog& view) {
    auto& remarks = Find<QPlainTextEdit>(view, "txtRemarks");
    remarks.setFocus();
    QTest::keyClicks(&remarks, "First.");
    QTest::keyClick(&remarks, Qt::Key_Return);
    QTest::keyClicks(&remarks, "Second.");

    EXPECT_EQ(window.txtRemarks.Text(), "First.\r\nSecond.");
  });
}

}  // namespace
}  // namespace orby::test
