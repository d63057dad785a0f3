// A folder with a published setup file, and the copies of it that are checked and then started.
#pragma once

#include <gmock/gmock.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <optional>
#include <string>

#include "gui/cache_in_folder.h"
#include "qt/private_copy.h"
#include "qt/texts.h"
#include "support/temporary_folder.h"

namespace orby::test {

struct APrivateCopy : testing::Test {
  APrivateCopy() { folder.Store("ORBY2.exe", published); }

  static std::string SumOf(const std::string& bytes) {
    return QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Sha256).toHex().toStdString();
  }
  std::optional<std::string> Copy() const { return PrivateCopy(folder.At("ORBY2.exe"), SumOf(published)); }
  static std::string Read(const std::string& path) {
    QFile file(ToQt(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "unreadable";
  }
  // Returns the existing folders of copies.
  static QStringList Kept() { return QDir(CacheInFolder::OfProgram()).entryList({"setup-*"}, QDir::Dirs); }

  const std::string published = std::string(3'000'000, 's') + "etup";
  TemporaryFolder folder;
  CacheInFolder moved{ToQt(folder.At("cache"))};
};

}  // namespace orby::test
