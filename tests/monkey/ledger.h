// The record of a monkey, in memory that it shares with its keeper. It survives the end of a run, however the run ends.
#pragma once

#include <sys/types.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

namespace orby::monkey {

inline constexpr int ActsShown = 200;

// A text of limited length that uses no heap.
template <std::size_t Size>
struct FixedText {
  std::array<char, Size> bytes;

  void Set(std::string_view text) {
    const std::size_t length = text.size() < Size - 1 ? text.size() : Size - 1;
    text.copy(bytes.data(), length);
    bytes[length] = '\0';
  }
  std::string_view View() const { return bytes.data(); }
};

using LogLine = FixedText<168>;
using ActLog = std::array<LogLine, ActsShown>;

struct Count {
  FixedText<160> name;
  long count;
};

template <std::size_t Size>
struct Counts {
  std::array<Count, Size> entries;

  long& operator[](std::string_view name) {
    name = name.substr(0, sizeof(Count::name) - 1);
    for (Count& entry : entries) {
      if (entry.name.View().empty()) entry.name.Set(name);
      if (entry.name.View() == name) return entry.count;
    }
    return entries.back().count;
  }
};

enum class Ending {
  Running,
  ByUser,   // the monkey closed the program
  ByError,  // the program reported a run-time error and ended
  Crashed,
  Hung,
  Done,  // the requested number of actions is done
};

// One run of the program.
struct RunRecord {
  pid_t process;
  Ending ending;
  long act;                // the action that ended it
  FixedText<2000> what;    // the message, or the cause of death
  FixedText<16000> trace;  // the call stack at that moment, one call per line
  ActLog log;              // at that moment
};

// A field as a window showed it.
struct ShownField {
  FixedText<48> name;
  FixedText<120> typed;    // the latest text
  FixedText<120> text;     // the latest valid text: for a number, one that a design can hold
  FixedText<120> whole;    // the latest text that is also valid as a whole number
  FixedText<120> settled;  // in the latest state in which all fields were valid
};

// The project as the program showed it when an error ended the run.
struct ShownProject {
  bool awaited;          // the next run has not shown it yet
  bool unsaved;          // there are unsaved changes
  bool refused;          // the shown name may be that of the previous project
  bool half;             // the file was read in part, so the next run begins a new project
  FixedText<400> file;   // from the caption of the main window
  FixedText<400> title;  // from the recovery file
  FixedText<32> form;    // the open dialog; empty if none
  int fieldCount;
  std::array<ShownField, 240> fields;
};

inline constexpr int RunsKept = 8;

struct Ledger {
  std::uint64_t seed;
  long actsWanted;
  long acts;
  bool startedByKeeper;                        // the run that is about to begin
  long runs;                                   // started so far
  std::array<RunRecord, RunsKept> runRecords;  // run i is at i % RunsKept
  ActLog log;                                  // action i is at i % ActsShown
  ShownProject shown;
  Counts<64> windows;
  Counts<64> ends;      // runs ended by errors, by cause
  Counts<16> others;    // other counts
  Counts<64> findings;  // forbidden events
  long slowest;         // milliseconds
  LogLine slowestAct;
};
static_assert(std::is_trivially_copyable_v<Ledger>);

// Environment variables that the keeper sets for a run.
inline constexpr auto LedgerVariable = "ORBY_MONKEY_LEDGER";
inline constexpr auto PatienceVariable = "ORBY_MONKEY_PATIENCE";  // seconds

// Maps the ledger in this file. Creates it if `isNew`. Throws std::runtime_error.
Ledger& OpenLedger(const std::string& path, bool isNew);

// Returns the actions up to the last one, the oldest first.
std::string TextOf(const ActLog& log, long acts);

// Counts a finding. Prints it in full, with the actions before it, if it is the first of its kind.
void TellFinding(Ledger& ledger, const std::string& kind, const std::string& text, const ActLog& log, long act);

}  // namespace orby::monkey
