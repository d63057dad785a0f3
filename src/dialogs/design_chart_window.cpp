#include "dialogs/design_chart_window.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"
#include "core/description.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "core/version.h"
#include "dialogs/project_sheet.h"
#include "dialogs/save_in_format.h"
#include "dialogs/study_charts.h"
#include "dialogs/study_texts.h"
#include "drawings/scene_svg.h"
#include "files/shown_design.h"
#include "reports/printing.h"
#include "reports/study_report.h"
#include "sheet/sheet_content.h"

namespace orby {
namespace {

constexpr std::size_t LeastPoints = 2;
constexpr std::size_t MostPoints = 200;
constexpr std::size_t WorkAtOnce = 4000;  // analyses that take no longer than a frame
constexpr int MillisecondsBetweenLooks = 25;
constexpr double UnitsOfPoint = 1.3;  // of a drawing on paper, so that its texts are as large as small print

}  // namespace

DesignChartWindow::DesignChartWindow(Program& program)
    : ProgramForm(program, "frmDesignChart", CaptionWithProject("Design Chart", program.project)),
      design_(AsReported(program.project, program.session.catalogs)),
      subjects_(ChartSubjects(design_, program.session.catalogs, program.session.prices[PlaceOf(design_.Units)])),
      judgements_(JudgementsOn(design_, program.session.catalogs)),
      numbers_(NumbersInUse(design_)) {
  cmbSubject.Change = [this] { Follow(); };
  cmbJudged.Change = [this] { Follow(); };
  TieSide(across_);
  TieSide(up_);
  txtPoints.Change = [this] { Follow(); };
  optPaper.Click = [this](Integer) { TakePaper(program_, optPaper); };
  picChart.Make = [this](const SheetSize& sheet) { return ChartOn(sheet); };
  picChart.Resize = [this] { picChart.Outdate(); };
  picChart.Command = [this](DrawingCommand command) {
    if (map_) RunDrawingCommand(program_, picChart, command);
  };
  picChart.Point = [this](const ScenePoint& place) { ReadAt(place); };
  picChart.Key = [this](DrawingKey key) { MoveReading(key); };
}

void DesignChartWindow::TieSide(const Side& side) {
  side.Number.Change = [this, side] {
    if (isFilling_) return;
    ShowRange(side);
    Follow();
  };
  side.Low.Change = [this] { Follow(); };
  side.High.Change = [this] { Follow(); };
}

void DesignChartWindow::OnOpen() {
  cmbSubject.Fill(ItemsNamed(subjects_, &ChartSubject::Name));
  cmbJudged.Fill(ItemsNamed(judgements_, VerdictName));
  for (Combo* list : {&cmbUp, &cmbAcross}) {
    list->Fill(ItemsNamed(
        numbers_, [this](const auto* number) { return WithUnitOf(NameOf(*number), number->Unit, design_.Units); }));
  }
  const auto placeOf = [&](std::string_view label) {
    return static_cast<int>(std::ranges::find(numbers_, label, &DesignNumber::Label) - numbers_.begin());
  };
  cmbAcross.SetListIndex(placeOf("Depth of Cover"));
  cmbUp.SetListIndex(placeOf("CMRR"));
  ShowRange(across_);
  ShowRange(up_);
  txtPoints.SetText("60");
  ShowPaper(program_, optPaper);
  if (!subjects_.empty()) {
    const auto isSuggested = [](const ChartSubject& subject) {
      return subject.Figure != nullptr && subject.Figure->Key == "suggested-psup";
    };
    const auto suggested = std::ranges::find_if(subjects_, isSuggested);
    cmbSubject.SetListIndex(suggested == subjects_.end() ? 0 : static_cast<int>(suggested - subjects_.begin()));
    const auto psup = std::ranges::find(judgements_, StudiedVerdict{Opening::Primary, Aspect::Psup});
    if (!judgements_.empty()) {
      cmbJudged.SetListIndex(psup == judgements_.end() ? 0 : static_cast<int>(psup - judgements_.begin()));
    }
  }
  isFilling_ = false;
  Follow();
  program_.platform.windows.CenterForm(*this);
}

void DesignChartWindow::ShowRange(const Side& side) {
  if (!side.Number.HasSelection()) return;
  const bool wasFilling = std::exchange(isFilling_, true);
  const ChartSide range = SideAround(design_, *numbers_[static_cast<std::size_t>(side.Number.ListIndex())]);
  side.Low.SetText(NumberText(range.From));
  side.High.SetText(NumberText(range.To));
  isFilling_ = wasFilling;
}

// ---- the fields ----------------------------------------------------------------------------------------------------

std::string DesignChartWindow::ReadSide(const Side& side, ChartSide& read) const {
  if (!side.Number.HasSelection()) return "Choose two numbers of the lists.";
  read.Number = numbers_[static_cast<std::size_t>(side.Number.ListIndex())];
  const std::string name = NameOf(*read.Number);
  for (const auto& [box, end] : {std::pair(&side.Low, &read.From), std::pair(&side.High, &read.To)}) {
    const std::optional<Single> number = WholeTextSingle(box->Text());
    if (!number) return name + ": \"" + std::string(Trim(box->Text())) + "\" is not a number.";
    if (*number < 0) return name + ": a number below 0 makes no sense.";
    *end = *number;
  }
  if (!(read.From < read.To)) return name + ": the first number must be below the second one.";
  return {};
}

std::string DesignChartWindow::ReadFields(ChartRequest& request) const {
  if (subjects_.empty()) return std::string(NothingAnalysed);
  if (!cmbSubject.HasSelection()) return "Choose what the chart shows.";
  request.Subject = subjects_[static_cast<std::size_t>(cmbSubject.ListIndex())];
  if (cmbJudged.HasSelection()) request.Judged = judgements_[static_cast<std::size_t>(cmbJudged.ListIndex())];
  for (const auto& [side, read] : {std::pair(&across_, &request.Across), std::pair(&up_, &request.Up)}) {
    if (std::string fault = ReadSide(*side, *read); !fault.empty()) return fault;
  }
  if (request.Across.Number == request.Up.Number) return "Choose different numbers for both sides.";
  for (const ChartSide* side : {&request.Across, &request.Up}) {
    if (side->Number == request.Subject.Number) {
      return NameOf(*side->Number) + " is what the chart looks for. Choose another number for that side.";
    }
  }
  const auto points = WholeTextCount(Trim(txtPoints.Text()));
  if (!points || *points < LeastPoints || *points > MostPoints) {
    return "The points along each side are a whole number from 2 to 200.";
  }
  request.Points = *points;
  return {};
}

// ---- the computation -----------------------------------------------------------------------------------------------

void DesignChartWindow::Follow() {
  if (isFilling_) return;
  runner_.reset();
  ChartRequest request;
  if (const std::string fault = ReadFields(request); !fault.empty()) return ShowFault(fault);
  cmbJudged.SetEnabled(request.Subject.Figure != nullptr);
  if (WorkOf(request) <= WorkAtOnce) {
    return TakeChart(request, Compute(design_, program_.session.catalogs, request));
  }
  AllowOutput(false);
  runner_ = std::make_shared<ChartRunner>(design_, program_.session.catalogs, std::move(request));
  Look();
}

void DesignChartWindow::Look() {
  lblRead.SetCaption("Computing: " + NumberText(runner_->PercentDone()) + " %");
  program_.platform.clock.CallLater(MillisecondsBetweenLooks, [this, waiting = std::weak_ptr(runner_)] {
    if (waiting.expired()) return;
    if (!runner_->HasEnded()) return Look();
    const std::shared_ptr<ChartRunner> ended = std::exchange(runner_, nullptr);
    RunTrapped(program_, [&] { TakeChart(ended->Request(), ended->Take()); });
  });
}

void DesignChartWindow::TakeChart(const ChartRequest& request, ComputedChart computed) {
  fault_.clear();
  map_.emplace(MapOf(design_, request, std::move(computed)));
  shown_ = request;
  if (read_) {
    read_ = Reading{std::clamp(read_->Across, request.Across.From, request.Across.To),
                    std::clamp(read_->Up, request.Up.From, request.Up.To)};
  }
  AllowOutput(true);
  ShowReading();
}

void DesignChartWindow::ShowFault(const std::string& fault) {
  fault_ = fault;
  map_.reset();
  AllowOutput(false);
  lblRead.SetCaption(fault);
  picChart.Outdate();
}

void DesignChartWindow::AllowOutput(bool isAllowed) {
  for (Button* button : {&cmdSavePicture, &cmdSavePage, &cmdPrint}) button->SetEnabled(isAllowed);
}

// ---- the point that is read out ------------------------------------------------------------------------------------

void DesignChartWindow::ReadAt(const ScenePoint& place) {
  if (!map_ || runner_) return;
  const std::optional<ScenePoint> at = map_->PointAt(place, picChart.Sheet());
  if (!at) return;
  const Reading before = read_.value_or(Reading{-1, -1});
  read_ = Reading{shown_.Across.Reading(shown_.Across.ValueAt(at->X, shown_.Points)),
                  shown_.Up.Reading(shown_.Up.ValueAt(at->Y, shown_.Points))};
  if (read_->Across != before.Across || read_->Up != before.Up) ShowReading();
}

void DesignChartWindow::MoveReading(DrawingKey key) {
  if (!map_ || runner_) return;
  if (key == DrawingKey::Home) {
    read_.reset();
    return ShowReading();
  }
  Reading from = read_.value_or(Reading{shown_.Across.Number->Field.In(design_), shown_.Up.Number->Field.In(design_)});
  const bool isForward = key == DrawingKey::Right || key == DrawingKey::Up;
  if (key == DrawingKey::Left || key == DrawingKey::Right) {
    from.Across = shown_.Across.NextReading(from.Across, isForward ? 1 : -1);
  } else {
    from.Up = shown_.Up.NextReading(from.Up, isForward ? 1 : -1);
  }
  read_ = Reading{std::clamp(from.Across, shown_.Across.From, shown_.Across.To),
                  std::clamp(from.Up, shown_.Up.From, shown_.Up.To)};
  ShowReading();
}

void DesignChartWindow::ShowReading() {
  const Single across = read_ ? read_->Across : shown_.Across.Number->Field.In(design_);
  const Single up = read_ ? read_->Up : shown_.Up.Number->Field.In(design_);
  const std::string text = ReadingAt(design_, program_.session.catalogs, shown_, across, up);
  lblRead.SetCaption(read_ ? text : "This design: " + text);
  picChart.Outdate();
}

Sketch DesignChartWindow::ChartOn(const SheetSize& sheet) const {
  if (!map_) return EmptyStudySketch(fault_, sheet);
  std::optional<MapReading> reading;
  if (read_) {
    reading =
        MapReading{{shown_.Across.PlaceOf(read_->Across, shown_.Points), shown_.Up.PlaceOf(read_->Up, shown_.Points)},
                   lblRead.Caption()};
  }
  return map_->On(sheet, reading);
}

// ---- pictures and pages --------------------------------------------------------------------------------------------

std::string DesignChartWindow::Name() const { return PrintedName(program_.project) + " design chart"; }

Scene DesignChartWindow::Page() const {
  const DesignSheet sheet = SheetOfProject(program_);
  const SheetPaper paper = PaperOf(program_);
  ChartPage page{.Title = shown_.Subject.Name,
                 .Project = SheetHeading(sheet),
                 .Titles = program_.session.signedReport.Titles,
                 .Date = paper.Date,
                 .Version = std::string(ProgramTitle) + " " + VersionText(),
                 .Inputs = {},
                 .Foot = {},
                 .Draw = [this](const PageSize& room) {
                   return map_->On({room.Width * UnitsOfPoint, room.Height * UnitsOfPoint}).Picture;
                 }};
  for (const DesignNumber* number : numbers_) {
    const bool varies = number == shown_.Across.Number || number == shown_.Up.Number || number == shown_.Subject.Number;
    if (varies) continue;
    page.Inputs.push_back(
        {WithUnitOf(NameOf(*number), number->Unit, design_.Units), NumberText(number->Field.In(design_))});
  }
  for (const TitleFact& fact : TitleFacts(sheet)) {
    page.Foot.append(page.Foot.empty() ? "" : "; ").append(fact.Label).append(": ").append(fact.Text);
  }
  return PageOf(page, paper.Size, WidthsOf(program_));
}

void DesignChartWindow::SavePicture() {
  const Sketch sketch = map_->On(picChart.Sheet());
  PictureFiles& pictures = program_.platform.pictures;
  const std::string path = SaveInFormat(
      program_, "Save Design Chart", Name(),
      {{"Picture", "png", [&] { return pictures.AsPng(sketch.Picture); }},
       {"Drawing", "svg", [&] { return SceneSvg(sketch.Picture); }},
       {"Document", "pdf", [&] { return pictures.AsPdf(sketch.Picture, std::string(picChart.Title())); }}});
  if (!path.empty()) AddHistoryLine(program_, "Design chart saved as: " + path);
}

void DesignChartWindow::SavePage() {
  const auto bytes = [this] { return program_.platform.pictures.PagesAsPdf({Page()}, shown_.Subject.Name); };
  const std::string path = SaveInFormat(program_, "Save Page", Name(), {{"Document", "pdf", bytes}});
  if (!path.empty()) AddHistoryLine(program_, "Page with a design chart saved as: " + path);
}

void DesignChartWindow::Print() {
  std::vector<Scene> pages;
  if (RunTrapped(program_, [&] { pages.push_back(Page()); }) != StepOutcome::Done) return;
  PrintPages(program_, pages, Name(), "Printing Design Chart");
}

void ShowDesignChart(Program& program) {
  DesignChartWindow window(program);
  ShowForm(program, window);
}

}  // namespace orby
