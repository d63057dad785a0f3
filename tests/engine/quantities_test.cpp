// Numbers of different kinds cannot be taken for one another, neither in a call nor in a description of a pattern.
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

// A kind costs nothing: it is handed on like the number itself.
static_assert(sizeof(Feet) == sizeof(Single) && std::is_trivially_copyable_v<Feet>);

// What the compiler says of a statement that uses the relations; nothing when it takes it.
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

TEST(ALengthForADiameter, DoesNotCompile) {
  EXPECT_EQ(ComplaintOf("CapacityFromGrade(Ksi(75), Inches(0.75F)); BoltPattern{.Diameter = Inches(0.75F)};"), "");

  for (const char* mistake : {"CapacityFromGrade(Ksi(75), Feet(6));", "BoltPattern{.Diameter = Feet(6)};"}) {
    const std::string complaint = ComplaintOf(mistake);
    EXPECT_NE(complaint.find("error: "), std::string::npos) << mistake;
    EXPECT_NE(complaint.find("FeetUnit"), std::string::npos) << complaint;
  }
}

}  // namespace
}  // namespace orby::test
