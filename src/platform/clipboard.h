// The clipboard of the desktop.
#pragma once

#include <string>

namespace orby {

class Control;
class Form;
struct Scene;

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual void Clear() = 0;
  virtual void SetText(const std::string& text) = 0;
  // Sets a picture of a chart, or of a form as it is on the screen.
  virtual void SetPicture(const Control& chart) = 0;
  virtual void SetPicture(const Form& form) = 0;
  // Sets a picture of a drawing on white, in the colours for light backgrounds.
  virtual void SetPicture(const Scene& scene) = 0;
};

}  // namespace orby
