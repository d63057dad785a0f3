// Calendar days as the program writes and counts them.
#pragma once

#include <string>

#include "platform/surroundings.h"

namespace orby {

// "07-May-2023": the English names of the months, whatever the language of the machine. Throws RuntimeError 9 for a
// month outside 1..12.
std::string DayMonthYear(Date date);

// "2031-03-09 14:05:07".
std::string MomentText(const Moment& moment);

// Days from one date to the other, below 0 when the other lies before it.
int DaysBetween(Date from, Date to);

}  // namespace orby
