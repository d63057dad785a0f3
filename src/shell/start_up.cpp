#include "shell/start_up.h"

#include <optional>
#include <utility>

#include "config/catalog_sections.h"
#include "config/designs_section.h"
#include "config/price_section.h"
#include "config/settings_sections.h"
#include "config/signed_report_section.h"
#include "config/user_folders.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "core/program_names.h"
#include "design/catalogs.h"
#include "files/new_project.h"

namespace orby {
namespace {

void SetBuiltInValues(Program& program) {
  FixDecimalSeparator(program);
  SetBuiltInCatalogs(program.session.catalogs);
}

// Returns the configuration that the last run left, if any. A file of another version, older or newer, is replaced, and
// the user's choices in it are lost.
std::optional<IniText> StoredConfiguration(Program& program) {
  FileSystem& files = program.platform.files;
  if (!files.Finds(program.session.IniFilePath)) return std::nullopt;
  IniText ini = IniText::FromFileBytes(files.ReadFile(program.session.IniFilePath));
  if (IniVersion(ini) != BuildStamp) return std::nullopt;
  return ini;
}

void ReportUnusableConfiguration(Program& program, const RuntimeError& error) {
  const std::string trouble = "Configuration file cannot be used: " + program.session.IniFilePath + " (" +
                              std::string(error.description()) + "). Built-in settings are in force";
  AddHistoryLine(program, trouble);
  ShowMessage(program, trouble + " and changes to them may be lost.", BoxIcon::Exclamation, std::string(ProgramTitle));
}

IniText SettledConfiguration(Program& program) {
  std::optional<RuntimeError> trouble;
  try {
    if (auto stored = StoredConfiguration(program)) return std::move(*stored);
  } catch (const RuntimeError& error) {
    trouble = error;
  }
  // Only here, not at every start: asking the system for its fonts takes longer than the rest of the start.
  SetBuiltInSettings(program);
  IniText ini = NewIniText(program.session);
  try {
    if (!trouble) WriteNewIniFile(program, ini);
  } catch (const RuntimeError& error) {
    trouble = error;
  }
  if (trouble) ReportUnusableConfiguration(program, *trouble);
  return ini;
}

void ReadCatalogSections(Program& program, const IniText& ini) {
  ReadCatalogSection(program, ini, StoredCatalogs::Defaults);
  ReadCatalogSection(program, ini, StoredCatalogs::BoltParams);
}

// A new configuration is also read back, so that the first run holds the same values as later ones.
void ReadConfiguration(Program& program, const IniText& ini) {
  ReadDefaults(program, ini);
  ReadCatalogSections(program, ini);
  ReadPrices(program.session.prices, ini);
  ReadSignedReport(program.session.signedReport, ini);
  program.session.designsFolder = ReadDesignsFolder(ini);
}

void BeginNewDesign(Program& program) { FileNew(program, Keeping::Nothing); }

}  // namespace

void StartProgram(Program& program) {
  SetBuiltInValues(program);
  FindUserFolders(program);
  program.session.IniFilePath = program.session.folders.ProgramData + std::string(IniFileName);
  ReadConfiguration(program, SettledConfiguration(program));
  BeginNewDesign(program);
  EnterWorkingFolder(program);
}

void StartApart(Program& program, const IniText* configuration) {
  SetBuiltInValues(program);
  if (configuration != nullptr) ReadCatalogSections(program, *configuration);
  BeginNewDesign(program);
}

std::string CommandLineFile(Program& program, const std::vector<std::string>& arguments) {
  std::string file;
  for (const std::string& argument : arguments) {
    if (&argument != &arguments.front()) file += ' ';
    file += argument;
  }
  std::erase(file, '"');
  return file.empty() ? file : program.platform.files.AbsolutePath(file);
}

}  // namespace orby
