// What a monkey sees: the windows on the screen and what can be touched in them.
#pragma once

#include <QString>
#include <QWidget>
#include <vector>

#include "monkey/dice.h"

namespace orby::monkey {

// A place in a widget, and what it is called in the log.
struct Target {
  QWidget* widget = nullptr;  // none: there is nothing
  QPoint place;
  QString name;
};

// The name of a window: that of its form, else the kind of window.
QString WindowName(const QWidget& window);
QString WidgetName(const QWidget& widget);

// The windows on the screen without menus and other things that pop up, in a fixed order.
std::vector<QWidget*> WindowsOnView();
// The window that the keyboard belongs to; nullptr when there is none.
QWidget* WindowInUse();

// Whether a dialog keeps the user from this window.
bool IsBlocked(const QWidget& window);

// The text on a button or an entry without the mark of its letter.
QString PlainCaption(QString caption);
// Whether this ends the program, which is done now and then only: a start takes long.
bool EndsProgram(const QString& caption);

// A place to press in the window: a button; anything that takes values; anything at all.
Target ButtonIn(QWidget& window, Dice& dice);
Target InputIn(QWidget& window, Dice& dice);
Target AnythingIn(QWidget& window, Dice& dice);

// A row of what has popped up: an entry of a menu or an item of a list.
Target EntryIn(QWidget& popup, Dice& dice);

}  // namespace orby::monkey
