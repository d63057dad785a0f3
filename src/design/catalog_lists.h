// Lists of standard values, which dialogs offer and calculations look up. catalogs.h and the configuration file fill
// them.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/types.h"

namespace orby {

// A list of numbers and the index of its last entry in use, or -1 for an empty list. Only entries up to that index are
// offered and searched. Later entries keep their values.
struct CatalogList {
  Integer HighestIndex = -1;
  std::vector<Single> Values;

  std::size_t Count() const { return static_cast<std::size_t>(HighestIndex + 1); }
  Single operator[](std::size_t index) const { return Values[index]; }
  // Returns the index of the first entry that is exactly equal.
  std::optional<std::size_t> FirstPlaceOf(double value) const {
    for (std::size_t i = 0; i < Count(); ++i) {
      if (Values[i] == value) return i;
    }
    return std::nullopt;
  }
  // Sets an entry and extends the list if needed. The index of the last entry in use stays the same.
  void Set(std::size_t index, Single value) {
    if (index >= Values.size()) Values.resize(index + 1);
    Values[index] = value;
  }
  bool operator==(const CatalogList&) const = default;
};

// A row of the fixed bolt table, as texts.
struct BoltTableRow {
  std::string Name;
  std::string Diameter;
  std::string Grade;
  bool operator==(const BoltTableRow&) const = default;
};
using BoltTable = std::vector<BoltTableRow>;

struct StandingSupports {
  Integer HighestIndex = -1;
  std::vector<std::string> DefaultStandSupportType;
  std::vector<std::array<Single, 2>> DefaultStandSupportCap;  // tons, kN
  bool operator==(const StandingSupports&) const = default;
};

struct Catalogs {
  CatalogList DefaultBoltGradeArrayENG;  // ksi
  CatalogList DefaultBoltUTSArrayENG;    // ksi
  CatalogList DefaultBoltDiamArrayENG;   // in
  CatalogList DefaultBoltGradeArrayMET;  // MPa
  CatalogList DefaultBoltUTSArrayMET;    // MPa
  CatalogList DefaultBoltDiamArrayMET;   // mm
  // These two lists are exchanged: UTS contains diameters in mm, and Diam contains strengths in MPa. Files of users
  // have them this way.
  CatalogList DefaultBoltUTSArrayMETAUS;
  CatalogList DefaultBoltDiamArrayMETAUS;
  // The three cable lists of a unit system have the same HighestIndex.
  CatalogList DefaultCableCapArrayENG;   // tons
  CatalogList DefaultCableUTSArrayENG;   // tons
  CatalogList DefaultCableDiamArrayENG;  // in
  CatalogList DefaultCableCapArrayMET;   // kN
  CatalogList DefaultCableUTSArrayMET;   // kN
  CatalogList DefaultCableDiamArrayMET;  // mm
  StandingSupports StandSupports;
  BoltTable BoltTableENG;  // in, ksi
  BoltTable BoltTableMET;  // mm, MPa
  bool operator==(const Catalogs&) const = default;
};

}  // namespace orby
