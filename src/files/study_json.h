// The settings of a study as JSON; docs/study-format.md describes it.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "sampling/study.h"

namespace orby {

// A study with the text that it was read from, whose unknown members stay when it is written again.
struct StoredStudy {
  Study Settings;
  std::string Source;               // empty: none
  std::optional<UnitSystem> Units;  // of its numbers; nothing if the text does not say so
};

struct StudyReading {
  std::optional<StoredStudy> Stored;
  std::string Fault;       // why there is no study, as a sentence
  bool IsDamaged = false;  // it is no study of any version
};

// Reads a study. Its inputs, sampling and figures have a valid form but may be impossible; see FaultOf(study).
StudyReading ReadStudy(std::string_view bytes);

std::string StudyBytes(const StoredStudy& stored);

// An input that a study may vary, by the name of its line in a project file.
struct VariableInput {
  std::string_view Name;
  SingleField Field;
};

// Returns all numbers of a design that its figures may depend on.
std::span<const VariableInput> VariableInputs();

}  // namespace orby
