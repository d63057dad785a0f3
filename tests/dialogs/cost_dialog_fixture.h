// A cost dialog on the design of one bolter, and a different value for every number field.
#pragma once

#include <gmock/gmock.h>

#include <array>
#include <string>
#include <string_view>

#include "design/field.h"
#include "dialogs/cost_dialog.h"
#include "support/recording_platform.h"

namespace orby::test {

struct FieldCase {
  std::string_view name;
  SingleField field;
  Single value;
  std::string_view text;
};

// A different value for every number field.
inline const std::array<FieldCase, 22> CostFieldCases{{
    {"txtBoltCost", [](auto& d) { return &d.Cost.BoltCost; }, 3.25F, "3.25"},
    {"txtPlateCost", [](auto& d) { return &d.Cost.PlateCost; }, 1.1F, "1.1"},
    {"txtResinCost", [](auto& d) { return &d.Cost.ResinCost; }, 1.45F, "1.45"},
    {"txtBitCost", [](auto& d) { return &d.Cost.BitCost; }, 67, "67"},
    {"txtHeaderCost", [](auto& d) { return &d.Cost.HeaderCost; }, 0.35F, "0.35"},
    {"txtStrapCost", [](auto& d) { return &d.Cost.StrapCost; }, 12.5F, "12.5"},
    {"txtnOperShift", [](auto& d) { return &d.Cost.NOperShift; }, 2, "2"},
    {"txtTotalLabor", [](auto& d) { return &d.Cost.TotalLabor; }, 38.4F, "38.4"},
    {"txtHoursShift", [](auto& d) { return &d.Cost.HoursShift; }, 8.75F, "8.75"},
    {"txtMaintainHrs", [](auto& d) { return &d.Cost.MaintainHrs; }, 2.5F, "2.5"},
    {"txtMaintainCost", [](auto& d) { return &d.Cost.MaintainCost; }, 31250, "31250"},
    {"txtTranspCost", [](auto& d) { return &d.Cost.TranspCost; }, 105, "105"},
    {"txtCapitalCost", [](auto& d) { return &d.Cost.CapitalCost; }, 1.2e7F, "1.2E+07"},
    {"txtYearsDepr", [](auto& d) { return &d.Cost.YearsDepr; }, 7, "7"},
    {"txtnboltsShift", [](auto& d) { return &d.Cost.NboltsShift; }, 280, "280"},
    {"txtnBoltsRow", [](auto& d) { return &d.Cost.NBoltsRow; }, 5, "5"},
    {"txtRowSpacing", [](auto& d) { return &d.Cost.RowSpacing; }, 4.2F, "4.2"},
    {"txtAdvanceShift", [](auto& d) { return &d.Cost.AdvanceShift; }, 310, "310"},
    {"txtAdvanceRate", [](auto& d) { return &d.Cost.AdvanceRate; }, 4.6F, "4.6"},
    {"txtCleanProduction", [](auto& d) { return &d.Cost.CleanProduction; }, 1180, "1180"},
    {"txtShiftsWeek", [](auto& d) { return &d.Cost.ShiftsWeek; }, 11, "11"},
    {"txtWeeksYear", [](auto& d) { return &d.Cost.WeeksYear; }, 49, "49"},
}};

// One bolter on English units: 4 bolts a row every 4 ft, 300 bolts a shift, 4 tons/ft.
inline CostInputs OneBolter() {
  CostInputs cost;
  cost.BoltCost = 3;
  cost.PlateCost = 1;
  cost.ResinCost = 1.5F;
  cost.BitCost = 67;
  cost.NboltsShift = 300;
  cost.NBoltsRow = 4;
  cost.RowSpacing = 4;
  cost.NOperShift = 2;
  cost.TotalLabor = 35;
  cost.HoursShift = 8;
  cost.MaintainHrs = 2;
  cost.MaintainCost = 30000;
  cost.TranspCost = 100;
  cost.CapitalCost = 1000000;
  cost.YearsDepr = 5;
  cost.AdvanceShift = 250;
  cost.Advance = 1;
  cost.AdvanceRate = 4;
  cost.CleanProduction = 900;
  cost.Production = 1;
  cost.ShiftsWeek = 12;
  cost.WeeksYear = 50;
  return cost;
}

struct ACostDialog : testing::Test {
  ACostDialog() {
    program.project.WorkParms.Cost = OneBolter();
    program.project.FileSaved = true;
    program.project.FileEmpty = false;
  }

  TextBox& Box(std::string_view name) { return dynamic_cast<TextBox&>(*dialog.Find(name)); }
  const std::string& Caption(std::string_view name) { return dynamic_cast<Label&>(*dialog.Find(name)).Caption(); }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  CostDialog dialog{program};
};

}  // namespace orby::test
