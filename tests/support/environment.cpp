// Sets up every test program: the locale of its environment, as the programs use it.
#include <clocale>

namespace {

[[maybe_unused]] const bool IsSetUp = std::setlocale(LC_ALL, "") != nullptr;

}  // namespace
