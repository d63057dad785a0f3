// Colours that can be read on their background.
#pragma once

#include <QColor>

namespace orby {

// What a text needs so that it has 4.5 : 1 on the screen. The thin strokes of letters come out paler than their colour.
inline constexpr double ContrastOfSmoothedText = 6;

// Returns the colour, lightened on a dark background and darkened on a light one until its contrast is at least this to
// 1 by the Web Content Accessibility Guidelines.
QColor Readable(const QColor& color, const QColor& background, double leastContrast = 4.5);

// Darkens or lightens the ground of selected texts in all windows until the texts can be read on it. Many themes have
// one that is too light for white texts.
void MakeSelectionReadable();

}  // namespace orby
