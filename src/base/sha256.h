// The sum by which a signed document names the bytes of a file.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// Returns the SHA-256 of the bytes as 64 lower-case hexadecimal digits, by FIPS 180-4.
std::string Sha256(std::string_view bytes);

}  // namespace orby
