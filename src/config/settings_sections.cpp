#include "config/settings_sections.h"

#include <array>
#include <charconv>
#include <system_error>
#include <utility>
#include <vector>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "base/paths.h"
#include "base/text.h"
#include "config/catalog_sections.h"
#include "config/ini_row.h"
#include "core/dialog_helpers.h"
#include "core/file_helpers.h"
#include "core/messages.h"

namespace orby {
namespace {

constexpr std::string_view VersionSection = "Version";
constexpr std::string_view VersionKey = "INIFileVersion";
constexpr std::string_view SettingsSection = "Settings";
constexpr std::string_view FileMenuSection = "FileMenu";
constexpr std::string_view TextBrowseSection = "TextBrowse";
constexpr std::string_view GraphSection = "Graph";
constexpr std::string_view WindowsSection = "Windows";
// The options are written to one section and read from another, so that they apply only until the program ends.
constexpr std::string_view WrittenOptionsSection = "TULKOptions";
constexpr std::string_view ReadOptionsSection = "PENVOptions";

constexpr IniRange OnOff{0, 1};
constexpr IniRange FontFlag{-1, 0};
constexpr IniRange FontSize{7, 24};

// Marks a text that was never set.
constexpr std::string_view NoText = "0";

std::string AcceptedFont(Program& program, const std::string& read) {
  return read.empty() ? ChooseDisplayFont(program) : read;
}

std::string AcceptedDataPath(Program& program, const std::string& read) {
  if (read.empty() || read == NoText) return program.session.folders.ProgramData;
  const std::string path = WithSeparator(Trim(read));
  return ValidPath(program, path, Reporting::Silent) ? path : program.session.folders.ProgramData;
}

std::string AcceptedExtension(Program&, const std::string& read) {
  return read == NoText ? std::string(BuiltInExtension) : read;
}

using SettingsRow = IniRow<Settings>;
constexpr std::array SettingsRows{
    SettingsRow{"DefaultUnits", &Settings::UnitsDefault, OnOff},
    SettingsRow{"DisplayHistoryWin", &Settings::DisplayHistoryWin, OnOff},
    // The initial length of the history is below the range, so that it becomes 4096 when the first file is read.
    SettingsRow{"MaxDisplaySize", &Settings::MaxDisplaySize, IniRange{4096, 16384}},
    SettingsRow{"DisplayFontName", &Settings::DisplayFontName, {}, {}, AcceptedFont},
    SettingsRow{"DisplayFontSize", &Settings::DisplayFontSize, FontSize},
    SettingsRow{"DisplayFontBold", &Settings::DisplayFontBold, FontFlag},
    SettingsRow{"DisplayFontItalic", &Settings::DisplayFontItalic, FontFlag},
    SettingsRow{"KeepFileNames", &Settings::KeepFileNames, OnOff},
    SettingsRow{"ShowDisclaim", &Settings::ShowDisclaim, OnOff},
    SettingsRow{"MaxMainMenu", &Settings::MaxMainMenu, OnOff},
    SettingsRow{"EnableMainMenuToolbar", &Settings::EnableMainMenuToolbar, OnOff},
    SettingsRow{"ShortRecentFiles", &Settings::ShortRecentFiles, OnOff},
    SettingsRow{"LoadLastInputFile", &Settings::LoadLastInputFile, OnOff},
    SettingsRow{"RemindAnnualUpdates", &Settings::RemindAnnualUpdates, OnOff},
    SettingsRow{"CopyExampleFiles", &Settings::CopyExampleFiles, OnOff, "1"},
    SettingsRow{.Key = "ExternalEditor", .Member = &Settings::ExternalEditor, .IsPath = true},
    SettingsRow{.Key = "DataPath", .Member = &Settings::DataPath, .Accepted = AcceptedDataPath, .IsPath = true},
    SettingsRow{"FileExtension", &Settings::FileExtension, {}, {}, AcceptedExtension},
};

// Despite its name this is the number of entries in use, not the largest possible number.
constexpr std::string_view RecentCountKey = "MaxLastFiles";
constexpr IniRange RecentCount{0, RecentFiles::Capacity};

using RecentRow = IniRow<RecentFiles::Entry>;
constexpr std::array RecentRows{
    RecentRow{.Key = "LastFile", .Member = &RecentFiles::Entry::LastFile, .IsPath = true},
    RecentRow{"LastFileMode", &RecentFiles::Entry::LastFileMode},
    RecentRow{.Key = "LastFileLong", .Member = &RecentFiles::Entry::LastFileLong, .IsPath = true},
};

using BrowseRow = IniRow<TextBrowseSettings>;
constexpr std::array TextBrowseRows{
    BrowseRow{"BrowseFontName", &TextBrowseSettings::BrowseFontName, {}, {}, AcceptedFont},
    BrowseRow{"BrowseFontSize", &TextBrowseSettings::BrowseFontSize, FontSize},
    BrowseRow{"BrowseFontBold", &TextBrowseSettings::BrowseFontBold, FontFlag},
    BrowseRow{"BrowseFontItalic", &TextBrowseSettings::BrowseFontItalic, FontFlag},
    BrowseRow{"BrowseDefaultFilter", &TextBrowseSettings::BrowseDefaultFilter},
    BrowseRow{"BrowseUseNotepad", &TextBrowseSettings::BrowseUseNotepad, OnOff},
};

using GraphRow = IniRow<GraphSettings>;
constexpr std::array GraphRows{
    GraphRow{"GraphSetParams", &GraphSettings::GraphSetParams, OnOff},
    GraphRow{"GridStyle", &GraphSettings::GridStyle, IniRange{0, 3}},
    GraphRow{"GraphStyle", &GraphSettings::GraphStyle, IniRange{1, 3}},
    GraphRow{"CurveLegend", &GraphSettings::CurveLegend, OnOff},
    GraphRow{"SymbolSize", &GraphSettings::SymbolSize, IniRange{3, 20}},
    GraphRow{"GraphUnits", &GraphSettings::GraphUnits, OnOff},
    GraphRow{"GraphTitle", &GraphSettings::GraphTitle},
};

// The titles of the axes follow the rows.
template <class Graph, class Act>
void ForEachAxisTitle(Graph& graph, const Act& act) {
  const auto walk = [&act](const std::string& key, auto& titles) {
    for (int i = 0; auto& title : titles) act(key + NumberText(i++), title);
  };
  walk("XAxisTitle", graph.XAxisTitle);
  walk("YAxisTitle", graph.YAxisTitle);
}

using OptionRow = IniRow<OptionSettings>;
constexpr std::array OptionRows{
    OptionRow{"DefaultSteelStrength", &OptionSettings::BoltGradeAsUltimateDefault, OnOff, "0"},
    OptionRow{"OutputStrUnits", &OptionSettings::OutputStrUnits, OnOff, "0"},
    OptionRow{"OutputStrGradUnits", &OptionSettings::OutputStrGradUnits, OnOff, "0"},
    OptionRow{"ShowInputScreenOnLoad", &OptionSettings::ShowInputScreenOnLoad, OnOff, "1"},
    OptionRow{"ViewChildWindow", &OptionSettings::ViewChildWindow, OnOff, "1"},
    OptionRow{"PrintModuleHeader", &OptionSettings::PrintModuleHeader, OnOff, "1"},
    OptionRow{"AskOfficeInstall", &OptionSettings::AskOfficeInstall, OnOff, "1"},
};

void ReadRecentFiles(Program& program, const IniText& ini) {
  RecentFiles& recent = program.session.recentFiles;
  recent.MaxLastFiles = ReadIniInteger(ini, FileMenuSection, RecentCountKey, RecentCount);
  for (Integer i = 0; i < recent.MaxLastFiles; ++i) {
    RecentFiles::Entry& entry = recent.Entries[static_cast<std::size_t>(i)];
    for (const auto& row : RecentRows) ReadIniRow(program, entry, ini, FileMenuSection, row, NumberText(i + 1));
  }
}

void WriteRecentFiles(const RecentFiles& recent, IniText& ini) {
  WriteIniValue(ini, FileMenuSection, RecentCountKey, recent.MaxLastFiles);
  const Integer count = ClampRange(recent.MaxLastFiles, RecentCount.Minimum, RecentCount.Maximum);
  for (Integer i = 0; i < count; ++i) {
    const RecentFiles::Entry& entry = recent.Entries[static_cast<std::size_t>(i)];
    for (const auto& row : RecentRows) WriteIniRow(entry, ini, FileMenuSection, row, NumberText(i + 1));
  }
}

void ReadGraph(Program& program, const IniText& ini) {
  for (const auto& row : GraphRows) ReadIniRow(program, program.session.graph, ini, GraphSection, row);
  ForEachAxisTitle(program.session.graph, [&ini](const std::string& key, std::string& title) {
    title = ReadIniValue(ini, GraphSection, key);
  });
}

void WriteGraph(const GraphSettings& graph, IniText& ini) {
  for (const auto& row : GraphRows) WriteIniRow(graph, ini, GraphSection, row);
  ForEachAxisTitle(graph, [&ini](const std::string& key, const std::string& title) {
    WriteIniValue(ini, GraphSection, key, title);
  });
}

// Far beyond every desktop.
constexpr int LargestPlace = 99'999;

// Reads whole numbers separated by commas. Returns none if the text is anything else.
std::vector<int> PlaceNumbers(std::string_view text) {
  std::vector<int> numbers;
  const char* at = text.data();
  const char* const end = at + text.size();
  while (true) {
    int number = 0;
    const auto [after, error] = std::from_chars(at, end, number);
    if (error != std::errc() || number < -LargestPlace || number > LargestPlace) return {};
    numbers.push_back(number);
    if (after == end) return numbers;
    if (*after != ',') return {};
    at = after + 1;
  }
}

void ReadWindowPlaces(WindowPlaces& places, const IniText& ini) {
  for (const std::string_view key : ini.Keys(WindowsSection)) {
    std::vector<int> numbers = PlaceNumbers(ini.Find(WindowsSection, key).value_or(std::string_view()));
    if (!numbers.empty()) places.insert_or_assign(std::string(key), std::move(numbers));
  }
}

void WritePlaces(const WindowPlaces& places, IniText& ini) {
  for (const auto& [name, numbers] : places) {
    std::string value;
    for (const int number : numbers) value.append(value.empty() ? "" : ",").append(NumberText(number));
    WriteIniValue(ini, WindowsSection, name, value);
  }
}

constexpr std::array AllSections{StoredSettings::Settings, StoredSettings::FileMenu, StoredSettings::TextBrowse,
                                 StoredSettings::Graph,    StoredSettings::Options,  StoredSettings::Windows};

void AddSavingToHistory(Program& program) {
  AddHistoryLine(program, "Saving default settings to file: " + program.session.IniFilePath);
}

}  // namespace

void SetBuiltInSettings(Program& program) {
  program.session.settings.DisplayFontName = ChooseDisplayFont(program);
  program.session.textBrowse.BrowseFontName = program.session.settings.DisplayFontName;
  program.session.settings.DataPath = program.session.folders.ProgramData;
}

void ReadSettings(Program& program, const IniText& ini, StoredSettings what) {
  const auto readRows = [&](auto& group, std::string_view section, const auto& rows) {
    for (const auto& row : rows) ReadIniRow(program, group, ini, section, row);
  };
  switch (what) {
    case StoredSettings::All:
      for (const StoredSettings section : AllSections) ReadSettings(program, ini, section);
      break;
    case StoredSettings::Settings: readRows(program.session.settings, SettingsSection, SettingsRows); break;
    case StoredSettings::FileMenu: ReadRecentFiles(program, ini); break;
    case StoredSettings::TextBrowse: readRows(program.session.textBrowse, TextBrowseSection, TextBrowseRows); break;
    case StoredSettings::Graph: ReadGraph(program, ini); break;
    case StoredSettings::Options: readRows(program.session.options, ReadOptionsSection, OptionRows); break;
    case StoredSettings::Windows: ReadWindowPlaces(program.session.places, ini); break;
  }
}

void WriteSettings(const Session& session, IniText& ini, StoredSettings what) {
  const auto writeRows = [&](const auto& group, std::string_view section, const auto& rows) {
    for (const auto& row : rows) WriteIniRow(group, ini, section, row);
  };
  switch (what) {
    case StoredSettings::All:
      for (const StoredSettings section : AllSections) WriteSettings(session, ini, section);
      break;
    case StoredSettings::Settings: writeRows(session.settings, SettingsSection, SettingsRows); break;
    case StoredSettings::FileMenu: WriteRecentFiles(session.recentFiles, ini); break;
    case StoredSettings::TextBrowse: writeRows(session.textBrowse, TextBrowseSection, TextBrowseRows); break;
    case StoredSettings::Graph: WriteGraph(session.graph, ini); break;
    case StoredSettings::Options: writeRows(session.options, WrittenOptionsSection, OptionRows); break;
    case StoredSettings::Windows: WritePlaces(session.places, ini); break;
  }
}

std::string IniVersion(const IniText& ini) { return ReadIniValue(ini, VersionSection, VersionKey); }

void WriteIniVersion(IniText& ini) { WriteIniValue(ini, VersionSection, VersionKey, BuildStamp); }

void ReadDefaults(Program& program, const IniText& ini) { ReadSettings(program, ini, StoredSettings::All); }

void WriteDefaults(Program& program, StoredSettings what) {
  // Before the edit, so that the history has the line also when the file cannot be written.
  AddSavingToHistory(program);
  EditIniFile(program, program.session.IniFilePath, [&](IniText& ini) { WriteSettings(program.session, ini, what); });
}

void WriteWindowPlaces(Program& program) {
  if (program.session.places.empty()) return;
  EditIniFile(program, program.session.IniFilePath,
              [&](IniText& ini) { WriteSettings(program.session, ini, StoredSettings::Windows); });
}

IniText NewIniText(const Session& session) {
  IniText ini;
  WriteIniVersion(ini);
  WriteSettings(session, ini, StoredSettings::All);
  WriteCatalogSection(session, ini, StoredCatalogs::Defaults);
  WriteCatalogSection(session, ini, StoredCatalogs::BoltParams);
  return ini;
}

// In one step: a file with the version but without the other values would start the next run with zeros.
void WriteNewIniFile(Program& program, const IniText& ini) {
  AddSavingToHistory(program);
  program.platform.files.ReplaceFile(program.session.IniFilePath, ini.FileBytes());
}

}  // namespace orby
