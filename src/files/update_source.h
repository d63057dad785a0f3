// The program's update server: its addresses, its version file, and the local copies of its files.
//
// The version file is a short text: the version, then after a comma or on the next line the SHA-256 of that version's
// setup file. Older files lack the checksum. The bytes come from outside, so only well-formed parts are used.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/program.h"

namespace orby {

// A version that the server offers.
struct OfferedVersion {
  std::string version;         // safe in a file name
  std::string sha256;          // of the setup file, 64 hexadecimal digits in any case; empty if not stated
  bool hasOtherField = false;  // the second field is no checksum and is ignored

  bool operator==(const OfferedVersion&) const = default;
};

// Reads a version file. Spaces and quotation marks around a field are ignored. Returns nothing if there is no version
// or it is not safe in a file name.
std::optional<OfferedVersion> ReadVersionFile(std::string_view bytes);

// Returns true if the offered version is newer than this program. Compares texts, so "1.10.00" is older than "1.9.00".
bool IsNewer(const OfferedVersion& offered);

// Returns true if an update server is configured.
bool HasUpdateServer(const Session& session);

// The addresses of the server's files and pages.
std::string VersionFileAddress(const Session& session);
std::string SetupFileAddress(const Session& session, std::string_view version);
std::string WebPageAddress(const Session& session);

// Returns the path of the local version file.
std::string VersionFilePath(const Session& session);
// Returns the user's download folder, which is beside the documents folder, with a trailing separator.
std::string DownloadFolder(const Session& session);
// Returns the path of a version's setup file in the download folder.
std::string SetupFilePath(const Session& session, std::string_view version);

}  // namespace orby
