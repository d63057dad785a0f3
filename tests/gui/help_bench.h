// The committed help, as tests read it.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <memory>
#include <stdexcept>
#include <string>

#include "help/chm_file.h"
#include "help/help_book.h"
#include "qt/texts.h"

namespace orby::test {

inline const std::string HelpFolder = HELP_DIR;
inline const std::string CommittedHelp = HelpFolder + "/ORBY.CHM";

inline QByteArray FileBytes(const std::string& path) {
  QFile file(ToQt(path));
  if (!file.open(QIODevice::ReadOnly)) throw std::logic_error("cannot read " + path);
  return file.readAll();
}

// The committed help file and the book in it.
struct CommittedBook {
  std::unique_ptr<ChmFile> file = ChmFile::Open(CommittedHelp);
  HelpBook book{[this](const std::string& name) { return file->Read(name); }};
};

// Returns every line of the contents, on all levels.
inline std::vector<HelpEntry> AllEntries(const std::vector<HelpEntry>& entries) {
  std::vector<HelpEntry> all;
  for (const HelpEntry& entry : entries) {
    all.push_back({entry.title, entry.place, {}});
    const auto inner = AllEntries(entry.entries);
    all.insert(all.end(), inner.begin(), inner.end());
  }
  return all;
}

}  // namespace orby::test
