#include "core/act.h"

#include <algorithm>
#include <array>

namespace orby {
namespace {

// The text before and after the name of the object.
struct Words {
  Act act;
  std::string_view before;
  std::string_view after;
};

constexpr std::array ActTable{
    Words{Act::Start, "while the program was started", ""},
    Words{Act::OpenFile, "while ", " was opened"},
    Words{Act::ShowDialog, "while the input dialog was opened", ""},
    Words{Act::TakeParameters, "while the parameters were taken over", ""},
    Words{Act::TakeCosts, "while the costs were taken over", ""},
    Words{Act::Report, "while the report was made", ""},
    Words{Act::Curve, "while the curve \"", "\" was drawn"},
};

}  // namespace

std::string ActWords(Act act, std::string_view object) {
  const auto* row = std::ranges::find(ActTable, act, &Words::act);
  std::string words(row->before);
  words += object;
  words += row->after;
  return words;
}

}  // namespace orby
