// The contents of a backup: a project file of any format, or a recovery file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/program.h"
#include "files/recovery_file.h"

namespace orby {

// Returns the project in the bytes, or nothing when they are damaged. A project from a project file has the name
// `name`. Values that the file lacks come from the catalogs and defaults of `program`.
std::optional<UnsavedProject> ReadKeptProject(const Program& program, std::string_view bytes, const std::string& name);

// Returns the bytes as a project file: a project file unchanged, a recovery file as it would be saved. Returns nothing
// when the bytes are damaged.
std::optional<std::string> KeptProjectAsFile(const Program& program, std::string_view bytes);

// Returns the bytes that saving the project would write. Changes nothing.
std::string BytesOfSave(const Program& program);

}  // namespace orby
