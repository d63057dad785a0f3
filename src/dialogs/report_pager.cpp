#include "dialogs/report_pager.h"

#include "base/number_text.h"
#include "core/messages.h"
#include "reports/printing.h"

namespace orby {
namespace {

constexpr int ReportFontSize = 10;  // points

}  // namespace

ReportPager::ReportPager(Program& program, TextBox& view, Button& next, Button& previous, Button& copy)
    : program_(program), view_(view), next_(next), previous_(previous) {
  view_.SetFont({"Courier New", ReportFontSize});
  next_.Click = [this] { Turn(1); };
  previous_.Click = [this] { Turn(-1); };
  copy.Click = [this] { CopyPage(); };
}

void ReportPager::Restart() {
  page_ = 0;
  Turn(0);
}

void ReportPager::Turn(Integer pages) {
  page_ = static_cast<Integer>(page_ + pages);
  Loadbuffer();
  next_.SetEnabled(page_ < program_.windows.LastPage);
  previous_.SetEnabled(page_ > 0);
}

void ReportPager::Loadbuffer() {
  view_.SetText(JoinedPages(program_.session, page_, page_));
  view_.Select(0, 0);
}

void ReportPager::CopyPage() {
  program_.platform.clipboard.Clear();
  program_.platform.clipboard.SetText(JoinedPages(program_.session, page_, page_));
  AddHistoryLine(program_, "Page " + NumberText(page_) + " copied to clipboard");
}

}  // namespace orby
