#include "files/read_back.h"

#include "base/attempt.h"
#include "files/project_lines.h"
#include "files/project_reader.h"
#include "files/project_writer.h"

namespace orby {
namespace {

// Changes the value of a field, so that a field that is never read differs.
void ChangeValue(Design& design, const AnyField& field) {
  if (const auto* text = std::get_if<TextField>(&field)) {
    text->In(design) += '?';
  } else if (const auto* single = std::get_if<SingleField>(&field)) {
    Single& value = single->In(design);
    value = value == 0 ? 1.0F : 0.0F;
  } else {
    const auto& number = std::get<IntegerField>(field);
    number.Set(design, number.Get(design) == 0 ? 1 : 0);
  }
}

// Returns true if the line is read into its own field and no other line is read into that field.
bool HasOwnField(const ProjectLine& line) {
  for (const ProjectLine& other : ProjectLines) {
    if (other.Field != other.ReadInto && (line.Field == other.Field || line.Field == other.ReadInto)) return false;
  }
  return true;
}

}  // namespace

std::vector<std::string_view> FieldsThatReadDifferently(const Project& project, std::string_view bytes) {
  Project read;
  read.FileVersion = Version105;
  read.WorkParms = project.WorkParms;
  for (const ProjectLine& line : ProjectLines) ChangeValue(read.WorkParms, line.Field);
  // After an error the remaining fields keep their changed values.
  Succeeds([&] { ReadProject(read, ItemReader(bytes)); });

  std::vector<std::string_view> names;
  for (const ProjectLine& line : ProjectLines) {
    if (!HasOwnField(line)) continue;
    if (DataLineText(project.WorkParms, line) != DataLineText(read.WorkParms, line)) names.push_back(line.Name);
  }
  return names;
}

}  // namespace orby
