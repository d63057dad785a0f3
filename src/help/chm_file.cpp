#include "help/chm_file.h"

#include <chm_lib.h>
#include <zlib.h>

#include <cstddef>
#include <fstream>

namespace orby {
namespace {

// The offset of the checksum in the header of a help file, which is the place of a date. Low byte first.
constexpr std::size_t CheckPlace = 16;
constexpr std::size_t CheckWidth = 4;
constexpr std::size_t HeaderWidth = 96;
constexpr std::size_t PieceWidth = 1U << 16U;

// Reads up to `most` bytes. Returns none at the end of the file, and none for a folder.
std::string ReadPiece(std::ifstream& file, std::size_t most) {
  std::string piece(most, '\0');
  file.read(piece.data(), static_cast<std::streamsize>(most));
  piece.resize(static_cast<std::size_t>(file.gcount()));
  return piece;
}

std::uint32_t StoredSum(std::string_view header) {
  std::uint32_t sum = 0;
  for (std::size_t i = CheckWidth; i-- > 0;) sum = (sum << 8U) | static_cast<std::uint8_t>(header[CheckPlace + i]);
  return sum;
}

// Returns true if the checksum is correct. It is that of the file with zeros in the place of the checksum.
bool IsWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string piece = ReadPiece(file, HeaderWidth);
  if (piece.size() < HeaderWidth || !piece.starts_with("ITSF")) return false;
  const std::uint32_t stored = StoredSum(piece);
  piece.replace(CheckPlace, CheckWidth, CheckWidth, '\0');
  std::uint32_t sum = CheckSum(piece);
  while (!(piece = ReadPiece(file, PieceWidth)).empty()) sum = CheckSum(piece, sum);
  return sum == stored;
}

// Returns the position of a file inside, or nothing when there is no such file.
std::optional<chmUnitInfo> Located(chmFile& file, const std::string& name) {
  const std::string path = "/" + name;
  chmUnitInfo unit{};
  const bool isFile = !name.empty() && name.back() != '/' && path.size() <= CHM_MAX_PATHLEN;
  if (!isFile) return std::nullopt;
  if (chm_resolve_object(&file, path.c_str(), &unit) != CHM_RESOLVE_SUCCESS) return std::nullopt;
  return unit;
}

int AddName(chmFile*, chmUnitInfo* unit, void* names) {
  // The names of the builder's own files begin with a special character.
  const std::string_view name(unit->path);
  const bool isOurs = name.size() > 1 && name[1] != '#' && name[1] != '$' && name[1] != '_';
  if (isOurs) static_cast<std::vector<std::string>*>(names)->emplace_back(name.substr(1));
  return CHM_ENUMERATOR_CONTINUE;
}

}  // namespace

std::uint32_t CheckSum(std::string_view bytes, std::uint32_t before) {
  // cppcheck-suppress invalidLifetime
  return static_cast<std::uint32_t>(crc32_z(before, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size()));
}

void ChmFile::Closer::operator()(chmFile* file) const { chm_close(file); }

std::unique_ptr<ChmFile> ChmFile::Open(const std::string& path) {
  if (!IsWhole(path)) return nullptr;
  chmFile* file = chm_open(path.c_str());
  return file == nullptr ? nullptr : std::unique_ptr<ChmFile>(new ChmFile(file));
}

std::optional<std::string> ChmFile::Read(const std::string& name) const {
  std::optional<chmUnitInfo> unit = Located(*file_, name);
  if (!unit || unit->length > MostBytes) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(unit->length), '\0');
  if (bytes.empty()) return bytes;
  auto* target = reinterpret_cast<unsigned char*>(bytes.data());
  const auto length = static_cast<LONGINT64>(unit->length);
  if (chm_retrieve_object(file_.get(), &*unit, target, 0, length) != length) return std::nullopt;
  return bytes;
}

bool ChmFile::Has(const std::string& name) const { return Located(*file_, name).has_value(); }

std::vector<std::string> ChmFile::Names() const {
  std::vector<std::string> names;
  chm_enumerate(file_.get(), CHM_ENUMERATE_NORMAL | CHM_ENUMERATE_FILES, AddName, &names);
  return names;
}

}  // namespace orby
