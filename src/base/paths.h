// Parts of file paths. Both "/" and "\" separate folders. A separator that is added is that of the platform. The case
// of a path is never changed.
#pragma once

#include <string>
#include <string_view>

namespace orby {

inline constexpr char FolderSeparator = '/';

bool EndsInSeparator(std::string_view path);

// Returns the path with a trailing separator. Adds one only when the path has none.
std::string WithSeparator(std::string_view path);

std::string_view WithoutSeparator(std::string_view path);

// Returns the part after the last separator, or the whole path when it has none.
std::string_view NameAfterSeparator(std::string_view path);

// Returns the part of the name before its first point, or the whole name when the point is its first character.
std::string_view WithoutExtension(std::string_view name);

// Returns the path as captions show it. A path of more than 50 characters becomes its first 10, "..." and its last 37.
std::string ShortenedPath(std::string_view path);

}  // namespace orby
