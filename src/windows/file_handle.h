// An open file of Windows.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orby {

// A function that fails throws the RuntimeError of the system error.
class FileHandle {
 public:
  enum class Opening {
    ToRead,
    ToOverwrite,  // an existing file, or a new one
    ToMake,       // a new file; a file with this path is an error
    ToMark,       // to read and write an existing file, or a new one
  };

  // Other programs may read, rename and remove the file while it is open.
  FileHandle(const std::string& path, Opening opening);
  ~FileHandle();
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;

  void* Handle() const { return file_; }
  std::uint64_t Length() const;
  // Reads up to `most` bytes. Returns none at the end of the file.
  std::string Read(std::size_t most);
  void Write(std::string_view bytes);
  // Ends the file after the bytes that were last read or written.
  void Cut();
  // Returns after the written bytes are on the disk.
  void Flush();
  void Close();

 private:
  std::string path_;
  void* file_;
};

}  // namespace orby
