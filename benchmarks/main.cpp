// Runs one step of the program while instructions are counted.
#include <valgrind/callgrind.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>
#include <map>
#include <string>

#include "design/choices.h"
#include "dialogs/parameters_dialog.h"
#include "engine/analysis.h"
#include "engine/curves.h"
#include "files/new_project.h"
#include "files/project_reader.h"
#include "files/project_writer.h"
#include "reports/calculation_report.h"
#include "reports/input_echo.h"
#include "shell/start_up.h"
#include "studies/pattern_search.h"
#include "study_bench.h"
#include "support/recording_platform.h"

namespace {

using namespace orby;

// A design with all support systems in use, so that it has all outputs and all blocks of the report.
struct Bench {
  Bench() {
    StartApart(program, nullptr);
    Design& design = program.project.WorkParms;
    for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
      for (SupportSystem* system : support->Systems()) system->Use = 1;
    }
    program.project.ProjectTitle = "Belt entry, north mains";
    program.project.ProjectDescription = "Four bolts a row, cables and trusses through the intersections.";
  }

  test::RecordingPlatform platform;
  Program program{platform.AsPlatform()};
};

// Counts the instructions of `act`.
template <class Act>
void Measured(const Act& act) {
  CALLGRIND_START_INSTRUMENTATION;
  act();
  CALLGRIND_STOP_INSTRUMENTATION;
}

void LiveRefresh() {
  Bench bench;
  ParametersDialog dialog(bench.program);
  dialog.Open();
  Measured([&] {
    dialog.ShowSuggested();
    dialog.ShowActualPSUP();
    dialog.ShowEntries();
    dialog.ShowIntersections();
  });
}

void AnalyzeDesign() {
  Bench bench;
  // The first call of a library function includes its look-up.
  static_cast<void>(Analyze(bench.program.project.WorkParms, bench.program.session.catalogs));
  Measured([&] { static_cast<void>(Analyze(bench.program.project.WorkParms, bench.program.session.catalogs)); });
}

void ReportPages() {
  Bench bench;
  ParametersDialog dialog(bench.program);
  dialog.Open();
  dialog.SaveWorkParms();
  dialog.BuildReport();
  Measured([&] {
    LoadOutBuf0(bench.program, bench.program.project.WorkParms);
    TakeCalculationPage(bench.program,
                        CalculationReport(bench.program.project.WorkParms, bench.program.session.catalogs));
  });
}

void ReadOneProject() {
  Bench bench;
  const std::string bytes = ProjectFileBytes(bench.program.project);
  Measured([&] {
    const ItemReader reader(bytes);
    if (CheckFileFormat(bench.program, reader)) ReadProject(bench.program.project, reader);
  });
}

void DefaultCurve() {
  Bench bench;
  constexpr Integer DepthOfCover = 1;
  Measured([&] { static_cast<void>(GenerateCurve(bench.program.project.WorkParms, DepthOfCover)); });
}

void KeyPress() {
  Bench bench;
  ParametersDialog dialog(bench.program);
  dialog.Open();
  Measured([&] {
    if (dialog.txtDepthofCover.KeyPress('5') == '5') dialog.txtDepthofCover.SetText("4005");
  });
}

// A key with all that follows it: figures, outputs and judgements.
void JudgedKey() {
  Bench bench;
  ParametersDialog dialog(bench.program);
  dialog.Open();
  Measured([&] {
    dialog.txtDepthofCover.SetText("4005");
    dialog.Edits()->EndAction();
    dialog.ShowVerdicts();
  });
}

using DrawingOfDialog = Drawing ParametersControls::*;

// A dialog with the drawing of a tab on view.
struct Drawn : Bench {
  explicit Drawn(DrawingOfDialog shown) {
    constexpr std::array<DrawingOfDialog, 4> Tabs{&ParametersControls::Picture1, &ParametersControls::Image1,
                                                  &ParametersControls::picEntries,
                                                  &ParametersControls::picIntersections};
    dialog.Open();
    dialog.SSTab1.SetTab(static_cast<int>(std::ranges::find(Tabs, shown) - Tabs.begin()));
    static_cast<void>((dialog.*shown).Edition());
  }

