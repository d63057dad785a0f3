// Marks of number fields on the screen: while typing, in tooltips and for screen readers.
#include <QAccessible>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPalette>
#include <QToolTip>
#include <cmath>

#include "dialogs/cost_dialog.h"
#include "dialogs/parameters_dialog.h"
#include "gui/gui_bench.h"
#include "qt/field_mark.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class FieldMarksOnView : public GuiTest {};

// Returns the mark whose colour the picture of the field has.
FieldMark Shown(QWidget& window, std::string_view name) {
  auto& field = Find<QLineEdit>(window, name);
  const QImage picture = field.grab().toImage();
  int counts[2] = {0, 0};
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixelColor(x, y) == ColorOfMark(FieldMark::PartlyRead, field.palette())) ++counts[0];
      if (picture.pixelColor(x, y) == ColorOfMark(FieldMark::OutOfRange, field.palette())) ++counts[1];
    }
  }
  constexpr int Edge = 50;  // pixels; more than a cursor or a letter has by chance
  if (counts[1] > Edge) return FieldMark::OutOfRange;
  return counts[0] > Edge ? FieldMark::PartlyRead : FieldMark::None;
}

std::string Description(const QWidget& window, std::string_view name) {
  auto* reader = QAccessible::queryAccessibleInterface(&Find<QLineEdit>(window, name));
  return reader->text(QAccessible::Description).toStdString();
}

TEST_F(FieldMarksOnView, AppearWithTheKeyThatMakesTheTextNoNumber) {
  ParametersDialog dialog(program);
  Work(dialog, [](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "4");
    EXPECT_EQ(Shown(window, "txtDepthofCover"), FieldMark::None);

    Press(Qt::Key_Comma);

    EXPECT_EQ(Shown(window, "txtDepthofCover"), FieldMark::PartlyRead);
    EXPECT_THAT(Description(window, "txtDepthofCover"), HasSubstr("\"4,\" is read as 4"));

    Press(Qt::Key_Backspace);
    EXPECT_EQ(Shown(window, "txtDepthofCover"), FieldMark::None);
  });
  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
}

TEST_F(FieldMarksOnView, ShowANumberOutOfRangeAndTheFieldThatItMakesInvalid) {
  ParametersDialog dialog(program);
  Work(dialog, [](QDialog& window) {
    TypeInto(window, "txtEntryWidth", "45");

    EXPECT_EQ(Shown(window, "txtEntryWidth"), FieldMark::None);
    EXPECT_EQ(Shown(window, "txtActualSpanDiagonals"), FieldMark::OutOfRange);
    EXPECT_THAT(Description(window, "txtActualSpanDiagonals"), HasSubstr("Out of range: above 63.6396103067893"));

    TypeInto(window, "txtUnitWeight", "99");
    EXPECT_EQ(Shown(window, "txtUnitWeight"), FieldMark::OutOfRange);
    EXPECT_THAT(Description(window, "txtUnitWeight"), HasSubstr("Out of range: 100 to 200 pcf"));
  });
  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
}

TEST_F(FieldMarksOnView, AreThereWhenTheirPageOpens) {
  program.project.WorkParms.Primary.RowSpacing = 0;
  program.project.WorkParms.Primary.Analysed = 1;
  ParametersDialog dialog(program);
  Work(dialog, [](QDialog& window) {
    PressLetterOfTab(window, "SSTab1", 1);

    EXPECT_EQ(Shown(window, "txtRowSpacingPrimary"), FieldMark::OutOfRange);
  });
}

TEST_F(FieldMarksOnView, HoldInTheCostDialogToo) {
  CostDialog dialog(program);
  Work(dialog, [](QDialog& window) {
    TypeInto(window, "txtBoltCost", "5-");
    EXPECT_EQ(Shown(window, "txtBoltCost"), FieldMark::PartlyRead);
  });
}

TEST_F(FieldMarksOnView, AreExplainedByTheTooltip) {
  ParametersDialog dialog(program);
  Work(dialog, [](QDialog& window) {
    auto& field = Find<QLineEdit>(window, "txtDepthofCover");
    EXPECT_EQ(field.toolTip(), "");
    const QPoint middle = field.rect().center();
    QHelpEvent ask(QEvent::ToolTip, middle, field.mapToGlobal(middle));

    QCoreApplication::sendEvent(&field, &ask);

    EXPECT_THAT(QToolTip::text().toStdString(), HasSubstr("Range: above 0 ft"));
    EXPECT_THAT(QToolTip::text().toStdString(), HasSubstr("400 ft = 121.92 m"));
    QToolTip::hideText();
  });
}

TEST_F(FieldMarksOnView, AreDescribedToReadersWithTheFocus) {
  ParametersDialog dialog(program);
  Work(dialog, [](QDialog& window) {
    Find<QLineEdit>(window, "txtUnitWeight").setFocus();

    EXPECT_THAT(Description(window, "txtUnitWeight"), HasSubstr("Range: 100 to 200 pcf"));
    EXPECT_THAT(Description(window, "txtUnitWeight"), HasSubstr("162 pcf = 25.446 kN/m3"));
  });
}

// ---- contrast -------------------------------------------------------------------------------------------------------

double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST_F(FieldMarksOnView, AreReadableOnLightAndDarkDesktops) {
  QPalette light;
  light.setColor(QPalette::Base, Qt::white);
  light.setColor(QPalette::Window, QColor(239, 239, 239));
  light.setColor(QPalette::Text, Qt::black);
  QPalette dark;
  dark.setColor(QPalette::Base, QColor(42, 42, 42));
  dark.setColor(QPalette::Window, QColor(53, 53, 53));
  dark.setColor(QPalette::Text, Qt::white);

  for (const QPalette& palette : {light, dark}) {
    for (const FieldMark mark : {FieldMark::PartlyRead, FieldMark::OutOfRange}) {
      EXPECT_GE(Contrast(ColorOfMark(mark, palette), palette.color(QPalette::Base)), 4.5);
      EXPECT_GE(Contrast(ColorOfMark(mark, palette), palette.color(QPalette::Window)), 4.5);
    }
  }
}

}  // namespace
}  // namespace orby::test
