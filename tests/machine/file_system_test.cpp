// What every file system does alike: that of the machine, and that of the other tests, which is in memory.
#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <string>

#include "base/paths.h"
#include "base/runtime_error.h"
#include "machine/disk_files.h"
#include "support/memory_files.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct OnDisk {
  TemporaryFolder place;
  DiskFiles files{"/opt/orby"};
  std::string folder = place.Path();
};

struct InMemory {
  InMemory() { files.MakeFolder(folder); }

  MemoryFiles files;
  std::string folder = "/tmp/test";
};

template <class Home>
class EveryFileSystem : public testing::Test {
 protected:
  std::string At(const std::string& name) const { return WithSeparator(home.folder) + name; }
  void Store(const std::string& name, const std::string& bytes) {
    const auto file = files.CreateFile(At(name));
    file->Write(bytes);
    file->Close();
  }
  void WriteOver(const std::string& name, const std::string& bytes) {
    const auto file = files.OpenInPlace(At(name), bytes.size());
    file->Write(bytes);
    file->Close();
  }
  int ErrorOfReading(const std::string& path) {
    return ErrorNumberOf([&] { static_cast<void>(files.ReadFile(path)); });
  }

  Home home;
  FileSystem& files = home.files;
};

struct HomeNames {
  template <class Home>
  static std::string GetName(int) {
    return std::is_same_v<Home, OnDisk> ? "OfTheMachine" : "InMemory";
  }
};

using Homes = testing::Types<OnDisk, InMemory>;
TYPED_TEST_SUITE(EveryFileSystem, Homes, HomeNames);

TYPED_TEST(EveryFileSystem, ReadsTheBytesThatWereWritten) {
  const std::string bytes("Title\r\n\0\x80\xFF\x1A end\n", 17);

  this->Store("panel.ORB", bytes);

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), bytes);
}

TYPED_TEST(EveryFileSystem, JoinsTheBytesOfSeveralWrites) {
  const auto file = this->files.CreateFile(this->At("panel.ORB"));

  file->Write("ORBY_105");
  file->Write("");
  file->Write("\r\n");
  file->Close();

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), "ORBY_105\r\n");
}

TYPED_TEST(EveryFileSystem, ReadsAnEmptyFileAsNothing) {
  this->Store("empty.ORB", "");

  EXPECT_EQ(this->files.ReadFile(this->At("empty.ORB")), "");
}

TYPED_TEST(EveryFileSystem, EmptiesAnExistingFileAsSoonAsItIsOpenedForWriting) {
  this->Store("panel.ORB", "a longer text");

  const auto file = this->files.CreateFile(this->At("panel.ORB"));

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), "");
}

TYPED_TEST(EveryFileSystem, KeepsTheBytesOfAFileThatWasNotClosed) {
  this->files.CreateFile(this->At("panel.ORB"))->Write("half");

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), "half");
}

TYPED_TEST(EveryFileSystem, RemovesAFile) {
  this->Store("panel.ORB", "x");

  this->files.RemoveFile(this->At("panel.ORB"));

  EXPECT_FALSE(this->files.Finds(this->At("panel.ORB")));
}

TYPED_TEST(EveryFileSystem, HasNamesOfEveryScriptAndWithBlanks) {
  const std::string name = "Stollen \xC3\xA4 \xD0\x96 \xE4\xB8\xAD.ORB";

  this->Store(name, "bytes");

  EXPECT_TRUE(this->files.FindsFile(this->At(name)));
  EXPECT_THAT(this->files.FilesIn(this->home.folder), ElementsAre(this->At(name)));
  EXPECT_EQ(this->files.ReadFile(this->At(name)), "bytes");
}

TYPED_TEST(EveryFileSystem, HasPathsOf300Characters) {
  const std::string folder = this->At(std::string(150, 'f'));
  const std::string path = WithSeparator(folder) + std::string(150, 'n');

  this->files.MakeFolder(folder);
  this->files.CreateFile(path)->Close();

  EXPECT_TRUE(this->files.FindsFile(path));
  EXPECT_THAT(this->files.FilesIn(folder), ElementsAre(path));
}

TYPED_TEST(EveryFileSystem, FindsFoldersOnlyOnRequest) {
  this->Store("panel.ORB", "x");

  EXPECT_TRUE(this->files.FindsFile(this->At("panel.ORB")));
  EXPECT_TRUE(this->files.Finds(this->At("panel.ORB")));
  EXPECT_FALSE(this->files.FindsFile(this->home.folder));
  EXPECT_TRUE(this->files.Finds(this->home.folder));
  EXPECT_TRUE(this->files.Finds(WithSeparator(this->home.folder)));
}

