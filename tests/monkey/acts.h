// The random actions of a monkey.
#pragma once

#include <functional>

#include "monkey/dice.h"

namespace orby::monkey {

// Does a random action in the windows on the screen. Calls `log` with a description before the action. act: the number
// of the action.
void DoRandomAct(Dice& dice, std::uint64_t seed, long act, const std::function<void(const std::string& what)>& log);

}  // namespace orby::monkey
