// The parameters dialog: every analysis input of the design, its live results, its checks and its preview.
//
// Rules that the three bolt sets, the two cable selections or the two standing supports share are written once, over
// the sets of their controls.
#pragma once

#include <array>
#include <initializer_list>
#include <vector>

#include "dialogs/parameters_controls.h"
#include "engine/analysis.h"

namespace orby {

// A field whose number no record holds, and where the typed design keeps it.
struct Misfit {
  const Single* number;
  const Control* field;
};

// The parts of a design that the refreshes read.
enum class DesignPart { Place, Primary, PrimaryBolt, Entries, Intersections };

class ParametersDialog : public ParametersControls {
 public:
  explicit ParametersDialog(Program& program);

  // Judges the fields and tells what is wrong, section by section; true when nothing is. Leaves tab and focus at the
  // last fault.
  bool ValidateParameters();

  // Reads the fields into a design as a commit would. A number that the design cannot hold leaves the one it has there.
  void ReadEdits(Design& design);

  // Reads the fields into the committed design. A number that it cannot hold is told, its field gets the focus, and
  // nothing is changed; false then.
  bool SaveWorkParms();

  // Reads the fields into the previewed design, for reports and curves; refuses as SaveWorkParms does.
  bool CopyToWorkParmsCopy();

  // Builds the report pages of the fields as they stand, without committing or checking them; false when the fields
  // were refused. Throws what a report throws that cannot be computed.
  bool BuildReport();

  // The four refreshes. Each computes first and writes its outputs last. None throws: what cannot be computed, for
  // whatever run-time error, shows "--" in its place.
  void ShowSuggested();
  void ShowActualPSUP();
  void ShowEntries();
  void ShowIntersections();

  bool HoldEvents = false;  // holds the refreshes back
  bool CommitOnClose = false;
  bool WasCommitted = false;

  UnitSystem Units() const { return program_.project.WorkParms.Units; }

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
  void TieBolt(BoltControls& bolt, const Refreshes& refreshes);
  void TieCable(CableControls& cable, const Refreshes& refreshes);
  void TieStanding(StandingControls& standing, const Refreshes& refreshes);
  void TieSystems(std::array<CheckBox, SystemCount>& boxes, TabSet& tabs, const Refreshes& refreshes);
  void Run(const Refreshes& refreshes);
  void ApplyManualRating();

  void FillLists();
  void InitParameters();
  // Reads all fields into the typed design. Returns the numbers of it that are Unfit.
  std::vector<Misfit> ReadFields();
  // Reads all fields and takes of them what the step takes: all or, when one of these does not fit, none.
  bool TakeFields(RoofSupport& support, Design (*step)(Design));
  // Whether a commit would take all fields; tells what is refused.
  bool MayCommit();
  void TellRefused(const Control& field);

  // Reads the fields of the part into the typed design, for the live results. A number that no Single holds becomes
  // Unfit.
  void ReadPart(DesignPart part);

  // Asks the estimator for a roof rating.
  void Estimate();

  Design typed_;
};

}  // namespace orby
