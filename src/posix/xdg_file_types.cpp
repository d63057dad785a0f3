#include "posix/xdg_file_types.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "base/attempt.h"
#include "base/markup_text.h"
#include "base/paths.h"
#include "base/text.h"
#include "machine/file_types.h"
#include "platform/whole_file.h"

namespace orby {
namespace {

constexpr std::string_view ProgramFile = "orby";  // in the program's folder
constexpr std::string_view IconFile = "orby.svg";
constexpr std::string_view IconName = "orby";
constexpr std::string_view DesktopEntry = "orby.desktop";

// How a character with a meaning in a format is written.
struct Escape {
  char Letter;
  std::string_view Written;
};

template <std::size_t count>
std::string Escaped(std::string_view text, const Escape (&escapes)[count]) {
  std::string escaped;
  for (const char letter : text) {
    const auto* found = std::ranges::find(escapes, letter, &Escape::Letter);
    if (found == std::end(escapes)) {
      escaped += letter;
    } else {
      escaped += found->Written;
    }
  }
  return escaped;
}

// Returns an argument of a command line in quotes. The command line is itself the value of a key, so each backslash is
// escaped twice.
std::string QuotedArgument(std::string_view text) {
  const std::string quoted = Escaped(text, {{'"', "\\\""}, {'`', "\\`"}, {'$', "\\$"}, {'\\', "\\\\"}, {'%', "%%"}});
  return '"' + Escaped(quoted, {{'\\', "\\\\"}, {'\n', "\\n"}, {'\r', "\\r"}, {'\t', "\\t"}}) + '"';
}

// Returns the extension as a part of a type's name: lower-case letters, digits, "+", "-" and ".". Any other byte
// becomes "-".
std::string TypePart(std::string_view extension) {
  std::string part;
  for (const char letter : extension) {
    if (letter >= 'A' && letter <= 'Z') {
      part += static_cast<char>(letter - 'A' + 'a');
    } else {
      const bool isPlain = (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9') || letter == '+' ||
                           letter == '-' || letter == '.';
      part += isPlain ? letter : '-';
    }
  }
  return part;
}

// The type that the desktop gives to the files of an extension.
class FileType {
 public:
  explicit FileType(std::string extension)
      : extension_(std::move(extension)), subtype_("x-orby-" + TypePart(extension_)) {}

  std::string Name() const { return "application/" + subtype_; }
  std::string DescriptionFile() const { return subtype_ + ".xml"; }
  std::string IconFile() const { return "application-" + subtype_ + ".svg"; }

  // The desktop matches names without regard to case.
  std::string Description() const {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
           "  <mime-type type=\"" +
           Name() + "\">\n    <comment>" + EscapedMarkup(UpperCase(extension_) + "_File") +
           "</comment>\n    <glob pattern=\"" + EscapedMarkup("*." + extension_) +
           "\"/>\n  </mime-type>\n</mime-info>\n";
  }

 private:
  std::string extension_;
  std::string subtype_;
};

std::string EntryText(const std::string& programName, const std::string& programPath, const FileType& type,
                      bool hasIcon) {
  std::string text = "[Desktop Entry]\nType=Application\nName=" + programName +
                     "\nComment=Roof support design for underground coal mines\nExec=" + QuotedArgument(programPath) +
                     " %f\n";
  if (hasIcon) text.append("Icon=").append(IconName).append("\n");
  return text + "Terminal=false\nCategories=Science;Engineering;\nMimeType=" + type.Name() + ";\n";
}

// The user's folder for additions to the desktop.
class DesktopData {
 public:
  DesktopData(FileSystem& files, std::string_view folder) : files_(files), folder_(WithSeparator(folder)) {}

  std::string PathOf(std::string_view folder) const { return folder_ + std::string(folder); }

  void Write(std::string_view folder, std::string_view name, std::string_view bytes) {
    const std::string path = PathOf(folder);
    Succeeds([&] { files_.MakeFolder(path); });
    TryWriteWhole(files_, WithSeparator(path).append(name), bytes);
  }

 private:
  FileSystem& files_;
  std::string folder_;
};

}  // namespace

void XdgFileTypes::Associate(const std::string& extension, const std::string& programName) {
  const std::optional<std::string> dataFolder = userFolders_.Data();
  if (!dataFolder) return;
  const FileType type(extension);
  const std::string programFolder = WithSeparator(Trim(files_.ProgramFolder()));
  DesktopData data(files_, *dataFolder);
  std::string icon;
  const bool hasIcon = Succeeds([&] { icon = files_.ReadFile(programFolder + std::string(IconFile)); });
  if (hasIcon) {
    data.Write("icons/hicolor/scalable/apps", IconFile, icon);
    data.Write("icons/hicolor/scalable/mimetypes", type.IconFile(), icon);
  }
  const std::string programPath = programFolder + std::string(ProgramFile);
  data.Write("mime/packages", type.DescriptionFile(), type.Description());
  data.Write("applications", DesktopEntry, EntryText(programName, programPath, type, hasIcon));
  programs_.RunToEnd("update-mime-database", {data.PathOf("mime")});
  programs_.RunToEnd("update-desktop-database", {data.PathOf("applications")});
  programs_.RunToEnd("xdg-mime", {"default", std::string(DesktopEntry), type.Name()});
}

std::unique_ptr<FileTypes> MakeFileTypes(FileSystem& files, UserFolders& userFolders, Documents& programs) {
  return std::make_unique<XdgFileTypes>(files, userFolders, programs);
}

}  // namespace orby
