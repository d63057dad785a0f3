#include "sheet/signed_report.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "base/text.h"
#include "reports/verdict_text.h"
#include "sheet/cell_grid.h"
#include "sheet/page_parts.h"
#include "sheet/sheet_blocks.h"
#include "sheet/sheet_content.h"
#include "sheet/sheet_writer.h"

namespace orby {
namespace {

constexpr TextStyle Subheading{.Size = 10.5, .IsBold = true};
constexpr double LargestPicture = 0.45;  // of the height of the text

// The sign of a judgement stands left of it.
constexpr std::array<PageColumn, 4> JudgedColumns{
    {{0.03, 0.365}, {0.37, 0.475, Anchor::End}, {0.495, 0.71}, {0.72, 1}}};

// Takes the results of a section from WriteParts.
class ResultRows {
 public:
  ResultRows(std::vector<PageBlock>& blocks, const PageParts& parts, UnitSystem units)
      : blocks_(blocks), parts_(parts), units_(units) {}

  void Inputs(const std::vector<const SheetInput*>& inputs) {
    for (const SheetInput* input : inputs) Row({std::string(input->Label), WithUnit(input->Text, input->Unit), "", ""});
  }

  // Steps that the program shows nowhere are intermediate results. The report prints 0 for some that it cannot compute.
  void Step(const SheetStep& step, const std::string&) {
    if (step.Shown.empty() && step.Failure.empty()) return;
    const auto reported = std::ranges::find(step.Shown, InReport, &ShownResult::Where);
    const bool isReported = reported != step.Shown.end();
    std::string value;
    if (!step.Shown.empty()) value = isReported ? reported->Text : step.Shown.front().Text;
    std::string remark;
    if (!step.Failure.empty()) {
      remark = FailureText(step);
    } else if (!isReported) {
      remark = "not in the report";
    }
    Row({step.Title, std::move(value), "", std::move(remark)});
  }

  void Judgement(const SheetJudgement& judgement) {
    VerdictCells cells = CellsOf(judgement.Judged, units_);
    Row({std::move(cells.Subject), std::move(cells.Supply), std::move(cells.Limit), std::move(cells.Result)},
        &judgement.Judged);
  }

  void Table(const SheetTable&) {}
  void Remark(const SheetRemark& remark) {
    blocks_.push_back(parts_.Paragraph(remark.Text, page_style::Usual, 4));
    isTable_ = false;
  }

 private:
  void Row(const std::vector<std::string>& cells, const Verdict* verdict = nullptr) {
    if (!isTable_) {
      blocks_.push_back(parts_.HeadRow(JudgedColumns, {"Result", "Value", "Limit", "Judgement"}, 2));
      head_ = blocks_.back().Box;
      isTable_ = true;
    }
    PageBlock row = parts_.Row(JudgedColumns, cells, page_style::Usual);
    if (verdict != nullptr) {
      FormulaBox sign = Placed(SignOf(verdict->Result), {0, 3 + page_style::Usual.Size * 0.74});
      std::ranges::move(sign.Lines, std::back_inserter(row.Box.Lines));
    }
    row.Head = {head_};
    blocks_.push_back(std::move(row));
  }

  std::vector<PageBlock>& blocks_;
  const PageParts& parts_;
  UnitSystem units_;
  FormulaBox head_;
  bool isTable_ = false;
};

enum class SectionKind { Inputs, CostInputs, Results, Cost };

SectionKind KindOf(const SheetSection& section) {
  if (section.Key == "inputs-cost") return SectionKind::CostInputs;
  if (section.Key.starts_with("inputs-")) return SectionKind::Inputs;
  return section.Key == "cost" ? SectionKind::Cost : SectionKind::Results;
}

// Returns all judgements of the sheet, the worst first.
std::vector<const SheetJudgement*> JudgementsOf(const DesignSheet& sheet) {
  std::vector<const SheetJudgement*> all;
  for (const SheetSection& section : sheet.Sections) {
    for (const SheetPart& part : section.Parts) {
      if (const auto* judgement = std::get_if<SheetJudgement>(&part)) all.push_back(judgement);
    }
  }
  std::ranges::stable_sort(all, std::ranges::greater{}, [](const SheetJudgement* one) { return one->Judged.Result; });
  return all;
}

class ReportPages {
 public:
  ReportPages(const SignedReport& report, const PageSize& size, const TextWidth& width)
      : report_(report), size_(size), parts_(PageFlow(size).TextWidth(), width) {}

