#include "drawings/pictures.h"

#include "drawings/picture_tables.h"

namespace orby {
namespace {

Scene SceneOf(const Picture& picture) {
  Scene scene{picture.Width, picture.Height, {}, {}};
  for (const PictureOutline& outline : picture.Outlines) {
    scene.Outlines.push_back({PathSteps(outline.Path), outline.Inside, outline.Line});
  }
  return scene;
}

template <class Act>
void ForEachPicture(const Act& act) {
  for (const Picture& picture : DrawnPictures()) act(picture);
  for (const Picture& picture : MapPictures()) act(picture);
}

}  // namespace

Scene PictureScene(std::string_view name) {
  Scene scene;
  ForEachPicture([&](const Picture& picture) {
    if (picture.Name == name) scene = SceneOf(picture);
  });
  return scene;
}

std::vector<std::string_view> PictureNames() {
  std::vector<std::string_view> names;
  ForEachPicture([&](const Picture& picture) { names.push_back(picture.Name); });
  return names;
}

}  // namespace orby
