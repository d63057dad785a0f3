// The window with the signed report of the project: what it says and holds, and its pages as they will be printed.
#pragma once

#include <array>

#include "controls/controls.h"
#include "core/program_form.h"
#include "dialogs/pages_box.h"
#include "dialogs/signed_report_maker.h"
#include "sheet/signed_report.h"

namespace orby {

class SignedReportWindow : public ProgramForm {
 public:
  TabSet tabReport{*this, "tabReport", {"&Title Block", "Co&ntents"}};

  // title block
  LabelledBox txtCompany{*this, "txtCompany", TextKind::Free, "Company"};
  LabelledBox txtMine{*this, "txtMine", TextKind::Free, "Mine"};
  LabelledBox txtSection{*this, "txtSection", TextKind::Free, "Section"};
  LabelledBox txtAuthor{*this, "txtAuthor", TextKind::Free, "Author"};
  LabelledBox txtChecker{*this, "txtChecker", TextKind::Free, "Checker"};
  LabelledBox txtRevision{*this, "txtRevision", TextKind::Free, "Revision"};
  LabelledBox txtRemarks{*this, "txtRemarks", TextKind::Free, "Remarks"};

  // contents
  CheckBox chkDrawings{*this, "chkDrawings", "&Drawings"};
  CheckBox chkCost{*this, "chkCost", "Cost of &bolting"};
  CheckBox chkSheet{*this, "chkSheet", "Calculation &sheet as an appendix"};
  Frame fraCurves{*this, "fraCurves", "Curves"};
  std::array<CheckBox, 10> chkCurves{CurveBox("chkCurve_0", 0), CurveBox("chkCurve_1", 1), CurveBox("chkCurve_2", 2),
                                     CurveBox("chkCurve_3", 3), CurveBox("chkCurve_4", 4), CurveBox("chkCurve_5", 5),
                                     CurveBox("chkCurve_6", 6), CurveBox("chkCurve_7", 7), CurveBox("chkCurve_8", 8),
                                     CurveBox("chkCurve_9", 9)};
  Label lblPaper{*this, "lblPaper", "Paper"};
  OptionArray optPaper{*this, "optPaper", {{"A&4"}, {"&Letter"}}};

  // preview
  PagesBox picSmall{*this, "picSmall", "Pages of the signed report, small", PagesUse::Choosing};
  PagesBox picPages{*this, "picPages", "Pages of the signed report"};
  Label lblPage{*this, "lblPage", ""};

  // commands
  Button cmdPrint{*this, "cmdPrint", "P&rint...", [this] { Print(); }};
  Button cmdSaveAs{*this, "cmdSaveAs", "Save as &PDF...", [this] { SaveAs(); }};
  Button cmdClose{*this, "cmdClose", "Close", [this] { Close(); }};
  Button cmdHelp{*this, "cmdHelp", "&Help", [this] { ShowHelp(); }};

  explicit SignedReportWindow(Program& program);

 protected:
  void OnOpen() override;
  void OnClose() override;

 private:
  CheckBox CurveBox(std::string_view name, Integer index);
  void TieFields();
  void ShowSettings();
  // Takes the fields and makes the pages anew.
  void FollowFields();
  void MakePages();
  void ShowPage();
  void Print();
  void SaveAs();
  std::string Name() const;

  SignedReportSettings& Settings() const { return program_.session.signedReport; }

  SignedReportMaker maker_{program_};
  PagedSheet paged_;
  bool isReady_ = false;  // the fields show the settings
};

// Shows the report of the project until the user closes the window. Throws as SheetOfProject does.
void ShowSignedReport(Program& program);

}  // namespace orby
