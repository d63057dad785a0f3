#include "qt/transfer.h"

#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QSslSocket>
#include <algorithm>
#include <array>
#include <utility>

#include "qt/boundary.h"
#include "qt/texts.h"

namespace orby {
namespace {

constexpr int MostHops = 5;
constexpr qint64 ReadPiece = 1 << 16;
constexpr qint64 MostWaiting = 1 << 20;  // bytes that may wait to be read; beyond them the server is slowed down

namespace status {
constexpr int Whole = 200;
constexpr int Rest = 206;
constexpr int NoSuchRest = 416;
constexpr std::array Elsewhere{301, 302, 303, 307, 308};
}  // namespace status

int StatusOf(const QNetworkReply& reply) {
  return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();  // 0 if there was no answer
}

bool LeadsElsewhere(const QNetworkReply& reply) {
  return std::ranges::find(status::Elsewhere, StatusOf(reply)) != status::Elsewhere.end();
}

bool IsEncoded(const QNetworkReply& reply) {
  const QByteArray encoding = reply.rawHeader("Content-Encoding").trimmed().toLower();
  return !encoding.isEmpty() && encoding != "identity";
}

// Returns a mark that changes with the file on the server: a strong tag, else the time of the last change. Returns an
// empty text if the server sends neither.
QByteArray MarkIn(const QNetworkReply& reply) {
  const QByteArray tag = reply.rawHeader("ETag");
  return tag.startsWith('"') ? tag : reply.rawHeader("Last-Modified");
}

struct ByteRange {
  qint64 first = -1;
  quint64 total = 0;  // 0 if unknown
};

ByteRange RangeIn(const QNetworkReply& reply) {
  static const QRegularExpression form("^bytes (\\d+)-\\d+/(\\d+|\\*)$");
  const auto match = form.match(QString::fromLatin1(reply.rawHeader("Content-Range").trimmed()));
  if (!match.hasMatch()) return {};
  return {match.captured(1).toLongLong(), match.captured(2).toULongLong()};
}

// The request uses no cache, no cookies and no compression, and sends nothing about the user.
QNetworkRequest RequestFor(const QUrl& address, std::chrono::milliseconds patience) {
  QNetworkRequest request(address);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
  for (const auto control : {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
                             QNetworkRequest::AuthenticationReuseAttribute}) {
    request.setAttribute(control, QNetworkRequest::Manual);
  }
  request.setRawHeader("Accept-Encoding", "identity");
  request.setTransferTimeout(static_cast<int>(patience.count()));
  return request;
}

}  // namespace

bool IsThisMachine(const QString& host) { return host == "localhost" || QHostAddress(host).isLoopback(); }

bool MayFetchFrom(const QUrl& address) {
  if (!address.isValid() || address.host().isEmpty() || !address.userInfo().isEmpty()) return false;
  return address.scheme() == "https" || (address.scheme() == "http" && IsThisMachine(address.host()));
}

Transfer::Transfer(QNetworkAccessManager& network, FetchRequest request, FetchEvents events,
                   std::chrono::milliseconds patience)
    : QObject(&network),
      network_(network),
      request_(std::move(request)),
      events_(std::move(events)),
      patience_(patience),
      address_(ToQt(request_.address), QUrl::StrictMode) {}

void Transfer::Begin() {
  if (ended_) return;
  if (!MayFetchFrom(address_) || (address_.scheme() == "https" && !QSslSocket::supportsSsl())) {
    End(FetchEnd::NoService);
    return;
  }
  file_ = std::make_unique<ArrivingFile>(ToQt(request_.path), address_.toString(), request_.resumes);
  if (!file_->Open()) {
    End(FetchEnd::Failed);
    return;
  }
  if (IsTooLong(static_cast<quint64>(file_->Size()))) file_->StartAnew({});
  SumUp();
}

// Reads one piece per turn of the event loop.
void Transfer::SumUp() {
  if (ended_) return;
  if (file_->SumUpSome()) {
    QMetaObject::invokeMethod(
        this, [this] { SumUp(); }, Qt::QueuedConnection);
  } else {
    Ask(address_);
  }
}

void Transfer::Ask(const QUrl& address) {
  LetGo();
  address_ = address;
  headTaken_ = false;
  QNetworkRequest request = RequestFor(address, patience_);
  if (file_->Size() > 0) {
    request.setRawHeader("Range", "bytes=" + QByteArray::number(file_->Size()) + "-");
    request.setRawHeader("If-Range", file_->Mark());
  }
  reply_ = network_.get(request);
  reply_->setReadBufferSize(MostWaiting);
  connect(reply_, &QNetworkReply::readyRead, this, [this] { TakeBytes(); });
  connect(reply_, &QNetworkReply::finished, this, [this] { TakeEnd(); });
}

void Transfer::TakeBytes() {
  if (!headTaken_ && !TakeHead()) return;
  while (!ended_ && reply_->bytesAvailable() > 0) {
    const QByteArray bytes = reply_->read(ReadPiece);
    if (IsTooLong(static_cast<quint64>(file_->Size() + bytes.size()))) {
      DropAndFail();
    } else if (!file_->Append(bytes)) {
      End(FetchEnd::Failed);
    }
  }
  if (ended_ || !events_.Progress) return;
  const auto progress = events_.Progress;  // a copy, because the call may stop this transfer
  RunGuarded([&] { progress(static_cast<quint64>(file_->Size()), total_); });
}

void Transfer::TakeEnd() {
  const bool isAnswered = StatusOf(*reply_) != 0;
  if (isAnswered && (reply_->bytesAvailable() > 0 || !headTaken_)) {
    const QPointer<QNetworkReply> asked = reply_;
    TakeBytes();
    if (ended_ || reply_ != asked) return;
  }
  if (reply_->error() != QNetworkReply::NoError || !isAnswered) {
    End(isAnswered ? FetchEnd::Failed : FetchEnd::NoConnection);
    return;
  }
  const bool isWhole = total_ == 0 || total_ == static_cast<quint64>(file_->Size());
  End(isWhole && file_->Finish() ? FetchEnd::Done : FetchEnd::Failed);
}

bool Transfer::TakeHead() {
  headTaken_ = true;
  if (LeadsElsewhere(*reply_)) return Follow();
  switch (StatusOf(*reply_)) {
    case status::Whole: return TakeWhole();
    case status::Rest: return TakeRest();
    case status::NoSuchRest: return AskAnew();
    default: return End(FetchEnd::Failed);
  }
}

bool Transfer::TakeWhole() {
  total_ = reply_->header(QNetworkRequest::ContentLengthHeader).toULongLong();
  if (IsEncoded(*reply_) || IsTooLong(total_)) return DropAndFail();
  return file_->StartAnew(MarkIn(*reply_)) || End(FetchEnd::Failed);
}

// Accepts the rest only if it continues exactly the file whose first bytes are here.
bool Transfer::TakeRest() {
  const ByteRange range = RangeIn(*reply_);
  const QByteArray mark = MarkIn(*reply_);
  const bool isSameFile = mark.isEmpty() || mark == file_->Mark();
  if (range.first != file_->Size() || !isSameFile || IsEncoded(*reply_)) return AskAnew();
  total_ = range.total;
  return !IsTooLong(total_) || DropAndFail();
}

// Never follows from https to http.
bool Transfer::Follow() {
  const QUrl next = address_.resolved(QUrl::fromEncoded(reply_->rawHeader("Location"), QUrl::StrictMode));
  const bool staysSafe = address_.scheme() != "https" || next.scheme() == "https";
  if (++hops_ > MostHops || !MayFetchFrom(next) || !staysSafe) return End(FetchEnd::Failed);
  Ask(next);
  return false;
}

bool Transfer::AskAnew() {
  if (file_->Size() == 0 || !file_->StartAnew({})) return End(FetchEnd::Failed);
  Ask(address_);
  return false;
}

void Transfer::LetGo() {
  if (!reply_) return;
  reply_->disconnect(this);
  reply_->abort();
  reply_->deleteLater();
  reply_ = nullptr;
}

bool Transfer::DropAndFail() {
  file_->Drop();
  return End(FetchEnd::Failed);
}

bool Transfer::End(FetchEnd end) {
  if (ended_) return false;
  FetchOutcome outcome{end, {}};
  if (end == FetchEnd::Done) outcome.sha256 = file_->Sha256();
  ended_ = true;
  LetGo();
  file_.reset();
  QMetaObject::invokeMethod(
      this, [this, outcome] { Report(outcome); }, Qt::QueuedConnection);
  return false;
}

void Transfer::Report(FetchOutcome outcome) {
  const auto finished = std::exchange(events_, {}).Finished;
  if (!finished) return;
  RunGuarded([&] { finished(outcome); });
}

void Transfer::Stop() {
  ended_ = true;
  LetGo();
  file_.reset();
  events_ = {};
}

}  // namespace orby
