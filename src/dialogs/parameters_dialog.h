// The parameters dialog: every analysis input of the design, its live results, its checks and its preview.
//
// The three bolt sets share their rules; so do the two cable selections and the two standing supports.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "controls/edit_history.h"
#include "dialogs/live_texts.h"
#include "dialogs/parameters_controls.h"
#include "engine/verdicts.h"

namespace orby {

// A field with a number that no record can hold, and the place of that number in the typed design.
struct Misfit {
  const Single* number;
  const Control* field;
};

// A row of the strip of judgements.
struct VerdictRow {
  Verdict verdict;  // on the fields as they stand
  Verdict afterOk;  // on the design that OK would commit
  std::string text;
};

// An output of a live figure, and the judgement that it belongs to.
struct LiveOutput {
  TextBox* box;
  const FigureText* text;
  Aspect what;
  Opening where;
  bool showsJudgement;
};

// The parts of a design that the refreshes read.
enum class DesignPart { Place, Primary, PrimaryBolt, Entries, Intersections };

class ParametersDialog : public ParametersControls {
 public:
  explicit ParametersDialog(Program& program);

  // Checks the fields and shows the faults, section by section. Returns true if there are none. Otherwise leaves tab
  // and focus at the last fault.
  bool ValidateParameters();

  // Reads the fields into a design as a commit would. A number that the design cannot hold leaves the design's own one
  // unchanged.
  void ReadEdits(Design& design);

  // Reads the fields into the committed design and returns true. If a number does not fit, changes nothing, shows an
  // error, moves the focus to its field, and returns false.
  bool SaveWorkParms();

  // Reads the fields into the previewed design, for reports and curves. Fails as SaveWorkParms does.
  bool CopyToWorkParmsCopy();

  // Builds the report pages of the fields as they are, without committing or checking them. Returns false if a number
  // does not fit. Throws the RuntimeError of a report that cannot be computed.
  bool BuildReport();

  // The four refreshes. Each computes its results first and then writes its outputs. None throws: an output shows "--"
  // if it cannot be computed, whatever the error.
  void ShowSuggested();
  void ShowActualPSUP();
  void ShowEntries();
  void ShowIntersections();

  // Shows the judgements on the fields as they stand, the worst first. Where the design that OK would commit is judged
  // in another way, both are shown.
  void ShowVerdicts();

  // Returns the design that the fields hold, as the judgements read it.
  Design TypedDesign();

  // Sets the fields that differ from a design, as typing would and as one edit. Outputs are not compared. Shows the
  // page of the first such field, and moves the focus to the judgements.
  void TakeEdits(const Design& wanted);

  // Opens the window that says what would hold, over this dialog, as soon as this one is on the screen.
  void StudyLater();
  // Clicks a row of the judgements as soon as this dialog is on the screen.
  void JudgeLater(int row);

  // Returns for an output whether its text is of earlier inputs, and the judgement on it.
  std::vector<std::string> HintOf(const Control& control) const override;

  EditHistory* Edits() override { return &edits_; }
  void ShowControl(Control& control) override;

  bool HoldEvents = false;  // suspends the refreshes
  bool CommitOnClose = false;
  bool WasCommitted = false;

  UnitSystem Units() const { return program_.project.WorkParms.Units; }

 protected:
  void OnOpen() override;
  void OnClose() override;
  void OnAct() override {
    ShowVerdicts();
    ShowDrawing();
  }

 private:
  // The refreshes that a change event runs, in this order.
  using Refresh = void (ParametersDialog::*)();
  struct Refreshes {
    Refresh first = nullptr;
    Refresh second = nullptr;
  };
  struct RefreshTable;  // the refreshes of each event

  void TieCommands();
  // Gives each number field the range that the checks accept.
  void TieRanges();
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
  // Reads all fields into the typed design. Returns those of its numbers that are Unfit.
  std::vector<Misfit> ReadFields();
  // Reads all fields and stores the result of `step` in `support`. If one of its numbers does not fit, shows an error,
  // stores nothing and returns false.
  bool TakeFields(RoofSupport& support, Design (*step)(Design));
  // Returns true if a commit would take all fields. Otherwise shows the error for the first field that does not fit.
  bool MayCommit();
  void ReportRefused(const Control& field);

  // Reads the fields of one part into the typed design, for the live results. A number that no Single can hold becomes
  // Unfit.
  void ReadPart(DesignPart part);

  void CallOnScreen(const std::function<void()>& act);

  // Opens the estimator and takes its roof rating.
  void Estimate();

  // Connects the drawings with the tabs and with their commands.
  void TieDrawings();
  // Lets the drawing on the tab on view follow the typed design as it has been read last.
  void ShowDrawing();
  void ReadAndDraw();

  // Connects the outputs with the texts of their figures.
  void TieOutputs();
  // Marks the outputs whose texts are of earlier inputs, and shows the judgements beside the others.
  void MarkOutputs(const Figures& figures, const Verdicts& found);
  void TakeVerdicts(const Verdicts& found, const Verdicts& committed);
  void OrderVerdicts(const Verdicts& found);
  // Shows the judgements whose bits are set, or all of them in another order.
  void ShowVerdictRows(std::uint32_t changed, bool isSameOrder);
  // Moves the focus to the field that decides the judgement of a row.
  void GoToVerdict(std::size_t row);

  // Opens that window for the selected judgement.
  void Study();
  // Keeps the fields as they stand, for a comparison with other designs. Fails as SaveWorkParms does.
  void KeepAsVariant();

  // Takes the region and the rock type of the estimator from the hidden fields, after an edit was taken back.
  void RestoreEstimate();

  Design typed_;
  LiveTexts texts_;  // of the fields as they stand, after each action
  std::vector<LiveOutput> outputs_;
  std::array<bool, 2> warned_{};      // the warnings that txtMessage shows
  std::vector<VerdictRow> verdicts_;  // in the order in which they are made
  std::vector<std::size_t> order_;    // of the rows of the strip, the worst first
  EditHistory edits_;
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);  // for what is called later
};

}  // namespace orby
