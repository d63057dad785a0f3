// Moves the user's cache folder to another folder as long as this object exists.
#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

namespace orby::test {

class CacheInFolder {
 public:
  explicit CacheInFolder(const QString& folder) : before_(qgetenv(Name)) { qputenv(Name, folder.toUtf8()); }
  ~CacheInFolder() { before_.isNull() ? qunsetenv(Name) : qputenv(Name, before_); }
  CacheInFolder(const CacheInFolder&) = delete;
  CacheInFolder& operator=(const CacheInFolder&) = delete;

 private:
  static constexpr const char* Name = "XDG_CACHE_HOME";

  QByteArray before_;
};

}  // namespace orby::test
