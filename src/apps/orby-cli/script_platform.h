// The platform of a script: no windows, messages on standard error, temporary files in memory.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/no_desktop.h"
#include "posix/disk_files.h"

namespace orby::cli {

// Tells messages on standard error as "message: text", or keeps them for whoever asked for them.
class ScriptBoxes : public MessageBoxes {
 public:
  BoxResult Show(const MessageBox& box) override;

  bool Keeps = false;
  std::vector<std::string> Kept;
};

// The machine's files, but for the temporary ones: nothing is written that was not asked for. A file that is written
// takes the place of the one before as a whole, when it is closed; one that is not closed leaves that one as it was.
class ScriptFiles : public DiskFiles {
 public:
  ScriptFiles() : DiskFiles(".") {}

  bool Finds(const std::string& path, bool foldersToo) override;
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

  Platform Doors() {
    return {boxes,       files,     fileDialogs, windows,   fonts, locale,    clock,
            userFolders, clipboard, printer,     documents, help,  downloads, fileTypes};
  }
};

}  // namespace orby::cli
