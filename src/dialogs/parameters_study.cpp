// The design that the fields of the parameters dialog hold, for a study of it, and the changes that a study makes.
#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "core/dialog_helpers.h"
#include "dialogs/compared_designs.h"
#include "dialogs/parameters_dialog.h"
#include "dialogs/parameters_fields.h"
#include "dialogs/would_hold_window.h"
#include "files/shown_design.h"

namespace orby {
namespace {

// Sets the fields that differ, by the setters whose events typing fires too.
class FieldSetter {
 public:
  void Set(TextBox& box, Single present, Single wanted) {
    if (present == wanted || IsUnfit(wanted)) return;
    Note(box);
    box.SetText(NumberText(wanted));
  }
  void Set(Combo& combo, Single present, Single wanted) {
    if (present == wanted || IsUnfit(wanted)) return;
    Note(combo);
    combo.SetText(NumberText(wanted));
  }
  template <class Choice>
  void Choose(OptionArray& options, Choice present, Choice wanted) {
    if (present == wanted) return;
    Note(options);
    options.SetValue(NumberOf(wanted), true);
  }
  // Notes that a field is about to change.
  void Note(Control& field) {
    if (first_ == nullptr) first_ = &field;
  }

  Control* First() const { return first_; }

 private:
  Control* first_ = nullptr;
};

void SetBolt(FieldSetter& fields, BoltControls& bolt, const BoltSelection& present, const BoltSelection& wanted) {
  fields.Choose(bolt.Options, present.Options, wanted.Options);
  if (present.TableRow != wanted.TableRow) {
    fields.Note(bolt.Table);
    bolt.Table.SetRow(wanted.TableRow + 1);
  }
  fields.Choose(bolt.DiameterMode, present.DiameterMode, wanted.DiameterMode);
  fields.Set(bolt.DiameterStd, present.DiameterStd, wanted.DiameterStd);
  fields.Set(bolt.DiameterManual, present.DiameterManual, wanted.DiameterManual);
  fields.Choose(bolt.GradeMode, present.GradeMode, wanted.GradeMode);
  fields.Set(bolt.GradeStd, present.GradeStd, wanted.GradeStd);
  fields.Set(bolt.GradeManual, present.GradeManual, wanted.GradeManual);
}

void SetCable(FieldSetter& fields, CableControls& cable, const CableSelection& present, const CableSelection& wanted) {
  fields.Choose(cable.CapMode, present.CapMode, wanted.CapMode);
  fields.Choose(cable.Capacity, present.Capacity, wanted.Capacity);
  fields.Set(cable.Diam, present.Diam, wanted.Diam);
  fields.Set(cable.CapacityStd, present.CapacityStd, wanted.CapacityStd);
  fields.Set(cable.CapacityManual, present.CapacityManual, wanted.CapacityManual);
}

// The capacity is last, because choosing the name replaces it by the catalog's capacity.
void SetStanding(FieldSetter& fields, StandingControls& standing, const StandingSelection& present,
                 const StandingSelection& wanted) {
  fields.Choose(standing.TypeMode, present.TypeMode, wanted.TypeMode);
  const bool isStandard = wanted.TypeMode == ValueSource::Standard;
  if (isStandard && standing.TypeStd.Text() != wanted.TypeName) {
    fields.Note(standing.TypeStd);
    standing.TypeStd.SetText(wanted.TypeName);
  } else if (!isStandard && standing.TypeManual.Text() != wanted.TypeName) {
    fields.Note(standing.TypeManual);
    standing.TypeManual.SetText(wanted.TypeName);
  }
  if (IsUnfit(wanted.Capacity)) return;
  const std::string capacity = NumberText(wanted.Capacity);
  if (standing.Capacity.Text() != capacity && present != wanted) standing.Capacity.SetText(capacity);
}

}  // namespace

Design ParametersDialog::TypedDesign() {
  ReadFields();
  ReadPart(DesignPart::Place);  // with the rating as it was typed
  return typed_;
}

void ParametersDialog::TakeEdits(const Design& wanted) {
  edits_.EndTyping();
  const Design present = TypedDesign();
  FieldSetter fields;
  for (const auto& part : NumberFields) {
    for (const auto& [control, field] : part) fields.Set(this->*control, field.In(present), field.In(wanted));
  }
  SetBolt(fields, PrimaryBoltControls, present.Primary, wanted.Primary);
  SetBolt(fields, EntryBoltControls, present.Entries.Bolt, wanted.Entries.Bolt);
  SetBolt(fields, InterBoltControls, present.Intersections.Bolt, wanted.Intersections.Bolt);
  SetCable(fields, EntryCableControls, present.Entries.Cable, wanted.Entries.Cable);
  SetCable(fields, InterCableControls, present.Intersections.Cable, wanted.Intersections.Cable);
  SetStanding(fields, EntryStandingControls, present.Entries.Standing, wanted.Entries.Standing);
  SetStanding(fields, InterStandingControls, present.Intersections.Standing, wanted.Intersections.Standing);
  EndAct();
  edits_.EndTyping();
  if (fields.First() != nullptr) ShowControl(*fields.First());
  RequestFocus(lstVerdicts);
}

void ParametersDialog::CallOnScreen(const std::function<void()>& act) {
  program_.platform.clock.CallLater(0, [this, act, alive = std::weak_ptr(alive_)] {
    if (!alive.expired() && IsOpen()) act();
  });
}

void ParametersDialog::StudyLater() {
  CallOnScreen([this] { cmdWouldHold.Press(); });
}

void ParametersDialog::JudgeLater(int row) {
  CallOnScreen([this, row] { lstVerdicts.ClickItem(row); });
}

void ParametersDialog::KeepAsVariant() {
  Design kept = program_.project.WorkParms;
  if (!TakeFields(kept, AsCommitted)) return;
  const std::string name = KeepVariant(program_, kept).Name;
  ShowMessage(program_, "The fields are kept as " + name + ". \"Side by Side\" in the menu Study compares them.");
}

void ParametersDialog::Study() {
  const int row = lstVerdicts.ListIndex();
  const bool isSelected = row >= 0 && static_cast<std::size_t>(row) < order_.size();
  WouldHoldWindow window(
      program_, *this, isSelected ? SupportOf(verdicts_[order_[static_cast<std::size_t>(row)]].verdict) : std::nullopt);
  ShowForm(program_, window);
}

}  // namespace orby
