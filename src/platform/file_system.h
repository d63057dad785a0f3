// Files and folders. Each function throws a RuntimeError when it fails: 52 bad name, 53 file not found, 61 disk full,
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

// A file open for writing. The destructor closes it and reports no error.
class OutputFile {
 public:
  virtual ~OutputFile() = default;
  virtual void Write(std::string_view bytes) = 0;
  // Closes the file. Throws the RuntimeError of a write that failed late. Nothing may be written afterwards.
  virtual void Close() = 0;
};

// A file open for reading.
class InputFile {
 public:
  virtual ~InputFile() = default;
  // Reads up to `most` bytes. Returns none at the end of the file.
  virtual std::string Read(std::size_t most) = 0;
};

// Marks a file as in use while it exists.
class FileMark {
 public:
  virtual ~FileMark() = default;
};

enum class Found { Nothing, File, Folder };

class FileSystem {
 public:
  virtual ~FileSystem() = default;

  // Returns what the path is.
  virtual Found Find(const std::string& path) = 0;
  bool Finds(const std::string& path) { return Find(path) != Found::Nothing; }
  bool FindsFile(const std::string& path) { return Find(path) == Found::File; }
  // Returns all bytes of the file.
  virtual std::string ReadFile(const std::string& path) = 0;
  // Opens the file for reading.
  virtual std::unique_ptr<InputFile> OpenFile(const std::string& path) = 0;
  // Returns the size of the file in bytes, or 0 for one without a size, such as a pipe.
  virtual std::uint64_t FileLength(const std::string& path) = 0;
  // Returns when the file was last written, or nothing when that is not known.
  virtual std::optional<Moment> WrittenAt(const std::string& path) = 0;
  // Opens the file for writing. An existing file is emptied at once.
  virtual std::unique_ptr<OutputFile> CreateFile(const std::string& path) = 0;
  // Opens the file to be overwritten with `length` bytes. Old bytes stay until they are overwritten, and the file keeps
  // its mode and links. Throws RuntimeError 61 and changes nothing when the disk is known to have too little room.
  // Close cuts the file after the last byte written. It returns after the bytes, and the name of a new file, are safe
  // from a power cut.
  virtual std::unique_ptr<OutputFile> OpenInPlace(const std::string& path, std::uint64_t length) = 0;
  virtual void RemoveFile(const std::string& path) = 0;
  // Renames a file, and replaces a file that has the new name in one step. Throws RuntimeError 70 when that file may
  // not be written; it then stays.
  virtual void RenameFile(const std::string& path, const std::string& newPath) = 0;
  // Replaces the bytes of the file in one step. Even after a crash it contains either the old bytes or the new ones.
  // The new bytes are on the disk when this returns. A symbolic link stays, and the file that it leads to is replaced.
  // A file keeps its permissions. After an error the file is unchanged and no temporary file is left.
  virtual void ReplaceFile(const std::string& path, std::string_view bytes) = 0;
  // Makes an empty file with the owner and the permissions of `model`. Requires that no file has the path.
  virtual void MakeFileLike(const std::string& path, const std::string& model) = 0;
  // Returns the path that a chain of symbolic links leads to, also when there is no file. Returns the path itself if it
  // is not a link.
  virtual std::string ResolveLinks(const std::string& path) = 0;
  // Makes the folder and those above it. A folder that exists already is not an error.
  virtual void MakeFolder(const std::string& path) = 0;
  // Makes the folder and those above it, and gives only the user access to those that it makes. An existing folder
  // keeps its permissions.
  virtual void MakePrivateFolder(const std::string& path) = 0;
  // Returns true if files can be made in the folder.
  virtual bool CanWriteTo(const std::string& folder) = 0;
  // Returns the sorted full paths of the files in the folder, without the folders in it. Empty when it cannot be read.
  virtual std::vector<std::string> FilesIn(const std::string& folder) = 0;
  // Returns the sorted names of the folders in the folder, without hidden ones.
  virtual std::vector<std::string> FoldersIn(const std::string& folder) = 0;
  // Returns the root folders of the user's disks: the root of the file system first, then those of attached disks.
  virtual std::vector<std::string> Drives() = 0;
  virtual void SetWorkingFolder(const std::string& path) = 0;
  // Returns the path from the root of the file system, with "." and ".." resolved as the system resolves them.
  virtual std::string AbsolutePath(const std::string& path) = 0;
  // Marks the file as in use by this program until the mark is destroyed or the program ends, also by a crash. Makes
  // the file when it is missing. Returns null when another program has marked the file, or when the file cannot be
  // made.
  virtual std::unique_ptr<FileMark> TryMark(const std::string& path) = 0;

  // Returns the folder for temporary files, with a trailing separator only if the system has one there.
  virtual std::string TemporaryFolder() = 0;
  // Returns the folder that contains the program.
  virtual std::string ProgramFolder() = 0;
};

}  // namespace orby
