// Runs one step of the program while instructions are counted.
#include <valgrind/callgrind.h>

#include <cstdio>
#include <ctime>
#include <functional>
#include <map>
#include <string>

#include "dialogs/parameters_dialog.h"
#include "engine/analysis.h"
#include "engine/curves.h"
#include "files/project_reader.h"
#include "files/project_writer.h"
#include "reports/calculation_report.h"
#include "reports/input_echo.h"
#include "shell/start_up.h"
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
    dialog.EndAct();
  });
}

const std::map<std::string, std::function<void()>> Steps{
    {"live_refresh", LiveRefresh},    {"analyze", AnalyzeDesign},      {"report_pages", ReportPages},
    {"read_project", ReadOneProject}, {"default_curve", DefaultCurve}, {"key_press", KeyPress},
    {"judged_key", JudgedKey}};

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
  const auto step = Steps.find(argc > 2 ? argv[2] : "");
  if (word != "run" || step == Steps.end()) {
    std::fputs("usage: orby-bench list | run NAME | rate\n", stderr);
    return 1;
  }
  step->second();
  return 0;
}
