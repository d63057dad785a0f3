#include "dialogs/study_inputs_page.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/number_text.h"
#include "base/text.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/measured_values.h"
#include "dialogs/study_editing.h"
#include "files/conversion.h"
#include "reports/design_numbers.h"

namespace orby {
namespace {

constexpr int InputHeaderRows = 1;
constexpr std::size_t MostParameters = 4;
constexpr std::uint64_t MostMeasuredBytes = 4'000'000;

bool IsMeasured(const DistributionLaw& law) { return std::holds_alternative<EmpiricalLaw>(law); }

// The parameter that begins with the number of the design.
bool IsMiddle(const LawParameter& parameter) {
  const std::string_view name = parameter.Name;
  return name == "mean" || name == "likeliest";
}

std::array<ParameterField*, MostParameters> ParameterFields(HowSureControls& controls) {
  return {&controls.First, &controls.Second, &controls.Third, &controls.Fourth};
}

// Returns "mean 600, deviation 80", or what the measured values are.
std::string ParameterText(DistributionLaw law) {
  if (const auto* measured = std::get_if<EmpiricalLaw>(&law)) {
    return measured->Values.empty() ? "no values" : SummaryOf(measured->Values);
  }
  std::string text;
  for (const LawParameter& parameter : ParametersOf(law)) {
    if (!text.empty()) text += ", ";
    text.append(parameter.Name).append(" ").append(NumberText(*parameter.Number));
  }
  return text;
}

std::string BoundOrBlank(const std::optional<double>& bound) { return bound ? NumberText(*bound) : std::string(); }

std::string CutText(const Distribution& law) {
  std::string text;
  if (law.Lowest) text = "below " + NumberText(*law.Lowest);
  if (law.Highest) text += (text.empty() ? "above " : ", above ") + NumberText(*law.Highest);
  return text;
}

std::string FieldFault(std::string_view caption, std::string_view text) {
  if (Trim(text).empty()) return std::string(caption) + ": type a number.";
  return std::string(caption) + ": \"" + std::string(Trim(text)) + "\" is not a number.";
}

}  // namespace

StudyInputsPage::StudyInputsPage(Program& program, HowSureControls& controls, const Design& design, Study& study)
    : program_(program), controls_(controls), design_(design), study_(study) {
  controls_.grdInputs.Change = [this] { TakeRow(); };
  controls_.grdInputs.Click = controls_.grdInputs.Change;
  controls_.cmbInput.Change = [this] { BeginWithDesign(); };
  controls_.cmbLaw.Change = [this] { TakeLaw(); };
  controls_.txtValues.Change = [this] { ShowRead(); };
  controls_.cmdAdd.Click = [this] { Add(); };
  controls_.cmdChange.Click = [this] { Change(); };
  controls_.cmdRemove.Click = [this] { Remove(); };
  controls_.cmdSetRank.Click = [this] { SetRank(); };
  controls_.cmdReadFile.Click = [this] { ReadFile(); };
  controls_.grdInputs.SetStretchedColumn(3);
}

std::string StudyInputsPage::NameOf(const VariableInput& input) const {
  return WithUnitOf(input.Name, QuantityOf(input.Field), design_.Units);
}

void StudyInputsPage::Show() {
  isFilling_ = true;
  std::vector<ComboItem> inputs;
  for (const VariableInput& input : VariableInputs()) inputs.push_back({NameOf(input)});
  controls_.cmbInput.Fill(std::move(inputs));
  std::vector<ComboItem> laws;
  laws.reserve(LawKinds().size());
  for (const DistributionLaw& law : LawKinds()) laws.push_back({std::string(LawName(law))});
  controls_.cmbLaw.Fill(std::move(laws));
  controls_.cmbInput.SetListIndex(0);
  controls_.cmbLaw.SetListIndex(0);
  isFilling_ = false;
  TakeLaw();
  ShowInputs(0);
}

std::vector<std::string> StudyInputsPage::RowOf(const StudyInput& input) const {
  return {NameOf({input.Name, input.Field}), NumberText(input.Field.In(design_)), std::string(LawName(input.Law.Law)),
          ParameterText(input.Law.Law), CutText(input.Law)};
}

void StudyInputsPage::ShowInputs(std::size_t selected) {
  std::vector<std::vector<std::string>> rows{{"Input", "Design", "Distribution", "Parameters", "Cut off"}};
  std::vector<ComboItem> names;
  for (const StudyInput& input : study_.Inputs) {
    rows.push_back(RowOf(input));
    names.push_back({input.Name});
  }
  controls_.grdInputs.SetRows(std::move(rows), InputHeaderRows);
  for (Combo* list : {&controls_.cmbOne, &controls_.cmbOther}) {
    list->Fill(names);
    list->SetEnabled(names.size() > 1);
  }
  if (names.size() > 1) {
    controls_.cmbOne.SetListIndex(0);
    controls_.cmbOther.SetListIndex(1);
  }
  controls_.txtRank.SetEnabled(names.size() > 1);
  controls_.cmdSetRank.SetEnabled(names.size() > 1);
  controls_.cmdChange.SetEnabled(!names.empty());
  controls_.cmdRemove.SetEnabled(!names.empty());
  if (!names.empty()) {
    controls_.grdInputs.SetRow(static_cast<int>(std::min(selected, names.size() - 1)) + InputHeaderRows);
    TakeRow();
  }
  ShowRanks();
}

void StudyInputsPage::ShowRanks() {
  std::vector<std::vector<std::string>> rows{{"Input", "With", "Correlation"}};
  for (std::size_t one = 0; one < study_.Inputs.size(); ++one) {
    for (std::size_t other = one + 1; other < study_.Inputs.size(); ++other) {
      const double rank = RankOf(study_, one, other);
      if (rank != 0) rows.push_back({study_.Inputs[one].Name, study_.Inputs[other].Name, NumberText(rank)});
    }
  }
  controls_.grdRanks.SetRows(std::move(rows), InputHeaderRows);
}

std::optional<std::size_t> StudyInputsPage::SelectedRow() const {
  const int row = controls_.grdInputs.Row() - InputHeaderRows;
  if (row < 0 || static_cast<std::size_t>(row) >= study_.Inputs.size()) return std::nullopt;
  return static_cast<std::size_t>(row);
}

void StudyInputsPage::TakeRow() {
  const auto row = SelectedRow();
  if (!row) return;
  const StudyInput& input = study_.Inputs[*row];
  const auto inputs = VariableInputs();
  const auto found = std::ranges::find(inputs, input.Field, &VariableInput::Field);
  isFilling_ = true;
  controls_.cmbInput.SetListIndex(static_cast<int>(found - inputs.begin()));
  controls_.cmbLaw.SetListIndex(static_cast<int>(input.Law.Law.index()));
  TakeLaw();
  ShowFields(input.Law);
  isFilling_ = false;
}

DistributionLaw StudyInputsPage::ChosenLaw() const {
  return LawKinds()[static_cast<std::size_t>(controls_.cmbLaw.ListIndex())];
}

const VariableInput& StudyInputsPage::ChosenInput() const {
  return VariableInputs()[static_cast<std::size_t>(controls_.cmbInput.ListIndex())];
}

void StudyInputsPage::TakeLaw() {
  if (!controls_.cmbLaw.HasSelection()) return;
  DistributionLaw law = ChosenLaw();
  const std::vector<LawParameter> parameters = ParametersOf(law);
  const auto fields = ParameterFields(controls_);
  for (std::size_t i = 0; i < MostParameters; ++i) {
    const bool isUsed = i < parameters.size();
    fields.at(i)->Caption.SetCaption(isUsed ? Capitalised(parameters[i].Name) : std::string());
    fields.at(i)->Caption.SetVisible(isUsed);
    fields.at(i)->Field.SetVisible(isUsed);
    if (!isFilling_) fields.at(i)->Field.SetText("");
  }
  controls_.txtValues.SetEnabled(IsMeasured(law));
  controls_.cmdReadFile.SetEnabled(IsMeasured(law));
  BeginWithDesign();
}

void StudyInputsPage::BeginWithDesign() {
  if (isFilling_ || !controls_.cmbInput.HasSelection() || !controls_.cmbLaw.HasSelection()) return;
  DistributionLaw law = ChosenLaw();
  const std::vector<LawParameter> parameters = ParametersOf(law);
  const auto middle = std::ranges::find_if(parameters, IsMiddle);
  if (middle == parameters.end()) return;
  ParameterFields(controls_)
      .at(static_cast<std::size_t>(middle - parameters.begin()))
      ->Field.SetText(NumberText(ChosenInput().Field.In(design_)));
}

void StudyInputsPage::ShowFields(const Distribution& law) {
  DistributionLaw copy = law.Law;
  const std::vector<LawParameter> parameters = ParametersOf(copy);
  const auto fields = ParameterFields(controls_);
  for (std::size_t i = 0; i < MostParameters; ++i) {
    fields.at(i)->Field.SetText(i < parameters.size() ? NumberText(*parameters[i].Number) : std::string());
  }
  controls_.txtLowest.SetText(BoundOrBlank(law.Lowest));
  controls_.txtHighest.SetText(BoundOrBlank(law.Highest));
  const auto* measured = std::get_if<EmpiricalLaw>(&law.Law);
  controls_.txtValues.SetText(measured == nullptr ? std::string() : MeasuredText(measured->Values));
}

void StudyInputsPage::ShowRead() {
  const MeasuredValues read = ReadMeasured(controls_.txtValues.Text());
  const bool isBlank = Trim(controls_.txtValues.Text()).empty();
  controls_.lblRead.SetCaption(isBlank ? "" : read.Fault.empty() ? SummaryOf(read.Values) : read.Fault);
}

std::optional<DistributionLaw> StudyInputsPage::TypedLaw(Fault& fault) const {
  DistributionLaw law = ChosenLaw();
  if (auto* measured = std::get_if<EmpiricalLaw>(&law)) {
    MeasuredValues read = ReadMeasured(controls_.txtValues.Text());
    measured->Values = std::move(read.Values);
    fault = {&controls_.txtValues, std::move(read.Fault)};
    return fault.Text.empty() ? std::optional(law) : std::nullopt;
  }
  const std::vector<LawParameter> parameters = ParametersOf(law);
  const auto fields = ParameterFields(controls_);
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const std::string& text = fields.at(i)->Field.Text();
    const auto number = WholeTextNumber(text);
    if (!number) {
      fault = {&fields.at(i)->Field, FieldFault(fields.at(i)->Caption.Caption(), text)};
      return std::nullopt;
    }
    *parameters[i].Number = *number;
  }
  return law;
}

