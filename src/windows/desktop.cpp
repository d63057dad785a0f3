#include "machine/desktop.h"

#include <cstdint>

#include "windows/system.h"
#include "windows/wide_text.h"

namespace orby {

bool OpenOnDesktop(const std::string& path) {
  constexpr std::intptr_t LastError = 32;
  const HINSTANCE result = ShellExecuteW(nullptr, nullptr, WideText(path).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<std::intptr_t>(result) > LastError;
}

// A type without a program of its own would be answered with the dialog that asks for one.
bool OpensSpreadsheets() {
  DWORD size = 0;
  AssocQueryStringW(ASSOCF_INIT_IGNOREUNKNOWN, ASSOCSTR_EXECUTABLE, L".xlsx", nullptr, nullptr, &size);
  return size > 0;
}

// A printer for PDF files is one of the printers of Windows. Where it is missing, there may be none at all.
bool PrintsToFiles() { return false; }

}  // namespace orby
