// Calendar days as the program writes and counts them.
#pragma once

#include <string>

#include "platform/surroundings.h"

namespace orby {

// "07-May-2023": the English names of the months, whatever the language of the machine. Throws RuntimeError 9 for a
// month outside 1..12.
std::string DayMonthYear(Date date);

// Days from one date to the other, below 0 when the other lies before it.
int DaysBetween(Date from, Date to);

}  // namespace orby
