#include "config/catalog_sections.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "catalogs/catalogs.h"

namespace orby {
namespace {

constexpr std::string_view DefaultsSection = "ORBYDefaults";
constexpr std::string_view BoltParamsSection = "ORBYBoltParams";

struct DefaultKey {
  std::string_view Key;
  std::variant<Integer DesignDefaults::*, Single DesignDefaults::*> Member;
  std::optional<IniRange> Range = std::nullopt;
};

constexpr std::array DefaultKeys{
    DefaultKey{"DefaultCMRR", &DesignDefaults::DefaultCMRR, IniRange{0, 100}},
    DefaultKey{"DefaultMETDepthofCover", &DesignDefaults::DefaultMETDepthofCover},
    DefaultKey{"DefaultENGDepthofCover", &DesignDefaults::DefaultENGDepthofCover},
    DefaultKey{"DefaultMETUnitWeight", &DesignDefaults::DefaultMETUnitWeight},
    DefaultKey{"DefaultENGUnitWeight", &DesignDefaults::DefaultENGUnitWeight},
    DefaultKey{"DefaultStabilityFactor", &DesignDefaults::DefaultStabilityFactor},
    DefaultKey{"DefaultMETActualBoltLength", &DesignDefaults::DefaultMETActualBoltLength},
    DefaultKey{"DefaultENGActualBoltLength", &DesignDefaults::DefaultENGActualBoltLength},
    DefaultKey{"DefaultMETboltDiameter", &DesignDefaults::DefaultMETboltDiameter},
    DefaultKey{"DefaultENGboltDiameter", &DesignDefaults::DefaultENGboltDiameter},
    DefaultKey{"DefaultMETBoltGrade", &DesignDefaults::DefaultMETBoltGrade},
    DefaultKey{"DefaultENGBoltGrade", &DesignDefaults::DefaultENGBoltGrade},
    DefaultKey{"DefaultMETBoltUTS", &DesignDefaults::DefaultMETBoltUTS},
    DefaultKey{"DefaultENGBoltUTS", &DesignDefaults::DefaultENGBoltUTS},
    DefaultKey{"DefaultNumberBoltsPerRow", &DesignDefaults::DefaultNumberBoltsPerRow},
    DefaultKey{"DefaultMETrowSpacing", &DesignDefaults::DefaultMETrowSpacing},
    DefaultKey{"DefaultENGrowSpacing", &DesignDefaults::DefaultENGrowSpacing},
    DefaultKey{"DefaultMETActualInterSpan", &DesignDefaults::DefaultMETActualInterSpan},
    DefaultKey{"DefaultENGActualInterSpan", &DesignDefaults::DefaultENGActualInterSpan},
    DefaultKey{"DefaultMETEntryWidth", &DesignDefaults::DefaultMETEntryWidth},
    DefaultKey{"DefaultENGEntryWidth", &DesignDefaults::DefaultENGEntryWidth},
};

// One list of numbers; the key of an entry is this key and the entry's index.
struct ListKey {
  std::string_view Key;
  CatalogList Catalogs::*List = nullptr;
};

// An index key and the lists that it counts: one bolt list or the three cable lists of a unit system.
struct ListGroup {
  std::string_view IndexKey;
  std::array<ListKey, 3> Lists;
  Integer Capacity = BoltListCapacity;
  // The reader asks for this index with a blank behind the name, the writer writes it without. The value comes back
  // only because blanks around a name do not count; without that rule the list would shrink to its first entry.
  bool ReaderAddsBlank = false;
};

constexpr std::array ListGroups{
    ListGroup{"DefaultBoltGradeIndexENG", {{{"DefaultBoltGradeArrayENG", &Catalogs::DefaultBoltGradeArrayENG}}}},
    ListGroup{"DefaultBoltUTSIndexENG",
              {{{"DefaultBoltUTSArrayENG", &Catalogs::DefaultBoltUTSArrayENG}}},
              BoltListCapacity,
              true},
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

void ReadDefault(DesignDefaults& defaults, const IniText& ini, const DefaultKey& row) {
  if (const auto* single = std::get_if<Single DesignDefaults::*>(&row.Member)) {
    defaults.** single = ReadIniSingle(ini, DefaultsSection, row.Key);
    return;
  }
  defaults.*std::get<Integer DesignDefaults::*>(row.Member) =
      row.Range ? ReadIniInteger(ini, DefaultsSection, row.Key, *row.Range)
                : ReadIniInteger(ini, DefaultsSection, row.Key);
}

void WriteDefault(const DesignDefaults& defaults, IniText& ini, const DefaultKey& row) {
  const auto write = [&](auto member) { WriteIniValue(ini, DefaultsSection, row.Key, defaults.*member); };
  std::visit(write, row.Member);
}

std::string EntryKey(const ListKey& list, Integer index) { return std::string(list.Key) + NumberText(index); }

void ReadListGroup(Catalogs& catalogs, const IniText& ini, const ListGroup& group) {
  const std::string indexKey = std::string(group.IndexKey) + (group.ReaderAddsBlank ? " " : "");
  const double index = ReadIniNumber(ini, BoltParamsSection, indexKey);
  const Integer highest = ToInteger(std::clamp<double>(index, -1, group.Capacity - 1));
  for (const ListKey& row : group.Lists) {
    if (row.List == nullptr) break;
    CatalogList& list = catalogs.*row.List;
    list.HighestIndex = highest;
    for (Integer i = 0; i <= highest; ++i) {
      list.Set(static_cast<std::size_t>(i), ReadIniSingle(ini, BoltParamsSection, EntryKey(row, i)));
    }
  }
}

Single EntryOrZero(const CatalogList& list, Integer index) {
  const auto position = static_cast<std::size_t>(index);
  return position < list.Values.size() ? list.Values[position] : 0;
}

void WriteListGroup(const Catalogs& catalogs, IniText& ini, const ListGroup& group) {
  const Integer highest = (catalogs.*group.Lists.front().List).HighestIndex;
  WriteIniValue(ini, BoltParamsSection, group.IndexKey, highest);
  for (const ListKey& row : group.Lists) {
    if (row.List == nullptr) break;
    for (Integer i = 0; i <= highest; ++i) {
      WriteIniValue(ini, BoltParamsSection, EntryKey(row, i), EntryOrZero(catalogs.*row.List, i));
    }
  }
}

}  // namespace

void ReadCatalogSection(Program& program, const IniText& ini, int selector) {
  if (selector == catalog_section::Defaults) {
    for (const DefaultKey& row : DefaultKeys) ReadDefault(program.defaults, ini, row);
  } else if (selector == catalog_section::BoltParams) {
    for (const ListGroup& group : ListGroups) ReadListGroup(program.catalogs, ini, group);
  }
}

void WriteCatalogSection(const Program& program, IniText& ini, int selector) {
  if (selector == catalog_section::Defaults) {
    for (const DefaultKey& row : DefaultKeys) WriteDefault(program.defaults, ini, row);
  } else if (selector == catalog_section::BoltParams) {
    for (const ListGroup& group : ListGroups) WriteListGroup(program.catalogs, ini, group);
  }
}

}  // namespace orby
