// For the library that reads help files. It opens such a file for itself alone, so that a second program could not show
// the help at the same time.
#pragma once

#include <windows.h>

#define CreateFileA(path, access, sharing, ...) CreateFileA(path, access, FILE_SHARE_READ, __VA_ARGS__)
