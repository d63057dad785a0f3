// Drawings as SVG texts.
#pragma once

#include <string>

#include "drawings/scene.h"

namespace orby {

// Returns the scene as an SVG file on a white background, in the colours for light backgrounds.
std::string SceneSvg(const Scene& scene);

}  // namespace orby
