#include "qt/boundary.h"

#include <exception>
#include <new>
#include <utility>

namespace orby {
namespace {

ErrorHandler& Handler() {
  static ErrorHandler handler;
  return handler;
}

bool HandleError(const RuntimeError& error) {
  if (!Handler()) std::terminate();
  Handler()(error);
  return false;
}

}  // namespace

void SetErrorHandler(ErrorHandler handler) { Handler() = std::move(handler); }

bool RunGuarded(const std::function<void()>& act) {
  try {
    act();
    return true;
  } catch (const RuntimeError& error) {
    return HandleError(error);
  } catch (const std::bad_alloc&) {
    return HandleError(RuntimeError(error_number::OutOfMemory));
  }
}

}  // namespace orby
