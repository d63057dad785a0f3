// The JSON of a sheet, read by a reader of its own.
#include "sheet/sheet_json.h"

#include <gmock/gmock.h>

#include <bit>
#include <cmath>
#include <limits>
#include <map>
#include <numbers>
#include <set>
#include <stdexcept>

#include "sheet/example_sheets.h"
#include "sheet/json_reader.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

using Numbers = std::map<std::string, double>;

std::vector<const Json*> StepsOf(const Json& sheet) {
  std::vector<const Json*> steps;
  for (const Json& section : sheet["sections"].Items()) {
    for (const Json& part : section["parts"].Items()) {
      if (part["kind"].Text() == "step") steps.push_back(&part);
    }
  }
  return steps;
}

// Computes a formula of the file as its description says.
double ValueOfTree(const Json& formula, const Numbers& numbers);

double ValueOfTree(const std::string& operation, const JsonArray& parts, const Numbers& numbers) {
  const auto part = [&](std::size_t i) { return ValueOfTree(parts.at(i), numbers); };
  const auto folded = [&](auto join) {
    double all = part(0);
    for (std::size_t i = 1; i < parts.size(); ++i) all = join(all, part(i));
    return all;
  };
  constexpr double Degree = std::numbers::pi / 180;
  if (operation == "sum") return folded([](double a, double b) { return a + b; });
  if (operation == "product") return folded([](double a, double b) { return a * b; });
  if (operation == "difference") return part(0) - part(1);
  if (operation == "quotient") return part(0) / part(1);
  if (operation == "power") return std::pow(part(0), part(1));
  if (operation == "root") return std::sqrt(part(0));
  if (operation == "natural-log") return std::log(part(0));
  if (operation == "decimal-log") return std::log10(part(0));
  if (operation == "tangent-of-degrees") return std::tan(part(0) * Degree);
  if (operation == "cosine-of-degrees") return std::cos(part(0) * Degree);
  if (operation == "least") return std::min(part(0), part(1));
  if (operation == "greatest") return std::max(part(0), part(1));
  if (operation == "below") return part(0) < part(1) ? 1 : 0;
  if (operation == "at-most") return part(0) <= part(1) ? 1 : 0;
  if (operation == "equal") return part(0) == part(1) ? 1 : 0;
  if (operation != "cases") throw std::invalid_argument(operation);
  for (std::size_t i = 0; i + 1 < parts.size(); i += 2) {
    if (part(i + 1) != 0) return part(i);
  }
  return part(parts.size() - 1);
}

double ValueOfTree(const Json& formula, const Numbers& numbers) {
  const std::string& operation = formula["operation"].Text();
  if (operation == "number" || operation == "constant") return formula["value"].Number();
  if (operation == "symbol") return numbers.at(formula["symbol"].Text());
  return ValueOfTree(operation, formula["parts"].Items(), numbers);
}

TEST(ASheetsJson, HasFormulasThatGiveTheResults) {
  std::set<std::string> relations;
  for (const auto& [name, sheet] : SheetsOfAllKinds()) {
    const Json json = ReadJson(SheetJson(sheet));
    for (const Json* step : StepsOf(json)) {
      if (!step->Has("formula") || !(*step)["result"].Has("value")) continue;
      Numbers numbers;
      for (const Json& number : (*step)["numbers"].Items()) numbers[number["symbol"].Text()] = number["value"].Number();
      const double value = (*step)["result"]["value"].Number();
      const double own = ValueOfTree((*step)["formula"], numbers);
      ASSERT_NEAR(value, own, std::abs(own) * std::numeric_limits<float>::epsilon() + 1e-12)
          << name << ": " << (*step)["title"].Text();
      relations.insert((*step)["relation"].Text());
    }
  }
  EXPECT_EQ(relations.size(), Relations().size()) << "each relation is tried";
}

TEST(ASheetsJson, HasTheDoublesOfTheSheet) {
  for (const auto& [name, sheet] : SheetsOfAllKinds()) {
    const Json json = ReadJson(SheetJson(sheet));
    const std::vector<const Json*> read = StepsOf(json);
    std::size_t index = 0;
    for (const SheetSection& section : sheet.Sections) {
      for (const SheetPart& part : section.Parts) {
        const auto* step = std::get_if<SheetStep>(&part);
        if (step == nullptr) continue;
        const Json& result = (*read.at(index++))["result"];
        ASSERT_EQ(result.Has("value"), step->Value.has_value());
        if (!step->Value) continue;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(result["value"].Number()), std::bit_cast<std::uint64_t>(*step->Value));
        ASSERT_EQ(result["text"].Text(), step->Text);
        ASSERT_EQ(result["unit"].Text(), step->Unit);
      }
    }
    ASSERT_EQ(index, read.size());
  }
}

TEST(ASheetsJson, NamesTheProjectAsItIs) {
  for (const auto& [name, sheet] : SheetsOfAllKinds()) {
    const Json json = ReadJson(SheetJson(sheet));
    EXPECT_EQ(json["project"]["title"].Text(), sheet.Project.Title);
    EXPECT_EQ(json["project"]["description"].Text(), sheet.Project.Description);
    EXPECT_EQ(json["project"]["file"].Text(), sheet.Project.File);
  }
}

TEST(ASheetsJson, HasItsMembersAlwaysInTheSameOrder) {
  const Json json = ReadJson(SheetJson(GoldenSheets()[0].Sheet));

  std::vector<std::string> names;
  for (const auto& [name, value] : json.Members()) names.push_back(name);
  EXPECT_THAT(names, ElementsAre("format", "program", "project", "units", "boltGrades", "sections"));
  EXPECT_EQ(json["format"].Number(), 1);
}

TEST(ASheetsJson, LeavesOutTheValueOfANumberThatCannotBeComputed) {
  for (const auto& [name, sheet] : SheetsOfAllKinds()) {
    if (name != "failing") continue;
    const Json json = ReadJson(SheetJson(sheet));
    int missing = 0;
    for (const Json* step : StepsOf(json)) {
      if ((*step)["title"].Text() != "Suggested minimum bolt length") continue;
      for (const Json& number : (*step)["numbers"].Items()) {
        if (!number.Has("value")) ++missing;
      }
      EXPECT_EQ((*step)["failure"].Text(), "the decimal logarithm of the depth cannot be computed");
    }
    EXPECT_EQ(missing, 1);
  }
}

}  // namespace
}  // namespace orby::test
