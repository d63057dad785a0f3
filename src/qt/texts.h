// Converts texts between the models, which use UTF-8 and CR LF, and the toolkit.
#pragma once

#include <QDir>
#include <QString>
#include <string>
#include <string_view>

namespace orby {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Converts several lines to the form that the toolkit's text boxes use.
inline QString ToQtLines(std::string_view text) { return ToQt(text).replace("\r\n", "\n"); }

inline std::string FromQt(const QString& text) { return text.toStdString(); }
// Converts a path, which the toolkit writes with "/" on every machine.
inline std::string PathFromQt(const QString& path) { return FromQt(QDir::toNativeSeparators(path)); }
inline std::string FromQtLines(QString text) { return FromQt(text.replace("\n", "\r\n")); }

}  // namespace orby
