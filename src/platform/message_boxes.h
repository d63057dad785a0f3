// The message box: the program's one way to tell or ask the user something.
#pragma once

#include <string>
#include <vector>

namespace orby {

// A style is a sum of these bits; no bits mean an OK button alone.
namespace box_style {
inline constexpr int Ok = 0;
inline constexpr int YesNoCancel = 3;
inline constexpr int YesNo = 4;
inline constexpr int RetryCancel = 5;
inline constexpr int OkRetry = 7;
inline constexpr int Critical = 16;
inline constexpr int Question = 32;
inline constexpr int Exclamation = 48;
inline constexpr int SecondButtonDefault = 256;
}  // namespace box_style

namespace box_result {
inline constexpr int Ok = 1;
inline constexpr int Cancel = 2;
inline constexpr int Retry = 4;
inline constexpr int Yes = 6;
inline constexpr int No = 7;
}  // namespace box_result

struct MessageBox {
  std::string text;
  int style = box_style::Ok;
  std::string title;
  std::string helpFile;
  int helpContext = 0;
  std::vector<std::string> captions = {};  // of its buttons in their order, where they differ from the usual ones
};

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  // Shows the box, waits for its answer and gives the button's code (box_result).
  virtual int Show(const MessageBox& box) = 0;
};

}  // namespace orby
