// The program's vector drawings. Their lines take the colour of the desktop's text, light or dark.
#pragma once

#include <QIcon>
#include <QSvgRenderer>
#include <memory>

class QColor;

namespace orby {

// Returns the drawing of a resource, such as ":/pictures/open.svg", with lines in this colour.
std::unique_ptr<QSvgRenderer> LoadPicture(const QString& resource, const QColor& lines);

// Returns an icon that is redrawn for each requested size and theme.
QIcon ThemedIcon(const QString& name);

}  // namespace orby
