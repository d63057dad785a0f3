// The drawings of the program: vector pictures whose lines take the colour of the desktop's text, light or dark.
#pragma once

#include <QIcon>
#include <QSvgRenderer>
#include <memory>

class QColor;

namespace orby {

// The drawing of a resource, such as ":/pictures/open.svg", with its lines in this colour.
std::unique_ptr<QSvgRenderer> LoadPicture(const QString& resource, const QColor& lines);

// An icon that is drawn anew in whatever size and theme it is asked for.
QIcon ThemedIcon(const QString& name);

}  // namespace orby
