#include "windows/file_errors.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/temporary_folder.h"
#include "windows/system.h"

namespace orby::test {
namespace {

struct ErrorRow {
  DWORD ofTheSystem;
  int number;
  std::string text;
};

TEST(FileErrors, HaveTheNumbersAndTextsThatUsersKnow) {
  const std::vector<ErrorRow> rows{
      {ERROR_FILE_NOT_FOUND, 53, "File not found"},
      {ERROR_PATH_NOT_FOUND, 76, "Path not found"},
      {ERROR_INVALID_DRIVE, 76, "Path not found"},
      {ERROR_BAD_NETPATH, 76, "Path not found"},
      {ERROR_BAD_NET_NAME, 76, "Path not found"},
      {ERROR_DIRECTORY, 76, "Path not found"},
      {ERROR_DISK_FULL, 61, "Disk full"},
      {ERROR_HANDLE_DISK_FULL, 61, "Disk full"},
      {ERROR_FILE_TOO_LARGE, 61, "Disk full"},
      {1295, 61, "Disk full"},  // the user's share of the disk is used up
      {ERROR_ACCESS_DENIED, 70, "Permission denied"},
      {ERROR_SHARING_VIOLATION, 70, "Permission denied"},
      {ERROR_LOCK_VIOLATION, 70, "Permission denied"},
      {ERROR_WRITE_PROTECT, 70, "Permission denied"},
      {ERROR_INVALID_NAME, 52, "Bad file name or number"},
      {ERROR_BAD_PATHNAME, 52, "Bad file name or number"},
      {ERROR_FILENAME_EXCED_RANGE, 52, "Bad file name or number"},
      {ERROR_BUFFER_OVERFLOW, 52, "Bad file name or number"},
      {ERROR_NOT_ENOUGH_MEMORY, 7, "Out of memory"},
      {ERROR_OUTOFMEMORY, 7, "Out of memory"},
      {ERROR_NOT_READY, 75, "Path/File access error"},
      {ERROR_CRC, 75, "Path/File access error"},
      {ERROR_FILE_EXISTS, 75, "Path/File access error"},
      {ERROR_NETNAME_DELETED, 75, "Path/File access error"},
  };

  for (const ErrorRow& row : rows) {
    const RuntimeError error = FileError(row.ofTheSystem, "C:\\panel.ORB");
    EXPECT_EQ(error.number(), row.number) << row.ofTheSystem;
    EXPECT_EQ(error.description(), row.text) << row.ofTheSystem;
  }
}

TEST(FileErrors, TellAFolderThatIsUsedAsAFileFromAFileThatMayNotBeUsed) {
  const TemporaryFolder folder;

  EXPECT_EQ(FileError(ERROR_ACCESS_DENIED, folder.Path()).number(), 75);
  EXPECT_EQ(FileError(ERROR_ACCESS_DENIED, folder.At("panel.ORB")).number(), 70);
}

// A missing drive is a missing file to some versions of Windows.
TEST(FileErrors, TellAMissingFolderFromAMissingFile) {
  EXPECT_EQ(FileError(ERROR_FILE_NOT_FOUND, "Q:\\panel.ORB").number(), 76);
  EXPECT_EQ(FileError(ERROR_FILE_NOT_FOUND, "C:\\panel.ORB").number(), 53);
  EXPECT_EQ(FileError(ERROR_FILE_NOT_FOUND, "panel.ORB").number(), 53);
}

TEST(FileErrors, AreThoseOfTheLastCall) {
  SetLastError(ERROR_DISK_FULL);

  EXPECT_EQ(LastFileError("panel.ORB").number(), 61);
}

}  // namespace
}  // namespace orby::test
