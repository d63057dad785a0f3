// Files and folders. Every failure is the RuntimeError that fits it: 52 bad name, 53 file not found, 61 disk full,
// 70 permission, 75 access, 76 path not found.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/surroundings.h"

namespace orby {

// A file open for writing. Destroying it closes it as it is.
class OutputFile {
 public:
  virtual ~OutputFile() = default;
  virtual void Write(std::string_view bytes) = 0;
  // Reports a write that failed late; nothing may be written afterwards.
  virtual void Close() = 0;
};

// A file open for reading.
class InputFile {
 public:
  virtual ~InputFile() = default;
  // Reads up to `most` bytes; none at the end of the file.
  virtual std::string Read(std::size_t most) = 0;
};

// A file marked as in use.
class FileMark {
 public:
  virtual ~FileMark() = default;
};

class FileSystem {
 public:
  virtual ~FileSystem() = default;

  // Whether a search for the path finds a file, or also a folder when folders count.
  virtual bool Finds(const std::string& path, bool foldersToo) = 0;
  // The whole file, byte for byte.
  virtual std::string ReadFile(const std::string& path) = 0;
  // Opens the file for reading.
  virtual std::unique_ptr<InputFile> OpenFile(const std::string& path) = 0;
  // Bytes of the file; 0 for what has no length, such as a pipe.
  virtual std::uint64_t FileLength(const std::string& path) = 0;
  // When the file was written last; nothing when that cannot be told.
  virtual std::optional<Moment> WrittenAt(const std::string& path) = 0;
  // Opens the file for writing; an existing one is emptied at once.
  virtual std::unique_ptr<OutputFile> CreateFile(const std::string& path) = 0;
  // Opens the file to be overwritten with `length` bytes. Old bytes, mode and links stay until they are written over. A
  // disk that is known to lack the room is error 61, and nothing is touched. Close cuts the file to what was written.
  // It returns once the bytes, and the name of a new file, are safe from a power cut.
  virtual std::unique_ptr<OutputFile> OpenInPlace(const std::string& path, std::uint64_t length) = 0;
  virtual void RemoveFile(const std::string& path) = 0;
  // Takes the place of a file that has the new name, in one step; one that may not be written stays and is error 70.
  virtual void RenameFile(const std::string& path, const std::string& newPath) = 0;
  // Gives the file these bytes in one step: whatever happens meanwhile, it holds its old bytes or the new ones, and the
  // new ones are on the disk once this returns. A symbolic link stays and the file that it leads to is replaced; a file
  // keeps its permissions. After an error the file is as it was and nothing is left beside it.
  virtual void ReplaceFile(const std::string& path, std::string_view bytes) = 0;
  // Makes an empty file with the owner and the permissions of another one. The path must be free.
  virtual void MakeFileLike(const std::string& path, const std::string& model) = 0;
  // The path that a chain of symbolic links leads to, be there a file or not; the path itself if it is no link.
  virtual std::string BehindLinks(const std::string& path) = 0;
  // Makes the folder and those above it; one that is there already is no error.
  virtual void MakeFolder(const std::string& path) = 0;
  // The same, but a folder that is made is open to its user alone. One that is there already stays as it is.
  virtual void MakePrivateFolder(const std::string& path) = 0;
  // Whether files can be made in the folder.
  virtual bool CanWriteTo(const std::string& folder) = 0;
  // The full paths of the files in the folder, not of the folders in it, sorted; empty when it cannot be read.
  virtual std::vector<std::string> FilesIn(const std::string& folder) = 0;
  // The names of the folders in the folder, sorted, those that the system hides left out.
  virtual std::vector<std::string> FoldersIn(const std::string& folder) = 0;
  // The folders at which the user's disks begin: the root of the file system first, then what else is attached.
  virtual std::vector<std::string> Drives() = 0;
  virtual void SetWorkingFolder(const std::string& path) = 0;
  // The path from the root of the file system, without "." and "..", which go where the system would go.
  virtual std::string AbsolutePath(const std::string& path) = 0;
  // Marks the file as in use by this program until the mark is destroyed or the program ends in whatever way; the file
  // is made when it is missing. Nothing when another program has it, or when it cannot be made.
  virtual std::unique_ptr<FileMark> TryMark(const std::string& path) = 0;

  // The folder for temporary files, without the separator at its end unless the system gives one.
  virtual std::string TemporaryFolder() = 0;
  // The folder that the program was started from.
  virtual std::string ProgramFolder() = 0;
};

}  // namespace orby
