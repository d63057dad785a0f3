// Runs one task on the desktop. The tasks "empty-..." do the same with the toolkit alone, for comparison:
//
//   empty-start, start, project, empty-browser, help   see starts.h
//   empty-key     a key in a line of an empty dialog, until it is painted
//   key           the same key in the depth of cover, until it and all outputs are painted
//   browse        the file browser until it shows a file of 50 MB; prints the growth of the peak of memory in kB,
//                 the size of the file in kB, and the longest time between two events in milliseconds
//   sheet         see sheet_bench.h
//   designs       the window of 10,000 designs: writes them, and prints, while they are read, sorted, searched, shown
//                 with all columns, scrolled and copied, the longest time between two events in milliseconds, and the
//                 longest processor time of the window's thread between them
//   dialogs       prints the growth of memory, in bytes, over 450 openings of each dialog after the first 50
//
// Instructions are counted for the two keys only.
#include <malloc.h>
#include <valgrind/callgrind.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QProgressBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <functional>
#include <map>
#include <string>

#include "desktop/sheet_bench.h"
#include "desktop/starts.h"
#include "dialogs/cost_dialog.h"
#include "dialogs/description_dialog.h"
#include "dialogs/designs_window.h"
#include "dialogs/estimator_dialog.h"
#include "dialogs/graph_options_dialog.h"
#include "dialogs/graph_window.h"
#include "dialogs/parameters_dialog.h"
#include "dialogs/preview_window.h"
#include "dialogs/results_window.h"
#include "dialogs/text_browser.h"
#include "files/project_writer.h"
#include "shell/start_up.h"

namespace {

using namespace orby;

void Paint() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

// Measures a key in a field into which keys have been typed before.
void MeasureKey(QLineEdit& field) {
  field.setFocus();
  field.end(false);
  const auto press = [&field](int key, const char* text) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&field, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&field, &up);
    Paint();
  };
  Paint();
  press(Qt::Key_4, "4");
  press(Qt::Key_5, "5");
  CALLGRIND_START_INSTRUMENTATION;
  press(Qt::Key_6, "6");
  CALLGRIND_STOP_INSTRUMENTATION;
}

int EmptyKey() {
  QDialog dialog;
  auto* layout = new QVBoxLayout(&dialog);
  auto* field = new QLineEdit("40", &dialog);
  layout->addWidget(field);
  dialog.show();
  MeasureKey(*field);
  return EXIT_SUCCESS;
}

int Key() {
  Run run;
  StartApart(run.program, nullptr);
  run.program.project.WorkParms.Place.DepthofCover = 40;
  ParametersDialog dialog(run.program);
  dialog.Open();
  const auto window = MakeWindow(dialog, nullptr);
  const BoundForm view(dialog, *window);
  window->show();
  MeasureKey(*window->findChild<QLineEdit*>("txtDepthofCover"));
  return EXIT_SUCCESS;
}

// Opens the window of a form, paints it and closes it.
template <class Dialog>
void OpenAndClose(Run& run) {
  Dialog dialog(run.program);
  dialog.Open();
  {
    const auto window = MakeWindow(dialog, nullptr);
    const BoundForm view(dialog, *window);
    window->show();
    Paint();
  }
  dialog.Close();
}

constexpr std::size_t BrowsedBytes = 50'000'000;

// Writes lines of 80 characters.
bool WriteLongFile(const std::string& path) {
  std::ofstream file(path, std::ios::binary);
  const std::string line = std::string(78, 'x') + "\r\n";
  for (std::size_t size = 0; size < BrowsedBytes; size += line.size()) file << line;
  return file.flush().good();
}

// Returns the largest memory use of the process so far, in kB.
long PeakKilobytes() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    long kilobytes = 0;
    if (word == "VmHWM:" && status >> kilobytes) return kilobytes;
  }
  return 0;
}

// Runs events until the condition is true. Returns the longest time between two ticks of a timer, in milliseconds.
qint64 LongestPause(const std::function<bool()>& isDone) {
  QEventLoop loop;
  QElapsedTimer since;
  qint64 longest = 0;
  QTimer clock;
  QObject::connect(&clock, &QTimer::timeout, [&] {
    longest = std::max(longest, since.restart());
    if (isDone()) loop.quit();
  });
  since.start();
  clock.start(1);
  loop.exec();
  return longest;
}

int Browse() {
  const QTemporaryDir folder;
  const std::string path = folder.filePath("long.txt").toStdString();
  if (!WriteLongFile(path)) return EXIT_FAILURE;
  Run run;
  StartApart(run.program, nullptr);
  run.program.session.IniFilePath = folder.filePath("orby.ini").toStdString();
  run.program.session.textBrowse.LastFolder = folder.path().toStdString();
  run.program.session.textBrowse.BrowseDefaultFilter = "*.txt";
  TextBrowser browser(run.program);
  browser.Open();
  const auto window = MakeWindow(browser, nullptr);
  const BoundForm view(browser, *window);
  window->show();
  Paint();
  const long before = PeakKilobytes();
  browser.File1.ClickItem(0);
  const qint64 longest = LongestPause([&browser] { return !browser.prgLoading.Visible(); });
  Paint();
  const bool isWhole = browser.RichTextBox1.Bytes().size() >= BrowsedBytes;
  std::printf("%ld %zu %lld\n", PeakKilobytes() - before, BrowsedBytes / 1024, static_cast<long long>(longest));
  return isWhole ? EXIT_SUCCESS : EXIT_FAILURE;
}

