// Text of dates, and the number of days between them.
#pragma once

#include <string>

#include "platform/surroundings.h"

namespace orby {

// Returns "07-May-2023". The names of the months are English in every locale. Throws RuntimeError 9 for a month outside
// 1..12.
std::string DayMonthYear(Date date);

// Returns "2031-03-09".
std::string DateText(const Date& date);

// Returns "2031-03-09 14:05:07".
std::string MomentText(const Moment& moment);

// Returns the number of days from one date to the other. Negative when `to` is earlier than `from`.
int DaysBetween(Date from, Date to);

}  // namespace orby
