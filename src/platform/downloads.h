// Downloads of files.
//
// Only https is allowed, and http to this machine itself. Any other address or redirection fails.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace orby {

struct FetchRequest {
  std::string address;
  std::string path;             // of the file, which is replaced after all bytes have arrived
  std::uint64_t mostBytes = 0;  // a longer file fails; 0: no limit
  bool resumes = false;         // continues an interrupted fetch of this path, if the server can
};

enum class FetchEnd {
  Done,
  NoService,     // the network or the address cannot be used at all
  NoConnection,  // no server answers at the address
  Failed,        // the answer is not a file, is too long, or was interrupted
};

struct FetchOutcome {
  FetchEnd end = FetchEnd::Failed;
  std::string sha256;  // of the whole file, 64 lower-case hexadecimal digits
};

// Both functions are called from the event loop, never inside Start.
struct FetchEvents {
  // `received` bytes of `total` have arrived. `total` is 0 when the server does not report it.
  std::function<void(std::uint64_t received, std::uint64_t total)> Progress;
  std::function<void(const FetchOutcome& outcome)> Finished;  // called once, as the last event
};

// A running fetch. Destroying it stops the fetch without another event. The bytes received so far are kept beside the
// file if the request allows resuming.
class Fetch {
 public:
  virtual ~Fetch() = default;
};

class Downloads {
 public:
  virtual ~Downloads() = default;
  // Starts a fetch. Returns null on a machine that cannot fetch at all.
  virtual std::unique_ptr<Fetch> Start(const FetchRequest& request, FetchEvents events) = 0;
  // Copies the file into a folder that only the user can access, so that nobody can exchange it afterwards. Returns the
  // path of the copy if it has this SHA-256, and nothing otherwise. The hexadecimal digits may have either case. The
  // copy exists until the next call. Throws the RuntimeError of a file that cannot be copied.
  virtual std::optional<std::string> CheckedCopy(const std::string& path, const std::string& sha256) = 0;
};

}  // namespace orby
