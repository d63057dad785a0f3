// The parameters dialog and the project record: filling the fields, and reading them back.
#include "base/arithmetic.h"
#include "base/attempt.h"
#include "base/number_text.h"
#include "core/dialog_helpers.h"
#include "dialogs/parameters_dialog.h"

namespace orby {
namespace {

struct NumberField {
  TextBox ParametersControls::*control;
  Single ProjectRecord::*field;
};

using C = ParametersControls;
using R = ProjectRecord;

constexpr NumberField NumberFields[] = {
    {&C::txtDepthofCover, &R::DepthofCover},
    {&C::txtUnitWeight, &R::UnitWeight},
    {&C::txtActualSpanDiagonals, &R::ActualSpanDiagonals},
    {&C::txtEntryWidth, &R::EntryWidth},
    {&C::txtStabilityFactor, &R::StabilityFactor},
    {&C::txtBoltLengthPrimary, &R::BoltLengthPrimary},
    {&C::txtBoltsperRowPrimary, &R::BoltsperRowPrimary},
    {&C::txtRowSpacingPrimary, &R::RowSpacingPrimary},
    {&C::txtRockLoadHeight, &R::RockLoadHeight},
    {&C::txtRockFallAngle, &R::RockFallAngle},
    {&C::txtCableLengthSecEntry, &R::CableLengthSecEntry},
    {&C::txtCableBoltsPerRowSecEntry, &R::CableBoltsPerRowSecEntry},
    {&C::txtCableRowSpacingSecEntry, &R::CableRowSpacingSecEntry},
    {&C::txtTrussLengthMemberSecEntry, &R::TrussLengthMemberSecEntry},
    {&C::txtTrussAngleSecEntry, &R::TrussAngleSecEntry},
    {&C::txtTrussCapacitySecEntry, &R::TrussCapacitySecEntry},
    {&C::txtTrussSpacingSecEntry, &R::TrussSpacingSecEntry},
    {&C::txtBoltLengthSecEntry, &R::BoltLengthSecEntry},
    {&C::txtBoltsperRowSecEntry, &R::BoltsperRowSecEntry},
    {&C::txtRowSpacingSecEntry, &R::RowSpacingSecEntry},
    {&C::txtNumberSupPerRowSecEntry, &R::NumberSupPerRowSecEntry},
    {&C::txtSupportRowSpacingSecEntry, &R::SupportRowSpacingSecEntry},
    {&C::txtRockLoadHeightInter, &R::RockLoadHeightInter},
    {&C::txtRockFallAngleEntry, &R::RockFallAngleEntry},
    {&C::txtRockFallAngleXcut, &R::RockFallAngleXcut},
    {&C::txtCableLengthSecInter, &R::CableLengthSecInter},
    {&C::txtCableNumberSecInter, &R::CableNumberSecInter},
    {&C::txtTrussLengthMemberSecInter, &R::TrussLengthMemberSecInter},
    {&C::txtTrussAngleSecInter, &R::TrussAngleSecInter},
    {&C::txtTrussCapacitySecInter, &R::TrussCapacitySecInter},
    {&C::txtTrussNumberSecInter, &R::TrussNumberSecInter},
    {&C::txtBoltLengthSecInter, &R::BoltLengthSecInter},
    {&C::txtBoltNumberSecInter, &R::BoltNumberSecInter},
    {&C::txtSupportNumberSecInter, &R::SupportNumberSecInter},
};

struct FlagField {
  CheckBox ParametersControls::*control;
  Integer ProjectRecord::*field;
};

constexpr FlagField FlagFields[] = {
    {&C::chkCMRRManual, &R::CMRRManual},
    {&C::chkPrimSupport, &R::PrimSupport},
    {&C::chkSecondSupEntries, &R::SecondSupEntries},
    {&C::chkSecondSupInter, &R::SecondSupInter},
};

// The fields of the four support systems of entries or intersections, by system.
struct SystemFields {
  std::array<CheckBox, SystemCount> ParametersControls::*boxes;
  std::array<Integer ProjectRecord::*, SystemCount> use;
  Single ProjectRecord::*rockLoad;
  std::array<Single ProjectRecord::*, SystemCount> supportCap;
  std::array<Single ProjectRecord::*, SystemCount> stabFactor;
};

constexpr SystemFields EntrySystemFields{
    &C::chkSecEntries,
    {&R::SecEntryUseCable, &R::SecEntryUseTruss, &R::SecEntryUseBolt, &R::SecEntryUseStanding},
    &R::RockLoadEntry1,
    {&R::SupportCapEntry1, &R::SupportCapEntry2, &R::SupportCapEntry3, &R::SupportCapEntry4},
    {&R::StabFactorEntry1, &R::StabFactorEntry2, &R::StabFactorEntry3, &R::StabFactorEntry4}};

constexpr SystemFields InterSystemFields{
    &C::chkSecInter,
    {&R::SecInterUseCable, &R::SecInterUseTruss, &R::SecInterUseBolt, &R::SecInterUseStanding},
    &R::RockLoadInter1,
    {&R::SupportCapInter1, &R::SupportCapInter2, &R::SupportCapInter3, &R::SupportCapInter4},
    {&R::StabFactorInter1, &R::StabFactorInter2, &R::StabFactorInter3, &R::StabFactorInter4}};

// Reads numbers into a record and remembers the first control whose number did not fit.
class NumberReader {
 public:
  void Read(Single& field, const TextBox& box) { Read(field, box, box.Text()); }
  void Read(Single& field, const Combo& combo) { Read(field, combo, combo.Text()); }
  void Read(Single& field, const Control& control, std::string_view text) {
    Keep(control, [&] { field = ToSingle(TextValue(text)); });
  }
  void Read(Integer& field, const TextBox& box) {
    Keep(box, [&] { field = ToInteger(box.Value()); });
  }
  const Control* Refused() const { return refused_; }

