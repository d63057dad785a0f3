// The roof rating estimator: a coalfield and its rock types, each with a suggested CMRR.
#pragma once

#include <array>

#include "controls/controls.h"
#include "controls/grid.h"
#include "core/program_form.h"
#include "engine/estimator.h"

namespace orby {

class EstimatorDialog : public ProgramForm {
 public:
  Frame fraLocation{*this, "fraLocation", "Coalfield Location"};
  OptionArray optLocation{
      *this,
      "optLocation",
      {{RegionNames[0]}, {RegionNames[1]}, {RegionNames[2]}, {RegionNames[3]}, {RegionNames[4]}, {RegionNames[5]}}};
  Grid VSFlexGrid1{*this, "VSFlexGrid1"};
  LabelledBox txtCMRR{*this, "txtCMRR", TextKind::Output, "CMRR"};
  std::array<Picture, RegionNames.size()> Picture1{Picture(*this, "Picture1_0"), Picture(*this, "Picture1_1"),
                                                   Picture(*this, "Picture1_2"), Picture(*this, "Picture1_3"),
                                                   Picture(*this, "Picture1_4"), Picture(*this, "Picture1_5")};

  // commands
  Button Command2{*this, "Command2", "OK"};
  Button Command1{*this, "Command1", "Cancel", [this] { Close(); }};
  Button Command3{*this, "Command3", "Help", [this] { ShowHelp(); }};

  explicit EstimatorDialog(Program& program);

  // Shows the rating of the selected rock type, and notes whether it is the region's manual row.
  void ShowEstimate();

  bool HoldEvents = false;  // suspends the estimate
  bool CommitOnClose = false;

 protected:
  void OnOpen() override;
  void OnClose() override;

 private:
  void ShowRegion(Integer region);
};

}  // namespace orby
