// Drawings as files of the formats that need a painter.
#pragma once

#include <string>

namespace orby {

struct Scene;

class PictureFiles {
 public:
  virtual ~PictureFiles() = default;
  // Each returns the bytes of a file with the scene on white, in the colours for light backgrounds. Throws RuntimeError
  // 7 if the picture cannot be made.
  virtual std::string AsPng(const Scene& scene) = 0;                            // two pixels for each unit of the scene
  virtual std::string AsPdf(const Scene& scene, const std::string& title) = 0;  // one page of the size of the scene
};

}  // namespace orby
