#include "dialogs/signed_report_window.h"

#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/project_sheet.h"
#include "dialogs/save_in_format.h"
#include "engine/curves.h"
#include "reports/printing.h"

namespace orby {
namespace {

using Fields = SignedReportWindow;

struct TitleBox {
  LabelledBox Fields::*Box;
  std::string TitleBlock::*Text;
};
constexpr std::array<TitleBox, 6> TitleBoxes{{{&Fields::txtCompany, &TitleBlock::Company},
                                              {&Fields::txtMine, &TitleBlock::Mine},
                                              {&Fields::txtSection, &TitleBlock::Section},
                                              {&Fields::txtAuthor, &TitleBlock::Author},
                                              {&Fields::txtChecker, &TitleBlock::Checker},
                                              {&Fields::txtRevision, &TitleBlock::Revision}}};

struct PartBox {
  CheckBox Fields::*Box;
  bool SignedReportSettings::*Part;
};
constexpr std::array<PartBox, 3> PartBoxes{{{&Fields::chkDrawings, &SignedReportSettings::HasDrawings},
                                            {&Fields::chkCost, &SignedReportSettings::HasCost},
                                            {&Fields::chkSheet, &SignedReportSettings::HasSheet}}};

}  // namespace

SignedReportWindow::SignedReportWindow(Program& program)
    : ProgramForm(program, "frmSignedReport", CaptionWithProject("Signed Report", program.project)) {
  TieFields();
  picPages.PageChanged = [this] { ShowPage(); };
  picSmall.Chosen = [this] { picPages.GoTo({picSmall.PageOnView(), 0}); };
  optPaper.Click = [this](Integer) {
    TakePaper(program_, optPaper);
    FollowFields();
  };
}

CheckBox SignedReportWindow::CurveBox(std::string_view name, Integer index) {
  return CheckBox(*this, name, SubjectOfCurve(index).Name);
}

void SignedReportWindow::TieFields() {
  const auto follow = [this] { FollowFields(); };
  for (const TitleBox& field : TitleBoxes) (this->*field.Box).Change = follow;
  txtRemarks.Change = follow;
  for (const PartBox& part : PartBoxes) (this->*part.Box).Click = follow;
  for (CheckBox& curve : chkCurves) curve.Click = follow;
}

void SignedReportWindow::OnOpen() {
  ShowSettings();
  MakePages();
  picSmall.Fill(paged_.Pages);
  picPages.Fill(paged_.Pages);
  isReady_ = true;
  ShowPage();
  program_.platform.windows.CenterForm(*this);
}

// Remarks are about one project. Another one starts without them.
void SignedReportWindow::ShowSettings() {
  SignedReportSettings& settings = Settings();
  if (settings.RemarksOf != program_.project.CurrentFile) settings.Remarks.clear();
  settings.RemarksOf = program_.project.CurrentFile;
  const SignedReportSettings shown = settings;
  for (const TitleBox& field : TitleBoxes) (this->*field.Box).SetText(shown.Titles.*field.Text);
  txtRemarks.SetText(shown.Remarks);
  for (const PartBox& part : PartBoxes) (this->*part.Box).SetValue(shown.*part.Part ? 1 : 0);
  for (std::size_t i = 0; i < chkCurves.size(); ++i) chkCurves[i].SetValue(shown.HasCurve[i] ? 1 : 0);
  ShowPaper(program_, optPaper);
}

void SignedReportWindow::FollowFields() {
  if (!isReady_) return;
  SignedReportSettings& settings = Settings();
  for (const TitleBox& field : TitleBoxes) settings.Titles.*field.Text = (this->*field.Box).Text();
  settings.Remarks = txtRemarks.Text();
  for (const PartBox& part : PartBoxes) settings.*part.Part = (this->*part.Box).Checked();
  for (std::size_t i = 0; i < chkCurves.size(); ++i) settings.HasCurve[i] = chkCurves[i].Checked();
  MakePages();
  picSmall.Refill(paged_.Pages);
  picPages.Refill(paged_.Pages);
  ShowPage();
}

void SignedReportWindow::MakePages() {
  const SheetPaper paper = PaperOf(program_);
  paged_ = PagesOf(maker_.Make(Settings(), paper.Date), paper.Size, WidthsOf(program_));
}

void SignedReportWindow::ShowPage() {
  const std::size_t page = picPages.PageOnView();
  lblPage.SetCaption("Page " + std::to_string(page + 1) + " of " + std::to_string(paged_.Pages.size()));
  if (picSmall.PageOnView() != page) picSmall.GoTo({page, 0});
}

void SignedReportWindow::OnClose() { KeepSignedReport(program_); }

std::string SignedReportWindow::Name() const { return PrintedName(program_.project) + " report"; }

void SignedReportWindow::Print() { PrintPages(program_, paged_.Pages, Name(), "Printing Signed Report"); }

void SignedReportWindow::SaveAs() {
  const auto bytes = [this] { return PagesAsPdf(program_, paged_, maker_.Title()); };
  const std::string path = SaveInFormat(program_, "Save Signed Report", Name(), {{"Document", "pdf", bytes}});
  if (!path.empty()) AddHistoryLine(program_, "Signed report saved as: " + path);
}

void ShowSignedReport(Program& program) {
  SignedReportWindow window(program);
  ShowForm(program, window);
}

}  // namespace orby
