// One page of the report on view, with the buttons that go to its neighbours and the one that copies it.
#pragma once

#include <string_view>

#include "controls/controls.h"
#include "core/program.h"

namespace orby {

// What the buttons of the report's windows are called.
namespace page_caption {
inline constexpr std::string_view Next = "&Next Page";
inline constexpr std::string_view Previous = "P&revious Page";
inline constexpr std::string_view Copy = "&Copy Page";
inline constexpr std::string_view Close = "Close";
}  // namespace page_caption

class ReportPager {
 public:
  // Makes the controls of a window, which must outlive the pager, do what they are for.
  ReportPager(Program& program, TextBox& view, Button& next, Button& previous, Button& copy);

  // Goes back to page 0.
  void Restart();
  // Puts the page on view, from its top.
  void Loadbuffer();
  Integer Page() const { return page_; }

 private:
  void Turn(Integer pages);
  void CopyPage();

  Program& program_;
  TextBox& view_;
  Button& next_;
  Button& previous_;
  Integer page_ = 0;
};

}  // namespace orby
