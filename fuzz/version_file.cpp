// Fuzzes version files from a server.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "files/update_source.h"
#include "support/recording_platform.h"

namespace {

void Expect(bool holds) {
  if (!holds) std::abort();
}

bool HasOnly(std::string_view text, std::string_view characters) {
  return text.find_first_not_of(characters) == std::string_view::npos;
}

constexpr std::string_view Digits = "0123456789abcdefABCDEF";
constexpr std::string_view VersionCharacters = "0123456789.-_+abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";

// For any version file, the setup file is in the folder for downloads and on the server.
void CheckPlaces(std::string_view version) {
  orby::test::RecordingPlatform platform;
  orby::Program program(platform.AsPlatform());
  program.session.UpdateServer = "https://updates.example.org";
  program.session.folders.Group = "/home/user/Documents/MyStrataDesk/";
  const std::string path = orby::SetupFilePath(program.session, version);
  Expect(path.starts_with("/home/user/Downloads/ORBY") && path.ends_with(".exe"));
  Expect(path.rfind('/') == std::string_view("/home/user/Downloads").size());
  const std::string address = orby::SetupFileAddress(program.session, version);
  Expect(address.starts_with("https://updates.example.org/wp-content/uploads/2020/04/ORBY"));
  Expect(address.find_first_of("?#%@\\ ") == std::string::npos);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);

  const auto offered = orby::ReadVersionFile(bytes);

  if (!offered) return 0;
  // A byte order mark, blanks and quotes may surround it.
  Expect(!offered->version.empty() && bytes.find(offered->version) != std::string::npos);
  Expect(HasOnly(offered->version, VersionCharacters) && offered->version.find("..") == std::string::npos);
  Expect(offered->sha256.empty() || (offered->sha256.size() == 64 && HasOnly(offered->sha256, Digits)));
  CheckPlaces(offered->version);
  return 0;
}
