// The sections of the configuration file that hold what the user chose: the settings, the recent files, the browser's
// font, how curves are drawn, the options.
#pragma once

#include <string>
#include <string_view>

#include "config/ini_file.h"
#include "core/program.h"

namespace orby {

// What a call reads or writes, by the sections of the file.
enum class StoredSettings {
  All = 1,
  Settings,    // [Settings]
  FileMenu,    // [FileMenu], the recent files
  TextBrowse,  // [TextBrowse]
  Graph,       // [Graph]
  Options,     // written to [TULKOptions], read from [PENVOptions]
};

// Sets what a program holds before any file is read and that only its surroundings know: the fonts and the data path.
void SetBuiltInSettings(Program& program);

// Takes one section's values, or those of all, over into the program. A number outside its range, or missing, reads as
// the range's minimum; a missing text as the empty one, but for fonts, data path and extension, which fall back to what
// the program has built in.
void ReadSettings(Program& program, const IniText& ini, StoredSettings what);

// Sets the section's keys in table order; all sections in the order above.
void WriteSettings(const Session& session, IniText& ini, StoredSettings what);

// The version that the configuration was written by; empty when it tells none.
std::string IniVersion(const IniText& ini);
void WriteIniVersion(IniText& ini);

// Reads all of the settings.
void ReadDefaults(Program& program, const IniText& ini);

// Writes one section, or all, to the configuration file at IniFilePath, and tells so in the history first.
void WriteDefaults(Program& program, StoredSettings what);

// A whole new configuration: the version, all of the settings, the values of a new design and the lists.
IniText NewIniText(const Session& session);

// Makes it the configuration file, and tells so in the history first. Throws the RuntimeError of a file that cannot be
// written.
void WriteNewIniFile(Program& program, const IniText& ini);

}  // namespace orby
