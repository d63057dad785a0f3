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

TYPED_TEST(EveryFileSystem, EmptiesAnOlderFileThatIsWrittenAnew) {
  this->Store("panel.ORB", "a long old text");

  this->Store("panel.ORB", "new");

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), "new");
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

TYPED_TEST(EveryFileSystem, FindsFoldersAndFiles) {
  EXPECT_TRUE(this->files.Finds(this->home.folder));
  EXPECT_FALSE(this->files.FindsFile(this->home.folder));
  EXPECT_FALSE(this->files.Finds(this->At("missing")));
}

TYPED_TEST(EveryFileSystem, ReportsAMissingFile) {
  EXPECT_EQ(this->ErrorOfReading(this->At("missing.ORB")), error_number::FileNotFound);
  EXPECT_EQ(ErrorNumberOf([&] { this->files.RemoveFile(this->At("missing.ORB")); }), error_number::FileNotFound);
}

TYPED_TEST(EveryFileSystem, ReportsAMissingFolder) {
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(this->files.FoldersIn(this->At("missing"))); }),
            error_number::PathNotFound);
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

TYPED_TEST(EveryFileSystem, OverwritesAFileInItsPlace) {
  this->Store("panel.ORB", "a long old text");

  const auto file = this->files.OpenInPlace(this->At("panel.ORB"), 3);
  file->Write("new");
  file->Close();

  EXPECT_EQ(this->files.ReadFile(this->At("panel.ORB")), "new");
}

TYPED_TEST(EveryFileSystem, ReadsAFileInPieces) {
  this->Store("panel.ORB", "abcde");

  const auto file = this->files.OpenFile(this->At("panel.ORB"));

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

// Only the file system of the machine has devices, and names that are no names.
struct ThisMachine : testing::Test {
  OnDisk home;
};

TEST_F(ThisMachine, ReportsAFolderInThePlaceOfAFile) {
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(home.files.ReadFile(home.folder)); }), error_number::PathFileAccess);
  EXPECT_EQ(ErrorNumberOf([&] { home.files.ReplaceFile(home.folder, "bytes"); }), error_number::PathFileAccess);
}

TEST_F(ThisMachine, ReportsAMissingFolderOfAFile) {
  const std::string path = WithSeparator(home.folder) + "missing/panel.ORB";

  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(home.files.ReadFile(path)); }), error_number::PathNotFound);
  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(home.files.CreateFile(path)); }), error_number::PathNotFound);
}

TEST_F(ThisMachine, RefusesANameWithoutCharactersOrWithANul) {
  for (const std::string& path : {std::string(), home.place.At(std::string("a\0b", 3))}) {
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(home.files.ReadFile(path)); }), error_number::BadFileName);
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(home.files.CreateFile(path)); }), error_number::BadFileName);
  }
}

TEST_F(ThisMachine, KnowsWhenAFileWasWritten) {
  home.files.CreateFile(home.place.At("panel.ORB"))->Close();

  const auto written = home.files.WrittenAt(home.place.At("panel.ORB"));

  ASSERT_TRUE(written.has_value());
  EXPECT_GE(written->date.year, 2024);
  EXPECT_FALSE(home.files.WrittenAt(home.place.At("missing")).has_value());
}

TEST_F(ThisMachine, HasAFolderForTemporaryFiles) { EXPECT_TRUE(home.files.Finds(home.files.TemporaryFolder())); }

}  // namespace
}  // namespace orby::test
