// Run-time errors: what arithmetic, files and devices raise when they cannot go on.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace orby {

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

// The text that goes with an error number; numbers outside the table share one general text.
std::string_view ErrorDescription(int number);

// Nothing between the event and the outermost boundary catches it unless a command is stated to have a trap.
class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(int errorNumber);
  // The number's description is followed by what the user needs to know besides.
  RuntimeError(int errorNumber, std::string_view remark);

  int number() const { return number_; }
  std::string_view description() const { return description_; }
  // What failed, "while the report was made"; empty until somebody has said it.
  const std::string& circumstance() const { return circumstance_; }
  // The first one that is said stands: it is the nearest to the failure.
  void SayCircumstance(std::string words);
  // "run-time error 11: Division by zero"
  const char* what() const noexcept override { return what_.c_str(); }

 private:
  int number_;
  std::string description_;
  std::string circumstance_;
  std::string what_;
};

}  // namespace orby
