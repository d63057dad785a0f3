// Sets a fixed seed of property tests, so that they try the same cases in each run. RC_PARAMS="seed=N" sets another
// one.
#include <cstdlib>

namespace {

constexpr const char* UsualCases = "seed=1907";
constexpr int KeepOthers = 0;

[[maybe_unused]] const bool AreCasesChosen = setenv("RC_PARAMS", UsualCases, KeepOthers) == 0;

}  // namespace
