// The numbers of a design that figures depend on, by the names that the report gives them.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/unit_suffix.h"
#include "design/field.h"

namespace orby {

struct DesignNumber {
  std::string_view Label;  // "Rock Load Height"
  std::string_view Place;  // "entries", "intersections"; empty for the site and the primary bolts
  SingleField Field;
  UnitSuffix Unit = UnitSuffix::None;
  bool (*IsUsed)(const RoofSupport& design) = nullptr;  // null: always
};

// Returns all of them, in the order of the report. Of several fields with one label and place, such as the diameter of
// a bolt, a design uses one.
std::span<const DesignNumber> DesignNumbers();

// Returns those that the design uses: of the parts that are analysed, and of the systems that are evaluated.
std::vector<const DesignNumber*> NumbersInUse(const RoofSupport& design);

// Returns the unit of a quantity: "ft", "°"; empty if it has none.
std::string_view UnitOf(UnitSuffix quantity, UnitSystem units);

// Returns a name with the unit of its quantity, if it has one: "Depth of Cover (ft)".
std::string WithUnitOf(std::string_view name, UnitSuffix quantity, UnitSystem units);

// Returns "Rock Load Height (entries)".
std::string NameOf(const DesignNumber& number);

}  // namespace orby
