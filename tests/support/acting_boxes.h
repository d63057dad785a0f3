// Message boxes that call a function of the test before the user answers.
#pragma once

#include <functional>

#include "support/recording_platform.h"

namespace orby::test {

struct ActingBoxes : RecordingBoxes {
  BoxResult Show(const MessageBox& box) override {
    if (meanwhile) meanwhile();
    return RecordingBoxes::Show(box);
  }

  std::function<void()> meanwhile;
};

}  // namespace orby::test
