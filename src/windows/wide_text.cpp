#include "windows/wide_text.h"

#include <algorithm>
#include <array>

#include "base/paths.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "windows/system.h"

namespace orby {
namespace {

constexpr std::array<std::string_view, 6> Devices{"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};

// COM0 to COM9 and LPT0 to LPT9.
bool IsNumberedPort(std::string_view name) {
  return name.size() == 4 && (name.starts_with("COM") || name.starts_with("LPT")) && name[3] >= '0' && name[3] <= '9';
}

// A device keeps its name with any extension.
bool IsDevice(std::string_view name) {
  const std::string device = UpperCase(Trim(name.substr(0, name.find('.'))));
  return IsNumberedPort(device) || std::ranges::find(Devices, device) != Devices.end();
}

bool IsChangedByTheSystem(std::string_view name) {
  return name != "." && name != ".." && (name.ends_with('.') || name.ends_with(' '));
}

// Returns the path from the root of its disk.
std::wstring FullPath(const std::wstring& path) {
  std::wstring full(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    if (length == 0) throw RuntimeError(error_number::BadFileName);
    const bool fits = length < full.size();
    full.resize(length);
    if (fits) return full;
  }
}

}  // namespace

std::wstring WideText(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string Utf8Text(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  const int needed = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, utf8.data(), needed, nullptr, nullptr);
  return utf8;
}

std::wstring WidePath(const std::string& path) {
  // The functions that take a folder append to it, and 8.3 names need room too.
  constexpr std::size_t LongestPlain = MAX_PATH - 13;
  const std::string_view name = NameAfterSeparator(WithoutSeparator(path));
  if (path.empty() || path.find('\0') != std::string::npos || IsDevice(name) || IsChangedByTheSystem(name)) {
    throw RuntimeError(error_number::BadFileName);
  }
  std::wstring wide = WideText(path);
  if (wide.starts_with(LR"(\\?\)")) return wide;
  const std::wstring full = FullPath(wide);
  if (full.size() <= LongestPlain) return wide;
  return full.starts_with(LR"(\\)") ? LR"(\\?\UNC)" + full.substr(1) : LR"(\\?\)" + full;
}

}  // namespace orby
