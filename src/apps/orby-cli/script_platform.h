// The platform of orby-cli: no windows, messages on standard error, temporary files in memory.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "machine/disk_files.h"
#include "platform/no_desktop.h"

namespace orby::cli {

// Writes each message to standard error as "message: text", or collects it if a caller asked for the messages.
class ScriptBoxes : public MessageBoxes {
 public:
  BoxResult Show(const MessageBox& box) override;

  bool Keeps = false;
  std::vector<std::string> Kept;
};

// The files of the machine, except that temporary files stay in memory. A file that is written replaces the old one
// when it is closed; if it is not closed, the old one stays.
class ScriptFiles : public DiskFiles {
 public:
  ScriptFiles() : DiskFiles(".") {}

  Found Find(const std::string& path) override;
  std::string ReadFile(const std::string& path) override;
  std::unique_ptr<OutputFile> CreateFile(const std::string& path) override;
  std::unique_ptr<OutputFile> OpenInPlace(const std::string& path, std::uint64_t length) override;
  void RemoveFile(const std::string& path) override;
  std::string TemporaryFolder() override;

 private:
  std::map<std::string, std::string> scratch_;
};

class PointLocale : public Locale {
 public:
  std::string DecimalSeparator() override { return "."; }
  bool UsesLetter() override { return false; }
};

struct ScriptPlatform {
  ScriptBoxes boxes;
  ScriptFiles files;
  NoFileDialogs fileDialogs;
  NoWindows windows;
  NoFonts fonts;
  PointLocale locale;
  NoClock clock;
  NoUserFolders userFolders;
  NoClipboard clipboard;
  NoPrinter printer;
  NoDocuments documents;
  NoHelpViewer help;
  NoDownloads downloads;
  NoFileTypes fileTypes;
  NoPictureFiles pictures;

  Platform AsPlatform() {
    return {boxes,     files,   fileDialogs, windows, fonts,     locale,    clock,   userFolders,
            clipboard, printer, documents,   help,    downloads, fileTypes, pictures};
  }
};

}  // namespace orby::cli
