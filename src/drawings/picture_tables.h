// The pictures as tables. PictureScene makes scenes of them.
#pragma once

#include <span>
#include <string_view>

#include "drawings/scene.h"

namespace orby {

struct PictureOutline {
  std::string_view Path;  // as PathSteps reads it
  SceneFill Inside;
  SceneStroke Line;
};

struct Picture {
  std::string_view Name;
  double Width = 24;
  double Height = 24;
  std::span<const PictureOutline> Outlines;
};

// The icons and marks.
std::span<const Picture> DrawnPictures();

// The map of the coal regions with one of them marked, by the index of the region.
std::span<const Picture> MapPictures();

}  // namespace orby
