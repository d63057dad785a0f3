// The parameters dialog: every analysis input of the design, its live results, its checks and its preview.
//
// Rules that the three bolt sets, the two cable selections or the two standing supports share are written once, over
// descriptors of the controls that take part.
#pragma once

#include <array>
#include <initializer_list>

#include "core/program.h"
#include "dialogs/parameters_controls.h"

namespace orby {

class ParametersDialog : public ParametersControls {
 public:
  explicit ParametersDialog(Program& program);

  // Judges the fields and tells what is wrong, section by section; true when nothing is. Leaves tab and focus at the
  // last fault.
  bool ValidateParameters();

  // The design as a commit of the fields would leave it; nothing is committed. Throws RuntimeError 6 when a number does
  // not fit the record.
  ProjectRecord EditedDesign() const;

  // Reads the fields into the committed design. Throws as EditedDesign does, nothing being changed.
  void SaveWorkParms();

  // Reads the fields into the scratch design, for previews and curves. Manual bolt selections of all three sets come
  // from the primary tab here.
  void CopyToWorkParmsCopy();

  // Builds the report pages of the fields as they stand, without committing or checking them.
  void BuildReport();

  // The four refreshes. Each computes first and writes its outputs last; a run-time error leaves them as they were.
  void ShowSuggested();
  void ShowActualPSUP();
  void ShowEntries();
  void ShowIntersections();

  bool HoldEvents = false;  // holds the refreshes back
  bool CommitOnClose = false;
  bool WasCommitted = false;

  // ---- descriptors --------------------------------------------------------------------------------------------------

  BoltControls PrimaryBoltControls;
  BoltControls EntryBoltControls;
  BoltControls InterBoltControls;
  CableControls EntryCableControls;
  CableControls InterCableControls;
  StandingControls EntryStandingControls;
  StandingControls InterStandingControls;
  OutputControls EntryOutputs{txtRockLoadEntry, txtSupportCapEntry, txtStabFactorEntry};
  OutputControls InterOutputs{txtRockLoadInter, txtSupportCapInter, txtStabFactorInter};

  Integer Units() const { return program_.Units; }

 protected:
  void OnOpen() override;
  void OnClose() override;

 private:
  // What a change event refreshes, in this order.
  using Refresh = void (ParametersDialog::*)();
  struct Refreshes {
    Refresh first = nullptr;
    Refresh second = nullptr;
  };
  struct RefreshTable;  // the sets of refreshes that events name

  void TieCommands();
  void TieEvents();
  void TieFields();
  void TieGeneral();
  void Tie(const Refreshes& refreshes, std::initializer_list<Event*> events);
  void TieBolt(const BoltControls& bolt, const Refreshes& refreshes);
  void TieCable(const CableControls& cable, const Refreshes& refreshes);
  void TieStanding(const StandingControls& standing, const Refreshes& refreshes);
  void TieSystems(std::array<CheckBox, SystemCount>& boxes, TabSet& tabs, const Refreshes& refreshes);
  void Run(const Refreshes& refreshes);
  void ApplyManualRating();

  void FillLists();
  void InitParameters();
  // manualEntry, manualInter: the controls that the manual bolt selections of these two sets are read from.
  void StoreFields(ProjectRecord& record, const BoltControls& manualEntry, const BoltControls& manualInter) const;

  RockInputs TypedEntryRock() const;
  RockInputs TypedIntersectionRock() const;
  SupportSystems TypedEntrySystems() const;
  SupportSystems TypedIntersectionSystems() const;
  Single TypedCableCapacity(const CableControls& cable) const;
  GradeBasis Basis() const { return {program_.BoltStrengthMode, program_.catalogs}; }

  // Asks the estimator for a roof rating.
  void Estimate();

  Program& program_;
};

}  // namespace orby
