#include "dialogs/side_by_side_window.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "base/text.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/compared_pictures.h"
#include "dialogs/project_sheet.h"
#include "dialogs/save_in_format.h"
#include "engine/curves.h"
#include "files/save_command.h"

namespace orby {
namespace {

// Few designs have wide columns.
constexpr std::size_t FewDesigns = 4;
constexpr int WideColumn = 2000;         // twips
constexpr std::size_t LongestHead = 22;  // characters of a name over its column
constexpr std::size_t LongestOfMany = 14;
constexpr std::string_view RowIndent = "   ";
constexpr std::string_view FileName = "designs side by side";

}  // namespace

SideBySideWindow::SideBySideWindow(Program& program) : ProgramForm(program, "frmSideBySide", "Side by Side") {
  lstDesigns.Click = [this] { ShowUse(); };
  lstVariants.Click = [this] {
    if (const KeptVariant* variant = MarkedVariant()) txtName.SetText(variant->Name);
    ShowUse();
  };
  optUnits.Click = [this](Integer) { Compare(); };
  cmbCurve.Change = [this] { picCurves.Outdate(); };
  picSections.Make = [this](const SheetSize& sheet) {
    return SectionsSketch(designs_, comparison_.Names, program_.session.catalogs, sheet);
  };
  picCurves.Make = [this](const SheetSize& sheet) { return CurvesOn(sheet); };
  for (Drawing* drawing : {&picSections, &picCurves}) {
    drawing->Resize = [drawing] { drawing->Outdate(); };
    drawing->Command = [this, drawing](DrawingCommand command) { RunDrawingCommand(program_, *drawing, command); };
  }
}

void SideBySideWindow::OnOpen() {
  grdTable.SetStretchedColumn(0);
  std::vector<ComboItem> curves;
  curves.reserve(CurveCount);
  for (Integer i = 0; i < CurveCount; ++i) curves.push_back({.text = std::string(SubjectOfCurve(i).Name), .mark = {}});
  cmbCurve.Fill(std::move(curves));
  cmbCurve.SetListIndex(0);
  ShowVariants(0);
  optUnits.SetValue(program_.project.WorkParms.Units == Metric ? 1 : 0, true);
  Refresh(0);
  RequestFocus(cmdAddFile);
  program_.platform.windows.CenterForm(*this);
}

KeptVariant* SideBySideWindow::MarkedVariant() const {
  std::vector<KeptVariant>& variants = Compared().Variants;
  const int row = lstVariants.ListIndex();
  return row < 0 || static_cast<std::size_t>(row) >= variants.size() ? nullptr
                                                                     : &variants[static_cast<std::size_t>(row)];
}

// ---- the designs ---------------------------------------------------------------------------------------------------

void SideBySideWindow::Add(const ComparedSource& source) {
  ComparedDesigns& compared = Compared();
  if (!HasRoom(compared)) return;
  const auto report = [this](const std::string& text) { ShowMessage(program_, text, BoxIcon::Exclamation, Caption()); };
  if (IsCompared(compared, source)) return report(NameOf(program_, source) + " is compared already.");
  const ComparedDesign design = ReadCompared(program_, source);
  if (!design.Row.IsRead()) return report(design.Row.File + ": " + design.Row.Reason);
  compared.Chosen.push_back(source);
  Refresh(static_cast<int>(compared.Chosen.size()) - 1);
}

void SideBySideWindow::AddFile() {
  FileQuestion question = ProjectFileQuestion(program_, {});
  question.title = "Compare a Design";
  std::string path;
  const auto asked = RunTrapped(program_, [&] { path = program_.platform.fileDialogs.AskOpenName(question); });
  if (asked == StepOutcome::Done) Add({.Variant = 0, .File = path});
}

void SideBySideWindow::AddVariant() {
  if (const KeptVariant* variant = MarkedVariant()) Add({.Variant = variant->Number, .File = {}});
}

void SideBySideWindow::Remove() {
  std::vector<ComparedSource>& chosen = Compared().Chosen;
  const int row = lstDesigns.ListIndex();
  if (row < 0 || static_cast<std::size_t>(row) >= chosen.size()) return;
  chosen.erase(chosen.begin() + row);
  Refresh(std::min(row, static_cast<int>(chosen.size()) - 1));
}

void SideBySideWindow::Rename() {
  KeptVariant* variant = MarkedVariant();
  if (variant == nullptr) return;
  const std::string name(Trim(txtName.Text()));
  if (name.empty()) {
    ShowMessage(program_, "A variant needs a name.", BoxIcon::Exclamation, Caption());
    return RequestFocus(txtName);
  }
  variant->Name = name;
  ShowVariants(lstVariants.ListIndex());
  Refresh(lstDesigns.ListIndex());
}

void SideBySideWindow::Forget() {
  const KeptVariant* variant = MarkedVariant();
  if (variant == nullptr) return;
  const int row = lstVariants.ListIndex();
  const BoxResult answer = ShowMessage(program_, "Forget " + variant->Name + "? It is in no file.",
                                       {BoxButtons::YesNo, BoxIcon::Question, BoxDefault::SecondButton}, Caption());
  if (answer != BoxResult::Yes) return;
  ForgetVariant(Compared(), variant->Number);
  ShowVariants(std::min(row, static_cast<int>(Compared().Variants.size()) - 1));
  Refresh(0);
}

// ---- what is shown -------------------------------------------------------------------------------------------------

void SideBySideWindow::Refresh(int marked) {
  designs_ = ReadAllCompared(program_);
  Compare();
  std::vector<ComboItem> items;
  items.reserve(designs_.size());
  for (std::size_t i = 0; i < designs_.size(); ++i) {
    items.push_back({.text = NumberText(static_cast<double>(i + 1)) + "  " + IdentityLine(comparison_, i), .mark = {}});
  }
  lstDesigns.Fill(std::move(items));
  if (marked >= 0 && static_cast<std::size_t>(marked) < designs_.size()) lstDesigns.PointAt(marked);
  ShowUse();
}

void SideBySideWindow::ShowVariants(int marked) {
  const std::vector<KeptVariant>& variants = Compared().Variants;
  lstVariants.Fill(ItemsNamed(variants, &KeptVariant::Name));
  const bool hasMarked = marked >= 0 && static_cast<std::size_t>(marked) < variants.size();
  if (hasMarked) lstVariants.PointAt(marked);
  txtName.SetText(hasMarked ? variants[static_cast<std::size_t>(marked)].Name : std::string());
  ShowUse();
}

void SideBySideWindow::Compare() {
  comparison_ = CompareDesigns(designs_, Units());
  ShowTable();
  picSections.Outdate();
  picCurves.Outdate();
}

void SideBySideWindow::ShowTable() {
  std::vector<std::string> heads{"Design"};
  heads.reserve(comparison_.Names.size() + 1);
  const bool areFew = comparison_.Names.size() <= FewDesigns;
  for (const std::string& name : comparison_.Names) {
    heads.push_back(Shortened(name, areFew ? LongestHead : LongestOfMany));
  }
  std::vector<int> widths(heads.size(), areFew ? WideColumn : 0);
  widths.front() = 0;
  grdTable.SetColumnWidths(std::move(widths));
  std::vector<std::vector<std::string>> rows{std::move(heads)};
  for (const ComparedSection& section : comparison_.Sections) {
    std::vector<std::string> title(comparison_.Names.size() + 1);
    title.front() = section.Title;
    bool hasTitle = false;
    for (const ComparedRow& row : section.Rows) {
      if (IsIdentity(row)) continue;
      if (!std::exchange(hasTitle, true)) rows.push_back(title);
      std::vector<std::string>& cells = rows.emplace_back();
      cells.reserve(row.Cells.size() + 1);
      cells.push_back(std::string(RowIndent) + row.Head);
      for (const ComparedCell& cell : row.Cells) cells.push_back(MarkedText(cell));
    }
  }
  grdTable.SetRows(std::move(rows), 1);
}

void SideBySideWindow::ShowUse() {
  const ComparedDesigns& compared = Compared();
  const bool hasRoom = HasRoom(compared);
  const bool hasEnough = designs_.size() >= FewestCompared;
  const KeptVariant* variant = MarkedVariant();
  cmdAddFile.SetEnabled(hasRoom);
  cmdAddProject.SetEnabled(hasRoom && !IsCompared(compared, {}));
  cmdRemove.SetEnabled(lstDesigns.ListIndex() >= 0);
  cmdAddVariant.SetEnabled(hasRoom && variant != nullptr &&
                           !IsCompared(compared, {.Variant = variant->Number, .File = {}}));
  for (Control* control : std::initializer_list<Control*>{&cmdForget, &txtName, &cmdRename}) {
    control->SetEnabled(variant != nullptr);
  }
  for (Button* button : {&cmdPrint, &cmdSaveAs, &cmdCopy}) button->SetEnabled(hasEnough);
  if (!hasEnough) return lblState.SetCaption("Add designs: two at least are compared, and eight at most.");
  lblState.SetCaption(NumberText(static_cast<double>(designs_.size())) +
                      " designs. The word best marks the better value of a row.");
}

Sketch SideBySideWindow::CurvesOn(const SheetSize& sheet) const {
  return CurvesSketch(designs_, comparison_.Names, Curve(), Units(), sheet);
}

// ---- outputs -------------------------------------------------------------------------------------------------------

PrintedComparison SideBySideWindow::Printed() const {
  constexpr SheetSize SectionSheet{240, 150};
  constexpr SheetSize CurveSheet{800, 560};
  PrintedComparison printed{.Table = comparison_,
                            .Sections = {},
                            .CurveTitle = std::string(SubjectOfCurve(Curve()).Name),
                            .Curves = CurvesOn(CurveSheet).Picture,
                            .Date = PaperOf(program_).Date};
  printed.Sections.reserve(designs_.size());
  for (const ComparedDesign& design : designs_) {
    printed.Sections.push_back(SectionOf(design, program_.session.catalogs, SectionSheet));
  }
  return printed;
}

PagedSheet SideBySideWindow::Pages() const { return PagesOf(Printed(), PaperOf(program_).Size, WidthsOf(program_)); }

void SideBySideWindow::Print() {
  PrintPages(program_, Pages().Pages, std::string(FileName), "Printing Designs Side by Side");
}

void SideBySideWindow::SaveAs() {
  const auto pdf = [this] { return PagesAsPdf(program_, Pages(), std::string(ComparisonTitle)); };
  const auto workbook = [this](const std::string& path) { WriteComparisonWorkbook(comparison_, path); };
  const std::string path = SaveInFormat(program_, "Save Comparison", std::string(FileName),
                                        {{"Document", "pdf", pdf},
                                         {"Spreadsheet", "xlsx", {}, workbook},
                                         {"Web Page", "html", [this] { return ComparisonHtml(Printed()); }}});
  if (!path.empty()) AddHistoryLine(program_, "Comparison saved as: " + path);
}

void SideBySideWindow::Copy() { program_.platform.clipboard.SetText(grdTable.AsText()); }

void ShowSideBySide(Program& program) {
  SideBySideWindow window(program);
  ShowForm(program, window);
}

}  // namespace orby
