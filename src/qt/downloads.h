// Downloads over the network. Nothing here blocks: everything runs in the event loop.
#pragma once

#include <chrono>
#include <memory>

#include "platform/downloads.h"

class QNetworkAccessManager;

namespace orby {

class QtDownloads : public Downloads {
 public:
  static constexpr std::chrono::milliseconds UsualPatience{30'000};

  // patience: a server that sends nothing for this long counts as failed.
  explicit QtDownloads(std::chrono::milliseconds patience = UsualPatience);
  ~QtDownloads() override;

  std::unique_ptr<Fetch> Start(const FetchRequest& request, FetchEvents events) override;
  std::optional<std::string> CheckedCopy(const std::string& path, const std::string& sha256) override;

 private:
  std::chrono::milliseconds patience_;
  std::unique_ptr<QNetworkAccessManager> network_;  // created with the first fetch, because it is slow to create
};

}  // namespace orby
