// Sets up every test program: the locale of its environment, as the programs use it, and a fixed seed of property
// tests, so that they try the same cases in each run. RC_PARAMS="seed=N" sets another seed.
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
