// Every fault that the checks of the parameters dialog can find, by section: its cause and its message.
#pragma once

#include <string>
#include <vector>

#include "design/units.h"

namespace orby::test {

inline constexpr int Stays = -1;  // a tab set that the fault does not switch
inline constexpr auto Both = UnitSystem{-1};

struct TabsOnView {
  int outer = Stays;
  int entries = Stays;
  int intersections = Stays;
};

struct FieldFault {
  UnitSystem units = Both;
  std::string edits;  // cause the fault in a valid design with every system in use
  std::string message;
  std::string focus;
  TabsOnView tabs = {};  // if they differ from those of the section
};

struct FaultSection {
  std::vector<std::string> off;  // each of these edits switches the section off
  TabsOnView tabs;
  std::vector<FieldFault> faults;
};

inline const std::vector<FaultSection> GeneralAndPrimaryFaults{
    {{},
     {0},
     {{Both, "txtCMRR=0", "Invalid CMRR", "txtCMRR"},
      {Both, "txtCMRR=", "Invalid CMRR", "txtCMRR"},
      {Both, "txtCMRR=-45", "Invalid CMRR", "txtCMRR"},
      {Both, "txtCMRR=100", "Invalid CMRR", "txtCMRR"},
      {English, "txtUnitWeight=99.9", "Invalid Unit Weight for Rock. Valid range 100-200 lbs/cf", "txtUnitWeight"},
      {English, "txtUnitWeight=200.1", "Invalid Unit Weight for Rock. Valid range 100-200 lbs/cf", "txtUnitWeight"},
      {Metric, "txtUnitWeight=14.9", "Invalid Unit Weight for Rock. Valid range 15-30 kN/m3", "txtUnitWeight"},
      {Metric, "txtUnitWeight=30.1", "Invalid Unit Weight for Rock. Valid range 15-30 kN/m3", "txtUnitWeight"},
      {Both, "txtDepthofCover=0", "Invalid depth of cover", "txtDepthofCover"},
      {Both, "txtDepthofCover=-1", "Invalid depth of cover", "txtDepthofCover"},
      {English, "txtEntryWidth=42.43",
       "Invalid sum of diagonals at intersection. Should be greater than 1.4 x Entry Width", "txtActualSpanDiagonals"},
      {Metric, "txtEntryWidth=14.15",
       "Invalid sum of diagonals at intersection. Should be greater than 1.4 x Entry Width", "txtActualSpanDiagonals"},
      {English, "txtActualSpanDiagonals=39.9",
       "Invalid sum of diagonals at intersection. Should be between 40 and 80 feet", "txtActualSpanDiagonals"},
      {English, "txtActualSpanDiagonals=80.1",
       "Invalid sum of diagonals at intersection. Should be between 40 and 80 feet", "txtActualSpanDiagonals"},
      {Metric, "txtActualSpanDiagonals=12.9", "Invalid sum of diagonals at intersection. Should be between 13 and 27 m",
       "txtActualSpanDiagonals"},
      {Metric, "txtActualSpanDiagonals=27.1", "Invalid sum of diagonals at intersection. Should be between 13 and 27 m",
       "txtActualSpanDiagonals"},
      {English, "txtEntryWidth=10", "Invalid entry width. Should be greater than 10 ft", "txtEntryWidth"},
      {Metric, "txtEntryWidth=3.3", "Invalid entry width. Should be greater than 3.3 ft", "txtEntryWidth"}}},
    {{"chkPrimSupport=0"},
     {1},
     {{Both, "txtStabilityFactor=0", "Invalid stability factor", "txtStabilityFactor"},
      {English, "txtBoltLengthPrimary=0", "Invalid actual bolt length. Maximum length allowed is 10 (ft)",
       "txtBoltLengthPrimary"},
      {English, "txtBoltLengthPrimary=10.1", "Invalid actual bolt length. Maximum length allowed is 10 (ft)",
       "txtBoltLengthPrimary"},
      {Metric, "txtBoltLengthPrimary=3.31", "Invalid actual bolt length. Maximum length allowed is 3.3 (m)",
       "txtBoltLengthPrimary"},
      {Both, "txtBoltsperRowPrimary=0", "Invalid number of bolts per row", "txtBoltsperRowPrimary"},
      {Both, "txtRowSpacingPrimary=0", "Invalid roof bolt row spacing", "txtRowSpacingPrimary"},
      {Both, "optBoltOptionsPrimary=1|cmbBoltDiameterPrimary=0.9",
       "Roof bolt diameter NOT selected from available options", "cmbBoltDiameterPrimary"},
      {English, "optBoltOptionsPrimary=1|cmbBoltGradePrimary=77", "Roof bolt grade NOT selected from available options",
       "cmbBoltGradePrimary"},
      {English, "optBoltOptionsPrimary=1|optBoltDiameterPrimary=1|txtBoltDiameterPrimary=0",
       "Invalid bolt diameter. Maximum value = 1", "txtBoltDiameterPrimary"},
      {English, "optBoltOptionsPrimary=1|optBoltDiameterPrimary=1|txtBoltDiameterPrimary=1.01",
       "Invalid bolt diameter. Maximum value = 1", "txtBoltDiameterPrimary"},
      {English, "optBoltDiameterPrimary=1|txtBoltDiameterPrimary=1.01", "Invalid bolt diameter. Maximum value = 1",
       "txtBoltDiameterPrimary"},
      {Metric, "optBoltDiameterPrimary=1|txtBoltDiameterPrimary=25.1", "Invalid bolt diameter. Maximum value = 25",
       "txtBoltDiameterPrimary"},
      {English, "optBoltOptionsPrimary=1|optBoltGradePrimary=1|txtBoltGradePrimary=0", "Invalid bolt grade",
       "txtBoltGradePrimary"}}},
};

inline const std::vector<FaultSection> EntryFaults{
    {{"chkSecondSupEntries=0"},
     {2},
     {{Both, "txtRockLoadHeight=0", "Invalid rock load height", "txtRockLoadHeight"},
      {Both, "txtRockFallAngle=-0.1", "Invalid roof fall angle", "txtRockFallAngle"},
      {Both, "txtRockFallAngle=60.1", "Invalid roof fall angle", "txtRockFallAngle"}}},
    {{"chkSecondSupEntries=0", "chkSecEntries_0=0"},
     {2, 0},
     {{Both, "txtCableLengthSecEntry=0", "Invalid cable length", "txtCableLengthSecEntry"},
      {Both, "txtCableCapacitySecEntry=", "Invalid cable capacity", "txtCableCapacitySecEntry"},
      {Both, "txtCableBoltsPerRowSecEntry=0", "Invalid cable bolts per row", "txtCableBoltsPerRowSecEntry"},
      {Both, "txtCableRowSpacingSecEntry=0", "Invalid cable bolt row spacing", "txtCableRowSpacingSecEntry"},
      {English, "optCableCapModeSecEntry=0|cmbCableDiamSecEntry=0.65",
       "Cable Diameter not Selected from Available Options", "cmbCableDiamSecEntry"},
      {Both, "optCableCapModeSecEntry=1|cmbCableCapacitySecEntry=31",
       "Cable Capacity not Selected from Available Options", "cmbCableCapacitySecEntry"}}},
    {{"chkSecondSupEntries=0", "chkSecEntries_1=0"},
     {2, 1},
     {{Both, "txtTrussLengthMemberSecEntry=0", "Invalid truss member length", "txtTrussLengthMemberSecEntry"},
      {Both, "txtTrussAngleSecEntry=-0.1", "Invalid truss member angle", "txtCableCapacitySecEntry"},
      {Both, "txtTrussAngleSecEntry=90.1", "Invalid truss member angle", "txtCableCapacitySecEntry"},
      {Both, "txtTrussCapacitySecEntry=0", "Invalid truss capacity", "txtTrussCapacitySecEntry"},
      {Both, "txtTrussSpacingSecEntry=0", "Invalid truss spacing", "txtTrussSpacingSecEntry"}}},
    {{"chkSecondSupEntries=0", "chkSecEntries_2=0"},
     {2, 2},
     {{English, "txtBoltLengthSecEntry=0", "Invalid actual bolt length. Maximum length allowed is 10 (ft)",
       "txtBoltLengthSecEntry"},
      {English, "txtBoltLengthSecEntry=10.1", "Invalid actual bolt length. Maximum length allowed is 10 (ft)",
       "txtBoltLengthSecEntry"},
      {Metric, "txtBoltLengthSecEntry=3.31", "Invalid actual bolt length. Maximum length allowed is 3.3 (m)",
       "txtBoltLengthSecEntry"},
      {Both, "txtBoltsperRowSecEntry=0", "Invalid number of roof bolts per row", "txtBoltsperRowSecEntry"},
      {Both, "txtRowSpacingSecEntry=0", "Invalid roof bolt row spacing", "txtRowSpacingSecEntry"},
      {Both, "optBoltOptionsSecEntry=1|cmbBoltDiameterSecEntry=0.9",
       "Roof bolt diameter NOT selected from available options", "cmbBoltDiameterSecEntry"},
      {English, "optBoltOptionsSecEntry=1|cmbBoltGradeSecEntry=77",
       "Roof bolt grade NOT selected from available options", "cmbBoltGradeSecEntry"},
      {English, "optBoltOptionsSecEntry=1|optBoltDiameterSecEntry=1|txtBoltDiameterSecEntry=0",
       "Invalid roof bolt diameter. Valid Range: max 1 in or 25 mm", "txtBoltDiameterSecEntry"},
      {English, "optBoltDiameterSecEntry=1|txtBoltDiameterSecEntry=1.01",
       "Invalid roof bolt diameter. Valid Range: max 1 in or 25 mm", "txtBoltDiameterSecEntry"},
      {Metric, "optBoltDiameterSecEntry=1|txtBoltDiameterSecEntry=25.1",
       "Invalid roof bolt diameter. Valid Range: max 1 in or 25 mm", "txtBoltDiameterSecEntry"},
      {English, "optBoltOptionsSecEntry=1|optBoltGradeSecEntry=1|txtBoltGradeSecEntry=0", "Invalid roof bolt grade",
       "txtBoltGradeSecEntry"}}},
    {{"chkSecondSupEntries=0", "chkSecEntries_3=0"},
     {2, 3},
     {{Both,
       "optSupportTypeSecEntry=0|cmbSupportTypeSecEntry=Stone pack",
       "Invalid standing support specification",
       "cmbSupportTypeSecEntry",
       {2, Stays, 3}},
      {Both, "optSupportTypeSecEntry=0|txtSupportCapSecEntry=0", "Invalid standing support capacity",
       "cmbSupportTypeSecEntry"},
      {Both, "optSupportTypeSecEntry=1|txtSupportCapSecEntry=0", "Invalid standing support capacity",
       "txtSupportCapSecEntry"},
      {Both, "txtNumberSupPerRowSecEntry=0", "Invalid standing supports per row", "txtNumberSupPerRowSecEntry"},
      {Both, "txtSupportRowSpacingSecEntry=0", "Invalid standing support row spacing",
       "txtSupportRowSpacingSecEntry"}}},
};

inline const std::vector<FaultSection> IntersectionFaults{
    {{"chkSecondSupInter=0"},
     {3},
     {{Both, "txtRockLoadHeightInter=0", "Invalid rock load height", "txtRockLoadHeightInter"},
      {Both, "txtRockFallAngleEntry=-0.1", "Invalid roof fall angle for entry", "txtRockFallAngleEntry"},
      {Both, "txtRockFallAngleEntry=60.1", "Invalid roof fall angle for entry", "txtRockFallAngleEntry"},
      {Both, "txtRockFallAngleXcut=-0.1", "Invalid roof fall angle for crosscut", "txtRockFallAngleXcut"},
      {Both, "txtRockFallAngleXcut=60.1", "Invalid roof fall angle for crosscut", "txtRockFallAngleXcut"}}},
    {{"chkSecondSupInter=0", "chkSecInter_0=0"},
     {3, Stays, 0},
     {{Both, "txtCableLengthSecInter=0", "Invalid cable length", "txtCableLengthSecInter"},
      {Both, "txtCableCapacitySecInter=", "Invalid cable capacity", "txtCableCapacitySecInter"},
      {Both, "txtCableNumberSecInter=0", "Invalid number of cable bolts", "txtCableNumberSecInter"},
      {English,
       "optCableCapModeSecInter=0|cmbCableDiamSecInter=0.65",
       "Cable Diameter not Selected from Available Options",
       "cmbCableDiamSecInter",
       {3, 0, Stays}},
      {Both,
       "optCableCapModeSecInter=1|cmbCableCapacitySecInter=31",
       "Cable Capacity not Selected from Available Options",
       "cmbCableCapacitySecInter",
       {3, 0, Stays}}}},
    {{"chkSecondSupInter=0", "chkSecInter_1=0"},
     {3, Stays, 1},
     {{Both, "txtTrussLengthMemberSecInter=0", "Invalid truss member length", "txtTrussLengthMemberSecInter"},
      {Both, "txtTrussAngleSecInter=-0.1", "Invalid truss member angle", "txtCableCapacitySecEntry"},
      {Both, "txtTrussAngleSecInter=90.1", "Invalid truss member angle", "txtCableCapacitySecEntry"},
      {Both, "txtTrussCapacitySecInter=0", "Invalid truss capacity", "txtTrussCapacitySecInter"},
      {Both, "txtTrussNumberSecInter=0", "Invalid truss spacing", "txtTrussNumberSecInter"}}},
    {{"chkSecondSupInter=0", "chkSecInter_2=0"},
     {3, Stays, 2},
     {{English, "txtBoltLengthSecInter=0", "Invalid actual bolt length. Maximum length allowed is 10 (ft)",
       "txtBoltLengthSecInter"},
      {English, "txtBoltLengthSecInter=10.1", "Invalid actual bolt length. Maximum length allowed is 10 (ft)",
       "txtBoltLengthSecInter"},
      {Metric, "txtBoltLengthSecInter=3.31", "Invalid actual bolt length. Maximum length allowed is 3.3 (m)",
       "txtBoltLengthSecInter"},
      {Both, "txtBoltNumberSecInter=0", "Invalid number of bolts in intersection", "txtBoltNumberSecInter"},
      {Both, "optBoltOptionsSecInter=1|cmbBoltDiameterSecInter=0.9",
       "Roof bolt diameter NOT selected from available options", "cmbBoltDiameterSecInter"},
      {English, "optBoltOptionsSecInter=1|cmbBoltGradeSecInter=77",
       "Roof bolt grade NOT selected from available options", "cmbBoltDiameterSecInter"},
      {English, "optBoltOptionsSecInter=1|optBoltDiameterSecInter=1|txtBoltDiameterSecInter=0",
       "Invalid roof bolt diameter. Valid Range: max 1 in or 25 mm", "txtBoltDiameterSecInter"},
      {English, "optBoltDiameterSecInter=1|txtBoltDiameterSecInter=1.01",
       "Invalid roof bolt diameter. Valid Range: max 1 in or 25 mm", "txtBoltDiameterSecInter"},
      {Metric, "optBoltDiameterSecInter=1|txtBoltDiameterSecInter=25.1",
       "Invalid roof bolt diameter. Valid Range: max 1 in or 25 mm", "txtBoltDiameterSecInter"},
      {English, "optBoltOptionsSecInter=1|optBoltGradeSecInter=1|txtBoltGradeSecInter=0", "Invalid roof bolt grade",
       "txtBoltGradeSecInter"}}},
    {{"chkSecondSupInter=0", "chkSecInter_3=0"},
     {3, Stays, 3},
     {{Both, "optSupportTypeSecInter=0|cmbSupportTypeSecInter=Stone pack", "Invalid standing support specification",
       "cmbSupportTypeSecInter"},
      {Both, "optSupportTypeSecInter=0|txtSupportCapSecInter=0", "Invalid standing support capacity",
       "cmbSupportTypeSecInter"},
      {Both, "optSupportTypeSecInter=1|txtSupportCapSecInter=0", "Invalid standing support capacity",
       "txtSupportCapSecInter"},
      {Both, "txtSupportNumberSecInter=0", "Invalid number of standing supports in intersection",
       "txtSupportNumberSecInter"}}},
};

// All twelve sections, in the order of the checks.
inline std::vector<FaultSection> AllFaults() {
  std::vector<FaultSection> all;
  for (const auto* sections : {&GeneralAndPrimaryFaults, &EntryFaults, &IntersectionFaults}) {
    all.insert(all.end(), sections->begin(), sections->end());
  }
  return all;
}

}  // namespace orby::test