  ParametersDialog dialog{program};
};

// The same with a drawing on view, which is made when it is painted.
void DrawnKey(DrawingOfDialog shown) {
  Drawn drawn(shown);
  Measured([&] {
    drawn.dialog.txtDepthofCover.SetText("4005");
    drawn.dialog.EndAct();
  });
}

// Makes the drawing after a key.
void MakeDrawing(DrawingOfDialog shown) {
  Drawn drawn(shown);
  drawn.dialog.txtDepthofCover.SetText("4005");
  drawn.dialog.EndAct();
  Measured([&] { static_cast<void>((drawn.dialog.*shown).Edition()); });
}

const std::map<std::string, std::function<void()>> Steps{
    {"live_refresh", LiveRefresh},
    {"analyze", AnalyzeDesign},
    {"report_pages", ReportPages},
    {"read_project", ReadOneProject},
    {"default_curve", DefaultCurve},
    {"key_press", KeyPress},
    {"judged_key", JudgedKey},
    {"drawn_general", [] { DrawnKey(&ParametersControls::Picture1); }},
    {"drawn_primary", [] { DrawnKey(&ParametersControls::Image1); }},
    {"drawn_entries", [] { DrawnKey(&ParametersControls::picEntries); }},
    {"drawn_intersections", [] { DrawnKey(&ParametersControls::picIntersections); }},
    {"draw_general", [] { MakeDrawing(&ParametersControls::Picture1); }},
    {"draw_primary", [] { MakeDrawing(&ParametersControls::Image1); }},
    {"draw_entries", [] { MakeDrawing(&ParametersControls::picEntries); }},
    {"draw_intersections", [] { MakeDrawing(&ParametersControls::picIntersections); }}};

// Prints how many designs one core analyses in a second of processor time.
void PrintRate() {
  constexpr int Designs = 300000;
  Bench bench;
  const std::clock_t began = std::clock();
  bool isComputed = true;
  for (int i = 0; i < Designs; ++i) {
    bench.program.project.WorkParms.Place.DepthofCover = static_cast<Single>(300 + i % 1000);
    const Figures figures = Analyze(bench.program.project.WorkParms, bench.program.session.catalogs);
    isComputed = isComputed && figures.Primary.IsThere();
  }
  const double seconds = static_cast<double>(std::clock() - began) / CLOCKS_PER_SEC;
  std::printf("%d\n", isComputed ? static_cast<int>(Designs / seconds) : 0);
}

// Makes most patterns hold, because those are ranked too.
void MakeStrong(Design& design) {
  design.Place.CMRR = 75;
  design.Primary.Analysed = 1;
  for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
    support->RockLoadHeight = 1;
    support->Standing.RowSpacing = 4;
  }
}

PriceList PricesOf(const Catalogs& catalogs, UnitSystem units) {
  PriceList prices;
  prices.BoltLengths =
      units == Metric ? std::vector<Single>{1.2F, 1.5F, 1.8F, 2.1F, 2.4F, 3} : std::vector<Single>{4, 5, 6, 7, 8, 10};
  for (const BoltTableRow& row : OfferedBolts(catalogs, units)) {
    for (const Single length : prices.BoltLengths) {
      prices.Prices.push_back({PricedSupport::Bolt, row.Name, length, 4 + length});
    }
  }
  prices.Prices.push_back({PricedSupport::Truss, "", 0, 180});
  for (const PricedSupport what : {PricedSupport::Cable, PricedSupport::Standing}) {
    const StudiedSupport support{Opening::Entries, what};
    for (std::size_t item = 0; item < ItemCount(catalogs, units, support); ++item) {
      prices.Prices.push_back({what, ItemName(catalogs, units, support, item), 0, static_cast<Single>(30 + item)});
    }
  }
  return prices;
}

