// Compares reads and writes of configuration files with a table of measured calls.
#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "base/code_page.h"
#include "base/text.h"
#include "config/ini_file.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

struct Call {
  int line = 0;
  std::string fileBefore;
  std::vector<std::string> arguments;  // the first is "G" or "W"
  std::string result;
  std::string fileAfter;
};

std::vector<std::string> Parts(const std::string& field) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t bar = field.find('|'); bar != std::string::npos; bar = field.find('|', start)) {
    parts.push_back(field.substr(start, bar - start));
    start = bar + 1;
  }
  parts.push_back(field.substr(start));
  return parts;
}

// Returns the doubtful rows by line. The value is true if only the bytes of the resulting file are doubtful.
std::map<int, bool> SuspectRows() {
  std::map<int, bool> suspects;
  for (const TableRow& row : ReadTable("vectors/suspect.tsv")) {
    if (row.fields.at(0) == "ini.tsv") suspects[std::stoi(row.fields.at(1))] = row.fields.at(3) == "resulting file";
  }
  return suspects;
}

// Returns true for a row of a call that the program makes. It asks for no lists of names, deletes nothing, and handles
// defaults itself.
bool IsUsedByTheProgram(const TableRow& row) {
  static const std::set<std::string> otherServices{"default text", "long default 300", "missing file",
                                                   "write into missing folder"};
  return !otherServices.contains(row.fields.at(0)) && row.fields.at(2).find("<null>") == std::string::npos;
}

std::vector<Call> Calls(const std::string& kind, bool withSuspectBytes) {
  const auto suspects = SuspectRows();
  std::vector<Call> calls;
  for (const TableRow& row : ReadTable("vectors/ini.tsv")) {
    Call call{row.line, row.fields.at(1), Parts(row.fields.at(2)), row.fields.at(3), row.fields.at(4)};
    if (call.arguments.front() != kind || !IsUsedByTheProgram(row)) continue;
    const auto suspect = suspects.find(row.line);
    if (suspect != suspects.end() && !(withSuspectBytes && suspect->second)) continue;
    call.fileBefore = call.fileBefore == "<none>" ? std::string() : Unescape(call.fileBefore);
    call.fileAfter = Unescape(call.fileAfter);
    for (std::string& argument : call.arguments) argument = TextFromFileBytes(Unescape(argument));
    calls.push_back(std::move(call));
  }
  return calls;
}

TEST(IniTable, HoldsForEveryRead) {
  int compared = 0;
  for (const Call& call : Calls("G", false)) {
    const std::size_t room = std::stoul(call.arguments.at(4));
    const std::string& whenMissing = call.arguments.at(3);
    const std::string expected = TextFromFileBytes(Unescape(call.result.substr(call.result.find('|') + 1)));
    const IniText ini = IniText::FromFileBytes(call.fileBefore);

    const std::string found(ini.Find(call.arguments.at(1), call.arguments.at(2)).value_or(whenMissing));

    const std::string kept = found.substr(0, CharacterOffset(found, std::max<std::size_t>(room, 1) - 1));
    EXPECT_EQ(kept, expected) << "line " << call.line;
    ++compared;
  }
  EXPECT_EQ(compared, 182);
}

TEST(IniTable, HoldsForEveryReadOf254Characters) {
  int compared = 0;
  for (const Call& call : Calls("G", false)) {
    if (call.arguments.at(4) != "255" || call.result == "3|DEF") continue;
    const std::string expected = TextFromFileBytes(Unescape(call.result.substr(call.result.find('|') + 1)));
    const IniText ini = IniText::FromFileBytes(call.fileBefore);

    EXPECT_EQ(ReadIniValue(ini, call.arguments.at(1), call.arguments.at(2)), expected) << "line " << call.line;
    ++compared;
  }
  EXPECT_EQ(compared, 149);
}

TEST(IniTable, HoldsForTheBytesOfEveryWrite) {
  int compared = 0;
  for (const Call& call : Calls("W", false)) {
    IniText ini = IniText::FromFileBytes(call.fileBefore);

    ini.Write(call.arguments.at(1), call.arguments.at(2), call.arguments.at(3));

    EXPECT_EQ(ini.FileBytes(), call.fileAfter) << "line " << call.line;
    ++compared;
  }
  EXPECT_EQ(compared, 41);
}

TEST(IniTable, HoldsForReadingBackEveryWrite) {
  int compared = 0;
  for (const Call& call : Calls("W", true)) {
    IniText ini = IniText::FromFileBytes(call.fileBefore);
    const IniText expected = IniText::FromFileBytes(call.fileAfter);

    ini.Write(call.arguments.at(1), call.arguments.at(2), call.arguments.at(3));

    const IniText reread = IniText::FromFileBytes(ini.FileBytes());
    EXPECT_EQ(reread.Find(call.arguments.at(1), call.arguments.at(2)),
              expected.Find(call.arguments.at(1), call.arguments.at(2)))
        << "line " << call.line;
    ++compared;
  }
  EXPECT_EQ(compared, 59);
}

}  // namespace
}  // namespace orby::test
