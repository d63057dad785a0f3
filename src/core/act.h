// What the program does for the user, in the words of a message about its failure.
#pragma once

#include <string>
#include <string_view>

#include "base/runtime_error.h"

namespace orby {

enum class Act { Start, OpenFile, ShowDialog, TakeParameters, TakeCosts, Report, Curve };

// "while the report was made". `object` names the file or the curve where the act has one.
std::string ActWords(Act act, std::string_view object = {});

// Words for the failure of an act that nobody has named.
inline constexpr std::string_view UnnamedAct = "during your last step";

// Does the work. A RuntimeError that leaves it says what was being done. The object is copied: the work may change it.
template <class Work>
decltype(auto) While(Act act, std::string_view present, const Work& work) {
  const std::string object(present);
  try {
    return work();
  } catch (RuntimeError& error) {
    error.SayCircumstance(ActWords(act, object));
    throw;
  }
}

template <class Work>
decltype(auto) While(Act act, const Work& work) {
  return While(act, {}, work);
}

}  // namespace orby
