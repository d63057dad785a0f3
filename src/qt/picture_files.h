// Drawings as PNG and PDF files.
#pragma once

#include "platform/picture_files.h"
#include "qt/scene_painter.h"

namespace orby {

class QtPictureFiles : public PictureFiles {
 public:
  std::string AsPng(const Scene& scene) override;
  std::string AsPdf(const Scene& scene, const std::string& title) override;
  std::string PagesAsPdf(const std::vector<Scene>& pages, const std::string& title) override;
  double WidthOf(const std::string& text, const TextStyle& style) override;

 private:
  TextWidths widths_;
};

}  // namespace orby
