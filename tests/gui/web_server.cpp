#include "gui/web_server.h"

#include <QFile>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <stdexcept>
#include <utility>

namespace orby::test {
namespace {

const QByteArray HeadEnd = "\r\n\r\n";

QByteArray LengthLine(qsizetype length) { return "Content-Length: " + QByteArray::number(length) + "\r\n"; }
QByteArray LineOf(const QByteArray& header) { return header.isEmpty() ? header : header + "\r\n"; }
QByteArray Head(const QByteArray& status, const QByteArray& headers) {
  return "HTTP/1.1 " + status + "\r\n" + headers + "Connection: close\r\n\r\n";
}

// Returns the value of a header line.
QByteArray ValueOf(const QByteArray& line) { return line.mid(line.indexOf(':') + 1).trimmed(); }

WebRequest RequestIn(const QByteArray& head) {
  const QList<QByteArray> lines = head.split('\n');
  WebRequest request{lines[0].split(' ').value(1), {}};
  for (const QByteArray& line : lines) {
    if (const auto colon = line.indexOf(':'); colon > 0) {
      request.headers[line.left(colon).toLower()] = line.mid(colon + 1).trimmed();
    }
  }
  return request;
}

QByteArray ReadData(const QString& name) {
  QFile file(QStringLiteral(TEST_DATA_DIR "/certificates/") + name);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("no file " + name.toStdString());
  return file.readAll();
}

std::unique_ptr<QTcpServer> SafeServer(const QString& certificate) {
  QSslConfiguration safety = QSslConfiguration::defaultConfiguration();
  safety.setLocalCertificate(WebServer::CertificateOf(certificate));
  safety.setPrivateKey(QSslKey(ReadData(certificate + ".key"), QSsl::Ec));
  auto server = std::make_unique<QSslServer>();
  server->setSslConfiguration(safety);
  return server;
}

}  // namespace

WebServer::WebServer() : WebServer(std::make_unique<QTcpServer>(), "http") {}

WebServer::WebServer(const QString& certificate) : WebServer(SafeServer(certificate), "https") {}

WebServer::WebServer(std::unique_ptr<QTcpServer> server, std::string scheme)
    : server_(std::move(server)), scheme_(std::move(scheme)) {
  if (!server_->listen(QHostAddress::LocalHost, 0)) throw std::runtime_error("no port for a server");
  QObject::connect(server_.get(), &QTcpServer::pendingConnectionAvailable, server_.get(), [this] {
    while (QTcpSocket* socket = server_->nextPendingConnection()) {
      QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { Read(*socket); });
      // Some bytes may have arrived with the last step of the TLS handshake.
      if (socket->bytesAvailable() > 0) Read(*socket);
    }
  });
}

QSslCertificate WebServer::CertificateOf(const QString& certificate) {
  return QSslCertificate(ReadData(certificate + ".crt"));
}

std::string WebServer::Address(const QByteArray& path) const {
  return scheme_ + "://127.0.0.1:" + std::to_string(server_->serverPort()) + path.toStdString();
}

void WebServer::Read(QTcpSocket& socket) {
  QByteArray& head = heads_[&socket];
  head += socket.readAll();
  if (!head.contains(HeadEnd)) return;
  Handle(std::exchange(head, {}), socket);
}

void WebServer::Handle(const QByteArray& head, QTcpSocket& socket) {
  requests_.push_back(RequestIn(head));
  const WebRequest request = requests_.back();
  const auto found = answers_.find(request.path);
  if (found == answers_.end()) return Reply(socket, "404 Not Found", {}, "There is no such file.");
  found->second(request, socket);
}

void WebServer::Reply(QTcpSocket& socket, const QByteArray& status, const QByteArray& headers, const QByteArray& body) {
  socket.write(Head(status, headers + LengthLine(body.size())) + body);
  socket.disconnectFromHost();
}

void WebServer::ServeFile(const QByteArray& path, const QByteArray& bytes, const QByteArray& mark) {
  Serve(path, [this, bytes, mark](const WebRequest& request, QTcpSocket& socket) {
    const QByteArray range = request.headers.value("range");
    const bool isSameFile = !mark.isEmpty() && request.headers.value("if-range") == ValueOf(mark);
    if (!range.startsWith("bytes=") || !isSameFile) {
      bodyBytes_ += bytes.size();
      return Reply(socket, "200 OK", LineOf(mark), bytes);
    }
    const qsizetype first = range.mid(6).split('-')[0].toLongLong();
    if (first >= bytes.size()) return Reply(socket, "416 Range Not Satisfiable", {}, {});
    const QByteArray rest = bytes.mid(first);
    bodyBytes_ += rest.size();
    Reply(socket, "206 Partial Content",
          LineOf(mark) + "Content-Range: bytes " + QByteArray::number(first) + "-" +
              QByteArray::number(bytes.size() - 1) + "/" + QByteArray::number(bytes.size()) + "\r\n",
          rest);
  });
}

void WebServer::ServeBroken(const QByteArray& path, const QByteArray& bytes, qsizetype sent, const QByteArray& mark) {
  Serve(path, [this, bytes, sent, mark](const WebRequest&, QTcpSocket& socket) {
    socket.write(Head("200 OK", LineOf(mark) + LengthLine(bytes.size())) + bytes.left(sent));
    bodyBytes_ += sent;
    socket.disconnectFromHost();
  });
}

void WebServer::ServeRedirection(const QByteArray& path, const QByteArray& location) {
  Serve(path, [location](const WebRequest&, QTcpSocket& socket) {
    Reply(socket, "302 Found", "Location: " + location + "\r\n", "It is elsewhere.");
  });
}

void WebServer::ServeEndless(const QByteArray& path, const QByteArray& length) {
  Serve(path, [this, length](const WebRequest&, QTcpSocket& socket) {
    constexpr qsizetype Lot = 1 << 16;
    const auto more = [this, &socket] {
      if (socket.bytesToWrite() > Lot || socket.state() != QAbstractSocket::ConnectedState) return;
      bodyBytes_ += Lot;
      socket.write(QByteArray(Lot, '1'));
    };
    QObject::connect(&socket, &QTcpSocket::bytesWritten, &socket, more);
    socket.write(Head("200 OK", LineOf(length)));
    more();
  });
}

void WebServer::ServeSlowly(const QByteArray& path, qsizetype length) {
  Serve(path, [this, length](const WebRequest&, QTcpSocket& socket) {
    slow_ = &socket;
    socket.write(Head("200 OK", "ETag: \"slow\"\r\n" + LengthLine(length)));
  });
}

void WebServer::Send(const QByteArray& bytes) {
  if (slow_ == nullptr) throw std::logic_error("nobody has asked for the slow answer");
  slow_->write(bytes);
}

}  // namespace orby::test
