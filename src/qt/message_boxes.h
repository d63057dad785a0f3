// Message boxes of the desktop.
#pragma once

#include "platform/message_boxes.h"

namespace orby {

class QtMessageBoxes : public MessageBoxes {
 public:
  BoxResult Show(const MessageBox& box) override;
};

}  // namespace orby
