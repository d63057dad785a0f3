// A web server on this machine, in the event loop of the test. The system chooses the port.
#pragma once

#include <QHash>
#include <QPointer>
#include <QSslCertificate>
#include <QTcpServer>
#include <QTcpSocket>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace orby::test {

inline constexpr int Patience = 20'000;  // milliseconds after which an event that does not come is a failure

struct WebRequest {
  QByteArray path;
  QHash<QByteArray, QByteArray> headers;  // names in lower case
};

class WebServer {
 public:
  using Answer = std::function<void(const WebRequest& request, QTcpSocket& socket)>;

  WebServer();
  // Uses https with a certificate of tests/data/certificates.
  explicit WebServer(const QString& certificate);
  WebServer(const WebServer&) = delete;
  WebServer& operator=(const WebServer&) = delete;

  std::string Address(const QByteArray& path) const;

  // Returns the certificate that makes a client in this process trust the server of this name.
  static QSslCertificate CertificateOf(const QString& certificate);

  // Sets the answer for this path. Any other path is not found.
  void Serve(const QByteArray& path, Answer answer) { answers_[path] = std::move(answer); }
  // Serves a file, and the rest of it if the client asks for the rest of this file. mark: a header line, such as "ETag:
  // \"1\"".
  void ServeFile(const QByteArray& path, const QByteArray& bytes, const QByteArray& mark = {});
  // Sends the head and the first bytes of the file, and then breaks the connection.
  void ServeBroken(const QByteArray& path, const QByteArray& bytes, qsizetype sent, const QByteArray& mark = {});
  void ServeRedirection(const QByteArray& path, const QByteArray& location);
  // Sends an endless answer. length: its header line, if any.
  void ServeEndless(const QByteArray& path, const QByteArray& length = {});
  // Sends only the head. Send sends the body.
  void ServeSlowly(const QByteArray& path, qsizetype length);
  void Send(const QByteArray& bytes);
  bool IsAskedSlowly() const { return slow_ != nullptr; }
  // Returns true if the client has closed the connection of the slow answer.
  bool IsLeft() const { return slow_ == nullptr || slow_->state() == QAbstractSocket::UnconnectedState; }

  const std::vector<WebRequest>& Requests() const { return requests_; }
  qint64 BodyBytes() const { return bodyBytes_; }  // of all files and endless answers so far

  // Sends a whole answer and closes the connection.
  static void Reply(QTcpSocket& socket, const QByteArray& status, const QByteArray& headers, const QByteArray& body);

 private:
  WebServer(std::unique_ptr<QTcpServer> server, std::string scheme);
  void Read(QTcpSocket& socket);
  void Handle(const QByteArray& head, QTcpSocket& socket);

  std::unique_ptr<QTcpServer> server_;
  std::string scheme_;
  std::map<QByteArray, Answer> answers_;
  std::map<QTcpSocket*, QByteArray> heads_;
  std::vector<WebRequest> requests_;
  QPointer<QTcpSocket> slow_;
  qint64 bodyBytes_ = 0;
};

}  // namespace orby::test
