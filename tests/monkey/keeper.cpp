#include "monkey/keeper.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string_view>
#include <utility>
#include <vector>

#include "monkey/confinement.h"
#include "monkey/ledger.h"

namespace orby::monkey {
namespace {

// The windows of the program and of the toolkit that a long run must reach.
constexpr std::array Windows{"frmMain",        "frmPENVParm",     "frmTULKCost",    "frmTULKDesc", "frmCMRREst",
                             "frmResTxtPlt",   "frmPreview",      "frmGraph",       "frmGraphOpt", "frmTULKOpts",
                             "frmConvert",     "frmUnits",        "frmTextBrow",    "frmUpdate",   "frmSet",
                             "frmFont",        "frmDisclaimer",   "frmBackups",     "frmResource", "frmWouldHold",
                             "frmSheet",       "frmSignedReport", "frmWhatMatters", "frmHowSure",  "frmSideBySide",
                             "frmDesignChart", "frmDesigns",      "helpWindow",     "about",       "QMessageBox",
                             "QFileDialog",    "QPrintDialog",    "QMenu"};
constexpr long LongRun = 50000;  // actions

// The possible reasons for the end of a run, with the text of the message or the name of the routine that failed.
struct Cause {
  std::string_view name;
  std::string_view words;
  std::string_view routine;
};
constexpr std::array Causes{
    Cause{"a report", "while the report was made", "::BuildReport"},
    Cause{"a curve", "while the curve", "GenerateCurve"},
    Cause{"a commit", "were taken over", "SaveWorkParms"},
};

std::string ReadAll(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Returns true for calls that only pass another call on.
bool IsPlumbing(std::string_view call) {
  constexpr std::array Words{"std::", "QtPrivate::", "orby::monkey::", "__wrap_"};
  return std::ranges::any_of(Words, [call](std::string_view word) {
    return call.starts_with(word) || call.starts_with("void " + std::string(word));
  });
}

// Returns the trace with routines and lines, if the tool for that is installed; else the trace unchanged.
std::string Readable(std::string_view trace) {
  std::vector<std::string> lines;
  std::istringstream stream{std::string(trace)};
  std::string addresses;
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with("0x")) addresses += " " + line;
    lines.push_back(line);
  }
  if (addresses.empty()) return std::string(trace);
  const std::string command =
      "addr2line -C -p -s -f -e " + std::filesystem::read_symlink("/proc/self/exe").string() + addresses + " 2>&1";
  FILE* tool = popen(command.c_str(), "r");
  if (tool == nullptr) return std::string(trace);
  std::vector<std::string> names;
  std::string name;
  for (int c = std::fgetc(tool); c != EOF; c = std::fgetc(tool)) {
    if (c != '\n') {
      name += static_cast<char>(c);
    } else {
      names.push_back(std::exchange(name, {}));
    }
  }
  pclose(tool);
  std::string readable;
  std::size_t next = 0;
  for (const std::string& line : lines) {
    const std::string call = line.starts_with("0x") && next < names.size() ? names[next++] : line;
    if (!IsPlumbing(call)) readable += "  " + call + "\n";
  }
  return readable;
}

// Returns the first routine of the program itself in a readable trace.
std::string OwnRoutine(const std::string& readable) {
  std::istringstream stream(readable);
  for (std::string line; std::getline(stream, line);) {
    const bool isOwn = line.find("orby::") != std::string::npos && line.find("orby::monkey") == std::string::npos;
    if (!isOwn || line.find("RuntimeError") != std::string::npos) continue;
    return line.substr(2, line.find('(') == std::string::npos ? 60 : line.find('(') - 2);
  }
  return "unknown";
}

class Keeper {
 public:
  explicit Keeper(const Orders& orders)
      : orders_(orders), world_(orders.seed), ledger_(OpenLedger(LedgerPath(), true)) {
    ledger_.seed = orders.seed;
    ledger_.actsWanted = orders.acts;
    // A run that the program starts again also becomes a child of this process.
    prctl(PR_SET_CHILD_SUBREAPER, 1);
  }

