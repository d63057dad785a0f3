// The functions of Windows, without the macros that rename functions of ours.
#pragma once

#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// After it, because they do not include it themselves.
#include <sddl.h>
#include <shellapi.h>
#include <shlwapi.h>

#undef CreateFile
#undef ReplaceFile
#undef MessageBox
