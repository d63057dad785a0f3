// An open file of the system.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// A function that fails throws the RuntimeError of the system error.
class FileHandle {
 public:
  // Takes ownership of the file descriptor that open() returned for the path. Throws when it is below 0.
  FileHandle(int file, const std::string& path);
  ~FileHandle();
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;

  int Number() const { return file_; }
  void Write(std::string_view bytes);
  // Returns after the written bytes are on the disk.
  void Flush();
  // Closes the file. Throws the RuntimeError of a write that failed late.
  void Close();

 private:
  int file_;
  std::string path_;
};

// Flushes the folder of the path, so that the name of the file is on the disk. Does nothing for a folder that may not
// be read.
void FlushFolder(const std::string& path);

}  // namespace orby
