#include "support/test_data.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace orby::test {

std::string ReadTestData(const std::string& name) {
  const std::string path = std::string(TEST_DATA_DIR) + "/" + name;
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("missing test data: " + path);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

std::vector<TableRow> ReadTable(const std::string& name) {
  std::vector<TableRow> rows;
  std::istringstream lines(ReadTestData(name));
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    if (number == 1) continue;
    TableRow row{number, {}};
    std::size_t start = 0;
    for (std::size_t tab = line.find('\t'); tab != std::string::npos; tab = line.find('\t', start)) {
      row.fields.push_back(line.substr(start, tab - start));
      start = tab + 1;
    }
    row.fields.push_back(line.substr(start));
    rows.push_back(std::move(row));
  }
  return rows;
}

std::string Unescape(const std::string& field) {
  std::string text;
  for (std::size_t i = 0; i < field.size(); ++i) {
    if (field[i] != '\\') {
      text.push_back(field[i]);
      continue;
    }
    switch (field.at(++i)) {
      case 't': text.push_back('\t'); break;
      case 'r': text.push_back('\r'); break;
      case 'n': text.push_back('\n'); break;
      case '0': text.push_back('\0'); break;
      case 'x':
        text.push_back(static_cast<char>(std::stoi(field.substr(i + 1, 2), nullptr, 16)));
        i += 2;
        break;
      default: text.push_back(field[i]);
    }
  }
  return text;
}

}  // namespace orby::test
