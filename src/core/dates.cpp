#include "core/dates.h"

#include <array>
#include <chrono>
#include <string_view>

#include "base/number_text.h"
#include "base/runtime_error.h"

namespace orby {
namespace {

constexpr std::array<std::string_view, 12> Months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                  "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string AtLeastTwoDigits(int number) { return (number < 10 ? "0" : "") + NumberText(number); }

std::chrono::sys_days DayOf(Date date) { return std::chrono::year(date.year) / date.month / date.day; }

}  // namespace

std::string DayMonthYear(Date date) {
  if (date.month < 1 || date.month > static_cast<int>(Months.size())) throw RuntimeError(error_number::Subscript);
  return AtLeastTwoDigits(date.day)
      .append("-")
      .append(Months[static_cast<std::size_t>(date.month - 1)])
      .append("-")
      .append(NumberText(date.year));
}

std::string DateText(const Date& date) {
  std::string text = NumberText(date.year);
  return text.append("-").append(AtLeastTwoDigits(date.month)).append("-").append(AtLeastTwoDigits(date.day));
}

std::string MomentText(const Moment& moment) {
  const auto& [date, hour, minute, second] = moment;
  std::string text = DateText(date);
  text.append(" ").append(AtLeastTwoDigits(hour)).append(":").append(AtLeastTwoDigits(minute));
  return text.append(":").append(AtLeastTwoDigits(second));
}

int DaysBetween(Date from, Date to) { return static_cast<int>((DayOf(to) - DayOf(from)).count()); }

}  // namespace orby
