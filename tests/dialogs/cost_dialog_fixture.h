// A cost dialog over the design of one bolter, and a value of its own for every number field.
#pragma once

#include <gmock/gmock.h>

#include <array>
#include <string>
#include <string_view>

#include "dialogs/cost_dialog.h"
#include "support/recording_platform.h"

namespace orby::test {

struct FieldCase {
  std::string_view name;
  Single CostGroup::*field;
  Single value;
  std::string_view text;
};

// Every number field with a value of its own.
inline const std::array<FieldCase, 22> CostFieldCases{{
    {"txtBoltCost", &CostGroup::CostBoltCost, 3.25F, "3.25"},
    {"txtPlateCost", &CostGroup::CostPlateCost, 1.1F, "1.1"},
    {"txtResinCost", &CostGroup::CostResinCost, 1.45F, "1.45"},
    {"txtBitCost", &CostGroup::CostBitCost, 67, "67"},
    {"txtHeaderCost", &CostGroup::CostHeaderCost, 0.35F, "0.35"},
    {"txtStrapCost", &CostGroup::CostStrapCost, 12.5F, "12.5"},
    {"txtnOperShift", &CostGroup::CostNOperShift, 2, "2"},
    {"txtTotalLabor", &CostGroup::CostTotalLabor, 38.4F, "38.4"},
    {"txtHoursShift", &CostGroup::CostHoursShift, 8.75F, "8.75"},
    {"txtMaintainHrs", &CostGroup::CostMaintainHrs, 2.5F, "2.5"},
    {"txtMaintainCost", &CostGroup::CostMaintainCost, 31250, "31250"},
    {"txtTranspCost", &CostGroup::CostTranspCost, 105, "105"},
    {"txtCapitalCost", &CostGroup::CostCapitalCost, 1.2e7F, "1.2E+07"},
    {"txtYearsDepr", &CostGroup::CostYearsDepr, 7, "7"},
    {"txtnboltsShift", &CostGroup::CostNboltsShift, 280, "280"},
    {"txtnBoltsRow", &CostGroup::CostNBoltsRow, 5, "5"},
    {"txtRowSpacing", &CostGroup::CostRowSpacing, 4.2F, "4.2"},
    {"txtAdvanceShift", &CostGroup::CostAdvanceShift, 310, "310"},
    {"txtAdvanceRate", &CostGroup::CostAdvanceRate, 4.6F, "4.6"},
    {"txtCleanProduction", &CostGroup::CostCleanProduction, 1180, "1180"},
    {"txtShiftsWeek", &CostGroup::CostShiftsWeek, 11, "11"},
    {"txtWeeksYear", &CostGroup::CostWeeksYear, 49, "49"},
}};

// One bolter on English units: 4 bolts a row every 4 ft, 300 bolts a shift, 4 tons/ft.
inline CostGroup OneBolter() {
  CostGroup cost;
  cost.CostBoltCost = 3;
  cost.CostPlateCost = 1;
  cost.CostResinCost = 1.5F;
  cost.CostBitCost = 67;
  cost.CostNboltsShift = 300;
  cost.CostNBoltsRow = 4;
  cost.CostRowSpacing = 4;
  cost.CostNOperShift = 2;
  cost.CostTotalLabor = 35;
  cost.CostHoursShift = 8;
  cost.CostMaintainHrs = 2;
  cost.CostMaintainCost = 30000;
  cost.CostTranspCost = 100;
  cost.CostCapitalCost = 1000000;
  cost.CostYearsDepr = 5;
  cost.CostAdvanceShift = 250;
  cost.CostAdvance = 1;
  cost.CostAdvanceRate = 4;
  cost.CostCleanProduction = 900;
  cost.CostProduction = 1;
  cost.CostShiftsWeek = 12;
  cost.CostWeeksYear = 50;
  return cost;
}

struct ACostDialog : testing::Test {
  ACostDialog() {
    program.WorkParms.Cost() = OneBolter();
    program.FileSaved = true;
    program.FileEmpty = false;
  }

  TextBox& Box(std::string_view name) { return dynamic_cast<TextBox&>(*dialog.Find(name)); }
  const std::string& Caption(std::string_view name) { return dynamic_cast<Label&>(*dialog.Find(name)).Caption(); }

  RecordingPlatform platform;
  Program program{platform.Doors()};
  CostDialog dialog{program};
};

}  // namespace orby::test
