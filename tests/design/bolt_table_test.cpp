// The fixed tables of named bolts.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "design/catalogs.h"

namespace orby::test {
namespace {

struct Row {
  const char* name;
  const char* inches;
  const char* ksi;
  const char* millimetres;
  const char* MPa;
};

constexpr Row Rows[] = {
    {"#5 smooth - grade 55", "0.625", "55", "15.9", "379.2"},
    {"#5 rebar - grade 60", "0.625", "60", "15.9", "413.7"},
    {"#5 rebar - grade 75", "0.625", "75", "15.9", "517.1"},
    {"#6 special rebar - grade 75", "0.677", "75", "17.2", "517.1"},
    {"#6 rebar - grade 40", "0.75", "40", "19.1", "275.8"},
    {"#6 rebar - grade 60", "0.75", "60", "19.1", "413.7"},
    {"#6 smooth - grade 75", "0.75", "75", "19.1", "517.1"},
    {"#7 special rebar - grade 75", "0.804", "75", "20.4", "517.1"},
    {"#7 rebar - grade 40", "0.875", "40", "22.2", "275.8"},
    {"#7 rebar - grade 60", "0.875", "60", "22.2", "413.7"},
};

void ExpectRow(const BoltTableRow& row, const char* name, const char* diameter, const char* grade) {
  EXPECT_EQ(row.Name, name);
  EXPECT_EQ(row.Diameter, diameter) << name;
  EXPECT_EQ(row.Grade, grade) << name;
}

void ExpectAustralian(const BoltTable& table) {
  ASSERT_EQ(table.size(), 2U);
  ExpectRow(table[0], "Bolt 1", "21.7", "840");
  ExpectRow(table[1], "Bolt 2", "21.7", "440");
}

void ExpectMetric(const BoltTable& table) {
  ASSERT_EQ(table.size(), std::size(Rows));
  for (std::size_t i = 0; i < std::size(Rows); ++i) {
    ExpectRow(table[i], Rows[i].name, Rows[i].millimetres, Rows[i].MPa);
  }
}

TEST(BoltTables, NameTenBoltsInEnglishUnits) {
  Catalogs catalogs;

  SetBoltTableENG(catalogs);

  ASSERT_EQ(catalogs.BoltTableENG.size(), std::size(Rows));
  for (std::size_t i = 0; i < std::size(Rows); ++i) {
    ExpectRow(catalogs.BoltTableENG[i], Rows[i].name, Rows[i].inches, Rows[i].ksi);
  }
}

TEST(BoltTables, NameTheSameBoltsInMetricUnitsWithOneDecimal) {
  Catalogs catalogs;

  SetBoltTableMET(catalogs);

  ExpectMetric(catalogs.BoltTableMET);
}

TEST(BoltTables, OfAustraliaReplaceOnlyTheMetricTable) {
  Catalogs catalogs;
  SetBuiltInCatalogs(catalogs);

  SetBoltTableAUS(catalogs);

  ExpectAustralian(catalogs.BoltTableMET);
  EXPECT_EQ(catalogs.BoltTableENG.size(), 10U);
}

TEST(BoltTables, ReturnToMetricAfterTheAustralianTable) {
  Catalogs catalogs;
  SetBoltTableAUS(catalogs);

  SetBoltTableMET(catalogs);

  ExpectMetric(catalogs.BoltTableMET);
}

TEST(BoltTables, AreBuiltAtStart) {
  Catalogs catalogs;

  SetBuiltInCatalogs(catalogs);

  EXPECT_EQ(catalogs.BoltTableENG.size(), 10U);
  ExpectMetric(catalogs.BoltTableMET);
}

}  // namespace
}  // namespace orby::test
