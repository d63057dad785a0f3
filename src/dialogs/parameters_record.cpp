// Transfers a design to the fields of the parameters dialog and back.
#include <utility>
#include <vector>

#include "base/arithmetic.h"
#include "base/attempt.h"
#include "base/number_text.h"
#include "core/dialog_helpers.h"
#include "dialogs/parameters_dialog.h"
#include "dialogs/parameters_fields.h"
#include "files/project_lines.h"
#include "files/shown_design.h"

namespace orby {
namespace {

// Reads numbers into the typed design and collects those that do not fit.
class NumberReader {
 public:
  void Read(Single& number, const TextBox& box) {
    Take(number, box, [&box] { return ToSingle(box.Value()); });
  }
  void Read(Single& number, const Combo& combo) {
    Take(number, combo, [&combo] { return ToSingle(combo.Value()); });
  }
  void Read(Single& number, const Control& field, std::string_view text) {
    Take(number, field, [text] { return ToSingle(TextValue(text)); });
  }
  // Records store the rating as a 16-bit whole number.
  void ReadRating(Single& number, const TextBox& box) {
    Take(number, box, [&box] { return ToInteger(box.Value()); });
  }
  std::vector<Misfit> Misfits() && { return std::move(misfits_); }

 private:
  template <class Reading>
  void Take(Single& number, const Control& field, const Reading& reading) {
    if (Succeeds([&] { number = reading(); })) return;
    number = Unfit;
    misfits_.push_back({&number, &field});
  }

