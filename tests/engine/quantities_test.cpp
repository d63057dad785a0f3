// A number of one unit cannot be used as a number of another unit.
#include "engine/quantities.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>
#include <type_traits>

#include "engine/formulas.h"

namespace orby::test {
namespace {

template <class... Arguments>
concept GiveCapacity = requires(Arguments... arguments) {
  CapacityFromGrade(arguments...);
};

static_assert(GiveCapacity<Ksi, Inches>);
static_assert(!GiveCapacity<Inches, Ksi>);
static_assert(!GiveCapacity<Ksi, Feet>);
static_assert(!GiveCapacity<MPa, Inches>);
static_assert(!GiveCapacity<Single, Single>);

static_assert(!std::is_convertible_v<Single, Feet> && !std::is_convertible_v<Feet, Single>);
static_assert(!std::is_constructible_v<Inches, Feet> && !std::is_assignable_v<Inches&, Feet>);

// A unit costs nothing: a quantity is passed like a plain number.
static_assert(sizeof(Feet) == sizeof(Single) && std::is_trivially_copyable_v<Feet>);

// Returns the messages of the compiler for a statement that uses the relations. Empty when it compiles.
std::string ComplaintOf(const std::string& statement) {
  const std::string program = "#include \"engine/formulas.h\"\nusing namespace orby;\nvoid Use() { " + statement + " }";
  const std::string command =
      "printf '%s' '" + program + "' | LC_ALL=C " COMPILER " -std=c++20 -fsyntax-only -I " SOURCES " -x c++ - 2>&1";
  std::string said;
  FILE* compiler = popen(command.c_str(), "r");
  std::array<char, 4096> part;
  while (std::fgets(part.data(), part.size(), compiler) != nullptr) said += part.data();
  const bool taken = pclose(compiler) == 0;
  return taken ? "" : said + "refused";
}

TEST(ALengthUsedAsADiameter, DoesNotCompile) {
  EXPECT_EQ(ComplaintOf("CapacityFromGrade(Ksi(75), Inches(0.75F)); BoltPattern{.Diameter = Inches(0.75F)};"), "");

  for (const char* mistake : {"CapacityFromGrade(Ksi(75), Feet(6));", "BoltPattern{.Diameter = Feet(6)};"}) {
    const std::string complaint = ComplaintOf(mistake);
    EXPECT_NE(complaint.find("error: "), std::string::npos) << mistake;
    EXPECT_NE(complaint.find("FeetUnit"), std::string::npos) << complaint;
  }
}

}  // namespace
}  // namespace orby::test
