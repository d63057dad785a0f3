// Texts between the models, which are UTF-8 with CR LF, and the toolkit.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace orby {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Several lines, as the toolkit's text boxes hold them.
inline QString ToQtLines(std::string_view text) { return ToQt(text).replace("\r\n", "\n"); }

inline std::string FromQt(const QString& text) { return text.toStdString(); }
inline std::string FromQtLines(QString text) { return FromQt(text.replace("\n", "\r\n")); }

}  // namespace orby
