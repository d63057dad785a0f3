// Overwrites a project file. Its old contents are stored first, and restored when the write fails.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/runtime_error.h"
#include "core/program.h"
#include "files/backups.h"

namespace orby {

// How a save ended.
struct SaveOutcome {
  std::optional<RuntimeError> Failure = std::nullopt;  // the error of the file, or nothing when the save succeeded
  std::vector<std::string> Remarks{};                  // for the user, each in a message of its own
};

class OverwrittenFile {
 public:
  // Reads the old contents. Changes nothing.
  OverwrittenFile(Program& program, std::string path);

  // Stores the old contents and overwrites the file. Returns after the bytes are on the disk, and sets LastFile of the
  // project to them. After a failure it has tried to restore the old bytes.
  SaveOutcome Overwrite(std::string_view bytes);

  // Returns the path of the backup that Overwrite has stored, or nothing when there is none.
  const std::optional<std::string>& Backup() const { return backup_; }

 private:
  // The old contents of the path.
  enum class Holds {
    Nothing,     // there is no file
    Known,       // the bytes are in old_
    Unreadable,  // the file cannot be read
    TooMuch,     // the file is longer than LargestBackup
  };

  void Look();
  bool MayKeep() const;
  void Keep(std::string_view bytes);
  std::optional<std::string> KeepCopy(const std::string& bytes, BackupReason reason);
  void CheckThatItMayBeWritten();
  void MoveBeside();
  void Hold();
  void Write(std::string_view bytes);
  void PutBack();
  std::vector<std::string> RemarksOnSuccess();
  std::vector<std::string> RemarksOnFailure() const;

  Program& program_;
  std::string path_;
  Holds holds_ = Holds::Nothing;
  std::string old_;
  std::uint64_t length_ = 0;
  std::string lost_;                   // bytes before a failed save, if the file has changed since then
  bool isSpoilt_ = false;              // the file has the bytes that a failed save left
  bool isChanged_ = false;             // another program has changed the file
  bool lacksBackup_ = false;           // a backup was needed and could not be stored
  std::optional<std::string> backup_;  // path of the backup of the old bytes
  std::string beside_;                 // the path to which the old file was renamed; empty: not renamed
  bool isTouched_ = false;             // the write has begun
  bool isAsBefore_ = true;             // after a failure the file has its old bytes
};

}  // namespace orby
