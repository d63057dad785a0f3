// The window that compares two to eight designs: files, the open project, and variants kept from the parameters.
//
// It changes nothing in the project.
#pragma once

#include <algorithm>
#include <vector>

#include "controls/controls.h"
#include "controls/grid.h"
#include "core/program_form.h"
#include "dialogs/compared_designs.h"
#include "dialogs/comparison_outputs.h"
#include "dialogs/drawing.h"

namespace orby {

class SideBySideWindow : public ProgramForm {
 public:
  // the designs to compare
  Label lblDesigns{*this, "lblDesigns", "Designs"};
  List lstDesigns{*this, "lstDesigns", ListKind::Choices};
  Button cmdAddFile{*this, "cmdAddFile", "Add &File...", [this] { AddFile(); }};
  Button cmdAddProject{*this, "cmdAddProject", "Add Open &Project", [this] { Add({}); }};
  Button cmdRemove{*this, "cmdRemove", "Rem&ove", [this] { Remove(); }};

  // the variants of this run
  Label lblVariants{*this, "lblVariants", "Variants kept from the parameters"};
  List lstVariants{*this, "lstVariants", ListKind::Choices};
  Button cmdAddVariant{*this, "cmdAddVariant", "Add &Variant", [this] { AddVariant(); }};
  Button cmdForget{*this, "cmdForget", "For&get", [this] { Forget(); }};
  LabelledBox txtName{*this, "txtName", TextKind::Free, "Name"};
  Button cmdRename{*this, "cmdRename", "&Rename", [this] { Rename(); }};

  // the comparison
  TabSet tabSide{*this, "tabSide", {"&Table", "C&urves"}};
  Drawing picSections{*this, "picSections", "Sections of the designs"};
  Grid grdTable{*this, "grdTable"};
  Label lblCurve{*this, "lblCurve", "Curve"};
  Combo cmbCurve{*this, "cmbCurve", ComboKind::ListOnly};
  Drawing picCurves{*this, "picCurves", "Curves of the designs"};
  Label lblUnits{*this, "lblUnits", "Units"};
  OptionArray optUnits{*this, "optUnits", {{"&English"}, {"&Metric"}}};
  Label lblState{*this, "lblState", ""};

  // commands
  Button cmdPrint{*this, "cmdPrint", "Pri&nt...", [this] { Print(); }};
  Button cmdSaveAs{*this, "cmdSaveAs", "&Save As...", [this] { SaveAs(); }};
  Button cmdCopy{*this, "cmdCopy", "&Copy Table", [this] { Copy(); }};
  Button cmdClose{*this, "cmdClose", "Close", [this] { Close(); }};
  Button cmdHelp{*this, "cmdHelp", "&Help", [this] { ShowHelp(); }};

  explicit SideBySideWindow(Program& program);

 protected:
  void OnOpen() override;

 private:
  ComparedDesigns& Compared() const { return program_.windows.compared; }
  // Returns the marked variant, or null if none is marked.
  KeptVariant* MarkedVariant() const;

  // Adds a design if it is not there already and can be read; says why otherwise.
  void Add(const ComparedSource& source);
  void AddFile();
  void AddVariant();
  void Remove();
  void Rename();
  void Forget();

  // Reads all designs anew and shows them. `marked` is the row of the design to mark.
  void Refresh(int marked);
  void ShowVariants(int marked);
  // Compares the designs in the chosen unit system and shows the result.
  void Compare();
  void ShowTable();
  // Makes commands usable for the designs that there are.
  void ShowUse();
  UnitSystem Units() const { return optUnits.Value(1) ? Metric : English; }
  Integer Curve() const { return static_cast<Integer>(std::max(cmbCurve.ListIndex(), 0)); }
  Sketch CurvesOn(const SheetSize& sheet) const;

  PrintedComparison Printed() const;
  PagedSheet Pages() const;
  void Print();
  void SaveAs();
  void Copy();

  std::vector<ComparedDesign> designs_;
  DesignComparison comparison_;
};

// Shows the window until the user closes it.
void ShowSideBySide(Program& program);

}  // namespace orby