 private:
  template <class Reading>
  void Keep(const Control& control, const Reading& reading) {
    if (!Succeeds(reading) && refused_ == nullptr) refused_ = &control;
  }

  const Control* refused_ = nullptr;
};

void LoadBolt(Program& program, const BoltControls& bolt) {
  const ProjectRecord& record = program.WorkParms;
  const BoltFields& fields = bolt.Fields;
  SetArrayIndex(program, bolt.Options, record.*fields.Options);
  const int row = record.*fields.TableRow + 1;
  bolt.Table.SetRow(row >= 1 && row < bolt.Table.Rows() ? row : 1);
  SetArrayIndex(program, bolt.DiameterMode, record.*fields.DiameterMode);
  bolt.DiameterStd.SetText(NumberText(record.*fields.DiameterStd));
  bolt.DiameterManual.SetText(NumberText(record.*fields.DiameterManual));
  SetArrayIndex(program, bolt.GradeMode, record.*fields.GradeMode);
  bolt.GradeStd.SetText(NumberText(record.*fields.GradeStd));
  bolt.GradeManual.SetText(NumberText(record.*fields.GradeManual));
}

void LoadCable(Program& program, const CableControls& cable) {
  const ProjectRecord& record = program.WorkParms;
  SetArrayIndex(program, cable.CapMode, record.*cable.Fields.CapMode);
  SetArrayIndex(program, cable.Capacity, record.*cable.Fields.Capacity);
  cable.Diam.SetText(NumberText(record.*cable.Fields.Diam));
  cable.CapacityStd.SetText(NumberText(record.*cable.Fields.CapacityStd));
  cable.CapacityManual.SetText(NumberText(record.*cable.Fields.CapacityManual));
}

// The stored capacity comes last: choosing the name would put the catalog's capacity in its place.
void LoadStanding(Program& program, const StandingControls& standing) {
  const ProjectRecord& record = program.WorkParms;
  SetArrayIndex(program, standing.TypeMode, record.*standing.ModeField);
  if (record.*standing.ModeField == 0) {
    standing.TypeStd.SetText(record.*standing.NameField);
  } else {
    standing.TypeManual.SetText(record.*standing.NameField);
  }
  standing.Capacity.SetText(NumberText(record.*standing.CapacityField));
}

void StoreBoltSource(ProjectRecord& record, NumberReader& reader, const BoltControls& bolt) {
  const BoltFields& fields = bolt.Fields;
  const Grid& table = bolt.Table;
  record.*fields.Options = GetArrayIndex(bolt.Options);
  record.*fields.TableRow = static_cast<Integer>(table.Row() - 1);
  record.*fields.Desc = table.Cell(table.Row(), BoltColumn::Description);
  reader.Read(record.*fields.TableDiameter, table, table.Cell(table.Row(), BoltColumn::Diameter));
  reader.Read(record.*fields.TableGrade, table, table.Cell(table.Row(), BoltColumn::Grade));
}

// manual: the controls whose manual selection is taken.
void StoreBoltManual(ProjectRecord& record, NumberReader& reader, const BoltFields& fields,
                     const BoltControls& manual) {
  record.*fields.DiameterMode = GetArrayIndex(manual.DiameterMode);
  reader.Read(record.*fields.DiameterStd, manual.DiameterStd);
  reader.Read(record.*fields.DiameterManual, manual.DiameterManual);
  record.*fields.GradeMode = GetArrayIndex(manual.GradeMode);
  reader.Read(record.*fields.GradeStd, manual.GradeStd);
  reader.Read(record.*fields.GradeManual, manual.GradeManual);
}

void StoreCable(ProjectRecord& record, NumberReader& reader, const CableControls& cable, const Combo& diameter) {
  record.*cable.Fields.CapMode = GetArrayIndex(cable.CapMode);
  record.*cable.Fields.Capacity = GetArrayIndex(cable.Capacity);
  reader.Read(record.*cable.Fields.Diam, diameter);
  reader.Read(record.*cable.Fields.CapacityStd, cable.CapacityStd);
  reader.Read(record.*cable.Fields.CapacityManual, cable.CapacityManual);
}

void StoreStanding(ProjectRecord& record, NumberReader& reader, const StandingControls& standing) {
  const Integer mode = GetArrayIndex(standing.TypeMode);
  record.*standing.ModeField = mode;
  record.*standing.NameField = mode == 0 ? standing.TypeStd.Text() : standing.TypeManual.Text();
  reader.Read(record.*standing.CapacityField, standing.Capacity);
}

// The outputs are read back as they are shown, rounded; "--" reads as 0.
void StoreOutputs(ProjectRecord& record, NumberReader& reader, const SystemFields& fields,
                  const OutputControls& outputs) {
  reader.Read(record.*fields.rockLoad, outputs.RockLoad[0]);
  for (std::size_t i = 0; i < SystemCount; ++i) {
    reader.Read(record.*fields.supportCap[i], outputs.SupportCap[i]);
    reader.Read(record.*fields.stabFactor[i], outputs.StabFactor[i]);
  }
}

}  // namespace

void ParametersDialog::InitParameters() {
  const ProjectRecord& record = program_.WorkParms;
  txtCMRR.SetText(NumberText(record.CMRR));
  program_.estimator.EstimatorRegion = record.CMRRRegionIndex;
  program_.estimator.EstimatorRockType = record.CMRRRockTypeIndex;
  for (const auto& [control, field] : NumberFields) (this->*control).SetText(NumberText(record.*field));
  for (const auto& [control, field] : FlagFields) (this->*control).SetValue(record.*field);
  ApplyManualRating();
  for (const BoltControls* bolt : {&PrimaryBoltControls, &EntryBoltControls, &InterBoltControls}) {
    LoadBolt(program_, *bolt);
  }
  for (const CableControls* cable : {&EntryCableControls, &InterCableControls}) LoadCable(program_, *cable);
  for (const StandingControls* standing : {&EntryStandingControls, &InterStandingControls}) {
    LoadStanding(program_, *standing);
  }
  for (const SystemFields* fields : {&EntrySystemFields, &InterSystemFields}) {
    for (std::size_t i = 0; i < SystemCount; ++i) (this->*fields->boxes)[i].SetValue(record.*fields->use[i]);
  }
  AppendUnits(*this, Units());
}

const Control* ParametersDialog::StoreFields(ProjectRecord& record, const BoltControls& manualEntry,
                                             const BoltControls& manualInter) const {
  NumberReader reader;
  reader.Read(record.CMRR, txtCMRR);
  record.CMRRRegionIndex = program_.estimator.EstimatorRegion;
  record.CMRRRockTypeIndex = program_.estimator.EstimatorRockType;
  for (const auto& [control, field] : NumberFields) reader.Read(record.*field, this->*control);
  for (const auto& [control, field] : FlagFields) record.*field = (this->*control).Value();
  for (const BoltControls* bolt : {&PrimaryBoltControls, &EntryBoltControls, &InterBoltControls}) {
    StoreBoltSource(record, reader, *bolt);
  }
  StoreBoltManual(record, reader, PrimaryBolt, PrimaryBoltControls);
  StoreBoltManual(record, reader, SecEntryBolt, manualEntry);
  StoreBoltManual(record, reader, SecInterBolt, manualInter);
  // Both cable diameters are the entries tab's; the intersections tab's own serves the live results alone.
  StoreCable(record, reader, EntryCableControls, cmbCableDiamSecEntry);
  StoreCable(record, reader, InterCableControls, cmbCableDiamSecEntry);
  StoreStanding(record, reader, EntryStandingControls);
  StoreStanding(record, reader, InterStandingControls);
  for (const SystemFields* fields : {&EntrySystemFields, &InterSystemFields}) {
    for (std::size_t i = 0; i < SystemCount; ++i) record.*fields->use[i] = (this->*fields->boxes)[i].Value();
  }
  StoreOutputs(record, reader, EntrySystemFields, EntryOutputs);
  StoreOutputs(record, reader, InterSystemFields, InterOutputs);
  return reader.Refused();
}

// A commit makes the intersections' manual bolts those of the entries tab.
void ParametersDialog::ReadEdits(ProjectRecord& design) const {
  StoreFields(design, EntryBoltControls, EntryBoltControls);
}

bool ParametersDialog::TakeFields(ProjectRecord& record, const BoltControls& manualEntry,
                                  const BoltControls& manualInter) {
  ProjectRecord taken = record;
  if (const Control* refused = StoreFields(taken, manualEntry, manualInter)) {
    TellRefused(*refused);
    return false;
  }
  record = std::move(taken);
  return true;
}

bool ParametersDialog::MayCommit() {
  ProjectRecord design = program_.WorkParms;
  return TakeFields(design, EntryBoltControls, EntryBoltControls);
}

bool ParametersDialog::SaveWorkParms() {
  if (!TakeFields(program_.WorkParms, EntryBoltControls, EntryBoltControls)) return false;
  program_.FileSaved = false;
  program_.FileEmpty = false;
  WasCommitted = true;
  return true;
}

// A preview judges all secondary bolts with the primary tab's manual selection.
bool ParametersDialog::CopyToWorkParmsCopy() {
  return TakeFields(program_.WorkParmsCopy, PrimaryBoltControls, PrimaryBoltControls);
}

}  // namespace orby
