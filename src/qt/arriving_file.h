// A file that is being downloaded. It has a temporary name until it is complete.
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
  // address: the source of the file.
  // resumes: keep an incomplete download beside the path, so that the next one of this path continues it.
  ArrivingFile(const QString& path, const QString& address, bool resumes);
  // Removes an incomplete file, unless a later fetch can resume it.
  ~ArrivingFile();
  ArrivingFile(const ArrivingFile&) = delete;
  ArrivingFile& operator=(const ArrivingFile&) = delete;

  // Creates the file or opens an incomplete download. Returns false if that fails or another program is fetching the
  // same file.
  bool Open();

  qint64 Size() const { return size_; }
  // Returns the server's mark of the file whose first bytes are here; empty if there are none.
  const QByteArray& Mark() const { return mark_; }

  // Adds the next piece of the existing bytes to the checksum. Returns false after the last one.
  bool SumUpSome();

  // Empties the file and gives it a new mark; empty if the server sends none. This and the next functions return false
  // if the disk refuses.
  bool StartAnew(const QByteArray& mark);
  bool Append(const QByteArray& bytes);
  // Moves the complete file to its path.
  bool Finish();
  // Marks the bytes as useless, so that they are not kept.
  void Drop() { mark_.clear(); }

  // Returns the checksum of all bytes as 64 lower-case hexadecimal digits.
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
