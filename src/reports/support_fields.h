// Where the secondary support of entries and of intersections lives in the record, and how both pages head it.
// The two share every line of the report but those that their descriptors tell apart.
#pragma once

#include <string>
#include <string_view>

#include "core/project_record.h"

namespace orby {

inline constexpr std::string_view PrimarySupportHeading = "[PRIMARY SUPPORT - ROOF BOLTS]";

// One kind of support: whether it is used, and what the dialog last computed for it.
struct SystemFields {
  std::string_view Heading;
  Integer ProjectRecord::*InUse;
  Single ProjectRecord::*Capacity;
  Single ProjectRecord::*StabilityFactor;
};

struct SupportFields {
  std::string_view Heading;
  Integer ProjectRecord::*Analysed;
  Single ProjectRecord::*RockLoad;
  Single ProjectRecord::*RockLoadHeight;
  SystemFields CableBolts;
  SystemFields Trusses;
  SystemFields RoofBolts;
  SystemFields StandingSupports;
  CableFields Cable;
  BoltFields RoofBolt;
  std::string ProjectRecord::*StandingType;
};

inline constexpr SupportFields EntrySupport{
    "[SECONDARY ENTRY SUPPORT]",
    &ProjectRecord::SecondSupEntries,
    &ProjectRecord::RockLoadEntry1,
    &ProjectRecord::RockLoadHeight,
    {"[SECONDARY ENTRY SUPPORT - CABLE BOLTS]", &ProjectRecord::SecEntryUseCable, &ProjectRecord::SupportCapEntry1,
     &ProjectRecord::StabFactorEntry1},
    {"[SECONDARY ENTRY SUPPORT - TRUSSES]", &ProjectRecord::SecEntryUseTruss, &ProjectRecord::SupportCapEntry2,
     &ProjectRecord::StabFactorEntry2},
    {"[SECONDARY ENTRY SUPPORT - ROOF BOLTS]", &ProjectRecord::SecEntryUseBolt, &ProjectRecord::SupportCapEntry3,
     &ProjectRecord::StabFactorEntry3},
    {"[SECONDARY ENTRY SUPPORT - STANDING SUPPORTS]", &ProjectRecord::SecEntryUseStanding,
     &ProjectRecord::SupportCapEntry4, &ProjectRecord::StabFactorEntry4},
    SecEntryCable,
    SecEntryBolt,
    &ProjectRecord::SupportTypeNameSecEntry};

inline constexpr SupportFields IntersectionSupport{
    "[SECONDARY INTERSECTION SUPPORT]",
    &ProjectRecord::SecondSupInter,
    &ProjectRecord::RockLoadInter1,
    &ProjectRecord::RockLoadHeightInter,
    {"[SECONDARY INTERSECTION SUPPORT - CABLE BOLTS]", &ProjectRecord::SecInterUseCable,
     &ProjectRecord::SupportCapInter1, &ProjectRecord::StabFactorInter1},
    {"[SECONDARY INTERSECTION SUPPORT - TRUSSES]", &ProjectRecord::SecInterUseTruss, &ProjectRecord::SupportCapInter2,
     &ProjectRecord::StabFactorInter2},
    {"[SECONDARY INTERSECTION SUPPORT - ROOF BOLTS]", &ProjectRecord::SecInterUseBolt, &ProjectRecord::SupportCapInter3,
     &ProjectRecord::StabFactorInter3},
    {"[SECONDARY INTERSECTION SUPPORT - STANDING SUPPORTS]", &ProjectRecord::SecInterUseStanding,
     &ProjectRecord::SupportCapInter4, &ProjectRecord::StabFactorInter4},
    SecInterCable,
    SecInterBolt,
    &ProjectRecord::SupportTypeNameSecInter};

}  // namespace orby
