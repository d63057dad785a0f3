// Watches a run of the program for crashes, for actions that never end, and for the origin of run-time errors.
#pragma once

#include <string>

#include "monkey/ledger.h"

namespace orby::monkey {

// Starts to watch this process. A crash, or an action that takes more than `patience` seconds, ends the process with
// the call stack in the record. Under the sanitizers, they report a crash.
void StartWatch(RunRecord& record, Ledger& ledger, int patience);

// Notes that an action begins and the previous one is over.
void NoteAct();

// Returns the call stack where the run-time error of this number was last thrown, one call per line; empty if there was
// none.
std::string OriginOfError(int number);

}  // namespace orby::monkey
