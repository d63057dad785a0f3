#include "files/backups.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/attempt.h"
#include "base/number_text.h"
#include "base/paths.h"
#include "base/text.h"
#include "core/dates.h"
#include "core/messages.h"
#include "files/escaped_line.h"
#include "platform/whole_file.h"

namespace orby {
namespace {

constexpr std::string_view FolderName = "Backups";
constexpr std::string_view RecoveryEnding = ".recovery";
constexpr std::string_view AboutEnding = ".about";

constexpr int MostOfOneProject = 20;
constexpr int MostEntries = 500;
constexpr std::uint64_t MostBytes = std::uint64_t{50} * 1024 * 1024;

struct ReasonRow {
  BackupReason Reason;
  std::string_view Key;  // in the ".about" file
  std::string_view Text;
};

constexpr std::array Reasons{
    ReasonRow{BackupReason::Overwritten, "Overwritten", "Overwritten by a save"},
    ReasonRow{BackupReason::ChangedOnDisk, "ChangedOnDisk", "Changed by another program"},
    ReasonRow{BackupReason::Dropped, "Dropped", "Not saved"},
    ReasonRow{BackupReason::Declined, "Declined", "Recovery declined"},
    ReasonRow{BackupReason::Damaged, "Damaged", "Damaged recovery file"},
};

const ReasonRow& RowOf(BackupReason reason) { return *std::ranges::find(Reasons, reason, &ReasonRow::Reason); }

// The start of the file name of an entry.
struct Stamp {
  Moment Time;
  int Number = 0;
};

// Returns the text of a stamp. Its time has points, because some disks do not allow a colon in a name.
std::string StampText(const Stamp& stamp) {
  constexpr std::size_t Digits = 5;
  std::string time = MomentText(stamp.Time);
  std::ranges::replace(time, ':', '.');
  const std::string number = NumberText(stamp.Number);
  return time + " " + std::string(Digits - std::min(Digits, number.size()), '0') + number;
}

std::optional<int> TakeDigits(std::string_view& text, std::size_t most) {
  std::size_t count = 0;
  while (count < std::min(most, text.size()) && text[count] >= '0' && text[count] <= '9') ++count;
  if (count == 0) return std::nullopt;
  int number = 0;
  std::from_chars(text.data(), text.data() + count, number);
  text.remove_prefix(count);
  return number;
}

// Removes the stamp from the start of the name and returns it.
std::optional<Stamp> TakeStamp(std::string_view& name) {
  constexpr std::string_view Separators = "-- .. ";
  std::array<int, 7> numbers{};
  for (std::size_t at = 0; at < numbers.size(); ++at) {
    const auto number = TakeDigits(name, 9);
    if (!number) return std::nullopt;
    numbers[at] = *number;
    if (at == Separators.size()) break;
    if (name.empty() || name.front() != Separators[at]) return std::nullopt;
    name.remove_prefix(1);
  }
  const auto& [year, month, day, hour, minute, second, number] = numbers;
  return Stamp{{{year, month, day}, hour, minute, second}, number};
}

// Returns the name of the project as a part of a file name that every disk allows.
std::string FileNameOf(std::string_view project) {
  constexpr std::size_t LongestName = 100;
  constexpr std::string_view NotEverywhere = "<>:\"|?*";
  std::string name(NameAfterSeparator(project));
  if (name.size() > LongestName) {
    const auto isInsideCharacter = [&](std::size_t at) {
      return (static_cast<unsigned char>(name[at]) & 0xC0U) == 0x80U;
    };
    std::size_t start = name.size() - LongestName;
    while (start < name.size() && isInsideCharacter(start)) ++start;
    name.erase(0, start);
  }
  for (char& c : name) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7F || NotEverywhere.find(c) != std::string_view::npos) c = '_';
  }
  return name.empty() ? std::string(UntitledName) : name;
}

