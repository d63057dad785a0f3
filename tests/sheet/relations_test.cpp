// The table of the relations.
#include "sheet/relations.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::UnorderedElementsAreArray;

void AddSymbols(const Expression& formula, std::set<std::string_view>& symbols) {
  if (formula.What == Operation::Symbol) symbols.insert(formula.Letter);
  for (const Expression& part : formula.Parts) AddSymbols(part, symbols);
}

std::string PageOfHelp(const std::string& name) {
  std::ifstream file(std::string(EXAMPLES_DIR) + "/../help/pages/" + name, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

TEST(TheRelations, AreFoundByTheirLaw) {
  for (const Relation& relation : Relations()) EXPECT_EQ(&RelationOf(relation.What), &relation) << relation.Key;
}

TEST(TheRelations, HaveKeysOfTheirOwn) {
  std::set<std::string_view> keys;
  for (const Relation& relation : Relations()) EXPECT_TRUE(keys.insert(relation.Key).second) << relation.Key;
}

TEST(TheRelations, ExplainEachSymbolOfTheirFormula) {
  for (const Relation& relation : Relations()) {
    std::set<std::string_view> used;
    AddSymbols(relation.Formula, used);
    std::set<std::string_view> explained;
    for (const SymbolMeaning& symbol : relation.Symbols) {
      explained.insert(symbol.Letter);
      EXPECT_NE(symbol.Meaning, "") << relation.Key;
    }
    EXPECT_THAT(explained, UnorderedElementsAreArray(used)) << relation.Key;
    EXPECT_EQ(explained.size(), relation.Symbols.size()) << relation.Key;
  }
}

TEST(TheRelations, LeadToAParagraphOfTheHelp) {
  for (const Relation& relation : Relations()) {
    const std::string page(relation.HelpPage);
    const std::size_t mark = page.find('#');
    ASSERT_NE(mark, std::string::npos) << relation.Key;
    EXPECT_THAT(PageOfHelp(page.substr(0, mark)), HasSubstr("<a name=\"" + page.substr(mark + 1) + "\""))
        << relation.Key;
  }
}

}  // namespace
}  // namespace orby::test
