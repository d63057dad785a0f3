// A monkey at the keyboard: uses the whole program at random, off the screen and in its own home. It reports hangs,
// crashes, runs that end with an error, and projects that are not restored afterwards.
//
//   monkey [--acts N] [--seed S] [--patience SECONDS]
//
// The same seed gives the same actions. The program runs in child processes of this program.
#include <unistd.h>

#include <QCoreApplication>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>
#include <string_view>
#include <utility>

#include "machine/disk_files.h"
#include "monkey/keeper.h"
#include "monkey/monkey.h"
#include "monkey/watch.h"
#include "posix/xdg_file_types.h"
#include "qt/application.h"
#include "qt/documents.h"
#include "qt/surroundings.h"

namespace orby::monkey {
namespace {

struct Run {
  Ledger& ledger;
  RunRecord& record;
  bool byItself;
};

std::unique_ptr<Run> run;
std::unique_ptr<Monkey> monkey;

// Creates the monkey when the program creates its toolkit.
void JoinToolkit() {
  if (run) monkey = std::make_unique<Monkey>(run->ledger, run->record, run->byItself);
}

RunRecord& NewRecord(Ledger& ledger) {
  RunRecord& record = ledger.runRecords[static_cast<std::size_t>(ledger.runs++ % RunsKept)];
  record.process = getpid();
  record.ending = Ending::Running;
  record.what.Set({});
  record.trace.Set({});
  return record;
}

int RunWithMonkey(const char* ledgerPath, int argc, char** argv) {
  Ledger& ledger = OpenLedger(ledgerPath, false);
  const bool byItself = !std::exchange(ledger.startedByKeeper, false);
  RunRecord& record = NewRecord(ledger);
  StartWatch(record, ledger, std::atoi(std::getenv(PatienceVariable)));
  run.reset(new Run{ledger, record, byItself});
  DiskFiles files(PROGRAM_DIR);
  QtUserFolders userFolders;
  QtDocuments documents;
  XdgFileTypes fileTypes(files, userFolders, documents);
  return RunProgram(files, fileTypes, {argv + 1, argv + argc});
}

template <class Number>
bool Read(std::string_view text, Number& number) {
  const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
  return problem == std::errc() && end == text.data() + text.size();
}

int Usage() {
  std::fputs("usage: monkey [--acts N] [--seed S] [--patience SECONDS]\n", stderr);
  return 2;
}

int Keep(int argc, char** argv) {
  Orders orders;
  orders.seed = std::random_device()();
  for (int i = 1; i < argc; i += 2) {
    const std::string_view option(argv[i]);
    const std::string_view value(i + 1 < argc ? argv[i + 1] : "");
    const bool good = (option == "--acts" && Read(value, orders.acts)) ||
                      (option == "--seed" && Read(value, orders.seed)) ||
                      (option == "--patience" && Read(value, orders.patience));
    if (!good) return Usage();
  }
  std::printf("monkey --acts %ld --seed %llu\n", orders.acts, static_cast<unsigned long long>(orders.seed));
  std::fflush(stdout);
  return KeepMonkey(orders) ? EXIT_SUCCESS : EXIT_FAILURE;
}

Q_COREAPP_STARTUP_FUNCTION(JoinToolkit)

}  // namespace
}  // namespace orby::monkey

int main(int argc, char** argv) {
  if (const char* ledger = std::getenv(orby::monkey::LedgerVariable)) {
    return orby::monkey::RunWithMonkey(ledger, argc, argv);
  }
  return orby::monkey::Keep(argc, argv);
}
