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
constexpr std::array<std::string_view, 3> RaisedDigits{"\xC2\xB9", "\xC2\xB2", "\xC2\xB3"};  // 1, 2 and 3

// COM0 to COM9 and LPT0 to LPT9. Windows also takes a raised digit for the digit.
bool IsNumberedPort(std::string_view name) {
  if (!name.starts_with("COM") && !name.starts_with("LPT")) return false;
  const std::string_view number = name.substr(3);
  const bool isDigit = number.size() == 1 && number[0] >= '0' && number[0] <= '9';
  return isDigit || std::ranges::find(RaisedDigits, number) != RaisedDigits.end();
}

// A device keeps its name with any extension.
bool IsDevice(std::string_view name) {
  const std::string device = UpperCase(Trim(name.substr(0, name.find('.'))));
  return IsNumberedPort(device) || std::ranges::find(Devices, device) != Devices.end();
}

bool IsChangedByTheSystem(std::string_view name) {
  return name != "." && name != ".." && (name.ends_with('.') || name.ends_with(' '));
}

// What follows a colon is the name of a stream, a second file that Windows hides in the first one.
bool NamesAFile(std::string_view name) {
  constexpr std::size_t LongestName = 255;  // in UTF-16
  const bool isUsable = !IsDevice(name) && !IsChangedByTheSystem(name) && name.find(':') == std::string_view::npos;
  return isUsable && WideText(name).size() <= LongestName;
}

// Returns true for a path such as "\\.\C:", which leads to a disk without its files, a pipe or a port.
bool IsInTheSpaceOfDevices(std::string_view path) {
  return path.size() >= 4 && IsSeparator(path[0]) && IsSeparator(path[1]) && path[2] == '.' && IsSeparator(path[3]);
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

std::string_view WithoutFolder(std::string_view path) {
  const std::string_view name = NameAfterSeparator(path);
  const bool hasDrive = name.size() == path.size() && name.size() >= 2 && name[1] == ':';
  return hasDrive ? name.substr(2) : name;
}

std::string FolderOf(std::string_view path) {
  return std::string(path.substr(0, path.size() - WithoutFolder(path).size()));
}

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

std::wstring WidePath(const std::string& path) {
  // The functions that take a folder append to it, and 8.3 names need room too.
  constexpr std::size_t LongestPlain = MAX_PATH - 13;
  const std::string_view name = WithoutFolder(WithoutSeparator(path));
  if (path.empty() || path.find('\0') != std::string::npos || IsInTheSpaceOfDevices(path) || !NamesAFile(name)) {
    throw RuntimeError(error_number::BadFileName);
  }
  std::wstring wide = WideText(path);
  if (wide.starts_with(LR"(\\?\)")) return wide;
  const std::wstring full = FullPath(wide);
  if (full.size() <= LongestPlain) return wide;
  return full.starts_with(LR"(\\)") ? LR"(\\?\UNC)" + full.substr(1) : LR"(\\?\)" + full;
}

}  // namespace orby