std::optional<StudyInput> StudyInputsPage::Typed() {
  Fault fault{&controls_.First.Field, {}};
  const auto report = [&]() -> std::optional<StudyInput> {
    Report(fault.Text);
    controls_.RequestFocus(*fault.Field);
    return std::nullopt;
  };
  if (!controls_.cmbInput.HasSelection() || !controls_.cmbLaw.HasSelection()) {
    Report("Choose an input and a distribution from their lists.");
    return std::nullopt;
  }
  const auto law = TypedLaw(fault);
  if (!law) return report();
  const VariableInput& chosen = ChosenInput();
  StudyInput input{std::string(chosen.Name), chosen.Field, {*law}};
  for (const auto& [box, bound] :
       {std::pair(&controls_.txtLowest, &input.Law.Lowest), std::pair(&controls_.txtHighest, &input.Law.Highest)}) {
    if (Trim(box->Text()).empty()) continue;
    *bound = WholeTextNumber(box->Text());
    if (*bound) continue;
    fault = {box, FieldFault(box->LabelCaption(), box->Text())};
    return report();
  }
  fault.Text = FaultOf(input.Law, input.Name);
  return fault.Text.empty() ? std::optional(std::move(input)) : report();
}

void StudyInputsPage::Add() {
  auto input = Typed();
  if (!input) return;
  if (std::ranges::find(study_.Inputs, input->Field, &StudyInput::Field) != study_.Inputs.end()) {
    return Report(input->Name + ": this input is there already. Press Change to change it.");
  }
  AddInput(study_, std::move(*input));
  ShowInputs(study_.Inputs.size() - 1);
  Fire(Changed);
}

