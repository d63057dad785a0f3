// Reads the reference tables and golden texts below tests/data.
#pragma once

#include <string>
#include <vector>

namespace orby::test {

// Returns the bytes of a file below tests/data. Throws when the file is missing.
std::string ReadTestData(const std::string& name);

struct TableRow {
  int line = 0;  // number in the file, counted from 1
  std::vector<std::string> fields;
};

// Returns the rows of a tab-separated table below tests/data, without its first line.
std::vector<TableRow> ReadTable(const std::string& name);

// Replaces the escapes \\ \t \r
// \0 \xNN in a field of a table.
std::string Unescape(const std::string& field);

}  // namespace orby::test
