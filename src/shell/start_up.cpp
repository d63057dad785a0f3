#include "shell/start_up.h"

#include "base/text.h"
#include "catalogs/catalogs.h"
#include "config/catalog_sections.h"
#include "config/settings_sections.h"
#include "config/user_folders.h"
#include "core/dialog_helpers.h"
#include "core/file_helpers.h"
#include "core/program_names.h"
#include "files/new_project.h"

namespace orby {
namespace {

void SetBuiltInValues(Program& program) {
  FixDecimalSeparator(program);
  SetBuiltInCatalogs(program.catalogs);
}

// A file of any other version, older or newer, is thrown away with all that the user chose.
void SettleConfiguration(Program& program) {
  if (FileExists(program, program.IniFilePath)) {
    if (ReadIniVersion(program) == BuildStamp) return;
    program.platform.files.RemoveFile(program.IniFilePath);
  }
  // Here alone, not at every start: to ask the machine for its fonts takes longer than all the rest.
  SetBuiltInSettings(program);
  WriteNewIniFile(program);
}

void ReadCatalogSections(Program& program, const IniText& ini) {
  ReadCatalogSection(program, ini, catalog_section::Defaults);
  ReadCatalogSection(program, ini, catalog_section::BoltParams);
}

// A new file is read back too, so that the first run holds what later ones will.
void ReadConfiguration(Program& program) {
  const IniText ini = ReadIniFile(program, program.IniFilePath);
  ReadDefaults(program, ini);
  ReadCatalogSections(program, ini);
}

void BeginNewDesign(Program& program) { FileNew(program, true, true); }

}  // namespace

void StartProgram(Program& program) {
  SetBuiltInValues(program);
  FindUserFolders(program);
  program.IniFilePath = program.folders.ProgramData + std::string(IniFileName);
  SettleConfiguration(program);
  ReadConfiguration(program);
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
