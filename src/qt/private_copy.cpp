#include "qt/private_copy.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "base/runtime_error.h"
#include "base/text.h"
#include "qt/texts.h"

namespace orby {
namespace {

constexpr qint64 CopyPiece = 1 << 20;
constexpr auto OwnerFolder = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
const char* const FolderName = "setup-";

// Returns the cache folder after removing the copies of earlier runs.
QDir EmptiedCache() {
  QDir cache(QStandardPaths::writableLocation(QStandardPaths::CacheLocation));
  cache.mkpath(".");
  QFile::setPermissions(cache.path(), OwnerFolder);
  for (const QString& name : cache.entryList({QString(FolderName) + "*"}, QDir::Dirs | QDir::NoSymLinks)) {
    QDir(cache.filePath(name)).removeRecursively();
  }
  return cache;
}

[[noreturn]] void Fail(const QFile& file) {
  throw RuntimeError(file.error() == QFile::ResourceError ? error_number::DiskFull : error_number::PathFileAccess);
}

void CopyBytes(QFile& source, QFile& copy) {
  if (!source.open(QIODevice::ReadOnly)) Fail(source);
  if (!copy.open(QIODevice::WriteOnly | QIODevice::NewOnly)) Fail(copy);
  while (!source.atEnd()) {
    const QByteArray bytes = source.read(CopyPiece);
    if (bytes.isEmpty()) break;
    if (copy.write(bytes) != bytes.size()) Fail(copy);
  }
  if (source.error() != QFile::NoError) Fail(source);
  if (!copy.flush()) Fail(copy);
  copy.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
  copy.close();
}

std::string SumOf(QFile& file) {
  QCryptographicHash sum(QCryptographicHash::Sha256);
  if (!file.open(QIODevice::ReadOnly) || !sum.addData(&file)) Fail(file);
  return sum.result().toHex().toStdString();
}

}  // namespace

std::optional<std::string> PrivateCopy(const std::string& path, const std::string& sha256) {
  QFile source(ToQt(path));
  const QFileInfo facts(source);
  if (!facts.isFile()) throw RuntimeError(error_number::PathFileAccess);  // reading a pipe might never end
  QTemporaryDir folder(EmptiedCache().filePath(QString(FolderName) + "XXXXXX"));
  if (!folder.isValid()) throw RuntimeError(error_number::PathFileAccess);
  QFile copy(folder.filePath(facts.fileName()));
  CopyBytes(source, copy);
  if (!SameWithoutCase(SumOf(copy), sha256)) return std::nullopt;
  folder.setAutoRemove(false);
  return PathFromQt(copy.fileName());
}

}  // namespace orby
