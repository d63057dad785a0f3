// Files fetched over the network, one address into one file.
//
// Only https is spoken, or http with this machine itself; an address or a redirection to anything else fails.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace orby {

struct FetchRequest {
  std::string address;
  std::string path;             // of the file, which is replaced once all has arrived
  std::uint64_t mostBytes = 0;  // a longer answer fails; 0: any length
  bool resumes = false;         // goes on where an earlier fetch of this path was broken off, if the server can
};

enum class FetchEnd {
  Done,
  NoService,     // the network or the address cannot be used at all
  NoConnection,  // nobody answers at the address
  Failed,        // an answer that is no file, is too long, or broke off
};

struct FetchOutcome {
  FetchEnd end = FetchEnd::Failed;
  std::string sha256;  // of the whole file, 64 lower-case hexadecimal digits
};

// Both run from the event loop, never inside Start.
struct FetchEvents {
  // So many bytes are there, of so many; 0 when the server does not say how many there are.
  std::function<void(std::uint64_t received, std::uint64_t total)> Progress;
  std::function<void(const FetchOutcome& outcome)> Finished;  // once, last
};

// A fetch under way. Destroying it stops it without a further event; what has arrived of a file that may be resumed
// stays beside it.
class Fetch {
 public:
  virtual ~Fetch() = default;
};

class Downloads {
 public:
  virtual ~Downloads() = default;
  // Nothing on a machine that cannot fetch at all.
  virtual std::unique_ptr<Fetch> Start(const FetchRequest& request, FetchEvents events) = 0;
  // Copies the file into a folder that only the user has access to, where nobody can exchange it any more, and returns
  // the path of the copy when its bytes have this SHA-256, in digits of any case; nothing when they have another. The
  // copy stays until the next one is asked for. Throws the RuntimeError of a file that cannot be copied.
  virtual std::optional<std::string> CheckedCopy(const std::string& path, const std::string& sha256) = 0;
};

}  // namespace orby
