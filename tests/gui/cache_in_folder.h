// Moves the user's cache folder to another folder as long as this object exists. On Windows it stays where it is.
#pragma once

#include <QByteArray>
#include <QStandardPaths>
#include <QString>
#include <QtGlobal>

namespace orby::test {

class CacheInFolder {
 public:
  explicit CacheInFolder(const QString& folder) : before_(qgetenv(Name)) { qputenv(Name, folder.toUtf8()); }
  ~CacheInFolder() { before_.isNull() ? qunsetenv(Name) : qputenv(Name, before_); }
  CacheInFolder(const CacheInFolder&) = delete;
  CacheInFolder& operator=(const CacheInFolder&) = delete;

  // Gives the part of that folder that belongs to this program.
  static QString OfProgram() { return QStandardPaths::writableLocation(QStandardPaths::CacheLocation); }

 private:
  static constexpr const char* Name = "XDG_CACHE_HOME";

  QByteArray before_;
};

}  // namespace orby::test
