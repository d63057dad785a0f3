// The look at the server that a run begins with: tells the user of a newer version, and of nothing else.
#pragma once

#include <memory>

#include "core/program.h"
#include "dialogs/update_source.h"

namespace orby {

// Lives as long as the main window; destroying it stops the fetch.
class UpdateCheck {
 public:
  explicit UpdateCheck(Program& program) : program_(program) {}

  // Fetches the version file without the user waiting for it, and asks about a newer version, whose installation the
  // dialog of program updates offers. Does nothing when the user has switched the check off or there is no server;
  // every failure is silent.
  void Start();

  // No answer is wanted any more.
  void Stop() { fetch_.reset(); }

 private:
  void Compare(const OfferedVersion& offered);

  Program& program_;
  std::unique_ptr<Fetch> fetch_;
};

}  // namespace orby
