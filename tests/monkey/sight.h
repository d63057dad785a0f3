// The view of a monkey: the windows on the screen and the widgets that can be used in them.
#pragma once

#include <QString>
#include <QWidget>
#include <vector>

#include "monkey/dice.h"

namespace orby::monkey {

// A position in a widget, and its name in the log.
struct Target {
  QWidget* widget = nullptr;  // null if there is nothing
  QPoint place;
  QString name;
};

// Returns the name of a window: that of its form, else its type.
QString WindowName(const QWidget& window);
QString WidgetName(const QWidget& widget);

// Returns the windows on the screen in a fixed order, without menus and other popups.
std::vector<QWidget*> WindowsOnView();
// Returns the window with the focus, or null.
QWidget* WindowInUse();

// Returns true if a dialog blocks this window.
bool IsBlocked(const QWidget& window);

// Returns the caption of a button or menu item without the mark of its letter.
QString PlainCaption(QString caption);
// Returns true if this command ends the program. It is chosen rarely, because a start is slow.
bool EndsProgram(const QString& caption);

// Return a position in the window: of a button, of an input, of any widget.
Target ButtonIn(QWidget& window, Dice& dice);
Target InputIn(QWidget& window, Dice& dice);
Target AnythingIn(QWidget& window, Dice& dice);

// Returns a row of a popup: a menu item or a list item.
Target EntryIn(QWidget& popup, Dice& dice);

}  // namespace orby::monkey
