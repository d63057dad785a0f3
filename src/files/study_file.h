// The file with the settings of the study of a project, beside the project.
#pragma once

#include <string>

#include "core/program.h"
#include "files/study_json.h"

namespace orby {

// Returns the path of the study of a project: "/mine/north.ORB" has "/mine/north.study.json".
std::string StudyPath(const std::string& projectPath);

// What is done with a file that is no study.
enum class DamagedStudy {
  PutAside,  // it is renamed to PATH.kept or the first free PATH.kept2, PATH.kept3 and so on
  Leave,
};

struct LoadedStudy {
  std::optional<StoredStudy> Stored;
  // Why there is no study, for the user, with the path; empty if there is one, or no file.
  std::string Message;
};

// Reads the study of a project with these units. A study in other units cannot be used, because its numbers would mean
// something else. Throws the RuntimeError of a file that cannot be read.
LoadedStudy LoadStudy(FileSystem& files, const std::string& projectPath, UnitSystem units, DamagedStudy damaged);

// Replaces the study of a project in one step. Throws the RuntimeError of a file that cannot be written.
void SaveStudy(FileSystem& files, const std::string& projectPath, const StoredStudy& stored);

}  // namespace orby
