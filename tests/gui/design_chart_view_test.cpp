// The window "Design Chart" on the screen: read out by keys and the pointer, and heard by screen readers.
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "dialogs/design_chart_window.h"
#include "gui_bench.h"
#include "qt/drawing_view.h"
#include "qt/picture_files.h"
#include "qt/texts.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct DesignChartOnView : GuiTest {
  static std::string Read(const QWidget& view) { return Find<QLabel>(view, "lblRead").text().toStdString(); }

  DesignChartWindow window{program};
};

TEST_F(DesignChartOnView, IsReadOutByTheArrowKeys) {
  Work(window, [](QDialog& view) {
    Find(view, "picChart").setFocus();

    Press(Qt::Key_Right);
    EXPECT_THAT(Read(view), StartsWith("Depth of Cover 405 ft, CMRR 45: "));
    Press(Qt::Key_Down);
    EXPECT_THAT(Read(view), StartsWith("Depth of Cover 405 ft, CMRR 44.5: "));
    Press(Qt::Key_Home);

    EXPECT_THAT(Read(view), StartsWith("This design: "));
  });
}

TEST_F(DesignChartOnView, IsReadOutUnderThePointer) {
  Work(window, [](QDialog& view) {
    auto& chart = Find<DrawingView>(view, "picChart");

    QTest::mouseMove(&chart, QPoint(chart.width() / 3, chart.height() / 2));
    Settle();

    EXPECT_THAT(Read(view), StartsWith("Depth of Cover "));
    EXPECT_THAT(chart.Words().toStdString(), StartsWith(Read(view)));
  });
}

TEST_F(DesignChartOnView, IsHeardAsAGraphic) {
  Work(window, [](QDialog& view) {
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&Find(view, "picChart"));
    ASSERT_NE(reader, nullptr);

    EXPECT_EQ(reader->role(), QAccessible::Graphic);
    EXPECT_EQ(reader->text(QAccessible::Name), "Design chart");
    EXPECT_THAT(reader->text(QAccessible::Description).toStdString(), HasSubstr("Actual PSUP turns"));
  });
}

TEST_F(DesignChartOnView, StaysAliveWhileItComputes) {
  Work(window, [this](QDialog& view) {
    TypeInto(view, "txtPoints", "200");
    Find<QComboBox>(view, "cmbSubject").setCurrentText("Greatest Roof Bolt Row Spacing that holds");
    Settle();
    EXPECT_FALSE(Find<QPushButton>(view, "cmdPrint").isEnabled());
    while (!Find<QPushButton>(view, "cmdPrint").isEnabled()) {
      platform.clock.Pass();
      Settle();
    }

    EXPECT_THAT(Read(view), HasSubstr("Roof Bolt Row Spacing from 1 to 20 ft holds: Bolt capacity short"));
  });
}

TEST_F(DesignChartOnView, HasAPageOfPdfInLandscape) {
  platform.fileDialogs.answers.push_back("/home/user/wall.pdf");
  Work(window, [this](QDialog& view) {
    Click(view, "cmdSavePage");
    Settle();

    const std::string bytes = QtPictureFiles().PagesAsPdf(platform.pictures.scenes, "Chart");
    EXPECT_THAT(bytes, HasSubstr("/Count 1\n"));
    EXPECT_THAT(bytes, HasSubstr("/MediaBox [0 0 842.000000 595.000000]"));
  });
}

TEST_F(DesignChartOnView, IsPaintedInTheColoursOfTheMap) {
  Work(window, [](QDialog& view) {
    auto& chart = Find<DrawingView>(view, "picChart");
    Settle();
    const QImage picture = chart.grab().toImage();

    int low = 0;
    int high = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const QRgb pixel = picture.pixel(x, y);
        if (qRed(pixel) > 225 && qBlue(pixel) < 215 && qGreen(pixel) > 220) ++low;
        if (qRed(pixel) < 110 && qBlue(pixel) > 150) ++high;
      }
    }
    EXPECT_GT(low, 500);
    EXPECT_GT(high, 500);
  });
}

}  // namespace
}  // namespace orby::test
