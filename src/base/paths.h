// Taking file paths apart. Both "/" and "\" separate folders; a separator that is added is the platform's own.
// The case of a path is never changed.
#pragma once

#include <string>
#include <string_view>

namespace orby {

inline constexpr char FolderSeparator = '/';

bool EndsInSeparator(std::string_view path);

// The path ending in exactly one separator more than none: added only when it has none.
std::string WithSeparator(std::string_view path);

std::string_view WithoutSeparator(std::string_view path);

// What stands behind the last separator, the whole path when it has none.
std::string_view NameBehindSeparator(std::string_view path);

// The name cut before its first point, unless the point stands first.
std::string_view WithoutExtension(std::string_view name);

// As captions show it: a path of 51 characters or more as its first 10, "..." and its last 37.
std::string ShortenedPath(std::string_view path);

}  // namespace orby
