#include "shell/summary_pane.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/attempt.h"
#include "base/paths.h"
#include "core/description.h"
#include "core/dialog_helpers.h"
#include "dialogs/verdict_marks.h"
#include "engine/verdicts.h"
#include "files/shown_design.h"
#include "reports/verdict_text.h"
#include "sketches/sketches.h"

namespace orby {
namespace {

// Returns the project as a newly opened parameters dialog shows it, or nothing if it cannot be shown.
std::optional<Design> ShownDesign(const Project& project, const Catalogs& catalogs) {
  return OrNothing([&] { return std::optional(AsOpened(project, catalogs)); });
}

std::string UnitsText(const Project& project) {
  if (project.WorkParms.Units != Metric) return "Units: English";
  return UsesAustralianTable(project) ? "Units: Metric, AUS standard table" : "Units: Metric";
}

// The name stands first, so that it can be found by its first letters.
std::string ExampleLine(const Example& example) {
  std::string line(WithoutExtension(NameAfterSeparator(example.Path)));
  return example.Title.empty() ? line : line.append(": ").append(example.Title);
}

void ShowAll(std::initializer_list<Control*> controls, bool visible) {
  for (Control* control : controls) control->SetVisible(visible);
}

void ShowList(Label& label, List& list, std::vector<ComboItem> items) {
  ShowAll({&label, &list}, !items.empty());
  if (!std::ranges::equal(items, list.Items(), {}, &ComboItem::text, &ComboItem::text)) list.Fill(std::move(items));
}

}  // namespace

SummaryPane::SummaryPane(Program& program, SummaryCommands commands)
    : ProgramForm(program, "frmSummary", "Summary"), commands_(std::move(commands)) {
  TieCommands();
}

void SummaryPane::TieCommands() {
  cmdParameters.Click = commands_.Parameters;
  cmdResults.Click = commands_.Results;
  cmdStudy.Click = commands_.Study;
  cmdNew.Click = commands_.New;
  cmdOpen.Click = commands_.Open;
  picDesign.Make = [this](const SheetSize& sheet) {
    if (!shown_) return Sketch();
    return PrimarySketch(*shown_, SketchFiguresOf(*shown_, program_.session.catalogs), sheet);
  };
  picDesign.Resize = [this] { picDesign.Outdate(); };
  picDesign.Command = [this](DrawingCommand command) { RunDrawingCommand(program_, picDesign, command); };
  lstVerdicts.Click = [this] { commands_.Judgement(lstVerdicts.ListIndex()); };
  lstRecent.Click = [this] { commands_.OpenRecent(static_cast<Integer>(lstRecent.ListIndex() + 1)); };
  lstExamples.Click = [this] {
    commands_.OpenFile(examples_.at(static_cast<std::size_t>(lstExamples.ListIndex())).Path);
  };
}

void SummaryPane::Refresh() {
  if (!IsOpen()) return;
  const bool hasProject = !program_.project.FileEmpty;
  shown_ = hasProject ? ShownDesign(program_.project, program_.session.catalogs) : std::nullopt;
  ShowAll({&lblProject, &lblFile, &lblUnits, &cmdParameters, &cmdResults, &cmdStudy, &lblVerdicts}, hasProject);
  ShowAll({&picDesign, &lstVerdicts}, shown_.has_value());
  ShowAll({&lblBegin, &cmdNew, &cmdOpen}, !hasProject);
  if (hasProject) {
    ShowAll({&lblRecent, &lstRecent, &lblExamples, &lstExamples}, false);
    ShowProject();
  } else {
    ShowBeginning();
  }
}

void SummaryPane::ShowProject() {
  const Project& project = program_.project;
  const std::string title = TitleToShow(project);
  lblProject.SetCaption(title.empty() ? NameAfterSeparator(project.CurrentFile) : title);
  lblFile.SetCaption(SetFormCaption("File", project.CurrentFile, project.FileSaved));
  lblUnits.SetCaption(UnitsText(project));
  picDesign.Outdate();
  ShowVerdicts();
}

void SummaryPane::ShowVerdicts() {
  if (!shown_) return lblVerdicts.SetCaption("The parameters of this project cannot be shown.");
  const Verdicts found = Judge(*shown_, Analyze(*shown_, program_.session.catalogs));
  std::vector<ComboItem> rows;
  for (const std::size_t place : WorstFirst(found)) {
    const Verdict& verdict = found.All()[place];
    rows.push_back({.text = VerdictLine(verdict, shown_->Units), .mark = MarkOf(verdict.Result)});
  }
  lstVerdicts.SetVisible(!rows.empty());
  lstVerdicts.Fill(std::move(rows));
  lblVerdicts.SetCaption("&Judgements: " + VerdictCounts(found));
}

void SummaryPane::ShowBeginning() {
  std::vector<ComboItem> recent;
  const RecentFiles& files = program_.session.recentFiles;
  for (Integer i = 0; i < files.MaxLastFiles; ++i) {
    recent.push_back({.text = files.Entries.at(static_cast<std::size_t>(i)).LastFile});
  }
  ShowList(lblRecent, lstRecent, std::move(recent));
  ReadExamples();
  std::vector<ComboItem> lines;
  for (const Example& example : examples_) lines.push_back({.text = ExampleLine(example)});
  ShowList(lblExamples, lstExamples, std::move(lines));
  if (ExamplesRead) ExamplesRead();
}

// Once in a run, because they do not change.
void SummaryPane::ReadExamples() {
  if (std::exchange(hasReadExamples_, true)) return;
  examples_ = FindExamples(program_);
}

}  // namespace orby
