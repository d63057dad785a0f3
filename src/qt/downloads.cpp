#include "qt/downloads.h"

#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <utility>

#include "qt/private_copy.h"
#include "qt/transfer.h"

namespace orby {
namespace {

// The desktop's proxies, except for requests to this machine, which must not leave it.
class Proxies : public QNetworkProxyFactory {
 public:
  QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override {
    if (IsThisMachine(query.peerHostName())) return {QNetworkProxy(QNetworkProxy::NoProxy)};
    return systemProxyForQuery(query);
  }
};

class QtFetch : public Fetch {
 public:
  explicit QtFetch(Transfer* transfer) : transfer_(transfer) {}
  ~QtFetch() override {
    if (!transfer_) return;
    transfer_->Stop();
    // The fetch may be destroyed in one of its own events.
    transfer_->deleteLater();
  }
  QtFetch(const QtFetch&) = delete;
  QtFetch& operator=(const QtFetch&) = delete;

 private:
  QPointer<Transfer> transfer_;
};

}  // namespace

QtDownloads::QtDownloads(std::chrono::milliseconds patience) : patience_(patience) {}
QtDownloads::~QtDownloads() = default;

std::unique_ptr<Fetch> QtDownloads::Start(const FetchRequest& request, FetchEvents events) {
  if (!network_) {
    network_ = std::make_unique<QNetworkAccessManager>();
    network_->setProxyFactory(new Proxies);  // the manager owns it
  }
  auto* transfer = new Transfer(*network_, request, std::move(events), patience_);  // owned by the manager
  QMetaObject::invokeMethod(
      transfer, [transfer] { transfer->Begin(); }, Qt::QueuedConnection);
  return std::make_unique<QtFetch>(transfer);
}

std::optional<std::string> QtDownloads::CheckedCopy(const std::string& path, const std::string& sha256) {
  return PrivateCopy(path, sha256);
}

}  // namespace orby
