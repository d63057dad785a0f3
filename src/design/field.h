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

// A choice has the numbers of an Integer.
template <class Path>
concept LeadsToChoice = std::is_enum_v<std::remove_pointer_t<std::invoke_result_t<Path, Design&>>>;

// The design in which fields are compared by their addresses.
inline const Design& SampleDesign() {
  static const Design sample;
  return sample;
}

template <class T>
class FieldOf {
 public:
  // `path` returns the address of the field in a design, such as [](auto& d) { return &d.Place.DepthofCover; }
  template <LeadsTo<T> Path>
  constexpr FieldOf(Path path) : in_(path), inConstant_(path) {}

  T& In(Design& design) const { return *in_(design); }
  const T& In(const Design& design) const { return *inConstant_(design); }
  // Returns true if both are the same field, also when their paths differ.
  bool operator==(const FieldOf& other) const { return &In(SampleDesign()) == &other.In(SampleDesign()); }

 private:
  T* (*in_)(Design&);
  const T* (*inConstant_)(const Design&);
};

// A field of whole numbers: an Integer, or a choice by its number.
class IntegerField {
 public:
  // `path`: see FieldOf
  template <class Path>
  requires LeadsTo<Path, Integer> || LeadsToChoice<Path>
  constexpr IntegerField(Path) : get_(GetAt<Path>), set_(SetAt<Path>), at_(AddressAt<Path>) {}

  Integer Get(const Design& design) const { return get_(design); }
  void Set(Design& design, Integer number) const { set_(design, number); }
  // Returns true if both are the same field, also when their paths differ.
  bool operator==(const IntegerField& other) const { return at_(SampleDesign()) == other.at_(SampleDesign()); }

 private:
  template <class Path>
  static Integer GetAt(const Design& design) {
    return NumberOf(*Path{}(design));
  }
  template <class Path>
  static void SetAt(Design& design, Integer number) {
    auto& field = *Path{}(design);
    field = std::remove_reference_t<decltype(field)>{number};
  }
  template <class Path>
  static const void* AddressAt(const Design& design) {
    return Path{}(design);
  }

  Integer (*get_)(const Design&);
  void (*set_)(Design&, Integer);
  const void* (*at_)(const Design&);
};

using SingleField = FieldOf<Single>;
using TextField = FieldOf<std::string>;
using AnyField = std::variant<IntegerField, SingleField, TextField>;

}  // namespace orby
