// Reading the reference tables and golden texts under tests/data.
#pragma once

#include <string>
#include <vector>

namespace orby::test {

// The bytes of a file below tests/data. A missing file fails the test that asked.
std::string ReadTestData(const std::string& name);

struct TableRow {
  int line = 0;  // in the file, counted from 1
  std::vector<std::string> fields;
};

// The rows of a tab-separated table below tests/data, its first line left out.
std::vector<TableRow> ReadTable(const std::string& name);

// Undoes the escapes \\ \t \r \n \0 \xNN of a table's field.
std::string Unescape(const std::string& field);

}  // namespace orby::test
