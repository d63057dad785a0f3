#include "files/kept_project.h"

#include "base/runtime_error.h"
#include "core/description.h"
#include "files/new_project.h"
#include "files/project_reader.h"
#include "files/project_writer.h"

namespace orby {
namespace {

// A program that reads and writes without a trace in this one.
Program ProgramBeside(const Program& program) {
  Program beside(program.platform);
  beside.catalogs = program.catalogs;
  beside.defaults = program.defaults;
  beside.settings = program.settings;
  beside.settings.DisplayHistoryWin = 0;
  beside.options = program.options;
  beside.folders = program.folders;
  beside.UseAUSStandardTable = program.UseAUSStandardTable;
  return beside;
}

std::optional<UnsavedProject> ReadProjectFile(const Program& program, std::string_view bytes, const std::string& name) {
  try {
    const ItemReader reader(bytes);
    const auto format = FormatOf(reader);
    if (!format) return std::nullopt;
    Program beside = ProgramBeside(program);
    FileNew(beside, false, true);
    beside.FileVersion = *format;
    ReadProject(beside, reader);
    beside.CurrentFile = name;
    beside.FileEmpty = false;
    beside.UnitsLocked = true;
    return CommittedProject(beside);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

}  // namespace

std::optional<UnsavedProject> ReadKeptProject(const Program& program, std::string_view bytes, const std::string& name) {
  return IsRecoveryFile(bytes) ? ReadRecovery(bytes) : ReadProjectFile(program, bytes, name);
}

std::optional<std::string> KeptProjectAsFile(const Program& program, std::string_view bytes) {
  const auto project = ReadKeptProject(program, bytes, {});
  if (!project) return std::nullopt;
  if (!IsRecoveryFile(bytes)) return std::string(bytes);
  Program beside = ProgramBeside(program);
  RestoreProject(beside, *project);
  SaveDescription(beside);
  return ProjectFileBytes(beside);
}

}  // namespace orby
