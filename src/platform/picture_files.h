// Drawings as files of the formats that need a painter.
#pragma once

#include <string>
#include <vector>

namespace orby {

struct Scene;
struct TextStyle;

class PictureFiles {
 public:
  virtual ~PictureFiles() = default;
  // Each returns the bytes of a file with the scene on white, in the colours for light backgrounds. Throws RuntimeError
  // 7 if the picture cannot be made.
  virtual std::string AsPng(const Scene& scene) = 0;                            // two pixels for each unit of the scene
  virtual std::string AsPdf(const Scene& scene, const std::string& title) = 0;  // one page of the size of the scene
  // A page for each scene, of its size in points.
  virtual std::string PagesAsPdf(const std::vector<Scene>& pages, const std::string& title) = 0;
  // Returns the width of a text of a scene, which is as long as in the files.
  virtual double WidthOf(const std::string& text, const TextStyle& style) = 0;
};

}  // namespace orby
