#include "config/catalog_sections.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "config/ini_row.h"
#include "design/catalogs.h"

namespace orby {
namespace {

constexpr std::string_view DefaultsSection = "ORBYDefaults";
constexpr std::string_view BoltParamsSection = "ORBYBoltParams";
constexpr std::string_view StandSupportSection = "ORBYStandSupportParams";

using DefaultRow = IniRow<DesignDefaults>;
constexpr std::array DefaultRows{
    DefaultRow{"DefaultCMRR", &DesignDefaults::DefaultCMRR, IniRange{0, 100}},
    DefaultRow{"DefaultMETDepthofCover", &DesignDefaults::DefaultMETDepthofCover},
    DefaultRow{"DefaultENGDepthofCover", &DesignDefaults::DefaultENGDepthofCover},
    DefaultRow{"DefaultMETUnitWeight", &DesignDefaults::DefaultMETUnitWeight},
    DefaultRow{"DefaultENGUnitWeight", &DesignDefaults::DefaultENGUnitWeight},
    DefaultRow{"DefaultStabilityFactor", &DesignDefaults::DefaultStabilityFactor},
    DefaultRow{"DefaultMETActualBoltLength", &DesignDefaults::DefaultMETActualBoltLength},
    DefaultRow{"DefaultENGActualBoltLength", &DesignDefaults::DefaultENGActualBoltLength},
    DefaultRow{"DefaultMETboltDiameter", &DesignDefaults::DefaultMETboltDiameter},
    DefaultRow{"DefaultENGboltDiameter", &DesignDefaults::DefaultENGboltDiameter},
    DefaultRow{"DefaultMETBoltGrade", &DesignDefaults::DefaultMETBoltGrade},
    DefaultRow{"DefaultENGBoltGrade", &DesignDefaults::DefaultENGBoltGrade},
    DefaultRow{"DefaultMETBoltUTS", &DesignDefaults::DefaultMETBoltUTS},
    DefaultRow{"DefaultENGBoltUTS", &DesignDefaults::DefaultENGBoltUTS},
    DefaultRow{"DefaultNumberBoltsPerRow", &DesignDefaults::DefaultNumberBoltsPerRow},
    DefaultRow{"DefaultMETrowSpacing", &DesignDefaults::DefaultMETrowSpacing},
    DefaultRow{"DefaultENGrowSpacing", &DesignDefaults::DefaultENGrowSpacing},
    DefaultRow{"DefaultMETActualInterSpan", &DesignDefaults::DefaultMETActualInterSpan},
    DefaultRow{"DefaultENGActualInterSpan", &DesignDefaults::DefaultENGActualInterSpan},
    DefaultRow{"DefaultMETEntryWidth", &DesignDefaults::DefaultMETEntryWidth},
    DefaultRow{"DefaultENGEntryWidth", &DesignDefaults::DefaultENGEntryWidth},
};

// A list of numbers. The key of an entry is this key followed by the index of the entry.
struct ListKey {
  std::string_view Key;
  CatalogList Catalogs::*List = nullptr;
};

// The key of a highest index and its lists: one bolt list, or the three cable lists of a unit system.
struct ListGroup {
  std::string_view IndexKey;
  std::array<ListKey, 3> Lists;
  Integer Capacity = BoltListCapacity;
};

constexpr std::array ListGroups{
    ListGroup{"DefaultBoltGradeIndexENG", {{{"DefaultBoltGradeArrayENG", &Catalogs::DefaultBoltGradeArrayENG}}}},
    ListGroup{"DefaultBoltUTSIndexENG", {{{"DefaultBoltUTSArrayENG", &Catalogs::DefaultBoltUTSArrayENG}}}},
    ListGroup{"DefaultBoltDiamIndexENG", {{{"DefaultBoltDiamArrayENG", &Catalogs::DefaultBoltDiamArrayENG}}}},
    ListGroup{"DefaultBoltGradeIndexMET", {{{"DefaultBoltGradeArrayMET", &Catalogs::DefaultBoltGradeArrayMET}}}},
    ListGroup{"DefaultBoltUTSIndexMET", {{{"DefaultBoltUTSArrayMET", &Catalogs::DefaultBoltUTSArrayMET}}}},
    ListGroup{"DefaultBoltDiamIndexMET", {{{"DefaultBoltDiamArrayMET", &Catalogs::DefaultBoltDiamArrayMET}}}},
    ListGroup{"DefaultBoltUTSIndexMETAUS", {{{"DefaultBoltUTSArrayMETAUS", &Catalogs::DefaultBoltUTSArrayMETAUS}}}},
    ListGroup{"DefaultBoltDiamIndexMETAUS", {{{"DefaultBoltDiamArrayMETAUS", &Catalogs::DefaultBoltDiamArrayMETAUS}}}},
    ListGroup{"DefaultCableIndexENG",
              {{{"DefaultCableCapArrayENG", &Catalogs::DefaultCableCapArrayENG},
                {"DefaultCableUTSArrayENG", &Catalogs::DefaultCableUTSArrayENG},
                {"DefaultCableDiamArrayENG", &Catalogs::DefaultCableDiamArrayENG}}},
              GrowingListCapacity},
    ListGroup{"DefaultCableIndexMET",
              {{{"DefaultCableCapArrayMET", &Catalogs::DefaultCableCapArrayMET},
                {"DefaultCableUTSArrayMET", &Catalogs::DefaultCableUTSArrayMET},
                {"DefaultCableDiamArrayMET", &Catalogs::DefaultCableDiamArrayMET}}},
              GrowingListCapacity},
};

std::string NumberedKey(std::string_view key, Integer index) { return std::string(key) + NumberText(index); }

Integer ReadHighestIndex(const IniText& ini, std::string_view section, std::string_view key, Integer capacity) {
  return ToInteger(std::clamp<double>(ReadIniNumber(ini, section, key), -1, capacity - 1));
}

void ReadListGroup(Catalogs& catalogs, const IniText& ini, const ListGroup& group) {
  const Integer highest = ReadHighestIndex(ini, BoltParamsSection, group.IndexKey, group.Capacity);
  for (const ListKey& row : group.Lists) {
    if (row.List == nullptr) break;
    CatalogList& list = catalogs.*row.List;
    list.HighestIndex = highest;
    for (Integer i = 0; i <= highest; ++i) {
      list.Set(static_cast<std::size_t>(i), ReadIniSingle(ini, BoltParamsSection, NumberedKey(row.Key, i)));
    }
  }
}

// Returns the entry at the index, or an empty value when the list is shorter.
template <class Value>
Value EntryOrNone(const std::vector<Value>& values, Integer index) {
  const auto position = static_cast<std::size_t>(index);
  return position < values.size() ? values[position] : Value{};
}

void WriteListGroup(const Catalogs& catalogs, IniText& ini, const ListGroup& group) {
  const Integer highest = (catalogs.*group.Lists.front().List).HighestIndex;
  WriteIniValue(ini, BoltParamsSection, group.IndexKey, highest);
  for (const ListKey& row : group.Lists) {
    if (row.List == nullptr) break;
    for (Integer i = 0; i <= highest; ++i) {
      WriteIniValue(ini, BoltParamsSection, NumberedKey(row.Key, i), EntryOrNone((catalogs.*row.List).Values, i));
    }
  }
}

constexpr std::string_view SupportIndexKey = "DefaultStandSupportIndex";
constexpr std::string_view SupportNameKey = "DefaultStandSupportType";
constexpr std::string_view SupportCapacityKey = "DefaultStandSupportCap";
constexpr std::array<Integer, 2> UnitColumns{0, 1};

std::string NumberedKey(std::string_view key, Integer index, Integer column) {
  return NumberedKey(key, index) + "_" + NumberText(column);
}

// The program never reads this section, so that every run starts with the built-in standing supports. Reading it would
// turn names into the numbers at their start, and capacities, which are looked up by the key of the name, into 0.
void ReadStandSupports(StandingSupports& supports, const IniText& ini) {
  supports.HighestIndex = ReadHighestIndex(ini, StandSupportSection, SupportIndexKey, GrowingListCapacity);
  const std::size_t size = std::max({supports.DefaultStandSupportType.size(), supports.DefaultStandSupportCap.size(),
                                     static_cast<std::size_t>(supports.HighestIndex + 1)});
  supports.DefaultStandSupportType.resize(size);
  supports.DefaultStandSupportCap.resize(size);
  for (Integer i = 0; i <= supports.HighestIndex; ++i) {
    const auto row = static_cast<std::size_t>(i);
    const std::string nameKey = NumberedKey(SupportNameKey, i);
    supports.DefaultStandSupportType[row] = NumberText(ReadIniNumber(ini, StandSupportSection, nameKey));
    for (const Integer column : UnitColumns) {
      supports.DefaultStandSupportCap[row][static_cast<std::size_t>(column)] =
          ReadIniSingle(ini, StandSupportSection, NumberedKey(SupportNameKey, i, column));
    }
  }
}

void WriteStandSupports(const StandingSupports& supports, IniText& ini) {
  WriteIniValue(ini, StandSupportSection, SupportIndexKey, supports.HighestIndex);
  for (Integer i = 0; i <= supports.HighestIndex; ++i) {
    const std::string name = EntryOrNone(supports.DefaultStandSupportType, i);
    WriteIniValue(ini, StandSupportSection, NumberedKey(SupportNameKey, i), name);
    const auto capacities = EntryOrNone(supports.DefaultStandSupportCap, i);
    for (const Integer column : UnitColumns) {
      WriteIniValue(ini, StandSupportSection, NumberedKey(SupportCapacityKey, i, column),
                    capacities[static_cast<std::size_t>(column)]);
    }
  }
}

}  // namespace

void ReadCatalogSection(Program& program, const IniText& ini, StoredCatalogs what) {
  switch (what) {
    case StoredCatalogs::Defaults:
      for (const auto& row : DefaultRows) ReadIniRow(program, program.session.defaults, ini, DefaultsSection, row);
      break;
    case StoredCatalogs::BoltParams:
      for (const ListGroup& group : ListGroups) ReadListGroup(program.session.catalogs, ini, group);
      break;
    case StoredCatalogs::StandSupports: ReadStandSupports(program.session.catalogs.StandSupports, ini); break;
  }
}

void WriteCatalogSection(const Session& session, IniText& ini, StoredCatalogs what) {
  switch (what) {
    case StoredCatalogs::Defaults:
      for (const auto& row : DefaultRows) WriteIniRow(session.defaults, ini, DefaultsSection, row);
      break;
    case StoredCatalogs::BoltParams:
      for (const ListGroup& group : ListGroups) WriteListGroup(session.catalogs, ini, group);
      break;
    case StoredCatalogs::StandSupports: WriteStandSupports(session.catalogs.StandSupports, ini); break;
  }
}

}  // namespace orby
