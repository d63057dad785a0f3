#include "base/paths.h"
#include "base/text.h"
#include "machine/file_types.h"
#include "windows/system.h"
#include "windows/wide_text.h"

namespace orby {
namespace {

constexpr std::string_view Classes = "Software\\Classes\\";
constexpr std::string_view ProgramFile = "ORBY.EXE";  // in the program's folder

// Makes the key below the classes of the user, and sets its default value.
void SetDefault(const std::string& key, const std::string& value) {
  const std::wstring path = WideText(std::string(Classes) + key);
  const std::wstring text = WideText(value);
  const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), nullptr, REG_SZ, text.c_str(), size);
}

// The classes of the user need no administrator rights. The registry shows them below HKEY_CLASSES_ROOT.
class RegistryFileTypes : public FileTypes {
 public:
  explicit RegistryFileTypes(FileSystem& files) : files_(files) {}

  void Associate(const std::string& extension, const std::string&) override {
    const std::string type = UpperCase(extension) + "_File";
    const std::string program = UpperCase(WithSeparator(Trim(files_.ProgramFolder()))) + std::string(ProgramFile);
    SetDefault("." + extension, type);
    SetDefault(type, type);
    // The path has no quotes, also when it contains blanks: Windows tries the words of such a command one by one.
    SetDefault(type + "\\shell\\open\\command", program + " \"%1\"");
    SetDefault(type + "\\DefaultIcon", program);
  }

 private:
  FileSystem& files_;
};

}  // namespace

std::unique_ptr<FileTypes> MakeFileTypes(FileSystem& files, UserFolders&, Documents&) {
  return std::make_unique<RegistryFileTypes>(files);
}

}  // namespace orby
