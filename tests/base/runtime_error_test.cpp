#include "base/runtime_error.h"

#include <gtest/gtest.h>

#include <exception>
#include <string>
#include <utility>

namespace orby {
namespace {

using NumberAndText = std::pair<int, const char*>;

class RuntimeErrorText : public testing::TestWithParam<NumberAndText> {};

TEST_P(RuntimeErrorText, BelongsToItsNumber) {
  const auto [number, text] = GetParam();

  const RuntimeError error(number);

  EXPECT_EQ(error.number(), number);
  EXPECT_EQ(error.description(), text);
  EXPECT_EQ(std::string(error.what()), "run-time error " + std::to_string(number) + ": " + text);
}

INSTANTIATE_TEST_SUITE_P(
    All, RuntimeErrorText,
    testing::Values(NumberAndText{5, "Invalid procedure call or argument"}, NumberAndText{6, "Overflow"},
                    NumberAndText{7, "Out of memory"}, NumberAndText{9, "Subscript out of range"},
                    NumberAndText{11, "Division by zero"}, NumberAndText{13, "Type mismatch"},
                    NumberAndText{52, "Bad file name or number"}, NumberAndText{53, "File not found"},
                    NumberAndText{55, "File already open"}, NumberAndText{61, "Disk full"},
                    NumberAndText{62, "Input past end of file"}, NumberAndText{70, "Permission denied"},
                    NumberAndText{75, "Path/File access error"}, NumberAndText{76, "Path not found"},
                    NumberAndText{429, "Automation server can't create object"}, NumberAndText{482, "Printer error"},
                    NumberAndText{32755, "Cancel was selected."}),
    [](const auto& row) { return "Error" + std::to_string(row.param.first); });

TEST(RuntimeError, NumbersWithoutATextOfTheirOwnShareOne) {
  EXPECT_EQ(ErrorDescription(0), "Application-defined or object-defined error");
  EXPECT_EQ(RuntimeError(1004).description(), "Application-defined or object-defined error");
}

TEST(RuntimeError, AppendsARemarkToItsText) {
  const RuntimeError error(error_number::DiskFull, ". The curve was written to /tmp/curve.xlsx");

  EXPECT_EQ(error.description(), "Disk full. The curve was written to /tmp/curve.xlsx");
  EXPECT_EQ(std::string(error.what()), "run-time error 61: Disk full. The curve was written to /tmp/curve.xlsx");
}

TEST(RuntimeError, IsCaughtAsAStandardException) {
  std::string text;

  try {
    throw RuntimeError(error_number::DivisionByZero);
  } catch (const std::exception& error) {
    text = error.what();
  }

  EXPECT_EQ(text, "run-time error 11: Division by zero");
}

}  // namespace
}  // namespace orby
