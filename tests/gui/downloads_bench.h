// A server on this machine and a download from it.
#pragma once

#include <gmock/gmock.h>

#include <QByteArray>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QTest>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "gui/gui_bench.h"
#include "gui/web_server.h"
#include "qt/downloads.h"
#include "qt/texts.h"

namespace orby::test {

// Returns bytes that differ from place to place.
inline QByteArray BytesOf(qsizetype length, unsigned seed = 1) {
  QByteArray bytes(length, '\0');
  for (char& byte : bytes) {
    seed = seed * 1664525U + 1013904223U;
    byte = static_cast<char>(seed >> 24);
  }
  return bytes;
}

inline std::string Sha256Of(const QByteArray& bytes) {
  return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().toStdString();
}

class Downloading : public testing::Test {
 protected:
  explicit Downloading(std::chrono::milliseconds patience = QtDownloads::UsualPatience) : downloads(patience) {}

  FetchRequest To(const std::string& address, bool resumes = false) const {
    return {address, FromQt(path), 0, resumes};
  }

  void Start(const FetchRequest& request) {
    outcome.reset();
    FetchEvents events;
    events.Progress = [this](std::uint64_t received, std::uint64_t total) { progress.emplace_back(received, total); };
    events.Finished = [this](const FetchOutcome& given) { outcome = given; };
    fetch = downloads.Start(request, std::move(events));
  }

  FetchOutcome Ended() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return outcome.has_value(); }, Patience)) << "the fetch goes on for ever";
    fetch.reset();
    return outcome.value_or(FetchOutcome{});
  }

  FetchOutcome Fetch(const FetchRequest& request) {
    Start(request);
    return Ended();
  }
  FetchEnd EndOf(const std::string& address) { return Fetch(To(address)).end; }

  static QByteArray Read(const QString& file) {
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("cannot be read");
  }
  QByteArray Arrived() const { return Read(path); }
  std::vector<std::string> FilesThere() const {
    std::vector<std::string> names;
    for (const QString& name : QDir(folder.path()).entryList(QDir::Files)) names.push_back(FromQt(name));
    return names;
  }

  // Starts a download that breaks off.
  void FetchHalf(const QByteArray& bytes, qsizetype half, const QByteArray& mark) {
    server.ServeBroken("/setup", bytes, half, mark);
    EXPECT_EQ(Fetch(To(server.Address("/setup"), true)).end, FetchEnd::Failed);
    progress.clear();
  }
  QByteArray LastHeader(const QByteArray& name) const { return server.Requests().back().headers.value(name); }

  QTemporaryDir folder;
  QString path = folder.filePath("file");
  WebServer server;
  QtDownloads downloads;
  std::unique_ptr<orby::Fetch> fetch;
  std::optional<FetchOutcome> outcome;
  std::vector<std::pair<std::uint64_t, std::uint64_t>> progress;
};

}  // namespace orby::test
