// The store of backups: project files before they were overwritten, and designs that were dropped without being saved.
// It is the folder "Backups" in the folder for program data, and is made when it is first needed.
//
// Each entry is a file with the same bytes, so that the user can open it. Its name, such as "2031-03-09 14.05.07
// 00012 panel3.ORB", has the time, a running number and the name of the project, followed by ".recovery" if it is a
// recovery file. The file "2031-03-09 14.05.07 00012.about" contains the path of the project and the reason for the
// backup. The store keeps at most 20 entries of one project, 500 entries in total and 50 MB, and removes the oldest
// first.
//
// No function here throws for an error of the disk. Other files in the folder are not changed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/program.h"
#include "files/recovery_file.h"

namespace orby {

enum class BackupReason { Overwritten, ChangedOnDisk, Dropped, Declined, Damaged };

// Returns the text of the reason for the user.
std::string_view ReasonText(BackupReason reason);

// The largest size of an entry in bytes.
inline constexpr std::size_t LargestBackup = std::size_t{10} * 1024 * 1024;

// Returns the folder of the store with a trailing separator. Empty when the program has no folder for its data.
std::string BackupFolder(const Session& session);

// Makes the folder of the store, which only the user can access. An existing folder keeps its permissions.
void MakeBackupFolder(Program& program);

// Stores the bytes of a project file before it is overwritten or dropped. Returns the path of the entry. Returns
// nothing when there is no folder for program data, when there are more bytes than LargestBackup, or when the disk
// reports an error. Bytes that equal the newest entry of the project are not stored again; the path of that entry is
// returned.
std::optional<std::string> KeepBackup(Program& program, const std::string& project, std::string_view bytes,
                                      BackupReason reason);

// Stores a design that was not saved, as a recovery file. Returns the same as KeepBackup.
std::optional<std::string> KeepDropped(Program& program, const UnsavedProject& project, BackupReason reason);

// Stores the bytes of a recovery file that cannot be read. Returns the same as KeepBackup.
std::optional<std::string> KeepDamaged(Program& program, std::string_view bytes);

// Stores the changes of a project before it is dropped, and adds a line to the history. If that fails, calls
// Program::KeepAside and shows a message with the path. Does nothing for a program without a folder for its data.
void KeepChanges(Program& program, const UnsavedProject& project, BackupReason reason = BackupReason::Dropped);

struct Backup {
  std::string Path;                    // of the entry
  std::string Project;                 // path of the project; only its name when the entry is damaged
  std::optional<BackupReason> Reason;  // nothing when the entry is damaged
  Moment Time;
  int Number = 0;  // a higher number is newer, whatever the time is
  std::uint64_t Bytes = 0;
};

// Returns all entries, the newest first. An entry whose ".about" file is missing or damaged is listed by its file name.
std::vector<Backup> ListBackups(Program& program);

// Removes the entry. Returns false when its file could not be removed.
bool RemoveBackup(Program& program, const Backup& backup);

}  // namespace orby
