// The signs beside the outputs of the parameters dialog, on the screen.
#include <QAccessible>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolTip>

#include "dialogs/parameters_dialog.h"
#include "gui/gui_bench.h"
#include "qt/field_mark.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;

class OutputSignsOnView : public GuiTest {
 protected:
  OutputSignsOnView() {
    Site& place = program.project.WorkParms.Place;
    place.CMRR = 30;
    place.CMRRManual = 1;
    place.ActualSpanDiagonals = 62;
    program.project.WorkParms.Primary.Analysed = 1;
  }

  ParametersDialog dialog{program};
};

std::string DescriptionOf(QWidget& widget) {
  return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Description).toStdString();
}

// Returns how many pixels of the widget's picture have the colour of a text that is partly read, which is also that of
// earlier inputs.
int DoubtfulPixels(QWidget& widget) {
  const QImage picture = widget.grab().toImage();
  const QColor wanted = ColorOfMark(FieldMark::PartlyRead, widget.palette());
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == wanted ? 1 : 0;
  }
  return count;
}

constexpr int Edge = 50;  // pixels; more than a picture of a judgement has

TEST_F(OutputSignsOnView, ShowThePictureOfTheJudgementAtTheRight) {
  Work(dialog, [this](QDialog& window) {
    dialog.SSTab1.SetTab(1);
    Settle();
    auto& output = Find<QLineEdit>(window, "txtSugSumDiagonals");
    const auto end = [&] { return output.grab().toImage().copy(output.width() - 20, 0, 20, output.height()); };
    const QImage isShort = end();
    EXPECT_GE(output.textMargins().right(), 14);
    EXPECT_THAT(DescriptionOf(output), HasSubstr("Short: Sum of diagonals 62.0 with at most"));

    dialog.txtActualSpanDiagonals.SetText("40");
    dialog.EndAct();
    Settle();

    EXPECT_NE(end(), isShort);
    EXPECT_THAT(DescriptionOf(output), HasSubstr("Holds: Sum of diagonals 40.0 with at most"));
    EXPECT_LT(DoubtfulPixels(output), Edge);
  });
}

TEST_F(OutputSignsOnView, MarkATextOfEarlierInputsByAnEdgeAndInWords) {
  Work(dialog, [this](QDialog& window) {
    TypeInto(window, "txtCMRR", "101");
    dialog.SSTab1.SetTab(1);
    Settle();

    auto& output = Find<QLineEdit>(window, "txtSuggestBoltLength");
    EXPECT_GT(DoubtfulPixels(output), Edge);
    EXPECT_THAT(DescriptionOf(output), HasSubstr("Of earlier inputs: the fields as they stand give no result"));

    const QPoint middle = output.rect().center();
    QHelpEvent ask(QEvent::ToolTip, middle, output.mapToGlobal(middle));
    QCoreApplication::sendEvent(&output, &ask);
    EXPECT_THAT(QToolTip::text().toStdString(),
                AllOf(HasSubstr("Suggested Minimum Roof Bolt Length"), HasSubstr("Of earlier inputs")));
    QToolTip::hideText();

    TypeInto(window, "txtStabilityFactor", "1.5");
    dialog.SSTab1.SetTab(0);
    Settle();
    TypeInto(window, "txtCMRR", "30");
    dialog.SSTab1.SetTab(1);
    Settle();
    EXPECT_LT(DoubtfulPixels(output), Edge);
  });
}

TEST_F(OutputSignsOnView, MarkWarningsOfEarlierInputsToo) {
  Work(dialog, [](QDialog& window) {
    auto& warnings = Find<QPlainTextEdit>(window, "txtMessage");
    ASSERT_TRUE(warnings.isVisible());
    EXPECT_LT(DoubtfulPixels(warnings), Edge);

    TypeInto(window, "txtCMRR", "101");

    EXPECT_GT(DoubtfulPixels(warnings), Edge);
    EXPECT_EQ(DescriptionOf(warnings), "Of earlier inputs");
  });
}

}  // namespace
}  // namespace orby::test
