// What an entry of the backups holds: a project file of any format, or a recovery file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/program.h"
#include "files/recovery_file.h"

namespace orby {

// The project that the bytes hold; a project file, which does not tell its name, is of this name. Nothing when the
// bytes are damaged. The program lends its lists and defaults for what the file lacks.
std::optional<UnsavedProject> ReadKeptProject(const Program& program, std::string_view bytes, const std::string& name);

// The bytes as a project file: a project file as it is, a recovery file as it would be saved. Nothing when the bytes
// are damaged.
std::optional<std::string> KeptProjectAsFile(const Program& program, std::string_view bytes);

}  // namespace orby
