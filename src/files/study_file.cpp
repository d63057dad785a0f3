#include "files/study_file.h"

#include "base/attempt.h"
#include "base/number_text.h"
#include "base/paths.h"

namespace orby {
namespace {

// Returns the new name of the file, or nothing if it could not be renamed.
std::optional<std::string> PutStudyAside(FileSystem& files, const std::string& path) {
  const std::string first = path + ".kept";
  std::string name = first;
  for (int number = 2; files.Finds(name); ++number) name = first + NumberText(number);
  if (!Succeeds([&] { files.RenameFile(path, name); })) return std::nullopt;
  return name;
}

}  // namespace

std::string StudyPath(const std::string& projectPath) {
  const std::string_view name = NameAfterSeparator(projectPath);
  const std::size_t point = name.rfind('.');
  const std::size_t ending = point == std::string_view::npos || point == 0 ? 0 : name.size() - point;
  return projectPath.substr(0, projectPath.size() - ending) + ".study.json";
}

LoadedStudy LoadStudy(FileSystem& files, const std::string& projectPath, UnitSystem units, DamagedStudy damaged) {
  const std::string path = StudyPath(projectPath);
  if (!files.FindsFile(path)) return {};
  StudyReading reading = ReadStudy(files.ReadFile(path));
  if (reading.Stored && reading.Stored->Units.value_or(units) != units) {
    return {std::nullopt, "The study " + path + " cannot be used. Its numbers have " +
                              std::string(units == Metric ? "English" : "Metric") +
                              " units, and those of the project are " +
                              std::string(units == Metric ? "Metric" : "English") + "."};
  }
  if (reading.Stored) return {std::move(reading.Stored), ""};
  std::string message = "The study " + path + " cannot be used. " + reading.Fault;
  if (reading.IsDamaged && damaged == DamagedStudy::PutAside) {
    const auto kept = PutStudyAside(files, path);
    message += kept ? " It is kept in " + *kept + "." : " It could not be renamed.";
  }
  return {std::nullopt, std::move(message)};
}

void SaveStudy(FileSystem& files, const std::string& projectPath, const StoredStudy& stored) {
  files.ReplaceFile(StudyPath(projectPath), StudyBytes(stored));
}

}  // namespace orby
