// The outermost handler of run-time errors.
#pragma once

#include <functional>

#include "base/runtime_error.h"

namespace orby {

// Called with an error that nothing has handled. In the program it does not return; in tests it may, and the event is
// then dropped.
using ErrorHandler = std::function<void(const RuntimeError& error)>;
void SetErrorHandler(ErrorHandler handler);

// Runs the action of an event and handles its errors. Every event goes through here, because no exception may reach the
// toolkit. Returns true if `act` completed.
bool RunGuarded(const std::function<void()>& act);

}  // namespace orby
