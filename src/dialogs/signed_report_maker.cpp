#include "dialogs/signed_report_maker.h"

#include <array>
#include <string_view>

#include "base/number_text.h"
#include "base/runtime_error.h"
#include "dialogs/chart_scene.h"
#include "dialogs/curve_command.h"
#include "dialogs/graph.h"
#include "dialogs/project_sheet.h"
#include "files/shown_design.h"
#include "sheet/sheet_content.h"
#include "sketches/sketches.h"

namespace orby {
namespace {

// As wide as a text of A4 at 1.4 times its size, so that the texts of drawings are as large as small print.
constexpr SheetSize WideSheet{690, 425};

struct ReportDrawing {
  std::string_view Caption;
  Sketch (*Make)(const RoofSupport& design, const SketchFigures& figures, const SheetSize& sheet);
  Integer SecondarySupport::*Analysed = nullptr;
  SecondarySupport RoofSupport::*Support = nullptr;
};

constexpr std::array<ReportDrawing, 4> Drawings{
    {{"Entry with primary roof bolts: section and plan of the roof, to scale", PrimarySketch},
     {"Intersection: plan with its diagonals, to scale", DiagonalsSketch},
     {"Secondary support of entries: section and plan of the roof, to scale", EntrySketch, &SecondarySupport::Analysed,
      &RoofSupport::Entries},
     {"Secondary support of intersections: section and plan, to scale", IntersectionSketch, &SecondarySupport::Analysed,
      &RoofSupport::Intersections}}};

std::vector<ReportPicture> DrawingsOf(const Design& design, const Catalogs& catalogs) {
  const SketchFigures figures = SketchFiguresOf(design, catalogs);
  std::vector<ReportPicture> pictures;
  for (const ReportDrawing& drawing : Drawings) {
    if (drawing.Support != nullptr && (design.*drawing.Support).*drawing.Analysed != 1) continue;
    pictures.push_back({std::string(drawing.Caption), drawing.Make(design, figures, WideSheet).Picture, {}});
  }
  return pictures;
}

ReportPicture CurvePicture(const Design& design, const Catalogs& catalogs, Integer index) {
  ReportPicture picture{std::string(SubjectOfCurve(index).Name), {}, {}};
  const CurveSweep sweep = GenerateCurve(design, index);
  if (sweep.Failure) {
    picture.Failure = "This curve cannot be computed for this design: run-time error " +
                      NumberText(sweep.Failure->number()) + ", " +
                      std::string(ErrorDescription(sweep.Failure->number())) + ".";
    return picture;
  }
  if (sweep.Notice) picture.Caption.append(": ").append(NoticeText(*sweep.Notice));
  ChartOnPaper paper;
  AxisTitles titles = ComposedTitles(index, design.Units);
  paper.chart.SetAxisX({std::move(titles.X), true});
  paper.chart.SetAxisY({std::move(titles.Y), true});
  ChartSeries series = PointsOf(sweep.Points);
  series.colour = CurveColors(1);
  series.width = 2;
  series.hasSymbols = false;
  paper.chart.SetSeries({std::move(series)});
  MarkDesign(DesignPoint(design, index), ReferencesFor(design, catalogs, index), index, paper.chart);
  picture.Picture = ChartScene(paper.chart, WideSheet);
  return picture;
}

}  // namespace

SignedReportMaker::SignedReportMaker(const Program& program)
    : program_(program),
      shown_(AsOpened(program.project, program.session.catalogs)),
      previewed_(AsPreviewed(shown_)),
      sheet_(SheetOfProject(program)) {}

SignedReport SignedReportMaker::Make(const SignedReportSettings& settings, const std::string& date) {
  const Catalogs& catalogs = program_.session.catalogs;
  SignedReport report{.Titles = settings.Titles,
                      .Date = date,
                      .Sheet = sheet_,
                      .Drawings = {},
                      .Curves = {},
                      .Remarks = settings.Remarks,
                      .HasCost = settings.HasCost,
                      .HasSheet = settings.HasSheet};
  if (settings.HasDrawings && drawings_.empty()) drawings_ = DrawingsOf(shown_, catalogs);
  if (settings.HasDrawings) report.Drawings = drawings_;
  for (std::size_t i = 0; i < curves_.size(); ++i) {
    if (!settings.HasCurve[i]) continue;
    if (!curves_[i]) curves_[i] = CurvePicture(previewed_, catalogs, static_cast<Integer>(i));
    report.Curves.push_back(*curves_[i]);
  }
  return report;
}

std::string SignedReportMaker::Title() const { return "Roof support design report: " + SheetHeading(sheet_); }

}  // namespace orby
