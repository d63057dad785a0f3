// A file that arrives over the network, under a name of its own until all of it is there.
#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QFile>
#include <QLockFile>
#include <QString>
#include <memory>

namespace orby {

class ArrivingFile {
 public:
  // address: where the file comes from; resumes: what has arrived stays beside the path when the rest does not, and the
  // next file of this path goes on from there.
  ArrivingFile(const QString& path, const QString& address, bool resumes);
  // What is not whole is removed, unless another fetch can go on from it.
  ~ArrivingFile();
  ArrivingFile(const ArrivingFile&) = delete;
  ArrivingFile& operator=(const ArrivingFile&) = delete;

  // Makes the file, or takes up what an earlier fetch has left. False when that cannot be done, or while another
  // program is fetching the same.
  bool Open();

  qint64 Size() const { return size_; }
  // The server's mark of the file that the bytes here are the start of; empty when there are none.
  const QByteArray& Mark() const { return mark_; }

  // Reads the next of the bytes that were taken up into the sum; false when it has read them all.
  bool SumUpSome();

  // Empties the file, which from here on is the one with this mark; empty when the server gives none. The steps below
  // give false when the disk refuses them.
  bool StartAnew(const QByteArray& mark);
  bool Append(const QByteArray& bytes);
  // Puts the file in its place.
  bool Finish();
  // The bytes are not worth keeping.
  void Drop() { mark_.clear(); }

  // Of all bytes, 64 lower-case hexadecimal digits.
  std::string Sha256() const { return sum_.result().toHex().toStdString(); }

 private:
  bool OpenPart();
  bool OpenTemporary();

  QString path_;
  QString address_;
  bool resumes_;
  QLockFile lock_;
  std::unique_ptr<QFile> file_;
  QCryptographicHash sum_{QCryptographicHash::Sha256};
  QByteArray mark_;
  qint64 size_ = 0;
  qint64 summedUp_ = 0;
  bool isWhole_ = false;
};

}  // namespace orby
