// What a monkey has done, in memory that it shares with its keeper: nothing of it goes when a run of the program ends,
// however it ends.
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

// A text of limited length without a heap behind it.
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
  ByError,  // the program told a run-time error and ended
  Crashed,
  Hung,
  Done,  // as many acts as were asked for
};

// One run of the program.
struct RunRecord {
  pid_t process;
  Ending ending;
  long act;                // the act that ended it
  FixedText<2000> what;    // what was told, or what it died of
  FixedText<16000> trace;  // the calls at that moment, one a line
  ActLog log;              // as it was then
};

// A field as a window showed it.
struct ShownField {
  FixedText<48> name;
  FixedText<120> typed;    // as it stood last
  FixedText<120> text;     // the last that is a number a design can hold, where it is one
  FixedText<120> whole;    // the last that a whole number of a design can hold, too
  FixedText<120> settled;  // in the last state in which all of them were
};

// What the program showed when an error ended its run.
struct ShownProject {
  bool awaited;          // the next run has not shown it yet
  bool unsaved;          // something was not saved
  bool refused;          // its name on view may be that of the one before
  bool half;             // it was half read, so that a new one follows
  FixedText<400> file;   // by the caption of the main window
  FixedText<400> title;  // by what was kept
  FixedText<32> form;    // the dialog that was open; empty: none
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
  std::array<RunRecord, RunsKept> runRecords;  // of run i: i % RunsKept
  ActLog log;                                  // of act i: i % ActsShown
  ShownProject shown;
  Counts<64> windows;
  Counts<64> ends;      // runs ended by errors, by cause
  Counts<16> others;    // what else is worth counting
  Counts<64> findings;  // what must not be
  long slowest;         // milliseconds
  LogLine slowestAct;
};
static_assert(std::is_trivially_copyable_v<Ledger>);

// What a run is told by its keeper.
inline constexpr auto LedgerVariable = "ORBY_MONKEY_LEDGER";
inline constexpr auto PatienceVariable = "ORBY_MONKEY_PATIENCE";  // seconds

// Maps the ledger in this file; made when it is new. Throws std::runtime_error.
Ledger& OpenLedger(const std::string& path, bool isNew);

// The acts up to the last one, the oldest first.
std::string TextOf(const ActLog& log, long acts);

// Counts a finding and tells it in full when it is the first of its kind, with the acts before it.
void TellFinding(Ledger& ledger, const std::string& kind, const std::string& text, const ActLog& log, long act);

}  // namespace orby::monkey
