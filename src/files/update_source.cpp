#include "files/update_source.h"

#include <algorithm>

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
constexpr std::string_view WayToDownloads = "../../Downloads";  // from the group folder
constexpr std::size_t MostVersionLength = 64;
constexpr std::size_t SumLength = 64;

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

// Removes the spaces and quotation marks that editors and spreadsheets put around a text.
std::string_view WithoutWrapping(std::string_view text) {
  constexpr std::string_view Wrapping = " \t\"'";
  text.remove_prefix(std::min(text.find_first_not_of(Wrapping), text.size()));
  return text.substr(0, text.find_last_not_of(Wrapping) + 1);
}

// Removes the field before the next comma from the line and returns it.
std::string_view TakeField(std::string_view& line) {
  const std::string_view field = line.substr(0, line.find(','));
  line.remove_prefix(std::min(field.size() + 1, line.size()));
  return WithoutWrapping(field);
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsHexadecimal(char c) { return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }
bool IsVersionCharacter(char c) { return IsDigit(c) || IsLetter(c) || c == '.' || c == '-' || c == '_' || c == '+'; }

// The version becomes part of an address and of the name of a file that is started, so it must not lead elsewhere.
bool IsVersion(std::string_view text) {
  return !text.empty() && text.size() <= MostVersionLength && std::ranges::all_of(text, IsVersionCharacter) &&
         text.find("..") == std::string_view::npos;
}

bool IsSum(std::string_view text) { return text.size() == SumLength && std::ranges::all_of(text, IsHexadecimal); }

std::string OnServer(const Session& session, std::string_view path) {
  return std::string(WithoutSeparator(session.UpdateServer)).append(path);
}

std::string SetupFileName(std::string_view version) {
  return std::string(ProgramShortName).append(version).append(SetupExtension);
}

}  // namespace

std::optional<OfferedVersion> ReadVersionFile(std::string_view bytes) {
  if (bytes.starts_with(Utf8Mark)) bytes.remove_prefix(Utf8Mark.size());
  std::string_view line = TakeLine(bytes);
  const std::string_view version = TakeField(line);
  const std::string_view second = TakeField(line);
  if (!IsVersion(version)) return std::nullopt;
  // If the second field is no checksum, the first field of the next line may be one. That line may also be a remark.
  std::string_view sum = second;
  if (!IsSum(sum)) {
    line = TakeLine(bytes);
    sum = TakeField(line);
  }
  OfferedVersion offered{std::string(version), {}, !second.empty() && !IsSum(second)};
  if (IsSum(sum)) offered.sha256 = sum;
  return offered;
}

bool IsNewer(const OfferedVersion& offered) { return offered.version > VersionText(); }

bool HasUpdateServer(const Session& session) { return !session.UpdateServer.empty(); }

std::string VersionFileAddress(const Session& session) {
  return OnServer(session, DownloadPath).append(VersionFileName);
}

std::string SetupFileAddress(const Session& session, std::string_view version) {
  return OnServer(session, DownloadPath) + SetupFileName(version);
}

std::string WebPageAddress(const Session& session) { return OnServer(session, WebPagePath); }

std::string VersionFilePath(const Session& session) {
  return WithSeparator(session.folders.ProgramData).append(VersionFileName);
}

std::string DownloadFolder(const Session& session) {
  return WithSeparator(WithoutStepsUp(WithSeparator(session.folders.Group).append(WayToDownloads)));
}

std::string SetupFilePath(const Session& session, std::string_view version) {
  return DownloadFolder(session) + SetupFileName(version);
}

}  // namespace orby
