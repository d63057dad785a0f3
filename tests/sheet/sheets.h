// Sheets of designs for the tests of this folder.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "files/shown_design.h"
#include "sheet/formula_layout.h"
#include "sheet/sheet.h"
#include "studies/study_designs.h"

namespace orby::test {

// Designs such as engineers type, and some with numbers that cannot be computed.
class DesignsOfSheets {
 public:
  explicit DesignsOfSheets(unsigned seed) : usual_(seed), numbers_(seed) {}

  Design Next();

 private:
  Single Between(double low, double high) {
    return static_cast<Single>(std::uniform_real_distribution(low, high)(numbers_));
  }
  bool OneIn(unsigned count) { return numbers_() % count == 0; }

  AnyDesigns usual_;
  std::mt19937 numbers_;
};

// Returns the design of a new project in the same units.
Design NewDesignLike(Design design);

// Returns the width of a text whose letters are all half as wide as they are high.
double PageTextWidth(const std::string& text, const TextStyle& style);

// A design as the dialog shows it, the one that its preview makes, and the sheet of both.
struct SheetOf {
  explicit SheetOf(const Design& typed);

  Design Shown;
  Design Previewed;
  DesignSheet Made;

  std::vector<const SheetStep*> Steps() const;
  // Throw std::runtime_error if there is none.
  const SheetSection& Section(std::string_view key) const;
  const SheetStep& Step(std::string_view section, std::string_view title) const;
};

}  // namespace orby::test