TYPED_TEST(EveryFileSystem, FindsNoMissingFile) {
  EXPECT_FALSE(this->files.Finds(this->At("missing.ORB")));
  EXPECT_FALSE(this->files.Finds(this->At("nowhere/missing.ORB")));
  EXPECT_FALSE(this->files.Finds(""));
}

TYPED_TEST(EveryFileSystem, ReportsAMissingFile) {
  EXPECT_EQ(this->ErrorOfReading(this->At("missing.ORB")), error_number::FileNotFound);
  EXPECT_EQ(ErrorNumberOf([&] { this->files.RemoveFile(this->At("missing.ORB")); }), error_number::FileNotFound);
}

TYPED_TEST(EveryFileSystem, ReportsAMissingFolder) {
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(this->files.FoldersIn(this->At("missing"))); }),
            error_number::PathNotFound);
}

TYPED_TEST(EveryFileSystem, RenamesAFileToANameThatIsFree) {
  this->Store("panel.tmp", "new");

  this->files.RenameFile(this->At("panel.tmp"), this->At("panel.ORB"));

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), "new");
}

TYPED_TEST(EveryFileSystem, RenamesAFileOverAnotherOne) {
  this->Store("old.ORB", "kept");
  this->Store("new.ORB", "replaced");

  this->files.RenameFile(this->At("old.ORB"), this->At("new.ORB"));

  EXPECT_FALSE(this->files.FindsFile(this->At("old.ORB")));
  EXPECT_EQ(this->files.ReadFile(this->At("new.ORB")), "kept");
}

TYPED_TEST(EveryFileSystem, ReplacesAFileAndLeavesNothingBesideIt) {
  this->Store("panel.ORB", "old");

  this->files.ReplaceFile(this->At("panel.ORB"), "new bytes");
  this->files.ReplaceFile(this->At("other.ORB"), "a new file");

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), "new bytes");
  EXPECT_THAT(this->files.FilesIn(this->home.folder), ElementsAre(this->At("other.ORB"), this->At("panel.ORB")));
}

TYPED_TEST(EveryFileSystem, ReplacesAFileByOneWithNuls) {
  this->Store("panel.ORB", "a longer text than the new one");

  this->files.ReplaceFile(this->At("panel.ORB"), std::string_view("new\0bytes", 9));

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), std::string("new\0bytes", 9));
}

TYPED_TEST(EveryFileSystem, LeavesAFileUntouchedThatIsOpenInItsPlaceUntilBytesAreWritten) {
  this->Store("panel.ORB", "the design of last week");

  const auto file = this->files.OpenInPlace(this->At("panel.ORB"), 1'000'000);

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), "the design of last week");
}

TYPED_TEST(EveryFileSystem, OverwritesAFileInItsPlaceByAShorterText) {
  this->Store("panel.ORB", "the design of last week");

  this->WriteOver("panel.ORB", "today's");

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), "today's");
}

TYPED_TEST(EveryFileSystem, OverwritesAFileInItsPlaceByALongerText) {
  this->Store("panel.ORB", "old");
  const std::string bytes(300'007, 'x');

  this->WriteOver("panel.ORB", bytes);

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), bytes);
}

TYPED_TEST(EveryFileSystem, MakesAMissingFileThatIsOpenedInItsPlace) {
  this->WriteOver("panel.ORB", "new");

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), "new");
}

TYPED_TEST(EveryFileSystem, KeepsTheOldEndOfAFileThatWasNotClosedInItsPlace) {
  this->Store("panel.ORB", "the design");

  this->files.OpenInPlace(this->At("panel.ORB"), 3)->Write("new");

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), "new design");
}

TYPED_TEST(EveryFileSystem, MakesAnEmptyFileLikeAnotherOne) {
  this->Store("panel.ORB", "a design");

  this->files.MakeFileLike(this->At("new.ORB"), this->At("panel.ORB"));

  EXPECT_EQ(this->files.ReadFile(this->At("new.ORB")), "");
  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), "a design");
}

TYPED_TEST(EveryFileSystem, ResolvesAPathWithoutLinksToItself) {
  this->Store("panel.ORB", "");

  EXPECT_EQ(this->files.ResolveLinks(this->At("panel.ORB")), this->At("panel.ORB"));
  EXPECT_EQ(this->files.ResolveLinks(this->At("missing.ORB")), this->At("missing.ORB"));
}

