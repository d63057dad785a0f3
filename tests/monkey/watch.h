// What a run of the program dies of: an eye on crashes, on acts that never end, and on where run-time errors come from.
#pragma once

#include <string>

#include "monkey/ledger.h"

namespace orby::monkey {

// Starts to watch this process. A crash and an act of more than so many seconds end it, with the calls at that moment
// in the record. Under the sanitizers a crash is theirs to tell.
void StartWatch(RunRecord& record, Ledger& ledger, int patience);

// An act begins: the one before has come to its end.
void NoteAct();

// Where the run-time error of this number that was thrown last came from, one call a line; empty when none was.
std::string OriginOfError(int number);

}  // namespace orby::monkey