  PagedSheet Make() {
    AddTitle();
    AddSummary();
    AddPictures("Drawings", report_.Drawings);
    AddInputs();
    AddResults();
    AddPictures("Curves", report_.Curves);
    if (report_.HasCost) AddCost();
    AddRemarks();
    AddSignatures();
    if (report_.HasSheet) AddSheet();
    PageFlow flow(size_);
    flow.Place(blocks_);
    PagedSheet pages = flow.Take();
    AddFeet(pages.Pages, FootText(), parts_.Measure());
    return pages;
  }

 private:
  void Append(std::vector<PageBlock> blocks) { std::ranges::move(blocks, std::back_inserter(blocks_)); }

  void AddHeading(const std::string& title) {
    const std::string numbered = std::to_string(++number_) + "  " + title;
    blocks_.push_back(parts_.Heading(numbered, page_style::Heading, 20, numbered));
  }

  void AddSubheading(std::string_view title) { blocks_.push_back(parts_.Heading(title, Subheading, 12, {})); }

  std::string FootText() const {
    std::string foot = SheetHeading(report_.Sheet);
    if (!report_.Titles.Revision.empty()) foot += ", revision " + report_.Titles.Revision;
    return foot + ", " + report_.Date;
  }

  void AddTitle() {
    blocks_.push_back(parts_.Paragraph("Roof support design report", page_style::Small, 0));
    blocks_.push_back(parts_.Paragraph(SheetHeading(report_.Sheet), page_style::Title, 4));
    const TitleBlock& titles = report_.Titles;
    CellGrid grid(parts_);
    grid.Row({{"Company", titles.Company, 0.5}, {"Mine", titles.Mine, 0.5}});
    grid.Row({{"Section", titles.Section, 0.5}, {"Revision", titles.Revision, 0.25}, {"Date", report_.Date, 0.25}});
    grid.Row({{"Author", titles.Author, 0.5}, {"Checker", titles.Checker, 0.5}});
    const std::vector<TitleFact> facts = TitleFacts(report_.Sheet);
    for (std::size_t i = 0; i < facts.size(); ++i) {
      const bool hasNext = i + 1 < facts.size() && IsShort(facts[i]) && IsShort(facts[i + 1]);
      std::vector<CellGrid::Cell> row{{std::string(facts[i].Label), facts[i].Text, hasNext ? 0.5 : 1}};
      if (hasNext) {
        ++i;
        row.push_back({std::string(facts[i].Label), facts[i].Text, 0.5});
      }
      grid.Row(row);
    }
    blocks_.push_back(grid.Take());
    blocks_.back().Before = 8;
    for (const std::string& line : LinesOf(report_.Sheet.Project.Description)) {
      blocks_.push_back(parts_.Paragraph(line, page_style::Usual, 5));
    }
  }

  bool IsShort(const TitleFact& fact) const {
    return parts_.Measure()(fact.Text, page_style::Usual) < 0.47 * parts_.Across();
  }

  void AddSummary() {
    AddHeading("Summary");
    Verdicts verdicts;
    const std::vector<const SheetJudgement*> judgements = JudgementsOf(report_.Sheet);
    for (const SheetJudgement* judgement : judgements) verdicts.Add(judgement->Judged);
    blocks_.push_back(parts_.Paragraph("Judgements: " + VerdictCounts(verdicts) + ".", page_style::Strong, 0));
    ResultRows rows(blocks_, parts_, report_.Sheet.Units);
    for (const SheetJudgement* judgement : judgements) rows.Judgement(*judgement);
  }

  void AddPictures(const std::string& title, const std::vector<ReportPicture>& pictures) {
    if (pictures.empty()) return;
    AddHeading(title);
    for (const ReportPicture& picture : pictures) blocks_.push_back(PictureBlock(picture));
  }

