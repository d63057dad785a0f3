// Reads the files inside a compiled help file.
//
// The library that reads such a file does not check it, so only an undamaged file is opened. The build of the help
// stores the checksum of the file in its header, in place of a date that nothing reads.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct chmFile;

namespace orby {

// Returns the CRC-32 of the bytes. `before` is the CRC-32 of the bytes before them.
std::uint32_t CheckSum(std::string_view bytes, std::uint32_t before = 0);

class ChmFile {
 public:
  // Opens a file. Returns null when it cannot be read, is not a help file, or is damaged.
  static std::unique_ptr<ChmFile> Open(const std::string& path);

  // The largest size of a file inside that is read. No file of a help is nearly as large.
  static constexpr std::size_t MostBytes = 64U << 20U;

  // Reads a file inside. The name has no leading separator, and its case is ignored. Returns nothing when there is no
  // such file or it is too large.
  std::optional<std::string> Read(const std::string& name) const;
  bool Has(const std::string& name) const;
  // Returns the names of all files inside, without those of the builder, in the order of the file.
  std::vector<std::string> Names() const;

 private:
  struct Closer {
    void operator()(chmFile* file) const;
  };

  explicit ChmFile(chmFile* file) : file_(file) {}

  std::unique_ptr<chmFile, Closer> file_;
};

}  // namespace orby
