// Message boxes, which show a message or ask a question.
#pragma once

#include <string>
#include <vector>

namespace orby {

enum class BoxButtons { Ok, YesNoCancel, YesNo, RetryCancel, OkRetry };
enum class BoxIcon { None, Critical, Question, Exclamation };
enum class BoxDefault { FirstButton, SecondButton };

struct BoxStyle {
  // Implicit, so that a box without an icon or with the usual buttons needs no style.
  constexpr BoxStyle(BoxButtons buttons = BoxButtons::Ok, BoxIcon icon = BoxIcon::None,
                     BoxDefault preset = BoxDefault::FirstButton)
      : Buttons(buttons), Icon(icon), Default(preset) {}
  constexpr BoxStyle(BoxIcon icon) : BoxStyle(BoxButtons::Ok, icon) {}
  bool operator==(const BoxStyle&) const = default;

  BoxButtons Buttons;
  BoxIcon Icon;
  BoxDefault Default;
};

enum class BoxResult { Ok, Cancel, Retry, Yes, No };

struct MessageBox {
  std::string text;
  BoxStyle style{};
  std::string title;
  std::string helpFile;
  int helpContext = 0;
  std::vector<std::string> captions = {};  // of its buttons from left to right; empty: the usual ones
};

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  // Shows the box, waits until the user closes it and returns the button.
  virtual BoxResult Show(const MessageBox& box) = 0;
};

}  // namespace orby
