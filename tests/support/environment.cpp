// What every test program starts with: the locale of its environment, as the programs have it, and property tests that
// try the same cases each time. RC_PARAMS="seed=N" tries others.
#include <clocale>
#include <cstdlib>

namespace {

constexpr const char* UsualCases = "seed=1907";
constexpr int KeepOthers = 0;

bool SetUp() {
  std::setlocale(LC_ALL, "");
  setenv("RC_PARAMS", UsualCases, KeepOthers);
  return true;
}

[[maybe_unused]] const bool IsSetUp = SetUp();

}  // namespace
