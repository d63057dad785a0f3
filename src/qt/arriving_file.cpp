#include "qt/arriving_file.h"

#include <QTemporaryFile>
#include <filesystem>

namespace orby {
namespace {

constexpr qint64 SumPiece = 1 << 20;

QString PartPath(const QString& path) { return path + ".part"; }
// The file with the address and the mark of a partial download, one per line.
QString OriginPath(const QString& path) { return path + ".part.origin"; }
QString LockPath(const QString& path) { return path + ".part.lock"; }

// Returns the mark of a partial download from this address; empty if there is none.
QByteArray MarkOf(const QString& path, const QString& address) {
  constexpr qint64 MostOrigin = 8192;
  QFile origin(OriginPath(path));
  if (!origin.open(QIODevice::ReadOnly)) return {};
  const QList<QByteArray> lines = origin.read(MostOrigin).split('\n');
  return lines.size() == 3 && lines[0] == address.toUtf8() ? lines[1] : QByteArray();
}

bool WriteOrigin(const QString& path, const QString& address, const QByteArray& mark) {
  QFile origin(OriginPath(path));
  const QByteArray lines = address.toUtf8() + '\n' + mark + '\n';
  return origin.open(QIODevice::WriteOnly) && origin.write(lines) == lines.size() && origin.flush();
}

}  // namespace

ArrivingFile::ArrivingFile(const QString& path, const QString& address, bool resumes)
    : path_(path), address_(address), resumes_(resumes), lock_(LockPath(path)) {
  // A lock is stale only if its program has ended, however long a fetch takes.
  lock_.setStaleLockTime(0);
}

ArrivingFile::~ArrivingFile() {
  if (!file_) return;
  file_->close();
  const bool isResumed = resumes_ && !mark_.isEmpty();
  if (!isWhole_ && !isResumed) file_->remove();
  if (resumes_ && (isWhole_ || !isResumed)) QFile::remove(OriginPath(path_));
}

bool ArrivingFile::Open() { return resumes_ ? OpenPart() : OpenTemporary(); }

bool ArrivingFile::OpenPart() {
  if (!lock_.tryLock(0)) return false;
  auto part = std::make_unique<QFile>(PartPath(path_));
  if (!part->open(QIODevice::ReadWrite)) return false;
  file_ = std::move(part);
  mark_ = MarkOf(path_, address_);
  size_ = file_->size();
  return (size_ > 0 && !mark_.isEmpty()) || StartAnew({});
}

bool ArrivingFile::OpenTemporary() {
  auto file = std::make_unique<QTemporaryFile>(path_ + ".XXXXXX");
  if (!file->open()) return false;
  file_ = std::move(file);
  return true;
}

bool ArrivingFile::SumUpSome() {
  if (summedUp_ >= size_) return false;
  const QByteArray piece = file_->read(std::min(SumPiece, size_ - summedUp_));
  if (piece.isEmpty()) {
    // Another program has shortened the file.
    StartAnew({});
    return false;
  }
  sum_.addData(piece);
  summedUp_ += piece.size();
  return true;
}

bool ArrivingFile::StartAnew(const QByteArray& mark) {
  sum_.reset();
  size_ = 0;
  summedUp_ = 0;
  mark_ = mark;
  if (!file_->resize(0) || !file_->seek(0)) return false;
  if (!resumes_) return true;
  if (mark_.isEmpty()) {
    QFile::remove(OriginPath(path_));
    return true;
  }
  return WriteOrigin(path_, address_, mark_);
}

bool ArrivingFile::Append(const QByteArray& bytes) {
  if (file_->write(bytes) != bytes.size()) return false;
  sum_.addData(bytes);
  size_ += bytes.size();
  summedUp_ = size_;
  return true;
}

bool ArrivingFile::Finish() {
  if (!file_->flush()) return false;
  file_->close();
  // Windows does not rename an open file. A temporary file is open as long as it lives.
  if (auto* temporary = dynamic_cast<QTemporaryFile*>(file_.get())) {
    temporary->setAutoRemove(false);
    file_ = std::make_unique<QFile>(temporary->fileName());
  }
  const std::filesystem::path from(file_->fileName().toStdU16String());
  std::error_code problem;
  std::filesystem::rename(from, std::filesystem::path(path_.toStdU16String()), problem);
  if (problem) return false;
  isWhole_ = true;
  return true;
}

}  // namespace orby