  bool Keep() {
    const auto began = std::chrono::steady_clock::now();
    if (!ConfineTo(world_.Root())) {
      std::puts("This system cannot hold a program to a folder, so there is no monkey.");
      return false;
    }
    while (ledger_.acts < ledger_.actsWanted && failures_ < MostFailures) {
      const long before = ledger_.acts;
      KeepRun();
      // Removes a project that ends every run.
      idle_ = ledger_.acts == before ? idle_ + 1 : 0;
      if (idle_ >= MostIdle) BeginAfresh();
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - began;
    return Report(took.count());
  }

 private:
  static constexpr int MostFailures = 40;
  static constexpr int MostIdle = 3;

  std::string LedgerPath() const { return world_.Root() + "/ledger"; }
  std::string ErrorPath() const { return world_.Root() + "/errors"; }

  void Start() {
    ledger_.startedByKeeper = true;
    const pid_t process = fork();
    if (process != 0) return;
    world_.SetVariables();
    setenv(LedgerVariable, LedgerPath().c_str(), 1);
    setenv(PatienceVariable, std::to_string(orders_.patience).c_str(), 1);
    if (std::freopen(ErrorPath().c_str(), "w", stderr) == nullptr) _exit(EXIT_FAILURE);
    execl("/proc/self/exe", "monkey", nullptr);
    _exit(EXIT_FAILURE);
  }

  // Keeps one run, and the runs that it starts itself.
  void KeepRun() {
    world_.MakeFiles(orders_.seed);
    const long runsBefore = ledger_.runs;
    Start();
    int status = 0;
    for (pid_t ended = waitpid(-1, &status, 0); ended > 0; ended = waitpid(-1, &status, 0)) {
      // One process may hold several runs in turn.
      for (RunRecord& record : ledger_.runRecords) {
        if (record.process == ended) Judge(record, status);
      }
    }
    if (ledger_.runs > runsBefore) return;
    ++failures_;
    TellFinding(ledger_, "the program does not start", ReadAll(ErrorPath()), ledger_.log, ledger_.acts);
  }

  void Judge(RunRecord& record, int status) {
    const bool wasClosed = WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
    switch (record.ending) {
      case Ending::Done: break;
      case Ending::ByError: JudgeError(record); break;
      case Ending::Hung: Fail(record, "a hang"); break;
      case Ending::Crashed: Fail(record, "a crash"); break;
      default:
        if (wasClosed) {
          ++ledger_.others["runs that the monkey closed"];
        } else {
          record.act = ledger_.acts;
          record.log = ledger_.log;
          record.what.Set(WIFSIGNALED(status) ? "signal " + std::to_string(WTERMSIG(status))
                                              : "exit status " + std::to_string(WEXITSTATUS(status)));
          Fail(record, "an end without a word");
        }
    }
    record.process = 0;
  }

  void Fail(const RunRecord& record, const std::string& kind) {
    ++failures_;
    const std::string trace = Readable(record.trace.View());
    const std::string errors = ReadAll(ErrorPath());
    TellFinding(ledger_, kind + ": " + std::string(record.what.View()) + " in " + OwnRoutine(trace),
                trace + errors.substr(errors.size() > MostErrors ? errors.size() - MostErrors : 0), record.log,
                record.act);
    ledger_.shown.awaited = false;
  }

  void JudgeError(const RunRecord& record) {
    const std::string words(record.what.View());
    const std::string& trace = ReadableOnce(record.trace.View());
    const std::string error = words.substr(0, words.find(':'));
    for (const Cause& cause : Causes) {
      const bool isNamed = words.find("The error happened") != std::string::npos;
      const auto& text = isNamed ? words : trace;
      if (text.find(isNamed ? cause.words : cause.routine) == std::string::npos) continue;
      ++ledger_.ends[error + " in " + std::string(cause.name)];
      return;
    }
    ++ledger_.ends[error + " elsewhere"];
    TellFinding(ledger_, "a run that ends by " + error + " in " + OwnRoutine(trace), words + "\n" + trace, record.log,
                record.act);
  }

  const std::string& ReadableOnce(std::string_view trace) {
    auto& readable = readable_[std::string(trace)];
    if (readable.empty()) readable = Readable(trace);
    return readable;
  }

  void BeginAfresh() {
    ++ledger_.others["times that a new home was needed"];
    std::error_code ignored;
    std::filesystem::remove_all(world_.Root() + "/home/Documents/MyStrataDesk", ignored);
    ledger_.shown.awaited = false;
    idle_ = 0;
  }

  static void Print(const char* title, const auto& counts) {
    bool first = true;
    for (const Count& entry : counts.entries) {
      if (entry.name.View().empty()) break;
      if (std::exchange(first, false)) std::printf("%s\n", title);
      std::printf("  %8ld  %s\n", entry.count, entry.name.bytes.data());
    }
  }

  bool Report(double seconds) {
    if (ledger_.acts >= LongRun) {
      for (const char* window : Windows) {
        if (ledger_.windows[window] == 0) ++ledger_.findings["a window that was never reached: " + std::string(window)];
      }
    }
    std::printf("%ld acts of seed %llu in %.1f s, %ld runs of the program\n", ledger_.acts,
                static_cast<unsigned long long>(ledger_.seed), seconds, ledger_.runs);
    std::printf("slowest act: %ld ms, %s\n", ledger_.slowest, ledger_.slowestAct.bytes.data());
    Print("windows and how often they were opened:", ledger_.windows);
    Print("runs that ended by an error, and in what:", ledger_.ends);
    Print("besides:", ledger_.others);
    Print("WHAT MUST NOT HAPPEN:", ledger_.findings);
    return ledger_.findings.entries.front().name.View().empty() && ledger_.acts >= ledger_.actsWanted;
  }

  static constexpr std::size_t MostErrors = 8000;

  Orders orders_;
  World world_;
  Ledger& ledger_;
  std::map<std::string, std::string> readable_;
  int failures_ = 0;
  int idle_ = 0;
};

}  // namespace

bool KeepMonkey(const Orders& orders) { return Keeper(orders).Keep(); }

}  // namespace orby::monkey
