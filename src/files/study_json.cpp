#include "files/study_json.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include "files/project_lines.h"

namespace orby {
namespace {

using Json = nlohmann::ordered_json;

constexpr int StudyFormat = 1;
// More measured values, or larger matrices, are not sensible.
constexpr std::size_t MostValues = 100'000;

// By unit system.
constexpr const char* UnitNames[] = {"english", "metric"};

const VariableInput* InputNamed(std::string_view name) {
  const auto inputs = VariableInputs();
  const auto found = std::ranges::find(inputs, name, &VariableInput::Name);
  return found == inputs.end() ? nullptr : &*found;
}

struct Damage {
  std::string Fault;
};

[[noreturn]] void Refuse(const std::string& fault) { throw Damage{fault}; }

// ---- reading -------------------------------------------------------------------------------------------------------

const Json* MemberOf(const Json& object, const char* key) {
  const auto found = object.find(key);
  return found == object.end() ? nullptr : &*found;
}

double NumberOfMember(const Json& object, const char* key, const std::string& where) {
  const Json* number = MemberOf(object, key);
  if (number == nullptr || !number->is_number()) Refuse(where + ": \"" + key + "\" must be a number.");
  return number->get<double>();
}

std::string TextOfMember(const Json& object, const char* key, const std::string& where) {
  const Json* text = MemberOf(object, key);
  if (text == nullptr || !text->is_string()) Refuse(where + ": \"" + key + "\" must be a text.");
  return text->get<std::string>();
}

std::vector<double> NumbersOf(const Json& list, const std::string& where) {
  if (!list.is_array() || list.size() > MostValues) Refuse(where + " must be a list of numbers.");
  std::vector<double> numbers;
  for (const Json& number : list) {
    if (!number.is_number()) Refuse(where + " must be a list of numbers.");
    numbers.push_back(number.get<double>());
  }
  return numbers;
}

void ReadBound(const Json& object, const char* key, const std::string& where, std::optional<double>& bound) {
  if (MemberOf(object, key) != nullptr) bound = NumberOfMember(object, key, where);
}

DistributionLaw ReadLaw(const Json& object, const std::string& where) {
  const std::string name = TextOfMember(object, "distribution", where);
  const auto kind = std::ranges::find(LawKinds(), name, LawName);
  if (kind == LawKinds().end()) Refuse(where + ": there is no distribution \"" + name + "\".");
  DistributionLaw law = *kind;
  for (const LawParameter& parameter : ParametersOf(law)) {
    *parameter.Number = NumberOfMember(object, parameter.Name, where);
  }
  if (auto* measured = std::get_if<EmpiricalLaw>(&law)) {
    const Json* values = MemberOf(object, "values");
    measured->Values = NumbersOf(values == nullptr ? Json() : *values, where + ": \"values\"");
  }
  return law;
}

StudyInput ReadInput(const Json& object) {
  if (!object.is_object()) Refuse("Each of the \"inputs\" must be an object.");
  const std::string name = TextOfMember(object, "field", "An input");
  const VariableInput* input = InputNamed(name);
  if (input == nullptr) Refuse("A design has no number \"" + name + "\" that may vary.");
  Distribution distribution{ReadLaw(object, name)};
  ReadBound(object, "lowest", name, distribution.Lowest);
  ReadBound(object, "highest", name, distribution.Highest);
  return {name, input->Field, std::move(distribution)};
}

SquareMatrix ReadMatrix(const Json& rows, std::size_t size) {
  const std::string wrong = "\"rankCorrelations\" must have a row and a column for each input.";
  if (!rows.is_array() || rows.size() != size) Refuse(wrong);
  SquareMatrix matrix(size);
  for (std::size_t row = 0; row < size; ++row) {
    const std::vector<double> numbers = NumbersOf(rows[row], "Each row of \"rankCorrelations\"");
    if (numbers.size() != size) Refuse(wrong);
    for (std::size_t column = 0; column < size; ++column) matrix(row, column) = numbers[column];
  }
  return matrix;
}

void ReadCount(const Json& object, const char* key, std::uint64_t& count) {
  const Json* number = MemberOf(object, key);
  if (number == nullptr) return;
  if (!number->is_number_unsigned()) Refuse(std::string("\"") + key + "\" must be a whole number.");
  count = number->get<std::uint64_t>();
}

void ReadInputs(const Json& document, Study& study) {
  const Json* inputs = MemberOf(document, "inputs");
  if (inputs == nullptr || !inputs->is_array()) Refuse("The study has no \"inputs\".");
  // Each number of the design may be there once.
  if (inputs->size() > VariableInputs().size()) Refuse("There are more inputs than a design has.");
  for (const Json& input : *inputs) study.Inputs.push_back(ReadInput(input));
  if (const Json* rows = MemberOf(document, "rankCorrelations")) study.Spearman = ReadMatrix(*rows, inputs->size());
}

void ReadFigures(const Json& document, Study& study) {
  const Json* figures = MemberOf(document, "figures");
  if (figures == nullptr) return;
  const auto isText = [](const Json& key) { return key.is_string(); };
  if (!figures->is_array() || figures->size() > MostValues || !std::ranges::all_of(*figures, isText)) {
    Refuse("\"figures\" must be a list of texts.");
  }
  for (const Json& key : *figures) study.Figures.push_back(key.get<std::string>());
}

Study ReadSettings(const Json& document) {
  Study study;
  ReadInputs(document, study);
  if (MemberOf(document, "sampling") != nullptr) {
    const std::string name = TextOfMember(document, "sampling", "The study");
    const auto scheme = std::ranges::find(Schemes, name, SchemeName);
    if (scheme == Schemes.end()) Refuse("There is no sampling \"" + name + "\".");
    study.Sampling = *scheme;
  }
  ReadCount(document, "seed", study.Seed);
  ReadCount(document, "samples", study.Samples);
  ReadCount(document, "batchSize", study.BatchSize);
  if (MemberOf(document, "confidence") != nullptr) {
    study.Confidence = NumberOfMember(document, "confidence", "The study");
  }
  ReadBound(document, "stopWidth", "The study", study.StopWidth);
  ReadFigures(document, study);
  return study;
}

bool HasFormat(const Json& document) {
  const Json* format = MemberOf(document, "format");
  return format != nullptr && format->is_number_unsigned();
}

// ---- writing -------------------------------------------------------------------------------------------------------

Json ParsedOrEmpty(const std::string& source) {
  Json document = Json::parse(source, nullptr, false);
  return document.is_object() ? document : Json::object();
}

// Returns the object of an input in the text that the study was read from, without what describes its distribution.
Json KeptInput(const Json& document, const std::string& name) {
  const Json* inputs = MemberOf(document, "inputs");
  if (inputs == nullptr || !inputs->is_array()) return Json::object();
  for (const Json& input : *inputs) {
    if (!input.is_object() || input.value("field", Json()) != Json(name)) continue;
    Json kept = input;
    for (const char* key : {"distribution", "values", "lowest", "highest"}) kept.erase(key);
    for (DistributionLaw law : LawKinds()) {
      for (const LawParameter& parameter : ParametersOf(law)) kept.erase(parameter.Name);
    }
    return kept;
  }
  return Json::object();
}

Json InputObject(const Json& document, const StudyInput& input) {
  Json object = KeptInput(document, input.Name);
  object["field"] = input.Name;
  object["distribution"] = std::string(LawName(input.Law.Law));
  DistributionLaw law = input.Law.Law;
  for (const LawParameter& parameter : ParametersOf(law)) object[parameter.Name] = *parameter.Number;
  if (const auto* measured = std::get_if<EmpiricalLaw>(&law)) object["values"] = measured->Values;
  if (input.Law.Lowest) object["lowest"] = *input.Law.Lowest;
  if (input.Law.Highest) object["highest"] = *input.Law.Highest;
  return object;
}

Json MatrixRows(const SquareMatrix& matrix) {
  Json rows = Json::array();
  for (std::size_t row = 0; row < matrix.Size(); ++row) {
    Json numbers = Json::array();
    for (std::size_t column = 0; column < matrix.Size(); ++column) numbers.push_back(matrix(row, column));
    rows.push_back(std::move(numbers));
  }
  return rows;
}

// A member that the study does not need is left out.
void SetOrErase(Json& document, const char* key, bool isNeeded, const std::function<Json()>& value) {
  if (isNeeded) {
    document[key] = value();
  } else {
    document.erase(key);
  }
}

std::optional<UnitSystem> UnitsFrom(const Json& document) {
  const Json* units = MemberOf(document, "units");
  if (units == nullptr) return std::nullopt;
  if (*units == Json(UnitNames[0])) return English;
  if (*units == Json(UnitNames[1])) return Metric;
  Refuse("Its \"units\" are not \"english\" or \"metric\".");
}

// No figure depends on the inputs of the cost.
bool IsOfCost(const SingleField& field) {
  Design changed;
  field.In(changed) = 1;
  return changed.Support() == Design().Support();
}

std::vector<VariableInput> MakeVariableInputs() {
  std::vector<VariableInput> inputs;
  for (const ProjectLine& line : ProjectLines) {
    const auto* field = std::get_if<SingleField>(&line.Field);
    if (field != nullptr && !IsOfCost(*field)) inputs.push_back({line.Name, *field});
  }
  return inputs;
}

}  // namespace

std::span<const VariableInput> VariableInputs() {
  static const std::vector<VariableInput> inputs = MakeVariableInputs();
  return inputs;
}

StudyReading ReadStudy(std::string_view bytes) {
  const Json document = Json::parse(bytes, nullptr, false);
  if (!document.is_object() || !HasFormat(document)) return {{}, "It is not the study of a project.", true};
  if (document["format"].get<std::uint64_t>() > StudyFormat) {
    return {{}, "It was written by a later version of the program."};
  }
  try {
    return {StoredStudy{ReadSettings(document), std::string(bytes), UnitsFrom(document)}, ""};
  } catch (const Damage& damage) {
    return {{}, damage.Fault, true};
  }
}

std::string StudyBytes(const StoredStudy& stored) {
  const Study& study = stored.Settings;
  Json document = ParsedOrEmpty(stored.Source);
  Json inputs = Json::array();
  for (const StudyInput& input : study.Inputs) inputs.push_back(InputObject(document, input));
  document["format"] = StudyFormat;
  if (stored.Units) document["units"] = UnitNames[PlaceOf(*stored.Units)];
  document["inputs"] = std::move(inputs);
  SetOrErase(document, "rankCorrelations", study.Spearman.Size() > 0, [&] { return MatrixRows(study.Spearman); });
  document["sampling"] = std::string(SchemeName(study.Sampling));
  document["seed"] = study.Seed;
  document["samples"] = study.Samples;
  document["batchSize"] = study.BatchSize;
  document["confidence"] = study.Confidence;
  SetOrErase(document, "stopWidth", study.StopWidth.has_value(), [&] { return Json(*study.StopWidth); });
  SetOrErase(document, "figures", !study.Figures.empty(), [&] { return Json(study.Figures); });
  return document.dump(2) + "\n";
}

}  // namespace orby
