// Drawings as PNG and PDF files.
#pragma once

#include "platform/picture_files.h"

namespace orby {

class QtPictureFiles : public PictureFiles {
 public:
  std::string AsPng(const Scene& scene) override;
  std::string AsPdf(const Scene& scene, const std::string& title) override;
};

}  // namespace orby
