#include "design/catalogs.h"

#include <array>
#include <string_view>

#include "base/number_text.h"
#include "design/units.h"

namespace orby {
namespace {

// Sets the first entries. Later entries keep their values, which the configuration file may have set.
void SetList(CatalogList& list, std::initializer_list<Single> values, std::size_t capacity = BoltListCapacity) {
  if (list.Values.size() < capacity) list.Values.resize(capacity);
  std::size_t index = 0;
  for (const Single value : values) list.Values[index++] = value;
  list.HighestIndex = static_cast<Integer>(values.size() - 1);
}

struct SupportRow {
  std::string_view name;
  Single tons;
  Single kilonewtons;  // rounded down to a whole number
};

constexpr std::array Supports{
    SupportRow{"4-point Hardwood Crib (8in x 8in timbers, 5' height)", 90, 800},
    SupportRow{"4-point Hardwood Crib (8in x 8in timbers, 7' height)", 74, 658},
    SupportRow{"4-point Hardwood Crib (6in x 6in timbers, 5' height)", 51, 453},
    SupportRow{"4-point Hardwood Crib (6in x 6in timbers, 7' height)", 42, 373},
    SupportRow{"9-point Hardwood Crib (6in x 6in timbers, 7' height)", 94, 836},
    SupportRow{"Link-N-Lock (24in)", 92, 818},
    SupportRow{"Link-N-Lock (36in)", 132, 1174},
    SupportRow{"Wood Post (6in)", 22, 195},
    SupportRow{"Wood Post (8in)", 66, 587},
    SupportRow{"55-ton ACS Jack", 55, 489},
    SupportRow{"100-ton ACS Jack", 100, 889},
    SupportRow{"Propsetter (10in)", 72, 640},
    SupportRow{"Pumpable Crib (24in)", 135, 1201},
    SupportRow{"Pumpable Crib (30in)", 202, 1797},
    SupportRow{"CAN (24in)", 95, 845},
    SupportRow{"Concrete Crib (24in x 24in)", 525, 4670},
};

constexpr std::size_t SupportCapacity = 21;

struct NamedBolt {
  std::string_view name;
  std::string_view diameterInches;
  double diameterMillimetres;
  std::string_view gradeKsi;
};

constexpr std::array NamedBolts{
    NamedBolt{"#5 smooth - grade 55", "0.625", 15.875, "55"},
    NamedBolt{"#5 rebar - grade 60", "0.625", 15.875, "60"},
    NamedBolt{"#5 rebar - grade 75", "0.625", 15.875, "75"},
    NamedBolt{"#6 special rebar - grade 75", "0.677", 17.1958, "75"},
    NamedBolt{"#6 rebar - grade 40", "0.75", 19.05, "40"},
    NamedBolt{"#6 rebar - grade 60", "0.75", 19.05, "60"},
    NamedBolt{"#6 smooth - grade 75", "0.75", 19.05, "75"},
    NamedBolt{"#7 special rebar - grade 75", "0.804", 20.4216, "75"},
    NamedBolt{"#7 rebar - grade 40", "0.875", 22.225, "40"},
    NamedBolt{"#7 rebar - grade 60", "0.875", 22.225, "60"},
};

constexpr double KsiPerMPaOfNamedBolts = 0.1450377;

void SizeSupports(StandingSupports& supports) {
  if (supports.DefaultStandSupportType.size() < SupportCapacity) {
    supports.DefaultStandSupportType.resize(SupportCapacity);
    supports.DefaultStandSupportCap.resize(SupportCapacity);
  }
}

}  // namespace

void SetDefaultBoltsENG(Catalogs& catalogs) {
  SetList(catalogs.DefaultBoltGradeArrayENG, {40, 55, 60, 75, 90, 100});
  SetList(catalogs.DefaultBoltUTSArrayENG, {70, 85, 90, 100, 116, 125});
  SetList(catalogs.DefaultBoltDiamArrayENG, {0.625F, 0.75F, 0.875F, 0.688F, 0.804F});
}

void SetDefaultBoltsMET(Catalogs& catalogs) {
  SetList(catalogs.DefaultBoltGradeArrayMET, {280, 390, 420, 520, 620, 690});
  SetList(catalogs.DefaultBoltUTSArrayMET, {480, 590, 620, 690, 800, 860});
  SetList(catalogs.DefaultBoltDiamArrayMET, {15.88F, 19, 22.22F, 17.48F, 20.42F});
  SetList(catalogs.DefaultBoltUTSArrayMETAUS, {21.7F, 21.7F});
  SetList(catalogs.DefaultBoltDiamArrayMETAUS, {840, 440});
}

void SetDefaultCablesENG(Catalogs& catalogs) {
  SetList(catalogs.DefaultCableCapArrayENG, {26.4F, 35.7F});
  SetList(catalogs.DefaultCableUTSArrayENG, {26.4F, 35.7F});
  SetList(catalogs.DefaultCableDiamArrayENG, {0.6F, 0.7F});
}

void SetDefaultCablesMET(Catalogs& catalogs) {
  SetList(catalogs.DefaultCableCapArrayMET, {235, 590, 620, 635, 880, 970});
  SetList(catalogs.DefaultCableDiamArrayMET, {15.2F, 21.8F, 31, 28, 31, 28.6F});
  SetList(catalogs.DefaultCableUTSArrayMET, {});
  catalogs.DefaultCableUTSArrayMET.HighestIndex = catalogs.DefaultCableCapArrayMET.HighestIndex;
}

void SetDefaultStandSupportNames(Catalogs& catalogs) {
  StandingSupports& supports = catalogs.StandSupports;
  SizeSupports(supports);
  for (std::size_t i = 0; i < Supports.size(); ++i) supports.DefaultStandSupportType[i] = Supports[i].name;
  supports.HighestIndex = static_cast<Integer>(Supports.size() - 1);
}

void SetDefaultStandSupportCapsENG(Catalogs& catalogs) {
  SizeSupports(catalogs.StandSupports);
  for (std::size_t i = 0; i < Supports.size(); ++i) {
    catalogs.StandSupports.DefaultStandSupportCap[i][PlaceOf(English)] = Supports[i].tons;
  }
}

void SetDefaultStandSupportCapsMET(Catalogs& catalogs) {
  SizeSupports(catalogs.StandSupports);
  for (std::size_t i = 0; i < Supports.size(); ++i) {
    catalogs.StandSupports.DefaultStandSupportCap[i][PlaceOf(Metric)] = Supports[i].kilonewtons;
  }
}

void SetBoltTableENG(Catalogs& catalogs) {
  catalogs.BoltTableENG.clear();
  for (const auto& bolt : NamedBolts) {
    catalogs.BoltTableENG.push_back(
        {std::string(bolt.name), std::string(bolt.diameterInches), std::string(bolt.gradeKsi)});
  }
}

void SetBoltTableMET(Catalogs& catalogs) {
  catalogs.BoltTableMET.clear();
  for (const auto& bolt : NamedBolts) {
    catalogs.BoltTableMET.push_back({std::string(bolt.name), FormatNumber(bolt.diameterMillimetres, "##.#"),
                                     FormatNumber(TextValue(bolt.gradeKsi) / KsiPerMPaOfNamedBolts, "##.#")});
  }
}

void SetBoltTableAUS(Catalogs& catalogs) {
  catalogs.BoltTableMET = {{"Bolt 1", "21.7", "840"}, {"Bolt 2", "21.7", "440"}};
}

void SetBuiltInCatalogs(Catalogs& catalogs) {
  SetDefaultBoltsENG(catalogs);
  SetDefaultBoltsMET(catalogs);
  SetDefaultCablesENG(catalogs);
  SetDefaultCablesMET(catalogs);
  SetDefaultStandSupportNames(catalogs);
  SetDefaultStandSupportCapsENG(catalogs);
  SetDefaultStandSupportCapsMET(catalogs);
  SetBoltTableENG(catalogs);
  SetBoltTableMET(catalogs);
}

}  // namespace orby
