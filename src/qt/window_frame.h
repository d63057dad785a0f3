// The frame that the window manager draws around a window: title bar and edges.
#pragma once

#include <QMargins>
#include <QWidget>

namespace orby {

// Returns the frame of the window. For a window that is not on the screen yet, returns the frame of one that is, or an
// estimate from the style if there is none.
QMargins FrameOf(const QWidget& window);

// Returns the inner width at which the title bar shows the whole title beside its icon and buttons.
int WidthOfTitle(const QWidget& window);

}  // namespace orby