void StudyInputsPage::Change() {
  const auto row = SelectedRow();
  if (!row) return;
  auto input = Typed();
  if (!input) return;
  const auto same = std::ranges::find(study_.Inputs, input->Field, &StudyInput::Field);
  if (same != study_.Inputs.end() && same != study_.Inputs.begin() + static_cast<std::ptrdiff_t>(*row)) {
    return Report(input->Name + ": this input is there already.");
  }
  ReplaceInput(study_, *row, std::move(*input));
  ShowInputs(*row);
  Fire(Changed);
}

void StudyInputsPage::Remove() {
  const auto row = SelectedRow();
  if (!row) return;
  RemoveInput(study_, *row);
  ShowInputs(*row);
  Fire(Changed);
}

void StudyInputsPage::SetRank() {
  if (!controls_.cmbOne.HasSelection() || !controls_.cmbOther.HasSelection()) return;
  const auto one = static_cast<std::size_t>(controls_.cmbOne.ListIndex());
  const auto other = static_cast<std::size_t>(controls_.cmbOther.ListIndex());
  if (one == other) return Report("Choose two different inputs.");
  const auto rank = WholeTextNumber(controls_.txtRank.Text());
  if (!rank) {
    Report(FieldFault("Rank correlation", controls_.txtRank.Text()));
    return controls_.RequestFocus(controls_.txtRank);
  }
  Study changed = study_;
  SetRankOf(changed, one, other, *rank);
  std::vector<std::string> names;
  for (const StudyInput& input : changed.Inputs) names.push_back(input.Name);
  const std::string fault = changed.Spearman.Size() == 0 ? "" : CorrelationFault(changed.Spearman, names);
  if (!fault.empty()) {
    Report(fault);
    return controls_.RequestFocus(controls_.txtRank);
  }
  study_ = std::move(changed);
  ShowRanks();
  Fire(Changed);
}

void StudyInputsPage::ReadFile() {
  RunTrapped(program_, [this] {
    const std::string path = program_.platform.fileDialogs.AskOpenName(
        {.title = "Read Measured Values",
         .fileName = {},
         .folder = program_.session.settings.DataPath,
         .filters = {{"Tables and Texts (*.csv; *.txt)", "*.csv *.txt"}, {"All Files (*.*)", "*"}},
         .defaultExtension = "csv"});
    FileSystem& files = program_.platform.files;
    if (files.FileLength(path) > MostMeasuredBytes) return Report(path + " is too long for measured values.");
    const MeasuredValues read = ReadMeasured(files.ReadFile(path));
    if (!read.Fault.empty()) return Report(path + ": " + read.Fault);
    controls_.txtValues.SetText(MeasuredText(read.Values));
  });
}

void StudyInputsPage::Report(const std::string& text) {
  ShowMessage(program_, text, BoxIcon::Critical, controls_.Caption());
}

}  // namespace orby
