// Where newer versions of the program are published, what the server tells about them, and which files they are here.
//
// The server has a small text file: the version that it offers, and behind a comma or on the next line the SHA-256 of
// that version's setup file, which older files of this kind lack. All of it comes from outside and is believed only as
// far as it has the right form.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/program.h"

namespace orby {

// A version that the server offers.
struct OfferedVersion {
  std::string version;         // a part of a file name
  std::string sha256;          // of its setup file, 64 hexadecimal digits in any case; empty when the server tells none
  bool hasOtherField = false;  // the second field is no sum and counts for nothing

  bool operator==(const OfferedVersion&) const = default;
};

// What the bytes of a version file say. Blanks and quotation marks around a field do not count. Nothing when there is
// no version, or when it could not stand in a file name.
std::optional<OfferedVersion> ReadVersionFile(std::string_view bytes);

// Whether the offered version is newer than this program: compared as texts, so "1.10.00" is older than "1.9.00".
bool IsNewer(const OfferedVersion& offered);

// Whether the program knows of a server at all.
bool HasUpdateServer(const Session& session);

// Addresses on the program's server.
std::string VersionFileAddress(const Session& session);
std::string SetupFileAddress(const Session& session, std::string_view version);
std::string WebPageAddress(const Session& session);

// Where the version file is kept.
std::string VersionFilePath(const Session& session);
// The user's folder for downloads, beside the one for documents; ends in a separator.
std::string DownloadFolder(const Session& session);
// The setup file of a version in the folder for downloads.
std::string SetupFilePath(const Session& session, std::string_view version);

}  // namespace orby
