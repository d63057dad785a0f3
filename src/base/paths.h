// Parts of file paths. Both "/" and "\" separate folders. The case of a path is never changed.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// Returns the separator that the path uses first. A path without one gets "\" after a drive, as in "C:", and "/"
// otherwise.
char SeparatorOf(std::string_view path);

bool IsSeparator(char character);

bool EndsInSeparator(std::string_view path);

// Returns true for the top of a disk: "/", "C:" or "C:\".
bool IsRoot(std::string_view path);

// Returns the path with a trailing separator. Adds its own separator only when the path has none at its end.
std::string WithSeparator(std::string_view path);

std::string_view WithoutSeparator(std::string_view path);

// Returns the part after the last separator, or the whole path when it has none.
std::string_view NameAfterSeparator(std::string_view path);

// Returns the path without the steps up: "/home/mine/../plans" becomes "/home/plans". A step above the root stays.
std::string WithoutStepsUp(std::string_view path);

// Returns the part of the name before its first point, or the whole name when the point is its first character.
std::string_view WithoutExtension(std::string_view name);

// Returns the path as captions show it. A path of more than 50 characters becomes its first 10, "..." and its last 37.
std::string ShortenedPath(std::string_view path);

}  // namespace orby
