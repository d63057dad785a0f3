#include "qt/measures.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QStyle>
#include <QStyleOptionFrame>
#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "qt/texts.h"

namespace orby {
namespace {

// A number of seven digits with its sign, point and exponent, and one of fifteen.
constexpr int DigitsOfSingle = 12;
constexpr int DigitsOfDouble = 20;
constexpr std::string_view ShowsDoubles = "frmUnits";

struct ButtonRole {
  std::string_view caption;
  QDialogButtonBox::ButtonRole role;
};

// Other buttons of the row stand together, as far from the ends as the desktop puts them.
constexpr std::array Roles{
    ButtonRole{"OK", QDialogButtonBox::AcceptRole},       ButtonRole{"Convert", QDialogButtonBox::AcceptRole},
    ButtonRole{"I accept", QDialogButtonBox::AcceptRole}, ButtonRole{"Cancel", QDialogButtonBox::RejectRole},
    ButtonRole{"Close", QDialogButtonBox::RejectRole},    ButtonRole{"I do not accept", QDialogButtonBox::RejectRole},
    ButtonRole{"Help", QDialogButtonBox::HelpRole}};

QDialogButtonBox::ButtonRole RoleOf(const QPushButton& button) {
  const std::string caption = FromQt(button.text().remove('&'));
  const auto found = std::ranges::find(Roles, caption, &ButtonRole::caption);
  return found == Roles.end() ? QDialogButtonBox::ApplyRole : found->role;
}

// Returns the layout in which the widget stands, or null.
QLayout* LayoutAround(QLayout* layout, const QWidget& widget) {
  if (layout == nullptr) return nullptr;
  for (int i = 0; i < layout->count(); ++i) {
    QLayoutItem* item = layout->itemAt(i);
    if (item->widget() == &widget) return layout;
    if (QLayout* found = LayoutAround(item->layout(), widget)) return found;
  }
  return nullptr;
}

QLayout* LayoutAround(const QWidget& widget) {
  return widget.parentWidget() == nullptr ? nullptr : LayoutAround(widget.parentWidget()->layout(), widget);
}

int WidthOfField(const QLineEdit& field, int digits) {
  QStyleOptionFrame option;
  option.initFrom(&field);
  option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
  const QSize text(field.fontMetrics().horizontalAdvance('0') * digits, field.fontMetrics().height());
  return field.style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, &field).width();
}

// Returns true for the buttons that end a dialog. Those of a window that runs commands keep their order.
bool IsOfDialog(const std::vector<QPushButton*>& buttons) {
  const auto count = [&](QDialogButtonBox::ButtonRole role) {
    return std::ranges::count_if(buttons, [role](const QPushButton* button) { return RoleOf(*button) == role; });
  };
  return count(QDialogButtonBox::AcceptRole) > 0 || count(QDialogButtonBox::ApplyRole) == 0;
}

// Moves the buttons of a row into a box that knows the order of the desktop.
void Arrange(QBoxLayout& row, const std::vector<QPushButton*>& buttons) {
  auto* box = new QDialogButtonBox(row.parentWidget());
  box->setObjectName("viewButtons");
  for (QPushButton* button : buttons) {
    row.removeWidget(button);
    box->addButton(button, RoleOf(*button));
  }
  // The box has the empty space of the row, on the side that the desktop leaves free.
  for (int i = row.count() - 1; i >= 0; --i) {
    if (row.itemAt(i)->spacerItem() != nullptr) delete row.takeAt(i);
  }
  row.addWidget(box, 1);
}

}  // namespace

void AlignNumberFields(std::string_view form, const std::vector<QLineEdit*>& fields) {
  const int digits = form == ShowsDoubles ? DigitsOfDouble : DigitsOfSingle;
  for (QLineEdit* field : fields) {
    field->setFixedWidth(WidthOfField(*field, digits));
    if (QLayout* layout = LayoutAround(*field)) layout->setAlignment(field, Qt::AlignLeft | Qt::AlignVCenter);
  }
}

void ArrangeDialogButtons(const std::vector<QPushButton*>& buttons) {
  for (const QPushButton* closing : buttons) {
    if (RoleOf(*closing) == QDialogButtonBox::ApplyRole) continue;
    auto* row = dynamic_cast<QBoxLayout*>(LayoutAround(*closing));
    if (row == nullptr || row->direction() != QBoxLayout::LeftToRight) continue;
    std::vector<QPushButton*> inRow;
    std::ranges::copy_if(buttons, std::back_inserter(inRow), [row](auto* button) { return row->indexOf(button) >= 0; });
    if (IsOfDialog(inRow)) Arrange(*row, inRow);
    return;
  }
}

}  // namespace orby
