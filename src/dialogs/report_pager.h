// Shows one page of the report and which one it is, with buttons for the next page, the previous page and copying.
#pragma once

#include <string_view>

#include "controls/controls.h"
#include "core/program.h"

namespace orby {

// Captions of the buttons in the report's windows.
namespace page_caption {
inline constexpr std::string_view Next = "&Next Page";
inline constexpr std::string_view Previous = "P&revious Page";
inline constexpr std::string_view Copy = "&Copy Page";
inline constexpr std::string_view Close = "Close";
}  // namespace page_caption

// The controls of a window for the pages.
struct PageControls {
  TextBox& View;
  Label& Position;  // such as "Page 1 of 2"
  Button& Next;
  Button& Previous;
  Button& Copy;
};

class ReportPager {
 public:
  // Connects the controls of a window. They must outlive the pager.
  ReportPager(Program& program, const PageControls& controls);

  // Shows page 0, or this one if the report has it.
  void Restart(Integer page = 0);
  // Shows the current page from its top.
  void Loadbuffer();
  Integer Page() const { return page_; }

 private:
  void Turn(Integer pages);
  void CopyPage();

  Program& program_;
  PageControls controls_;
  Integer page_ = 0;
};

}  // namespace orby
