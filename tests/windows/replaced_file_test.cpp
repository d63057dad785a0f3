// Files of Windows that are replaced in one step, or overwritten in their place.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "machine/disk_files.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"
#include "windows/system.h"
#include "windows/wide_text.h"

namespace {

// The calls of the system that store a file, in their order.
std::vector<std::string>& Calls() {
  static std::vector<std::string> names;
  return names;
}

// Errors that the next call of each function reports. A call with 0 reaches the system.
struct {
  DWORD ofWrite;
  DWORD ofFlush;
  DWORD ofMove;
} Errors;

template <class Function>
Function FromTheSystem(const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), name)));
}

// Returns true if the call must fail.
bool Meets(const char* name, DWORD& error) {
  Calls().emplace_back(name);
  if (error == 0) return false;
  SetLastError(error);
  error = 0;
  return true;
}

using WriteFunction = BOOL(WINAPI*)(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED);
using FlushFunction = BOOL(WINAPI*)(HANDLE);
using MoveFunction = BOOL(WINAPI*)(LPCWSTR, LPCWSTR, DWORD);

BOOL WINAPI Write(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD count, LPOVERLAPPED place) {
  static const auto write = FromTheSystem<WriteFunction>("WriteFile");
  return Meets("write", Errors.ofWrite) ? FALSE : write(file, bytes, size, count, place);
}

BOOL WINAPI Flush(HANDLE file) {
  static const auto flush = FromTheSystem<FlushFunction>("FlushFileBuffers");
  return Meets("flush", Errors.ofFlush) ? FALSE : flush(file);
}

BOOL WINAPI Move(LPCWSTR from, LPCWSTR to, DWORD flags) {
  static const auto move = FromTheSystem<MoveFunction>("MoveFileExW");
  return Meets("move", Errors.ofMove) ? FALSE : move(from, to, flags);
}

}  // namespace

// These replace the pointers through which the program calls the system.
extern "C" {
WriteFunction __imp_WriteFile = Write;
FlushFunction __imp_FlushFileBuffers = Flush;
MoveFunction __imp_MoveFileExW = Move;
}

namespace orby::test {
namespace {

using testing::ElementsAre;

struct StoredFile : testing::Test {
  StoredFile() { Calls().clear(); }
  ~StoredFile() override {
    Errors = {};
    for (const std::string& name : folder.Names()) SetAttributes(name, FILE_ATTRIBUTE_NORMAL);
  }

  std::string At(const std::string& name) const { return folder.At(name); }
  void SetAttributes(const std::string& name, DWORD attributes) const {
    SetFileAttributesW(WideText(At(name)).c_str(), attributes);
  }
  DWORD AttributesOf(const std::string& name) const { return GetFileAttributesW(WideText(At(name)).c_str()); }
  int ErrorOfReplacing(const std::string& name) {
    return ErrorNumberOf([&] { files.ReplaceFile(At(name), "new"); });
  }
  int ErrorOfOverwriting(const std::string& name) {
    return ErrorNumberOf([&] { static_cast<void>(files.OpenInPlace(At(name), 3)); });
  }