std::string_view WithoutEnding(std::string_view name, std::string_view ending) {
  if (name.ends_with(ending)) name.remove_suffix(ending.size());
  return name;
}

// Returns the name of the project from the file name of an entry.
std::string_view NameIn(const Backup& backup) {
  std::string_view name = NameAfterSeparator(backup.Path);
  TakeStamp(name);
  name.remove_prefix(1);
  return WithoutEnding(name, RecoveryEnding);
}

std::string AboutPath(const Session& session, const Backup& backup) {
  return BackupFolder(session) + StampText({backup.Time, backup.Number}) + std::string(AboutEnding);
}

std::string AboutText(std::string_view project, BackupReason reason) {
  std::string text = "Project=" + Escaped(project);
  text.append(LineEnd).append("Reason=").append(RowOf(reason).Key).append(LineEnd);
  return text;
}

// Reads the ".about" file of the entry. Ignores one that does not belong to this entry.
void ReadAbout(Program& program, Backup& backup) {
  std::string bytes;
  if (!Succeeds([&] { bytes = program.platform.files.ReadFile(AboutPath(program.session, backup)); })) return;
  std::string_view rest = bytes;
  const std::string_view line = TakeLine(rest);
  const std::string project = Unescaped(line.substr(std::min(line.find('=') + 1, line.size())));
  for (const ReasonRow& row : Reasons) {
    if (AboutText(project, row.Reason) != bytes || FileNameOf(project) != NameIn(backup)) continue;
    backup.Project = project;
    backup.Reason = row.Reason;
  }
}

// Returns the entries with the data of their file names, the newest first.
std::vector<Backup> EntriesByName(Program& program) {
  std::vector<Backup> entries;
  FileSystem& files = program.platform.files;
  for (const std::string& path : files.FilesIn(BackupFolder(program.session))) {
    std::string_view name = NameAfterSeparator(path);
    const auto stamp = TakeStamp(name);
    if (!stamp || name.size() < 2 || name.front() != ' ') continue;
    Backup& entry = entries.emplace_back();
    entry.Path = path;
    entry.Time = stamp->Time;
    entry.Number = stamp->Number;
    entry.Project = NameIn(entry);
    Succeeds([&] { entry.Bytes = files.FileLength(path); });
  }
  std::ranges::stable_sort(entries, std::ranges::greater(), &Backup::Number);
  return entries;
}

// Returns the entries of the project in the same order.
std::vector<Backup> EntriesOf(Program& program, const std::vector<Backup>& entries, const std::string& project) {
  std::vector<Backup> own;
  const std::string name = FileNameOf(project);
  for (Backup entry : entries) {
    if (entry.Project != name) continue;
    ReadAbout(program, entry);
    if (entry.Project == project) own.push_back(entry);
  }
  return own;
}

bool HasBytes(Program& program, const Backup& entry, std::string_view bytes) {
  if (entry.Bytes != bytes.size()) return false;
  std::string kept;
  return Succeeds([&] { kept = program.platform.files.ReadFile(entry.Path); }) && kept == bytes;
}

// Removes the oldest entries, so that the store has room for a new entry of the project.
void RemoveOldest(Program& program, std::vector<Backup> entries, const std::vector<Backup>& own, std::size_t bytes) {
  const auto remove = [&](const Backup& entry) { RemoveBackup(program, entry); };
  if (own.size() >= MostOfOneProject) {
    for (std::size_t at = MostOfOneProject - 1; at < own.size(); ++at) {
      remove(own[at]);
      std::erase_if(entries, [&](const Backup& entry) { return entry.Path == own[at].Path; });
    }
  }
  std::uint64_t sum = bytes;
  int count = 1;
  for (const Backup& entry : entries) {
    sum += entry.Bytes;
    if (++count > MostEntries || sum > MostBytes) remove(entry);
  }
}

