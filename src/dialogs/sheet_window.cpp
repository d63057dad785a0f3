#include "dialogs/sheet_window.h"

#include "base/text.h"
#include "base/text_search.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/save_in_format.h"
#include "reports/printing.h"
#include "sheet/sheet_html.h"
#include "sheet/sheet_json.h"
#include "sheet/sheet_markdown.h"
#include "sheet/sheet_text.h"

namespace orby {
namespace {

constexpr double SpaceAbove = 24;  // points, above a place that is shown

bool Has(const SceneLabel& label, std::string_view wanted) {
  const std::string_view text = label.Text;
  return TextSearch(wanted, text.size(), 0, TextSearch::Direction::Forward).Next(text, text.size()).has_value();
}

// Returns the place after one, from label to label and from page to page, around the end.
PagesBox::Found After(const std::vector<Scene>& pages, PagesBox::Found at) {
  ++at.Label;
  while (at.Label >= pages[at.Page].Labels.size()) at = {(at.Page + 1) % pages.size(), 0};
  return at;
}

}  // namespace

SheetWindow::SheetWindow(Program& program, DesignSheet sheet)
    : ProgramForm(program, "frmSheet", "Calculation Sheet"), sheet_(std::move(sheet)) {
  lstContents.Click = [this] {
    const PageEntry& entry = paged_.Contents.at(static_cast<std::size_t>(lstContents.ListIndex()));
    picPages.GoTo({entry.Page, entry.Top - SpaceAbove});
  };
  picPages.PageChanged = [this] { ShowPageNumber(); };
  cmdFind.Click = [this] { FindNext(); };
  txtFind.Change = [this] {
    picPages.Mark(std::nullopt);
    lblFound.SetCaption("");
  };
  optPaper.Click = [this](Integer) {
    TakePaper(program_, optPaper);
    if (!paged_.Pages.empty()) MakePages();
  };
  cmdPrint.Click = [this] { Print(); };
  cmdSaveAs.Click = [this] { SaveAs(); };
  cmdCopy.Click = [this] { program_.platform.clipboard.SetText(SheetText(sheet_)); };
}

void SheetWindow::OnOpen() {
  ShowPaper(program_, optPaper);
  MakePages();
  program_.platform.windows.CenterForm(*this);
}

void SheetWindow::MakePages() {
  paged_ = PagesOfSheet(program_, sheet_, PaperOf(program_));
  std::vector<ComboItem> entries;
  for (const PageEntry& entry : paged_.Contents) entries.push_back({.text = entry.Title, .mark = {}});
  lstContents.Fill(std::move(entries));
  picPages.Mark(std::nullopt);
  picPages.Fill(paged_.Pages);
  ShowPageNumber();
}

void SheetWindow::ShowPageNumber() {
  lblPage.SetCaption("Page " + std::to_string(picPages.PageOnView() + 1) + " of " +
                     std::to_string(paged_.Pages.size()));
}

void SheetWindow::FindNext() {
  const std::string wanted(Trim(txtFind.Text()));
  if (wanted.empty()) return RequestFocus(txtFind);
  // Without a mark the search begins at the first label.
  PagesBox::Found at =
      picPages.Marked().value_or(PagesBox::Found{paged_.Pages.size() - 1, paged_.Pages.back().Labels.size()});
  std::size_t left = 0;
  for (const Scene& page : paged_.Pages) left += page.Labels.size();
  for (; left > 0; --left) {
    at = After(paged_.Pages, at);
    const SceneLabel& label = paged_.Pages[at.Page].Labels[at.Label];
    if (!Has(label, wanted)) continue;
    picPages.Mark(at);
    picPages.GoTo({at.Page, label.At.Y - label.Size - SpaceAbove});
    return lblFound.SetCaption("");
  }
  picPages.Mark(std::nullopt);
  lblFound.SetCaption("Not found");
}

std::string SheetWindow::Name() const { return PrintedName(program_.project) + " calculation sheet"; }

void SheetWindow::Print() { PrintPages(program_, paged_.Pages, Name(), "Printing Calculation Sheet"); }

void SheetWindow::SaveAs() {
  const std::string path =
      SaveInFormat(program_, "Save Calculation Sheet", Name(),
                   {{"Document", "pdf", [&] { return SheetAsPdf(program_, sheet_, PaperOf(program_)); }},
                    {"Web Page", "html", [&] { return SheetHtml(sheet_); }},
                    {"Markdown", "md", [&] { return SheetMarkdown(sheet_); }},
                    {"Text", "txt", [&] { return SheetText(sheet_); }},
                    {"Data", "json", [&] { return SheetJson(sheet_); }}});
  if (!path.empty()) AddHistoryLine(program_, "Calculation sheet saved as: " + path);
}

void ShowSheet(Program& program, DesignSheet sheet) {
  SheetWindow window(program, std::move(sheet));
  ShowForm(program, window);
}

}  // namespace orby
