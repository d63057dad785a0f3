#include "base/runtime_error.h"

#include <algorithm>
#include <array>
#include <utility>

namespace orby {
namespace {

struct ErrorText {
  int number;
  std::string_view description;
};

constexpr std::array ErrorTexts{
    ErrorText{error_number::BadCall, "Invalid procedure call or argument"},
    ErrorText{error_number::Overflow, "Overflow"},
    ErrorText{error_number::OutOfMemory, "Out of memory"},
    ErrorText{error_number::Subscript, "Subscript out of range"},
    ErrorText{error_number::DivisionByZero, "Division by zero"},
    ErrorText{error_number::TypeMismatch, "Type mismatch"},
    ErrorText{error_number::BadFileName, "Bad file name or number"},
    ErrorText{error_number::FileNotFound, "File not found"},
    ErrorText{error_number::FileAlreadyOpen, "File already open"},
    ErrorText{error_number::DiskFull, "Disk full"},
    ErrorText{error_number::PastEndOfFile, "Input past end of file"},
    ErrorText{error_number::PermissionDenied, "Permission denied"},
    ErrorText{error_number::PathFileAccess, "Path/File access error"},
    ErrorText{error_number::PathNotFound, "Path not found"},
    ErrorText{error_number::Automation, "Automation server can't create object"},
    ErrorText{error_number::Printer, "Printer error"},
    ErrorText{error_number::Cancelled, "Cancel was selected."},
};

}  // namespace

std::string_view ErrorDescription(int number) {
  const auto* row = std::find_if(ErrorTexts.begin(), ErrorTexts.end(),
                                 [number](const ErrorText& text) { return text.number == number; });
  return row == ErrorTexts.end() ? "Application-defined or object-defined error" : row->description;
}

RuntimeError::RuntimeError(int errorNumber) : RuntimeError(errorNumber, {}) {}

RuntimeError::RuntimeError(int errorNumber, std::string_view remark)
    : number_(errorNumber), description_(ErrorDescription(errorNumber)) {
  description_ += remark;
  what_ = "run-time error " + std::to_string(errorNumber) + ": " + description_;
}

void RuntimeError::SetCircumstance(std::string words) {
  if (circumstance_.empty()) circumstance_ = std::move(words);
}

}  // namespace orby
