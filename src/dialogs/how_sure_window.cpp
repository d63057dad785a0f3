#include "dialogs/how_sure_window.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "base/text.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "files/shown_design.h"
#include "files/study_file.h"
#include "reports/study_report.h"

namespace orby {
namespace {

constexpr double PerCent = 100;
constexpr int MillisecondsBetweenLooks = 40;
constexpr std::string_view NoFile =
    "The project has no file yet. These settings are kept until the program ends, not in a file.";
constexpr std::string_view NotKept = "The settings of this window are not kept, because their file stays as it is.";

std::string NoNumberFault(const LabelledBox& box, std::string_view kind) {
  return box.LabelCaption() + ": \"" + std::string(Trim(box.Text())) + "\" is not " + std::string(kind) + ".";
}

}  // namespace

HowSureWindow::HowSureWindow(Program& program, UnsavedStudy& unsaved)
    : HowSureControls(program), design_(AsReported(program.project, program.session.catalogs)), unsaved_(unsaved) {
  cmdRun.Click = [this] { Run(); };
  cmdStop.Click = [this] {
    if (runner_) runner_->Cancel();
  };
  inputs_.Changed = [this] { ShowDone(); };
  for (Grid* grid : {&grdJudgements, &grdFigures}) {
    grid->SetStretchedColumn(0);
    grid->Change = [this] { ShowChart(); };
    grid->Click = grid->Change;
  }
  for (Combo* list : {&cmbChart, &cmbAcross, &cmbUp}) list->Change = [this] { ShowChart(); };
  picChart.Make = [this](const SheetSize& sheet) { return ChartOn(sheet); };
  picChart.Resize = [this] { ShowChart(); };
  picChart.Command = [this](DrawingCommand command) { RunDrawingCommand(program_, picChart, command); };
}

void HowSureWindow::OnOpen() {
  cmbScheme.Fill(ItemsNamed(Schemes, SchemeName));
  cmbChart.Fill(ItemsNamed(StudyChartNames));
  cmbChart.SetListIndex(0);
  cmdStop.SetEnabled(false);
  LoadSettings();
  ShowSettings();
  inputs_.Show();
  ShowResult();
  RequestFocus(grdInputs);
  program_.platform.windows.CenterForm(*this);
}

// ---- settings ------------------------------------------------------------------------------------------------------

// A new project has a name, but no file.
void HowSureWindow::LoadSettings() {
  const std::string& project = program_.project.CurrentFile;
  FileSystem& files = program_.platform.files;
  LoadedStudy loaded;
  const auto outcome = RunTrapped(program_, [&] {
    isInFile_ = files.FindsFile(project);
    if (isInFile_) loaded = LoadStudy(files, project, design_.Units, DamagedStudy::PutAside);
    mayKeep_ = !isInFile_ || loaded.Stored || !files.FindsFile(StudyPath(project));
  });
  if (outcome != StepOutcome::Done) mayKeep_ = false;
  if (loaded.Stored) stored_ = std::move(*loaded.Stored);
  const bool isKnown = unsaved_.Project == project && unsaved_.Stored.Units == design_.Units;
  if (!isInFile_ && isKnown) stored_ = unsaved_.Stored;
  study_ = stored_.Settings;
  std::string message = loaded.Message;
  if (!message.empty() && !mayKeep_) message.append(" ").append(NotKept);
  if (!message.empty()) ShowMessage(program_, message, BoxIcon::Exclamation, Caption());
  if (!mayKeep_) return lblKept.SetCaption(NotKept);
  lblKept.SetCaption(isInFile_ ? "The settings are kept in " + StudyPath(project) + "." : std::string(NoFile));
}

void HowSureWindow::ShowSettings() {
  txtSamples.SetText(std::to_string(study_.Samples));
  cmbScheme.SetListIndex(static_cast<int>(study_.Sampling));
  txtSeed.SetText(std::to_string(study_.Seed));
  txtBatch.SetText(std::to_string(study_.BatchSize));
  txtConfidence.SetText(NumberText(study_.Confidence * PerCent));
  txtStopWidth.SetText(study_.StopWidth ? NumberText(*study_.StopWidth * PerCent) : std::string());
}

HowSureWindow::SettingFault HowSureWindow::ReadSettings(Study& study) const {
  SettingFault fault;
  const auto refuse = [&](const LabelledBox& box, std::string_view kind) {
    if (fault.Field == nullptr) fault = {&box, NoNumberFault(box, kind)};
  };
  for (const auto& [box, number] : {std::pair(&txtSamples, &study.Samples), std::pair(&txtSeed, &study.Seed),
                                    std::pair(&txtBatch, &study.BatchSize)}) {
    if (const auto count = WholeTextCount(Trim(box->Text()))) {
      *number = *count;
    } else {
      refuse(*box, "a whole number");
    }
  }
  if (cmbScheme.HasSelection()) study.Sampling = static_cast<Scheme>(cmbScheme.ListIndex());
  // An unchanged text keeps the digits of the file.
  const auto share = [](const LabelledBox& box, double present) -> std::optional<double> {
    const auto percent = WholeTextNumber(box.Text());
    if (!percent) return std::nullopt;
    return *percent == TextValue(NumberText(present * PerCent)) ? present : *percent / PerCent;
  };
  if (const auto confidence = share(txtConfidence, study.Confidence)) {
    study.Confidence = *confidence;
  } else {
    refuse(txtConfidence, "a number");
  }
  if (Trim(txtStopWidth.Text()).empty()) {
    study.StopWidth.reset();
  } else if (const auto width = share(txtStopWidth, study.StopWidth.value_or(0))) {
    study.StopWidth = width;
  } else {
    refuse(txtStopWidth, "a number");
  }
  return fault;
}

// A file is written only if the user has changed something.
void HowSureWindow::KeepSettings() {
  const std::string& project = program_.project.CurrentFile;
  if (study_ == stored_.Settings || !mayKeep_) return;
  stored_.Settings = study_;
  stored_.Units = design_.Units;
  if (!isInFile_) {
    unsaved_ = {project, stored_};
    return;
  }
  RunTrapped(program_, [&] { SaveStudy(program_.platform.files, project, stored_); });
}

void HowSureWindow::OnClose() {
  runner_.reset();
  ReadSettings(study_);
  KeepSettings();
}

// ---- the run -------------------------------------------------------------------------------------------------------

void HowSureWindow::Run() {
  if (runner_) return;
  const auto report = [this](const std::string& text) { ShowMessage(program_, text, BoxIcon::Critical, Caption()); };
  if (const SettingFault fault = ReadSettings(study_); fault.Field != nullptr) {
    report(fault.Text);
    tabSure.SetTab(sure_page::Sampling);
    return RequestFocus(*Find(fault.Field->Name()));
  }
  if (const std::string fault = FaultOf(study_); !fault.empty()) {
    return report(study_.Inputs.empty() ? fault + " Add an input on the tab Inputs." : fault);
  }
  KeepSettings();
  runner_ = std::make_shared<StudyRunner>(design_, program_.session.catalogs, study_);
  cmdRun.SetEnabled(false);
  cmdStop.SetEnabled(true);
  ShowProgress();
  Follow();
}

void HowSureWindow::Follow() {
  program_.platform.clock.CallLater(MillisecondsBetweenLooks, [this, waiting = std::weak_ptr(runner_)] {
    if (waiting.expired()) return;
    if (runner_->HasEnded()) return Finish();
    ShowProgress();
    Follow();
  });
}

void HowSureWindow::Finish() {
  const auto ended = std::exchange(runner_, nullptr);
  cmdRun.SetEnabled(true);
  cmdStop.SetEnabled(false);
  const auto outcome = RunTrapped(program_, [&] { result_ = ended->Take(); });
  if (outcome != StepOutcome::Done) result_.reset();
  ran_ = ended->Settings();
  ShowResult();
  if (result_) tabSure.SetTab(sure_page::Results);
}

void HowSureWindow::ShowProgress() {
  const StudyProgress progress = runner_->Progress();
  const BatchPlan plan = PlanOf(runner_->Settings());
  prgRun.SetValue(static_cast<int>(std::uint64_t{ProgressBar::Whole} * progress.BatchesDone / plan.Count));
  lblDone.SetCaption(CountWithCommas(progress.SamplesDone) + " of " + CountWithCommas(plan.Count * plan.Size) +
                     " samples");
}

void ShowHowSure(Program& program, UnsavedStudy& unsaved) {
  HowSureWindow window(program, unsaved);
  ShowForm(program, window);
}

}  // namespace orby
