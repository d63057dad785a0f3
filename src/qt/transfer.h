// One running download: follows redirects and writes the bytes to a file.
#pragma once

#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QUrl>
#include <chrono>
#include <memory>

#include "platform/downloads.h"
#include "qt/arriving_file.h"

class QNetworkAccessManager;

namespace orby {

bool IsThisMachine(const QString& host);

// Returns true if the program may fetch from this address: https, or http on this machine.
bool MayFetchFrom(const QUrl& address);

class Transfer : public QObject {
 public:
  // Becomes a child of the network. patience: a server that sends nothing for this long counts as failed.
  Transfer(QNetworkAccessManager& network, FetchRequest request, FetchEvents events,
           std::chrono::milliseconds patience);

  void Begin();
  // Stops the download. No event follows.
  void Stop();

 private:
  void SumUp();
  void Ask(const QUrl& address);
  void TakeBytes();
  void TakeEnd();

  // Handles the head of an answer. Returns false if its body is not wanted.
  bool TakeHead();
  bool TakeWhole();
  bool TakeRest();
  bool Follow();
  bool AskAnew();

  bool IsTooLong(quint64 bytes) const { return request_.mostBytes != 0 && bytes > request_.mostBytes; }
  void LetGo();
  // Always returns false.
  bool End(FetchEnd end);
  bool DropAndFail();
  void Report(FetchOutcome outcome);

  QNetworkAccessManager& network_;
  FetchRequest request_;
  FetchEvents events_;
  std::chrono::milliseconds patience_;
  QUrl address_;  // the address of the last request
  int hops_ = 0;
  QPointer<QNetworkReply> reply_;
  std::unique_ptr<ArrivingFile> file_;
  bool headTaken_ = false;
  quint64 total_ = 0;  // bytes of the whole file; 0 if the server does not say
  bool ended_ = false;
};

}  // namespace orby
