#include "files/kept_project.h"

#include "base/runtime_error.h"
#include "core/description.h"
#include "files/new_project.h"
#include "files/project_reader.h"
#include "files/project_writer.h"

namespace orby {
namespace {

// Returns another program with the same catalogs and settings, so that reading does not change this program.
Program SeparateProgram(const Program& program) {
  Program beside(program.platform);
  beside.session.catalogs = program.session.catalogs;
  beside.session.defaults = program.session.defaults;
  beside.session.settings = program.session.settings;
  beside.session.settings.DisplayHistoryWin = 0;
  beside.session.options = program.session.options;
  beside.session.folders = program.session.folders;
  beside.project.UseAUSStandardTable = program.project.UseAUSStandardTable;
  return beside;
}

std::string Saved(Program& beside) {
  SaveDescription(beside);
  return ProjectFileBytes(beside.project);
}

std::optional<UnsavedProject> ReadProjectFile(const Program& program, std::string_view bytes, const std::string& name) {
  try {
    const ItemReader reader(bytes);
    const auto format = FormatOf(reader);
    if (!format) return std::nullopt;
    Program beside = SeparateProgram(program);
    FileNew(beside, Keeping::Name);
    beside.project.FileVersion = *format;
    ReadProject(beside.project, reader);
    beside.project.CurrentFile = name;
    beside.project.FileEmpty = false;
    beside.project.UnitsLocked = true;
    return beside.project;
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
  Program beside = SeparateProgram(program);
  RestoreProject(beside.project, *project);
  return Saved(beside);
}

std::string BytesOfSave(const Program& program) {
  Program beside = SeparateProgram(program);
  beside.project = program.project;
  return Saved(beside);
}

}  // namespace orby
