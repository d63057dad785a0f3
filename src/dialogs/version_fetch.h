// Asks the server which version it offers.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "dialogs/update_source.h"

namespace orby {

struct VersionAnswer {
  FetchEnd end = FetchEnd::Failed;
  std::optional<OfferedVersion> offered;  // nothing when no usable version file came
};

// Fetches the version file into the program's data folder and reads it from there. `then` runs once, from the event
// loop, unless the fetch is destroyed before. Nothing on a machine that cannot fetch at all.
std::unique_ptr<Fetch> FetchVersion(Program& program, std::function<void(const VersionAnswer&)> then);

}  // namespace orby
