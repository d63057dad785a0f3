// The drawings and icons of the program.
#pragma once

#include <string_view>
#include <vector>

#include "drawings/scene.h"

namespace orby {

// Returns the picture of this name, such as "open" or "region_3". The scene is empty when there is none.
Scene PictureScene(std::string_view name);

// Returns the names of all pictures.
std::vector<std::string_view> PictureNames();

}  // namespace orby
