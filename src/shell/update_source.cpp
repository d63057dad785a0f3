#include "shell/update_source.h"

#include <algorithm>
#include <filesystem>

#include "base/paths.h"
#include "base/text.h"
#include "core/program_names.h"
#include "core/version.h"

namespace orby {
namespace {

constexpr std::string_view DownloadPath = "/wp-content/uploads/2020/04/";
constexpr std::string_view WebPagePath = "/roof-support/";
constexpr std::string_view VersionFileName = "orby_version.txt";
constexpr std::string_view SetupExtension = ".exe";
constexpr std::string_view WayToDownloads = "../../Downloads/";  // from the group folder
constexpr std::size_t MostVersionLength = 64;
constexpr std::size_t SumLength = 64;

// The next field of a line, as far as a comma.
std::string_view TakeField(std::string_view& line) {
  const std::string_view field = line.substr(0, line.find(','));
  line.remove_prefix(std::min(field.size() + 1, line.size()));
  return field;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsHexadecimal(char c) { return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }
bool IsVersionCharacter(char c) { return IsDigit(c) || IsLetter(c) || c == '.' || c == '-' || c == '_' || c == '+'; }

// The version becomes a part of an address and of the name of a file that is started: nothing may lead elsewhere.
bool IsVersion(std::string_view text) {
  return !text.empty() && text.size() <= MostVersionLength && std::ranges::all_of(text, IsVersionCharacter) &&
         text.find("..") == std::string_view::npos;
}

bool IsSum(std::string_view text) { return text.size() == SumLength && std::ranges::all_of(text, IsHexadecimal); }

std::string OnServer(const Program& program, std::string_view path) {
  return std::string(WithoutSeparator(program.UpdateServer)).append(path);
}

std::string SetupFileName(std::string_view version) {
  return std::string(ProgramShortName).append(version).append(SetupExtension);
}

}  // namespace

std::optional<OfferedVersion> ReadVersionFile(std::string_view bytes) {
  std::string_view line = TakeLine(bytes);
  const std::string_view version = TakeField(line);
  std::string_view sum = Trim(TakeField(line));
  if (!IsVersion(version) || (!sum.empty() && !IsSum(sum))) return std::nullopt;
  if (sum.empty()) {
    // On the next line it is taken for the sum only when it can be one, for remarks may stand there.
    line = TakeLine(bytes);
    if (const std::string_view next = Trim(TakeField(line)); IsSum(next)) sum = next;
  }
  return OfferedVersion{std::string(version), std::string(sum)};
}

bool IsNewer(const OfferedVersion& offered) { return offered.version > VersionText(true); }

bool HasUpdateServer(const Program& program) { return !program.UpdateServer.empty(); }

std::string VersionFileAddress(const Program& program) {
  return OnServer(program, DownloadPath).append(VersionFileName);
}

std::string SetupFileAddress(const Program& program, std::string_view version) {
  return OnServer(program, DownloadPath) + SetupFileName(version);
}

std::string WebPageAddress(const Program& program) { return OnServer(program, WebPagePath); }

std::string VersionFilePath(const Program& program) {
  return WithSeparator(program.folders.ProgramData).append(VersionFileName);
}

std::string DownloadFolder(const Program& program) {
  const std::string path = WithSeparator(program.folders.Group).append(WayToDownloads);
  return std::filesystem::path(path).lexically_normal().string();
}

std::string SetupFilePath(const Program& program, std::string_view version) {
  return DownloadFolder(program) + SetupFileName(version);
}

}  // namespace orby
