// A file of the system, open by its number.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// Each routine throws the RuntimeError of what the system reports.
class FileHandle {
 public:
  // Takes over what the system's open returned for the path: below 0 is its error.
  FileHandle(int file, const std::string& path);
  ~FileHandle();
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;

  int Number() const { return file_; }
  void Write(std::string_view bytes);
  // Returns once the disk has what was written.
  void Flush();
  // Reports a write that failed late.
  void Close();

 private:
  int file_;
  std::string path_;
};

// Puts the name of the file on the disk, which is an entry of its folder. A folder that may not be read is left alone.
void FlushFolder(const std::string& path);

}  // namespace orby
