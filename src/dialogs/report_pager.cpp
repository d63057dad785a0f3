#include "dialogs/report_pager.h"

#include "base/number_text.h"
#include "core/messages.h"
#include "reports/printing.h"

namespace orby {
namespace {

constexpr int ReportFontSize = 10;  // points

}  // namespace

ReportPager::ReportPager(Program& program, const PageControls& controls) : program_(program), controls_(controls) {
  controls_.View.SetFont({"Courier New", ReportFontSize});
  controls_.Next.Click = [this] { Turn(1); };
  controls_.Previous.Click = [this] { Turn(-1); };
  controls_.Copy.Click = [this] { CopyPage(); };
}

void ReportPager::Restart(Integer page) {
  page_ = page <= program_.windows.LastPage ? page : Integer{0};
  Turn(0);
}

void ReportPager::Turn(Integer pages) {
  page_ = static_cast<Integer>(page_ + pages);
  Loadbuffer();
  // People count pages from 1.
  controls_.Position.SetCaption("Page " + NumberText(page_ + 1) + " of " + NumberText(program_.windows.LastPage + 1));
  controls_.Next.SetEnabled(page_ < program_.windows.LastPage);
  controls_.Previous.SetEnabled(page_ > 0);
}

void ReportPager::Loadbuffer() {
  controls_.View.SetText(JoinedPages(program_.session, page_, page_));
  controls_.View.Select(0, 0);
}

void ReportPager::CopyPage() {
  program_.platform.clipboard.Clear();
  program_.platform.clipboard.SetText(JoinedPages(program_.session, page_, page_));
  AddHistoryLine(program_, "Page " + NumberText(page_) + " copied to clipboard");
}

}  // namespace orby
