// The section [ORBYDesigns] of the configuration file.
#include "config/designs_section.h"

#include <gmock/gmock.h>

namespace orby::test {
namespace {

TEST(DesignsSection, KeepsAFolderWithAnyBytes) {
  for (const char* folder : {"/home/mine/", "C:\\mine\\", "/mine/caf\xE9/", " /odd \"name\"/"}) {
    IniText ini;
    WriteDesignsFolder(folder, ini);

    EXPECT_EQ(ReadDesignsFolder(IniText::FromFileBytes(ini.FileBytes())), folder);
  }
}

TEST(DesignsSection, HasNoFolderInAFileWithoutIt) { EXPECT_EQ(ReadDesignsFolder(IniText()), ""); }

}  // namespace
}  // namespace orby::test
