// The sections of the configuration file for the user's choices: the settings, the recent files, the font of the text
// browser, the format of curves, the options, the places of the windows.
#pragma once

#include <string>
#include <string_view>

#include "config/ini_file.h"
#include "core/program.h"

namespace orby {

// The sections that a call reads or writes.
enum class StoredSettings {
  All = 1,
  Settings,    // [Settings]
  FileMenu,    // [FileMenu], the recent files
  TextBrowse,  // [TextBrowse]
  Graph,       // [Graph]
  Options,     // written to [TULKOptions], read from [PENVOptions]
  Windows,     // [Windows]
};

// Sets the initial fonts and the initial data path, which depend on the machine.
void SetBuiltInSettings(Program& program);

// Reads the values of one section, or of all, into the program. A missing number, or one outside its range, reads as
// the minimum of the range. A missing text is empty, except that fonts, data path and extension get their built-in
// values. A place of a window that is not a list of numbers is ignored.
void ReadSettings(Program& program, const IniText& ini, StoredSettings what);

// Writes the keys of a section in the order of its table, or all sections in the order above.
void WriteSettings(const Session& session, IniText& ini, StoredSettings what);

// Returns the version of the program that wrote the configuration. Empty when it has none.
std::string IniVersion(const IniText& ini);
void WriteIniVersion(IniText& ini);

// Reads all of the settings.
void ReadDefaults(Program& program, const IniText& ini);

// Adds a line to the history, and then writes one section, or all, to the configuration file at IniFilePath.
void WriteDefaults(Program& program, StoredSettings what);

// Writes the places of the windows to the configuration file, without a line in the history. Ignores a failure.
void WriteWindowPlaces(Program& program);

// Returns a complete new configuration: the version, all settings, the values of a new design and the lists.
IniText NewIniText(const Session& session);

// Adds a line to the history, and then replaces the configuration file with `ini`. Throws the RuntimeError of a file
// that cannot be written.
void WriteNewIniFile(Program& program, const IniText& ini);

}  // namespace orby
