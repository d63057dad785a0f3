// Compares the conversions of numbers with tables of measured results. A row with a doubtful result is left out, or
// compared with the correct result where that is known.
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "support/recording_platform.h"
#include "support/test_data.h"

namespace orby {
namespace {

using test::ReadTable;
using test::TableRow;

// Returns the correct results of the doubtful rows of a table, by line. Empty where the correct result is not known.
std::map<int, std::string> DoubtfulRows(const std::string& table) {
  enum Column { Table, Line, Key, Measured, TrueAnswer };
  std::map<int, std::string> answers;
  for (const TableRow& row : ReadTable("vectors/suspect.tsv")) {
    if (row.fields.at(Table) == table) answers[std::stoi(row.fields.at(Line))] = row.fields.at(TrueAnswer);
  }
  return answers;
}

// A row that can be compared, and its correct result where the measured one is wrong.
struct SoundRow {
  TableRow row;
  std::optional<std::string> correction;

  const std::string& Field(std::size_t column) const { return row.fields.at(column); }
};

std::vector<SoundRow> SoundRows(const std::string& table) {
  const auto doubtful = DoubtfulRows(table);
  std::vector<SoundRow> sound;
  for (TableRow& row : ReadTable("vectors/" + table)) {
    const auto found = doubtful.find(row.line);
    if (found == doubtful.end()) {
      sound.push_back({std::move(row), std::nullopt});
    } else if (!found->second.empty()) {
      sound.push_back({std::move(row), found->second});
    }
  }
  return sound;
}

template <class Float, class Bits>
Float FromBits(const std::string& hex) {
  Bits bits = 0;
  std::from_chars(hex.data(), hex.data() + hex.size(), bits, 16);
  return std::bit_cast<Float>(bits);
}

Single SingleFromBits(const std::string& hex) { return FromBits<Single, std::uint32_t>(hex); }
double DoubleFromBits(const std::string& hex) { return FromBits<double, std::uint64_t>(hex); }

TEST(ReferenceTable, HoldsForTheGeneralTextOfASingle) {
  const auto rows = SoundRows("general_single.tsv");

  EXPECT_EQ(rows.size(), 383U);
  for (const SoundRow& row : rows) {
    EXPECT_EQ(NumberText(SingleFromBits(row.Field(0))), row.correction.value_or(row.Field(1)))
        << "line " << row.row.line;
  }
}

TEST(ReferenceTable, HoldsForTheGeneralTextOfADouble) {
  const auto rows = SoundRows("general_double.tsv");

  EXPECT_EQ(rows.size(), 411U);
  for (const SoundRow& row : rows) {
    EXPECT_EQ(NumberText(DoubleFromBits(row.Field(0))), row.correction.value_or(row.Field(1)))
        << "line " << row.row.line;
  }
}

struct NamedPattern {
  std::string_view name;
  NumberPattern pattern;
};

constexpr std::array Patterns{NamedPattern{"0.0", "0.0"},      NamedPattern{"#.0", "#.0"}, NamedPattern{"0.#0", "0.#0"},
                              NamedPattern{"0.00", "0.00"},    NamedPattern{"0", "0"},     NamedPattern{"##.#", "##.#"},
                              NamedPattern{"##0.00", "##0.00"}};

NumberPattern PatternNamed(std::string_view name) {
  for (const NamedPattern& row : Patterns) {
    if (row.name == name) return row.pattern;
  }
  throw std::out_of_range("no such pattern: " + std::string(name));
}

// The measured results always have the second decimal of "0.#0". A field shows it only when it is not 0.
std::string ExpectedFormat(const SoundRow& row) {
  std::string text = row.correction.value_or(row.Field(3));
  if (row.Field(2) == "0.#0" && text.ends_with('0')) text.pop_back();
  return text;
}

TEST(ReferenceTable, HoldsForFormatsOfSinglesAndDoubles) {
  enum Column { Type, Bits, Pattern };
  const auto rows = SoundRows("format.tsv");

  EXPECT_EQ(rows.size(), 7386U);
  for (const SoundRow& row : rows) {
    const NumberPattern pattern = PatternNamed(row.Field(Pattern));
    const std::string text = row.Field(Type) == "R4" ? FormatNumber(SingleFromBits(row.Field(Bits)), pattern)
                                                     : FormatNumber(DoubleFromBits(row.Field(Bits)), pattern);
    EXPECT_EQ(text, ExpectedFormat(row)) << "line " << row.row.line;
  }
}

TEST(ReferenceTable, HoldsForDoublesRoundedToIntegers) {
  enum Column { Target, Value, Status, Result, Bits };
  int integers = 0;
  int overflows = 0;

  for (const SoundRow& row : SoundRows("integer.tsv")) {
    if (row.Field(Target) != "I2") continue;
    const double value = DoubleFromBits(row.Field(Bits));
    if (row.Field(Status) == "00000000") {
      ++integers;
      EXPECT_EQ(std::to_string(ToInteger(value)), row.Field(Result)) << "line " << row.row.line;
    } else {
      ++overflows;
      EXPECT_EQ(row.Field(Status), "8002000a") << "line " << row.row.line;
      EXPECT_EQ(test::ErrorNumberOf([&] { ToInteger(value); }), error_number::Overflow) << "line " << row.row.line;
    }
  }

  EXPECT_EQ(integers + overflows, 143);
  EXPECT_GT(integers, 0);
  EXPECT_GT(overflows, 0);
}

// Returns the value of a row that is a number, or nothing when the table says only that it is a number.
std::optional<double> KnownValue(const SoundRow& row) {
  if (!row.correction) return DoubleFromBits(row.Field(4));
  double value = 0;
  const std::string& text = *row.correction;
  if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc{}) return std::nullopt;
  return value;
}

TEST(ReferenceTable, HoldsForTextsThatAreNumbers) {
  const auto rows = SoundRows("text_to_double.tsv");
  int numbers = 0;

  EXPECT_EQ(rows.size(), 293U);
  for (const SoundRow& row : rows) {
    const auto value = LooseNumber(test::Unescape(row.Field(0)));
    const bool isNumber = row.correction || row.Field(1) == "1";
    ASSERT_EQ(value.has_value(), isNumber) << "line " << row.row.line << ": " << row.Field(0);
    if (!isNumber) continue;
    ++numbers;
    const auto known = KnownValue(row);
    if (!known) continue;
    EXPECT_EQ(std::bit_cast<std::uint64_t>(*value), std::bit_cast<std::uint64_t>(*known)) << "line " << row.row.line;
  }
  EXPECT_EQ(numbers, 160);
}

}  // namespace
}  // namespace orby
