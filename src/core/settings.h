// The user's settings and the values that a new design starts from.
#pragma once

#include <string>

#include "base/types.h"

namespace orby {

struct Settings {
  Integer UnitsDefault = 0;
  Integer BoltGradeAsUltimateDefault = 0;
  Integer DisplayHistoryWin = 1;
  Integer MaxDisplaySize = 4096;  // length at which the history is trimmed
  Integer PrintModuleHeader = 1;
  std::string DataPath;
  std::string FileExtension = "ORB";
};

// Values of a new design. Pairs are Metric and English.
struct DesignDefaults {
  Integer DefaultCMRR = 45;
  Single DefaultMETDepthofCover = 150;
  Single DefaultENGDepthofCover = 400;
  Single DefaultMETUnitWeight = 25;
  Single DefaultENGUnitWeight = 162;
  Single DefaultStabilityFactor = 1;
  Single DefaultMETActualBoltLength = 2;
  Single DefaultENGActualBoltLength = 6;
  Single DefaultMETboltDiameter = 20;
  Single DefaultENGboltDiameter = 0.75F;
  Single DefaultMETBoltGrade = 520;
  Single DefaultENGBoltGrade = 75;
  Single DefaultMETBoltUTS = 690;
  Single DefaultENGBoltUTS = 100;
  Integer DefaultNumberBoltsPerRow = 4;
  Single DefaultMETrowSpacing = 1.2F;
  Single DefaultENGrowSpacing = 4;
  Single DefaultMETActualInterSpan = 20;
  Single DefaultENGActualInterSpan = 60;
  Single DefaultMETEntryWidth = 6.2F;
  Single DefaultENGEntryWidth = 20;
};

}  // namespace orby
