// What a monkey types, pastes and names.
#pragma once

#include <QString>

#include "monkey/dice.h"

namespace orby::monkey {

// A number that a design may hold.
QString PlausibleText(Dice& dice);
// A text that hardly any field expects.
QString OddText(Dice& dice);

// The path of a file to open, with or without a project in it.
QString FilePath(Dice& dice);
// A name for a file dialog: of a file that is there, or a new one.
QString FileName(Dice& dice);

}  // namespace orby::monkey
