// Fields of comma-separated values.
#include "base/csv_text.h"

#include <gtest/gtest.h>

namespace orby::test {
namespace {

std::string FieldWith(std::string_view text) {
  std::string csv = "a,";
  AppendCsvField(csv, text);
  return csv;
}

TEST(CsvField, StandsAsItIs) {
  EXPECT_EQ(FieldWith("Depth of Cover (ft)"), "a,Depth of Cover (ft)");
  EXPECT_EQ(FieldWith(""), "a,");
}

TEST(CsvField, WithACommaAQuoteOrALineEndStandsInQuotes) {
  EXPECT_EQ(FieldWith("3 East, crosscut 14"), "a,\"3 East, crosscut 14\"");
  EXPECT_EQ(FieldWith("the \"big\" crib"), "a,\"the \"\"big\"\" crib\"");
  EXPECT_EQ(FieldWith("two\r\nlines"), "a,\"two\r\nlines\"");
}

}  // namespace
}  // namespace orby::test
