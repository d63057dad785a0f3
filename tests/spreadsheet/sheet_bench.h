// The contents of a spreadsheet file.
#pragma once

#include <cstdio>
#include <map>
#include <regex>
#include <stdexcept>
#include <string>
#include <vector>

namespace orby::test {

// Returns a part of the file, such as "xl/worksheets/sheet1.xml". Requires a path without quotation marks.
inline std::string SheetPart(const std::string& path, const std::string& part) {
  std::FILE* reader = popen(("unzip -p '" + path + "' " + part).c_str(), "r");
  if (reader == nullptr) throw std::logic_error("unzip does not start");
  std::string text;
  for (int letter = std::fgetc(reader); letter != EOF; letter = std::fgetc(reader)) text += static_cast<char>(letter);
  if (pclose(reader) != 0) throw std::logic_error("no part " + part);
  return text;
}

// Returns the texts that cells refer to by their number.
inline std::vector<std::string> SharedTexts(const std::string& path) {
  const std::string xml = SheetPart(path, "xl/sharedStrings.xml");
  const std::regex text("<t[^>]*>([^<]*)</t>");
  std::vector<std::string> texts;
  for (std::sregex_iterator found(xml.begin(), xml.end(), text), end; found != end; ++found)
    texts.push_back((*found)[1]);
  return texts;
}

// Returns the cells of the sheet by their names. Numbers are texts as in the file.
inline std::map<std::string, std::string> SheetCells(const std::string& path) {
  const std::string xml = SheetPart(path, "xl/worksheets/sheet1.xml");
  const std::vector<std::string> texts = SharedTexts(path);
  const std::regex cell("<c r=\"([A-Z]+[0-9]+)\"([^>]*)><v>([^<]*)</v></c>");
  std::map<std::string, std::string> cells;
  for (std::sregex_iterator found(xml.begin(), xml.end(), cell), end; found != end; ++found) {
    const bool isText = (*found)[2].str().find("t=\"s\"") != std::string::npos;
    const std::string value = (*found)[3];
    cells[(*found)[1]] = isText ? texts.at(std::stoul(value)) : value;
  }
  return cells;
}

}  // namespace orby::test
