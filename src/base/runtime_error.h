// Run-time errors, which arithmetic, files and devices throw when they cannot continue.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace orby {

// Numbers and no enumeration: messages show them, and every number has a text.
namespace error_number {
inline constexpr int BadCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int Subscript = 9;
inline constexpr int DivisionByZero = 11;
inline constexpr int TypeMismatch = 13;
inline constexpr int BadFileName = 52;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAlreadyOpen = 55;
inline constexpr int DiskFull = 61;
inline constexpr int PastEndOfFile = 62;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int Automation = 429;
inline constexpr int Printer = 482;
inline constexpr int Cancelled = 32755;
}  // namespace error_number

// Returns the text of an error number. Numbers outside the table share one general text.
std::string_view ErrorDescription(int number);

// Only the outermost handler of events catches it, except in commands that are documented to catch errors themselves.
class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(int errorNumber);
  // The description is the text of the number followed by `remark`.
  RuntimeError(int errorNumber, std::string_view remark);

  int number() const { return number_; }
  std::string_view description() const { return description_; }
  // What the program was doing, such as "while the report was made". Empty until SetCircumstance is called.
  const std::string& circumstance() const { return circumstance_; }
  // Sets the circumstance. Only the first call has an effect, because it is the nearest to the failure.
  void SetCircumstance(std::string words);
  // "run-time error 11: Division by zero"
  const char* what() const noexcept override { return what_.c_str(); }

 private:
  int number_;
  std::string description_;
  std::string circumstance_;
  std::string what_;
};

}  // namespace orby
