// Fetches over the network. Nothing here waits: all goes on in the event loop.
#pragma once

#include <chrono>
#include <memory>

#include "platform/downloads.h"

class QNetworkAccessManager;

namespace orby {

class QtDownloads : public Downloads {
 public:
  static constexpr std::chrono::milliseconds UsualPatience{30'000};

  // patience: a server that sends nothing for so long is given up.
  explicit QtDownloads(std::chrono::milliseconds patience = UsualPatience);
  ~QtDownloads() override;

  std::unique_ptr<Fetch> Start(const FetchRequest& request, FetchEvents events) override;
  std::optional<std::string> CheckedCopy(const std::string& path, const std::string& sha256) override;

 private:
  std::chrono::milliseconds patience_;
  std::unique_ptr<QNetworkAccessManager>
      network_;  // made with the first fetch: a run without one is not to wait for it
};

}  // namespace orby