  TemporaryFolder folder;
  DiskFiles files{"C:\\Orby"};
};

TEST_F(StoredFile, IsOnTheDiskBeforeItTakesTheNameOfTheOldOne) {
  files.ReplaceFile(At("ORBY.INI"), "new");

  EXPECT_THAT(Calls(), ElementsAre("write", "flush", "move"));
}

TEST_F(StoredFile, IsOnTheDiskWhenItHasBeenOverwrittenInItsPlace) {
  const auto file = files.OpenInPlace(At("panel.ORB"), 3);
  file->Write("new");
  file->Close();

  EXPECT_THAT(Calls(), ElementsAre("write", "flush"));
}

TEST_F(StoredFile, IsUnchangedWhenTheDiskIsFull) {
  folder.Store("ORBY.INI", "old");
  Errors.ofWrite = ERROR_DISK_FULL;

  EXPECT_EQ(ErrorOfReplacing("ORBY.INI"), 61);

  EXPECT_EQ(folder.Read("ORBY.INI"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("ORBY.INI"));
}

TEST_F(StoredFile, IsUnchangedWhenTheNewBytesDoNotReachTheDisk) {
  folder.Store("ORBY.INI", "old");
  Errors.ofFlush = ERROR_WRITE_FAULT;

  EXPECT_EQ(ErrorOfReplacing("ORBY.INI"), 75);

  EXPECT_EQ(folder.Read("ORBY.INI"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("ORBY.INI"));
}

TEST_F(StoredFile, CanBeOnADiskThatCannotBeFlushed) {
  Errors.ofFlush = ERROR_INVALID_FUNCTION;

  EXPECT_EQ(ErrorOfReplacing("ORBY.INI"), 0);

  EXPECT_EQ(folder.Read("ORBY.INI"), "new");
}

TEST_F(StoredFile, IsUnchangedWhenAnotherProgramDoesNotLetItBeReplaced) {
  folder.Store("ORBY.INI", "old");
  Errors.ofMove = ERROR_SHARING_VIOLATION;

  EXPECT_EQ(ErrorOfReplacing("ORBY.INI"), 70);

  EXPECT_EQ(folder.Read("ORBY.INI"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("ORBY.INI"));
}

TEST_F(StoredFile, IsUnchangedWhenItIsReadOnly) {
  folder.Store("panel.ORB", "old");
  SetAttributes("panel.ORB", FILE_ATTRIBUTE_READONLY);

  EXPECT_EQ(ErrorOfReplacing("panel.ORB"), 70);

  EXPECT_EQ(folder.Read("panel.ORB"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("panel.ORB"));
}

TEST_F(StoredFile, CannotBeUsedWhileAnotherProgramHasItForItself) {
  folder.Store("panel.ORB", "old");
  HANDLE other = CreateFileW(WideText(At("panel.ORB")).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(other, INVALID_HANDLE_VALUE);

  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(files.ReadFile(At("panel.ORB"))); }), 70);
  EXPECT_EQ(ErrorOfReplacing("panel.ORB"), 70);
  EXPECT_EQ(ErrorOfOverwriting("panel.ORB"), 70);

  CloseHandle(other);
  EXPECT_EQ(folder.Read("panel.ORB"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("panel.ORB"));
}

TEST_F(StoredFile, StaysHidden) {
  folder.Store("ORBY.INI", "old");
  SetAttributes("ORBY.INI", FILE_ATTRIBUTE_HIDDEN);

  files.ReplaceFile(At("ORBY.INI"), "new");
  files.MakeFileLike(At("second.INI"), At("ORBY.INI"));

  EXPECT_EQ(folder.Read("ORBY.INI"), "new");
  EXPECT_NE(AttributesOf("ORBY.INI") & FILE_ATTRIBUTE_HIDDEN, 0U);
  EXPECT_NE(AttributesOf("second.INI") & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST_F(StoredFile, CanBeOverwrittenWhileItIsHidden) {
  folder.Store("ORBY.INI", "a longer text");
  SetAttributes("ORBY.INI", FILE_ATTRIBUTE_HIDDEN);

  files.CreateFile(At("ORBY.INI"))->Write("new");

  EXPECT_EQ(folder.Read("ORBY.INI"), "new");
}

TEST_F(StoredFile, KeepsAnotherFileThatHasTheNameOfItsTemporaryFile) {
  const std::string foreign = ".orby-" + std::to_string(GetCurrentProcessId()) + "-0";
  folder.Store(foreign, "foreign");

  files.ReplaceFile(At("ORBY.INI"), "new");

  EXPECT_EQ(folder.Read(foreign), "foreign");
  EXPECT_EQ(folder.Read("ORBY.INI"), "new");
}

}  // namespace
}  // namespace orby::test
