// Asks the update server for its version.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "files/update_source.h"

namespace orby {

struct VersionAnswer {
  FetchEnd end = FetchEnd::Failed;
  std::optional<OfferedVersion> offered;  // empty if there is no usable version file
};

// Fetches the version file into the program's data folder and reads it. Calls `then` once from the event loop, unless
// the returned fetch is destroyed before. Returns null if this machine cannot fetch.
std::unique_ptr<Fetch> FetchVersion(Program& program, std::function<void(const VersionAnswer&)> then);

}  // namespace orby
