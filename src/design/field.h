// Fields of a design as entries of a table.
#pragma once

#include <concepts>
#include <string>
#include <type_traits>
#include <variant>

#include "design/design.h"

namespace orby {

template <class Path, class T>
concept LeadsTo = std::same_as<std::invoke_result_t<Path, Design&>, T*>;

template <class T>
class FieldOf {
 public:
  // `path` returns the address of the field in a design, such as [](auto& d) { return &d.Place.DepthofCover; }
  template <LeadsTo<T> Path>
  constexpr FieldOf(Path path) : in_(path), inConstant_(path) {}

  T& In(Design& design) const { return *in_(design); }
  const T& In(const Design& design) const { return *inConstant_(design); }
  // Returns true if both are the same field, also when their paths differ.
  bool operator==(const FieldOf& other) const { return &In(Sample()) == &other.In(Sample()); }

 private:
  static const Design& Sample() {
    static const Design sample;
    return sample;
  }

  T* (*in_)(Design&);
  const T* (*inConstant_)(const Design&);
};

using IntegerField = FieldOf<Integer>;
using SingleField = FieldOf<Single>;
using TextField = FieldOf<std::string>;
using AnyField = std::variant<IntegerField, SingleField, TextField>;

}  // namespace orby
