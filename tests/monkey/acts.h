// The acts of a monkey.
#pragma once

#include <functional>

#include "monkey/dice.h"

namespace orby::monkey {

// Does something at random in the windows on the screen. log: is told what, before it is done. act: its number.
void DoRandomAct(Dice& dice, std::uint64_t seed, long act, const std::function<void(const std::string& what)>& log);

}  // namespace orby::monkey
