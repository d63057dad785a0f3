// The store of backups: project files as they were before they were overwritten, and designs that were dropped without
// being saved. It is the folder "Backups" of the program data folder, made when first needed.
//
// Each entry is a file with the kept bytes exactly as they were, so that it can also be opened by hand:
// "2031-03-09 14.05.07 00012 panel3.ORB", the time, a running number and the project's name; ".recovery" follows when
// the bytes are those of a recovery file. "2031-03-09 14.05.07 00012.about" beside it tells the project's path and why
// it was kept. The store keeps the newest 20 entries of one project, 500 altogether, and 50 MB; the oldest go first.
//
// No routine here throws for an error of the disk. Other files in the folder are left alone.
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

// The reason as the user reads it.
std::string_view ReasonText(BackupReason reason);

// Longer files are not copied into the store.
inline constexpr std::size_t LargestBackup = std::size_t{10} * 1024 * 1024;

// The folder of the store, with a trailing separator; empty when the program has no data folder.
std::string BackupFolder(const Session& session);

// Makes the folder of the store, open to its user alone. One that is there already stays as it is.
void MakeBackupFolder(Program& program);

// Keeps the bytes of a project file that is about to be overwritten or given up. Returns the path of the kept file, or
// nothing when none could be kept: there is no program data folder, the bytes are more than LargestBackup, or the disk
// refused. Bytes that equal the newest ones of this project are not kept twice: the path of those is returned.
std::optional<std::string> KeepBackup(Program& program, const std::string& project, std::string_view bytes,
                                      BackupReason reason);

// Keeps a design that was never saved, as a recovery file. Returns what KeepBackup returns.
std::optional<std::string> KeepDropped(Program& program, const UnsavedProject& project, BackupReason reason);

// Keeps the bytes of a recovery file that cannot be read. Returns what KeepBackup returns.
std::optional<std::string> KeepDamaged(Program& program, std::string_view bytes);

// Keeps the changes of a project that is about to be dropped, and adds a line to the history that says so. If the store
// cannot take them the program keeps them aside, and one message says where. Does nothing for a program without a data
// folder.
void KeepChanges(Program& program, const UnsavedProject& project, BackupReason reason = BackupReason::Dropped);

struct Backup {
  std::string Path;                    // of the kept file
  std::string Project;                 // path of the project; only its name when the entry is damaged
  std::optional<BackupReason> Reason;  // nothing when the entry is damaged
  Moment Time;
  int Number = 0;  // higher is newer, whatever the clock said
  std::uint64_t Bytes = 0;
};

// All entries, the newest first. An entry whose ".about" is missing or damaged is listed by its file name.
std::vector<Backup> ListBackups(Program& program);

// Removes the entry; false when its file is still there.
bool RemoveBackup(Program& program, const Backup& backup);

}  // namespace orby