std::optional<std::string> StoreEntry(Program& program, const std::string& project, std::string_view bytes,
                                      BackupReason reason, std::string_view ending) {
  const std::string folder = BackupFolder(program.session);
  if (folder.empty() || bytes.size() > LargestBackup) return std::nullopt;
  FileSystem& files = program.platform.files;
  const std::vector<Backup> entries = EntriesByName(program);
  const std::vector<Backup> own = EntriesOf(program, entries, project);
  if (!own.empty() && HasBytes(program, own.front(), bytes)) return own.front().Path;

  Backup entry;
  entry.Time = program.platform.clock.Now();
  entry.Number = entries.empty() ? 0 : entries.front().Number;
  const auto isTaken = [&](const std::string& path) {
    bool isFound = false;
    return Succeeds([&] { isFound = files.Finds(path); }) && isFound;
  };
  // Another program may have written its entry since the folder was listed.
  do {
    ++entry.Number;
    entry.Path = folder + StampText({entry.Time, entry.Number}) + " " + FileNameOf(project) + std::string(ending);
  } while (isTaken(entry.Path) || isTaken(AboutPath(program.session, entry)));
  MakeBackupFolder(program);
  if (!TryWriteWhole(files, entry.Path, bytes)) return std::nullopt;
  TryWriteWhole(files, AboutPath(program.session, entry), AboutText(project, reason));
  RemoveOldest(program, entries, own, bytes.size());
  return entry.Path;
}

}  // namespace

std::string_view ReasonText(BackupReason reason) { return RowOf(reason).Text; }

std::string BackupFolder(const Session& session) {
  const std::string& data = session.folders.ProgramData;
  return data.empty() ? data : WithSeparator(WithSeparator(data).append(FolderName));
}

void MakeBackupFolder(Program& program) {
  Succeeds([&] { program.platform.files.MakePrivateFolder(BackupFolder(program.session)); });
}

std::optional<std::string> KeepBackup(Program& program, const std::string& project, std::string_view bytes,
                                      BackupReason reason) {
  return StoreEntry(program, project, bytes, reason, {});
}

std::optional<std::string> KeepDropped(Program& program, const UnsavedProject& project, BackupReason reason) {
  const std::string& file = project.CurrentFile;
  const bool hasName = !file.empty() && !SameWithoutCase(file, UntitledName);
  const std::string path = hasName ? program.platform.files.AbsolutePath(file) : file;
  return StoreEntry(program, path, RecoveryBytes(project), reason, RecoveryEnding);
}

std::optional<std::string> KeepDamaged(Program& program, std::string_view bytes) {
  const std::string project = ProjectNamedIn(bytes);
  return StoreEntry(program, project.empty() ? std::string(UntitledName) : project, bytes, BackupReason::Damaged,
                    RecoveryEnding);
}

void KeepChanges(Program& program, const UnsavedProject& project, BackupReason reason) {
  if (BackupFolder(program.session).empty()) return;
  if (KeepDropped(program, project, reason)) {
    AddHistoryLine(program, "Unsaved changes kept in Backups: " + project.CurrentFile);
    return;
  }
  std::string text = "The unsaved changes could not be kept in Backups: " + project.CurrentFile;
  const std::string aside = program.KeepAside ? program.KeepAside(RecoveryBytes(project)) : std::string();
  if (!aside.empty()) {
    text.append(LineEnd).append(LineEnd).append("What could be kept of them is in " + aside + ".");
  }
  ShowMessage(program, text, BoxIcon::Exclamation);
}

std::vector<Backup> ListBackups(Program& program) {
  if (BackupFolder(program.session).empty()) return {};
  std::vector<Backup> entries = EntriesByName(program);
  for (Backup& entry : entries) ReadAbout(program, entry);
  return entries;
}

bool RemoveBackup(Program& program, const Backup& backup) {
  FileSystem& files = program.platform.files;
  if (!Succeeds([&] { files.RemoveFile(backup.Path); })) return false;
  Succeeds([&] { files.RemoveFile(AboutPath(program.session, backup)); });
  return true;
}

}  // namespace orby