// Returns how many patterns of a support one core examines in a second of processor time.
double PatternRate(const Design& design, const Catalogs& catalogs, const StudiedSupport& support) {
  constexpr std::size_t Least = 50000;
  constexpr std::size_t Piece = 1000;
  const PriceList prices = PricesOf(catalogs, design.Units);
  const PatternLimits limits = WidestLimits(design.Units, support);
  const std::clock_t began = std::clock();
  std::size_t examined = 0;
  std::size_t holding = 0;
  while (examined < Least) {
    PatternSearch search(design, catalogs, prices, support, limits);
    while (!search.Step(Piece)) {
    }
    examined += search.Done();
    holding += search.Found().HoldingPriced;
  }
  const double seconds = static_cast<double>(std::clock() - began) / CLOCKS_PER_SEC;
  return holding > 0 ? static_cast<double>(examined) / seconds : 0;
}

// Prints the rate of the support whose patterns take longest, in both unit systems.
void PrintPatternRate() {
  double least = 1e12;
  for (const UnitSystem units : {English, Metric}) {
    Bench bench;
    bench.program.session.settings.UnitsDefault = units;
    FileNew(bench.program, Keeping::Nothing);
    Design& design = bench.program.project.WorkParms;
    for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
      support->Analysed = 1;
      for (SupportSystem* system : support->Systems()) system->Use = 1;
    }
    MakeStrong(design);
    for (const StudiedSupport& support : StudiedSupports(design)) {
      const double rate = PatternRate(design, bench.program.session.catalogs, support);
      least = std::min(least, rate);
    }
  }
  std::printf("%.0f\n", least);
}

// Analyses everything, with bolts of a manual selection.
const Design& MakeStudied(Design& design) {
  design.Primary.Analysed = design.Entries.Analysed = design.Intersections.Analysed = 1;
  MakeStrong(design);
  for (BoltSelection* set : design.BoltSets()) {
    set->Options = BoltSource::Manual;
    set->DiameterStd = 0.75F;
    set->GradeStd = 75;
    set->BoltsperRow = 4;
    set->Number = 10;
  }
  return design;
}

// Prints the seconds of a study of a million samples.
void PrintStudySeconds() {
  Bench bench;
  const Design& design = MakeStudied(bench.program.project.WorkParms);
  const auto began = std::chrono::steady_clock::now();
  const StudyResult result = RunMeasuredStudy(design, bench.program.session.catalogs);
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - began;
  const bool isComputed = std::ranges::all_of(
      result.Figures, [&](const FigureResult& figure) { return figure.Sums.Count() == result.Samples; });
  std::printf("%.2f\n", isComputed ? seconds.count() : 1e6);
}

using Measure = double (*)(const Design& design, const Catalogs& catalogs);

const std::map<std::string, Measure> Measures{
    {"integral", ErrorOfIntegral}, {"chart", SecondsOfFigureChart}, {"inverse-chart", SecondsOfSpacingChart}};

// Prints a number about the design of the measured study.
void PrintOfStudiedDesign(Measure measure) {
  Bench bench;
  const Design& design = MakeStudied(bench.program.project.WorkParms);
  std::printf("%.7f\n", measure(design, bench.program.session.catalogs));
}

}  // namespace

int main(int argc, char** argv) {
  const std::string word = argc > 1 ? argv[1] : "";
  if (word == "list") {
    for (const auto& [name, step] : Steps) std::puts(name.c_str());
    return 0;
  }
  if (word == "rate") {
    PrintRate();
    return 0;
  }
  if (word == "pattern-rate") {
    PrintPatternRate();
    return 0;
  }
  if (word == "study") {
    PrintStudySeconds();
    return 0;
  }
  if (const auto measure = Measures.find(word); measure != Measures.end()) {
    PrintOfStudiedDesign(measure->second);
    return 0;
  }
  const auto step = Steps.find(argc > 2 ? argv[2] : "");
  if (word != "run" || step == Steps.end()) {
    std::fputs("usage: orby-bench list | run NAME | rate | pattern-rate | study | integral | chart | inverse-chart\n",
               stderr);
    return 1;
  }
  step->second();
  return 0;
}
