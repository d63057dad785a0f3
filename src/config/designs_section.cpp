#include "config/designs_section.h"

#include <string_view>

#include "config/path_value.h"

namespace orby {
namespace {

constexpr std::string_view DesignsSection = "ORBYDesigns";
constexpr std::string_view FolderKey = "Folder";

}  // namespace

std::string ReadDesignsFolder(const IniText& ini) {
  return PathFromValue(ini.Find(DesignsSection, FolderKey).value_or(""));
}

void WriteDesignsFolder(const std::string& folder, IniText& ini) {
  WriteIniValue(ini, DesignsSection, FolderKey, ValueFromPath(folder));
}

}  // namespace orby
