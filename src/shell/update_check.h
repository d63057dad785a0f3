// Asks the update server at the start of a run, and tells the user only if there is a newer version.
#pragma once

#include <memory>

#include "core/program.h"
#include "files/update_source.h"

namespace orby {

// Owned by the main window. Destroying it stops the fetch.
class UpdateCheck {
 public:
  explicit UpdateCheck(Program& program) : program_(program) {}

  // Fetches the version file in the background. If it names a newer version, offers to open the update dialog. Does
  // nothing if the user has switched the check off or there is no server. Failures are silent.
  void Start();

  // Stops the fetch.
  void Stop() { fetch_.reset(); }

 private:
  void Compare(const OfferedVersion& offered);

  Program& program_;
  std::unique_ptr<Fetch> fetch_;
};

}  // namespace orby
