// The outermost boundary: what a run-time error meets that nothing has dealt with.
#pragma once

#include <functional>

#include "base/runtime_error.h"

namespace orby {

// Called with the error that ends the run. It does not return in the program; where it does, the event is dropped.
using ErrorHandler = std::function<void(const RuntimeError& error)>;
void SetErrorHandler(ErrorHandler handler);

// Runs what an event asks for. The toolkit must not see an exception, so every event goes through here. Returns
// true if the act completed.
bool RunGuarded(const std::function<void()>& act);

}  // namespace orby
