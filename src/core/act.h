// Actions of the program, as messages about their failure name them.
#pragma once

#include <string>
#include <string_view>

#include "base/runtime_error.h"

namespace orby {

enum class Act { Start, OpenFile, ShowDialog, TakeParameters, TakeCosts, Report, Curve };

// Returns the words for an action, such as "while the report was made". `object` is the name of its file or curve, if
// it has one.
std::string ActWords(Act act, std::string_view object = {});

// The words for an action without a name.
inline constexpr std::string_view UnnamedAct = "during your last step";

// Calls `work` and returns its result. Sets the circumstance of a RuntimeError that it throws. `present` is copied,
// because the work may change it.
template <class Work>
decltype(auto) While(Act act, std::string_view present, const Work& work) {
  const std::string object(present);
  try {
    return work();
  } catch (RuntimeError& error) {
    error.SetCircumstance(ActWords(act, object));
    throw;
  }
}

template <class Work>
decltype(auto) While(Act act, const Work& work) {
  return While(act, {}, work);
}

}  // namespace orby