  std::vector<Misfit> misfits_;
};

void LoadBolt(Program& program, const BoltSelection& set, BoltControls& bolt) {
  SetArrayIndex(program, bolt.Options, NumberOf(set.Options));
  const int row = set.TableRow + 1;
  bolt.Table.SetRow(row >= 1 && row < bolt.Table.Rows() ? row : 1);
  SetArrayIndex(program, bolt.DiameterMode, NumberOf(set.DiameterMode));
  bolt.DiameterStd.SetText(NumberText(set.DiameterStd));
  bolt.DiameterManual.SetText(NumberText(set.DiameterManual));
  SetArrayIndex(program, bolt.GradeMode, NumberOf(set.GradeMode));
  bolt.GradeStd.SetText(NumberText(set.GradeStd));
  bolt.GradeManual.SetText(NumberText(set.GradeManual));
}

void LoadCable(Program& program, const CableSelection& set, CableControls& cable) {
  SetArrayIndex(program, cable.CapMode, NumberOf(set.CapMode));
  SetArrayIndex(program, cable.Capacity, NumberOf(set.Capacity));
  cable.Diam.SetText(NumberText(set.Diam));
  cable.CapacityStd.SetText(NumberText(set.CapacityStd));
  cable.CapacityManual.SetText(NumberText(set.CapacityManual));
}

// Sets the stored capacity last, because choosing the name replaces it by the catalog's capacity.
void LoadStanding(Program& program, const StandingSelection& set, StandingControls& standing) {
  SetArrayIndex(program, standing.TypeMode, NumberOf(set.TypeMode));
  if (set.TypeMode == ValueSource::Standard) {
    standing.TypeStd.SetText(set.TypeName);
  } else {
    standing.TypeManual.SetText(set.TypeName);
  }
  standing.Capacity.SetText(NumberText(set.Capacity));
}

void StoreBolt(BoltSelection& set, NumberReader& reader, const BoltControls& bolt) {
  const Grid& table = bolt.Table;
  set.Options = Chosen<BoltSource>(bolt.Options);
  set.TableRow = static_cast<Integer>(table.Row() - 1);
  set.Desc = table.Cell(table.Row(), BoltColumn::Description);
  reader.Read(set.TableDiameter, table, table.Cell(table.Row(), BoltColumn::Diameter));
  reader.Read(set.TableGrade, table, table.Cell(table.Row(), BoltColumn::Grade));
  set.DiameterMode = Chosen<ValueSource>(bolt.DiameterMode);
  reader.Read(set.DiameterStd, bolt.DiameterStd);
  reader.Read(set.DiameterManual, bolt.DiameterManual);
  set.GradeMode = Chosen<ValueSource>(bolt.GradeMode);
  reader.Read(set.GradeStd, bolt.GradeStd);
  reader.Read(set.GradeManual, bolt.GradeManual);
}

void StoreCable(CableSelection& set, NumberReader& reader, const CableControls& cable) {
  set.CapMode = Chosen<CapacityMode>(cable.CapMode);
  set.Capacity = Chosen<ValueSource>(cable.Capacity);
  reader.Read(set.Diam, cable.Diam);
  reader.Read(set.CapacityStd, cable.CapacityStd);
  reader.Read(set.CapacityManual, cable.CapacityManual);
}

void StoreStanding(StandingSelection& set, NumberReader& reader, const StandingControls& standing) {
  set.TypeMode = Chosen<ValueSource>(standing.TypeMode);
  set.TypeName = set.TypeMode == ValueSource::Standard ? standing.TypeStd.Text() : standing.TypeManual.Text();
  reader.Read(set.Capacity, standing.Capacity);
}

void LoadUse(const SecondarySupport& support, std::array<CheckBox, SystemCount>& boxes) {
  const auto systems = support.Systems();
  for (std::size_t i = 0; i < SystemCount; ++i) boxes[i].SetValue(systems[i]->Use);
}

void StoreUse(SecondarySupport& support, const std::array<CheckBox, SystemCount>& boxes) {
  const auto systems = support.Systems();
  for (std::size_t i = 0; i < SystemCount; ++i) systems[i]->Use = boxes[i].Value();
}

// Reads the outputs as shown: rounded, and "--" as 0.
void StoreOutputs(SecondarySupport& support, NumberReader& reader, const OutputControls& outputs) {
  const auto systems = support.Systems();
  reader.Read(support.RockLoad, outputs.RockLoad[0]);
  for (std::size_t i = 0; i < SystemCount; ++i) {
    reader.Read(systems[i]->SupportCap, outputs.SupportCap[i]);
    reader.Read(systems[i]->StabFactor, outputs.StabFactor[i]);
  }
}

void StoreSystems(SecondarySupport& support, NumberReader& reader, const BoltControls& bolt, const CableControls& cable,
                  const StandingControls& standing, const std::array<CheckBox, SystemCount>& boxes) {
  StoreBolt(support.Bolt, reader, bolt);
  StoreCable(support.Cable, reader, cable);
  StoreStanding(support.Standing, reader, standing);
  StoreUse(support, boxes);
}

}  // namespace

void ParametersDialog::ReadPart(DesignPart part) {
  NumberReader reader;
  for (const auto& [control, field] : NumberFields[static_cast<std::size_t>(part)]) {
    reader.Read(field.In(typed_), this->*control);
  }
  switch (part) {
    case DesignPart::Place:
      typed_.Units = Units();
      typed_.Basis = program_.project.WorkParms.Basis;
      reader.Read(typed_.Place.CMRR, txtCMRR);
      break;
    case DesignPart::Primary: break;
    case DesignPart::PrimaryBolt: StoreBolt(typed_.Primary, reader, PrimaryBoltControls); break;
    case DesignPart::Entries:
      StoreSystems(typed_.Entries, reader, EntryBoltControls, EntryCableControls, EntryStandingControls, chkSecEntries);
      break;
    case DesignPart::Intersections:
      StoreSystems(typed_.Intersections, reader, InterBoltControls, InterCableControls, InterStandingControls,
                   chkSecInter);
      break;
  }
}

void ParametersDialog::InitParameters() {
  const Design& design = program_.project.WorkParms;
  txtCMRR.SetText(NumberText(design.Place.CMRR));
  program_.windows.estimator.EstimatorRegion = design.Place.CMRRRegionIndex;
  program_.windows.estimator.EstimatorRockType = design.Place.CMRRRockTypeIndex;
  for (const auto& fields : NumberFields) {
    for (const auto& [control, field] : fields) (this->*control).SetText(NumberText(field.In(design)));
  }
  for (const auto& [control, field] : FlagFields) (this->*control).SetValue(field.Get(design));
  ApplyManualRating();
  LoadBolt(program_, design.Primary, PrimaryBoltControls);
  LoadBolt(program_, design.Entries.Bolt, EntryBoltControls);
  LoadBolt(program_, design.Intersections.Bolt, InterBoltControls);
  LoadCable(program_, design.Entries.Cable, EntryCableControls);
  LoadCable(program_, design.Intersections.Cable, InterCableControls);
  LoadStanding(program_, design.Entries.Standing, EntryStandingControls);
  LoadStanding(program_, design.Intersections.Standing, InterStandingControls);
  LoadUse(design.Entries, chkSecEntries);
  LoadUse(design.Intersections, chkSecInter);
  AppendUnits(*this, Units());
}

std::vector<Misfit> ParametersDialog::ReadFields() {
  NumberReader reader;
  typed_ = program_.project.WorkParms;
  reader.ReadRating(typed_.Place.CMRR, txtCMRR);
  typed_.Place.CMRRRegionIndex = program_.windows.estimator.EstimatorRegion;
  typed_.Place.CMRRRockTypeIndex = program_.windows.estimator.EstimatorRockType;
  for (const auto& fields : NumberFields) {
    for (const auto& [control, field] : fields) reader.Read(field.In(typed_), this->*control);
  }
  for (const auto& [control, field] : FlagFields) field.Set(typed_, (this->*control).Value());
  StoreBolt(typed_.Primary, reader, PrimaryBoltControls);
  StoreBolt(typed_.Entries.Bolt, reader, EntryBoltControls);
  StoreBolt(typed_.Intersections.Bolt, reader, InterBoltControls);
  StoreCable(typed_.Entries.Cable, reader, EntryCableControls);
  StoreCable(typed_.Intersections.Cable, reader, InterCableControls);
  StoreStanding(typed_.Entries.Standing, reader, EntryStandingControls);
  StoreStanding(typed_.Intersections.Standing, reader, InterStandingControls);
  StoreUse(typed_.Entries, chkSecEntries);
  StoreUse(typed_.Intersections, chkSecInter);
  StoreOutputs(typed_.Entries, reader, EntryOutputs);
  StoreOutputs(typed_.Intersections, reader, InterOutputs);
  return std::move(reader).Misfits();
}

void ParametersDialog::ReadEdits(Design& design) {
  ReadFields();
  typed_ = AsCommitted(std::move(typed_));
  for (const ProjectLine& line : ProjectLines) {
    const auto* number = std::get_if<SingleField>(&line.Field);
    if (number != nullptr && IsUnfit(number->In(typed_))) number->In(typed_) = number->In(design);
  }
  design.Support() = typed_.Support();
}

bool ParametersDialog::TakeFields(RoofSupport& support, Design (*step)(Design)) {
  const std::vector<Misfit> misfits = ReadFields();
  typed_ = step(std::move(typed_));
  for (const Misfit& misfit : misfits) {
    if (!IsUnfit(*misfit.number)) continue;
    ReportRefused(*misfit.field);
    return false;
  }
  support = std::move(typed_.Support());
  return true;
}

bool ParametersDialog::MayCommit() {
  RoofSupport committed;
  return TakeFields(committed, AsCommitted);
}

bool ParametersDialog::SaveWorkParms() {
  if (!TakeFields(program_.project.WorkParms, AsCommitted)) return false;
  program_.project.FileSaved = false;
  program_.project.FileEmpty = false;
  WasCommitted = true;
  return true;
}

bool ParametersDialog::CopyToWorkParmsCopy() {
  ReadFields();
  Design& shown = program_.windows.ResultsShown;
  shown = program_.project.WorkParms;
  shown.Support() = typed_.Support();
  return TakeFields(program_.windows.WorkParmsCopy, AsPreviewed);
}

}  // namespace orby
