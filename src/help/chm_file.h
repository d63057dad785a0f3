// Reads the files inside a compiled help file.
//
// What takes such a file apart trusts it, so a file is only opened when it is whole: what builds the help leaves the
// check sum of the file in its header, in the place of a date that nobody reads.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct chmFile;

namespace orby {

// CRC-32 of the bytes, going on from the one of what stands in front of them.
std::uint32_t CheckSum(std::string_view bytes, std::uint32_t before = 0);

class ChmFile {
 public:
  // Nothing when the file cannot be read, is no help file, or is not as it was built.
  static std::unique_ptr<ChmFile> Open(const std::string& path);

  // The largest file inside that is read; nothing that a help needs comes near it.
  static constexpr std::size_t MostBytes = 64U << 20U;

  // A file inside, by its name without a leading separator, in whatever case. Nothing when there is none or it is too
  // large.
  std::optional<std::string> Read(const std::string& name) const;
  bool Has(const std::string& name) const;
  // The names of all files inside that were put there, in the order of the file.
  std::vector<std::string> Names() const;

 private:
  struct Closer {
    void operator()(chmFile* file) const;
  };

  explicit ChmFile(chmFile* file) : file_(file) {}

  std::unique_ptr<chmFile, Closer> file_;
};

}  // namespace orby
