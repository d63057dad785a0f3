// Where a spreadsheet file can be.
#include <gmock/gmock.h>

#include <string>

#include "base/runtime_error.h"
#include "machine/disk_files.h"
#include "spreadsheet/sheet_file.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

struct SheetPath : testing::Test {
  int ErrorOfWriting(const std::string& path) {
    return ErrorNumberOf([&] {
      WriteSheetFile({"Panel 3", "Depth of Cover (ft)", "PSUP", {{"X-coord", "PSUP", {200}, {3.25}}}}, path);
    });
  }

  const TemporaryFolder folder;
  DiskFiles files{"/opt/orby"};
};

TEST_F(SheetPath, HasLettersOfEveryScriptAndBlanks) {
  const std::string name =
      "S\xC3\xBC"
      "d \xD0\x96 \xE4\xB8\xAD.xlsx";

  EXPECT_EQ(ErrorOfWriting(folder.At(name)), 0);

  EXPECT_THAT(files.FilesIn(folder.Path()), ElementsAre(testing::EndsWith(name)));
  EXPECT_THAT(files.ReadFile(folder.At(name)), StartsWith("PK"));
}

TEST_F(SheetPath, HasMoreThan300Characters) {
  const std::string path = folder.At(std::string(150, 'f') + "/" + std::string(150, 'n') + ".xlsx");
  files.MakeFolder(folder.At(std::string(150, 'f')));

  EXPECT_EQ(ErrorOfWriting(path), 0);

  EXPECT_THAT(files.ReadFile(path), StartsWith("PK"));
}

TEST_F(SheetPath, IsThatOfAnOlderFileWhichIsReplaced) {
  files.ReplaceFile(folder.At("curve.xlsx"), std::string(100'000, 'x'));

  EXPECT_EQ(ErrorOfWriting(folder.At("curve.xlsx")), 0);

  EXPECT_THAT(files.ReadFile(folder.At("curve.xlsx")), StartsWith("PK"));
  EXPECT_LT(files.FileLength(folder.At("curve.xlsx")), 100'000U);
}

TEST_F(SheetPath, MustLeadToAFile) {
  EXPECT_EQ(ErrorOfWriting(folder.At("missing/curve.xlsx")), error_number::PathFileAccess);
  EXPECT_EQ(ErrorOfWriting(folder.Path()), error_number::PathFileAccess);
}

}  // namespace
}  // namespace orby::test
