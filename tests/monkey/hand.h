// Hands on keyboard and mouse: what the window system would hand to the program for an act of the user's.
#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

namespace orby::monkey {

// A key for the window that has the keyboard, pressed and released. text: what it brings; empty: what the key itself
// stands for.
void PressKey(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {});

// The keys of these characters, one after the other.
void TypeText(const QString& text);

// Puts a text on the clipboard and presses Ctrl+V.
void Paste(const QString& text);

// What an input method or a dead key makes of several keys.
void Compose(const QString& text);

// The mouse at a place in a widget.
void Click(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton,
           Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void DoubleClick(QWidget& widget, QPoint place);
void Drag(QWidget& widget, QPoint from, QPoint to);
void TurnWheel(QWidget& widget, QPoint place, int steps, Qt::KeyboardModifiers modifiers);

// A file dropped on the window.
void DropFile(QWidget& window, const QString& path);

}  // namespace orby::monkey