  PageBlock PictureBlock(const ReportPicture& picture) const {
    Stack stack;
    parts_.AddWrapped(stack, picture.Caption, Subheading, 0, parts_.Across(), 0);
    stack.Space(6);
    if (!picture.Failure.empty()) {
      parts_.AddWrapped(stack, picture.Failure, page_style::Usual, 0, parts_.Across(), 0);
    } else {
      const double room = LargestPicture * (size_.Height - 2 * PageMargin);
      const PlacedScene placed = InRoom(picture.Picture, parts_.Across(), room);
      stack.AddAt(placed.Box, {0, stack.Height()});
      stack.Space(placed.Height);
    }
    PageBlock block = stack.Take();
    block.Before = 14;
    return block;
  }

  void AddInputs() {
    AddHeading("Inputs");
    for (const SheetSection& section : report_.Sheet.Sections) {
      const SectionKind kind = KindOf(section);
      if (kind != SectionKind::Inputs && !(kind == SectionKind::CostInputs && report_.HasCost)) continue;
      std::vector<const SheetInput*> inputs;
      for (const SheetPart& part : section.Parts) {
        if (const auto* input = std::get_if<SheetInput>(&part)) inputs.push_back(input);
      }
      if (inputs.empty()) continue;
      constexpr std::string_view Prefix = "Inputs: ";
      std::string_view title = section.Title;
      if (title.starts_with(Prefix)) title.remove_prefix(Prefix.size());
      AddSubheading(Capitalised(title));
      Append(InputBlocks(inputs, parts_));
    }
  }

  void AddResults() {
    AddHeading("Results");
    for (const SheetSection& section : report_.Sheet.Sections) {
      if (KindOf(section) != SectionKind::Results) continue;
      const std::size_t first = blocks_.size();
      AddSubheading(section.Title);
      ResultRows rows(blocks_, parts_, report_.Sheet.Units);
      WriteParts(section, 0, rows);
      KeepTogether(first);
    }
  }

  // A short table stays on one page.
  void KeepTogether(std::size_t first) {
    constexpr std::size_t Most = 12;
    if (blocks_.size() - first > Most) return;
    for (std::size_t i = first; i + 1 < blocks_.size(); ++i) blocks_[i].KeepsNext = true;
  }

  void AddCost() {
    AddHeading("Cost of bolting");
    for (const SheetSection& section : report_.Sheet.Sections) {
      if (KindOf(section) != SectionKind::Cost) continue;
      for (const SheetPart& part : section.Parts) {
        if (const auto* table = std::get_if<SheetTable>(&part)) Append(TableBlocks(*table, parts_));
        if (const auto* remark = std::get_if<SheetRemark>(&part)) {
          blocks_.push_back(parts_.Paragraph(remark->Text, page_style::Usual, 4));
        }
        const auto* step = std::get_if<SheetStep>(&part);
        if (step != nullptr && !step->Failure.empty()) {
          blocks_.push_back(parts_.Paragraph(step->Title + " " + FailureText(*step), page_style::Usual, 4));
        }
      }
    }
  }

  void AddRemarks() {
    const std::vector<std::string> lines = LinesOf(report_.Remarks);
    if (lines.empty()) return;
    AddHeading("Remarks");
    for (const std::string& line : lines) blocks_.push_back(parts_.Paragraph(line, page_style::Usual, 4));
  }

  void AddSignatures() {
    AddHeading("Signatures");
    constexpr double Third = 1.0 / 3;
    CellGrid grid(parts_);
    grid.Row({{"Designed by", report_.Titles.Author, Third},
              {"Checked by", report_.Titles.Checker, Third},
              {"Approved by", "", Third}});
    const CellGrid::Cell signature{"Signature", {}, Third, 40};
    grid.Row({signature, signature, signature});
    grid.Row({{"Date", "", Third}, {"Date", "", Third}, {"Date", "", Third}});
    blocks_.push_back(grid.Take());
  }

  void AddSheet() {
    const std::string title = "Appendix: calculation sheet";
    blocks_.push_back(parts_.Heading(title, page_style::Title, 0, title));
    blocks_.back().StartsPage = true;
    Append(SheetBlocks(report_.Sheet, parts_));
  }

  const SignedReport& report_;
  PageSize size_;
  PageParts parts_;
  std::vector<PageBlock> blocks_;
  int number_ = 0;
};

}  // namespace

PagedSheet PagesOf(const SignedReport& report, const PageSize& size, const TextWidth& width) {
  return ReportPages(report, size, width).Make();
}

}  // namespace orby
