// The texts that a monkey types, pastes and uses as names.
#pragma once

#include <QString>

#include "monkey/dice.h"

namespace orby::monkey {

// Returns a number that a design can hold.
QString PlausibleText(Dice& dice);
// Returns a text that hardly any field expects.
QString OddText(Dice& dice);

// Returns the path of a file to open, with or without a project in it.
QString FilePath(Dice& dice);
// Returns a name for a file dialog: of an existing file, or a new one.
QString FileName(Dice& dice);

}  // namespace orby::monkey
