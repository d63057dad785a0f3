#include "drawings/scene.h"

#include <charconv>
#include <stdexcept>

namespace orby {
namespace {

class PathReader {
 public:
  explicit PathReader(std::string_view text) : rest_(text) {}

  std::vector<PathStep> Read() {
    std::vector<PathStep> steps;
    char letter = 0;
    while (SkipSpaces(), !rest_.empty()) {
      const bool isLetter = rest_.front() >= 'A';
      if (isLetter) {
        letter = rest_.front();
        rest_.remove_prefix(1);
      }
      steps.push_back(Step(letter));
      if (letter == 'Z') letter = 0;
    }
    return steps;
  }

 private:
  PathStep Step(char letter) {
    using enum PathStep::Kind;
    switch (letter) {
      case 'M': return {Move, Point(), {}, {}};
      case 'L': return {Line, Point(), {}, {}};
      case 'C': {
        const ScenePoint first = Point();
        const ScenePoint second = Point();
        return {Curve, Point(), first, second};
      }
      case 'Z': return {};
      default: throw std::invalid_argument("a path step without a letter");
    }
  }

  ScenePoint Point() {
    const double x = Number();
    return {x, Number()};
  }

  double Number() {
    SkipSpaces();
    double number = 0;
    const auto [end, problem] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), number);
    if (problem != std::errc()) throw std::invalid_argument("a path step without its points");
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return number;
  }

  void SkipSpaces() {
    while (rest_.starts_with(' ')) rest_.remove_prefix(1);
  }

  std::string_view rest_;
};

}  // namespace

std::vector<PathStep> PathSteps(std::string_view text) { return PathReader(text).Read(); }

}  // namespace orby
