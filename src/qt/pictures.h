// The program's icons. Their lines take the colour of the desktop's text, light or dark.
#pragma once

#include <QIcon>

#include "drawings/scene.h"

namespace orby {

// Returns an icon that is redrawn for each requested size and theme.
QIcon ThemedIcon(const QString& name);
QIcon SceneIcon(Scene scene);

}  // namespace orby
