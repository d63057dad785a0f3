// Places, sizes and divisions of windows that are kept over restarts.
#pragma once

#include <QRect>
#include <QWidget>
#include <string_view>

#include "core/settings.h"

namespace orby {

// Places the window, not yet on the screen, as it was closed last: in its size, or in that of the screen if that is
// less, and where it was if it would be wholly on a screen there. Does nothing for a window without a place, or with a
// place that has no sense.
void TakePlace(QWidget& window, std::string_view form, const WindowPlaces& places);

// Returns the frame's corner and the inner size.
QRect PlaceOf(const QWidget& window);

// Remembers the place of a window that is about to close, if the user has changed it. `opened` is the place in which
// the window was opened.
void KeepPlace(const QWidget& window, std::string_view form, const QRect& opened, WindowPlaces& places);

}  // namespace orby