TYPED_TEST(EveryFileSystem, ReadsAFileInPieces) {
  this->Store("panel.ORB", "abcde");

  const auto file = this->files.OpenFile(this->At("panel.ORB"));

  EXPECT_EQ(this->files.FileLength(this->At("panel.ORB")), 5U);
  EXPECT_EQ(file->Read(3), "abc");
  EXPECT_EQ(file->Read(3), "de");
  EXPECT_EQ(file->Read(3), "");
}

TYPED_TEST(EveryFileSystem, MakesFoldersAndThoseAboveThem) {
  this->files.MakeFolder(this->At("North/Panel 3"));
  this->files.MakeFolder(this->At("North/Panel 3"));
  this->files.MakePrivateFolder(this->At("South"));

  EXPECT_TRUE(this->files.Finds(this->At("North/Panel 3")));
  EXPECT_THAT(this->files.FoldersIn(this->home.folder), testing::IsSupersetOf({"South"}));
  EXPECT_TRUE(this->files.CanWriteTo(this->At("South")));
  EXPECT_THAT(this->files.FilesIn(this->At("South")), IsEmpty());
}

TYPED_TEST(EveryFileSystem, KeepsTheFilesOfAFolderThatIsMadeAgain) {
  this->files.MakeFolder(this->At("North"));
  this->Store("North/panel.ORB", "x");

  this->files.MakeFolder(this->At("North/"));
  this->files.MakePrivateFolder(this->At("North"));

  EXPECT_EQ(this->files.ReadFile(this->At("North/panel.ORB")), "x");
}

TYPED_TEST(EveryFileSystem, ListsTheFilesOfAFolderSortedAndWithoutTheFoldersInIt) {
  this->files.MakeFolder(this->At("old"));
  for (const char* name : {"weak-roof.ORB", "belt-entry.ORB", "North.ORB", "old/older.ORB"}) this->Store(name, "x");

  const auto expected = ElementsAre(this->At("North.ORB"), this->At("belt-entry.ORB"), this->At("weak-roof.ORB"));
  EXPECT_THAT(this->files.FilesIn(this->home.folder), expected);
  EXPECT_THAT(this->files.FilesIn(WithSeparator(this->home.folder)), expected);
}

TYPED_TEST(EveryFileSystem, ListsNoFilesOfAMissingFolder) {
  EXPECT_THAT(this->files.FilesIn(this->At("nowhere")), IsEmpty());
}

TYPED_TEST(EveryFileSystem, ListsTheFoldersOfAFolderSortedAndWithoutItsFiles) {
  this->files.MakeFolder(this->At("panel 3"));
  this->files.MakeFolder(this->At("belt entry"));
  this->Store("design.ORB", "");

  EXPECT_THAT(this->files.FoldersIn(this->home.folder), ElementsAre("belt entry", "panel 3"));
}

TYPED_TEST(EveryFileSystem, MarksTwoFilesIndependently) {
  const auto first = this->files.TryMark(this->At("first.lock"));
  const auto second = this->files.TryMark(this->At("second.lock"));

  EXPECT_NE(first, nullptr);
  EXPECT_NE(second, nullptr);
}

TYPED_TEST(EveryFileSystem, MarksAFileWithoutChangingIt) {
  this->Store("panel.ORB", "x");

  const auto mark = this->files.TryMark(this->At("panel.ORB"));

  EXPECT_NE(mark, nullptr);
  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), "x");
}

TYPED_TEST(EveryFileSystem, MarksAFileForOneProgramAtATime) {
  auto mark = this->files.TryMark(this->At("slot.lck"));

  EXPECT_NE(mark, nullptr);
  EXPECT_EQ(this->files.TryMark(this->At("slot.lck")), nullptr);
  EXPECT_NO_THROW(static_cast<void>(this->files.ReadFile(this->At("slot.lck"))));

  mark.reset();
  EXPECT_NE(this->files.TryMark(this->At("slot.lck")), nullptr);
}

TYPED_TEST(EveryFileSystem, ListsDrivesThatItFinds) {
  const auto drives = this->files.Drives();

  ASSERT_FALSE(drives.empty());
  for (const std::string& drive : drives) EXPECT_TRUE(IsRoot(drive) || this->files.Finds(drive)) << drive;
}

TYPED_TEST(EveryFileSystem, LeavesAnAbsolutePathAsItIs) {
  EXPECT_EQ(this->files.AbsolutePath(this->At("panel.ORB")), this->At("panel.ORB"));
}

}  // namespace
}  // namespace orby::test
