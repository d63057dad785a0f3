// Keyboard and mouse: sends the events that the window system would send for an action of the user.
#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

namespace orby::monkey {

// Presses and releases a key in the active window. text: the characters that the key produces; if empty, those of the
// key itself.
void PressKey(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {});

// Presses the keys of these characters in turn.
void TypeText(const QString& text);

// Copies a text to the clipboard and presses Ctrl+V.
void Paste(const QString& text);

// Sends a text as an input method or a dead key does.
void Compose(const QString& text);

// Uses the mouse at a position in a widget.
void Click(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton,
           Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void DoubleClick(QWidget& widget, QPoint place);
void Drag(QWidget& widget, QPoint from, QPoint to);
void TurnWheel(QWidget& widget, QPoint place, int steps, Qt::KeyboardModifiers modifiers);

// Drops a file on the window.
void DropFile(QWidget& window, const QString& path);

}  // namespace orby::monkey