bool WriteDesigns(Run& run, const QTemporaryDir& folder) {
  constexpr int Count = 10'000;
  Project project;
  project.WorkParms = run.program.project.WorkParms;
  for (int i = 0; i < Count; ++i) {
    project.ProjectTitle = "Section " + std::to_string(i % 97);
    project.WorkParms.Place.DepthofCover = static_cast<Single>(200 + i % 1500);
    project.WorkParms.Place.CMRR = static_cast<Single>(25 + i % 60);
    const QString path = folder.filePath(QString("panel %1.ORB").arg(i));
    std::ofstream file(path.toStdString(), std::ios::binary);
    file << ProjectFileBytes(project);
    if (!file.flush().good()) return false;
  }
  return true;
}

// Returns the processor time that this thread has used. It does not depend on what else the machine does.
double MillisecondsOfThread() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

int Designs() {
  const QTemporaryDir folder;
  Run run;
  StartApart(run.program, nullptr);
  if (!WriteDesigns(run, folder)) return EXIT_FAILURE;
  run.program.session.designsFolder = folder.path().toStdString() + "/";
  DesignsWindow designs(run.program);
  const auto measure = [&](const char* name, const std::function<void()>& act) {
    QElapsedTimer took;
    took.start();
    bool hasBegun = false;
    double busiest = 0;
    double before = MillisecondsOfThread();
    const qint64 longest = LongestPause([&] {
      const bool begins = !std::exchange(hasBegun, true);
      if (begins) act();
      const double now = MillisecondsOfThread();
      busiest = std::max(busiest, now - std::exchange(before, now));
      // One more turn, so that the act counts.
      return !begins && !designs.IsBusy();
    });
    std::printf("%-16s %6lld ms, longest pause %4lld ms, busiest turn %5.1f ms, rows %d\n", name,
                static_cast<long long>(took.elapsed()), static_cast<long long>(longest), busiest,
                designs.tblDesigns.Rows());
  };
  std::unique_ptr<QWidget> window;
  std::unique_ptr<BoundForm> view;
  designs.Open();
  window = MakeWindow(designs, nullptr);
  view = std::make_unique<BoundForm>(designs, *window);
  window->show();
  Paint();
  auto& table = *window->findChild<QAbstractItemView*>("tblDesigns");
  measure("read", [] {});
  measure("sort", [&] { designs.tblDesigns.ClickHead(3); });
  measure("turn", [&] { designs.tblDesigns.ClickHead(3); });
  measure("search", [&] { designs.txtContaining.SetText("panel 99"); });
  measure("search off", [&] { designs.txtContaining.SetText(""); });
  measure("state", [&] { designs.cmbState.SetListIndex(1); });
  measure("all", [&] { designs.cmbState.SetListIndex(0); });
  measure("mark all", [&] { table.selectAll(); });
  measure("sort marked", [&] { designs.tblDesigns.ClickHead(2); });
  measure("copy", [&] { designs.cmdCopy.Press(); });
  for (CheckBox* box :
       {&designs.chkInputs, &designs.chkReport, &designs.chkLive, &designs.chkCost, &designs.chkVerdicts}) {
    measure("columns", [&] { box->SetValue(1); });
  }
  measure("search all", [&] { designs.txtContaining.SetText("999"); });
  measure("search off", [&] { designs.txtContaining.SetText(""); });
  measure("scroll", [&] { table.scrollToBottom(); });
  measure("metric", [&] { designs.cmbUnits.SetListIndex(2); });
  measure("mark all", [&] { table.selectAll(); });
  measure("copy all", [&] { designs.cmdCopy.Press(); });
  measure("read again", [&] { designs.cmdRead.Press(); });
  view.reset();
  window.reset();
  designs.Close();
  return EXIT_SUCCESS;
}

std::size_t BytesInUse() { return mallinfo2().uordblks; }

template <class Dialog>
void MeasureGrowth(Run& run, const char* name) {
  constexpr int Warming = 50;
  constexpr int Openings = 500;
  for (int i = 0; i < Warming; ++i) OpenAndClose<Dialog>(run);
  const std::size_t before = BytesInUse();
  for (int i = Warming; i < Openings; ++i) OpenAndClose<Dialog>(run);
  std::printf("%-20s %12td\n", name, static_cast<std::ptrdiff_t>(BytesInUse() - before));
}

int Dialogs() {
  Run run;
  StartApart(run.program, nullptr);
  MeasureGrowth<ParametersDialog>(run, "parameters");
  MeasureGrowth<CostDialog>(run, "cost");
  MeasureGrowth<DescriptionDialog>(run, "description");
  MeasureGrowth<EstimatorDialog>(run, "estimator");
  MeasureGrowth<ResultsWindow>(run, "results");
  MeasureGrowth<PreviewWindow>(run, "preview");
  MeasureGrowth<GraphWindow>(run, "graph");
  return EXIT_SUCCESS;
}

const std::map<std::string, int (*)()> Things{{"empty-key", EmptyKey}, {"key", Key},         {"browse", Browse},
                                              {"sheet", MeasureSheet}, {"dialogs", Dialogs}, {"designs", Designs}};

}  // namespace

int main(int argc, char** argv) {
  const std::string name = argc == 2 ? argv[1] : "";
  const auto found = Things.find(name);
  if (found == Things.end() && !IsStart(name)) {
    std::fputs(
        "usage: orby-desktop-bench empty-start|start|empty-key|key|empty-browser|help|browse|sheet|designs|dialogs\n",
        stderr);
    return EXIT_FAILURE;
  }
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return found == Things.end() ? RunStart(name) : found->second();
}
