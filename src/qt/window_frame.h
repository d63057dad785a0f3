// The frame that the window manager draws around a window: the title bar and the edges.
#pragma once

#include <QMargins>
#include <QWidget>

namespace orby {

// The frame of the window. One that is not on the screen yet will have the frame of those that are; before the first of
// them it is taken from the style.
QMargins FrameOf(const QWidget& window);

// The inner width in which a title bar shows the whole title beside its icon and buttons.
int WidthOfTitle(const QWidget& window);

}  // namespace orby
