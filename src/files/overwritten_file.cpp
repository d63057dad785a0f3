#include "files/overwritten_file.h"

#include <utility>

#include "base/attempt.h"
#include "base/number_text.h"
#include "core/messages.h"
#include "files/backups.h"

namespace orby {

namespace {

// Returns true if the file has these bytes or cannot be read.
bool HasOnlyTheseBytes(FileSystem& files, const std::string& path, std::string_view bytes) {
  std::string present;
  std::uint64_t length = 0;
  if (!Succeeds([&] { length = files.FileLength(path); })) return true;
  if (length != bytes.size()) return false;
  return !Succeeds([&] { present = files.ReadFile(path); }) || present == bytes;
}

}  // namespace

OverwrittenFile::OverwrittenFile(Program& program, std::string path) : program_(program), path_(std::move(path)) {
  Look();
}

void OverwrittenFile::Look() {
  FileSystem& files = program_.platform.files;
  const FileOnDisk& last = program_.project.LastFile;
  if (last.IsSpoilt && last.Path == path_) {
    isSpoilt_ = HasOnlyTheseBytes(files, path_, last.SpoiltBytes);
    if (isSpoilt_) {
      // The bytes that a failed save left are not worth a backup.
      holds_ = Holds::Known;
      old_ = last.Bytes;
      return;
    }
    lost_ = last.Bytes;
  }
  try {
    length_ = files.FileLength(path_);
  } catch (const RuntimeError& error) {
    const bool isMissing = error.number() == error_number::FileNotFound || error.number() == error_number::PathNotFound;
    holds_ = isMissing ? Holds::Nothing : Holds::Unreadable;
    return;
  }
  holds_ = Holds::TooMuch;
  if (length_ > LargestBackup) return;
  // A pipe has no length. Reading it would wait for another program.
  const bool isRead = length_ == 0 || Succeeds([&] { old_ = files.ReadFile(path_); });
  holds_ = isRead ? Holds::Known : Holds::Unreadable;
  isChanged_ = isRead && last.Path == path_ && last.Bytes != old_;
}

// A program for scripts has no folder for its data and stores no backups.
bool OverwrittenFile::MayKeep() const { return !BackupFolder(program_.session).empty(); }

SaveOutcome OverwrittenFile::Overwrite(std::string_view bytes) {
  if (MayKeep()) {
    if (const auto failure = FailureOf([&] { Keep(bytes); })) return {failure};
  }
  if (const auto failure = FailureOf([&] { Write(bytes); })) {
    PutBack();
    return {failure, RemarksOnFailure()};
  }
  program_.project.LastFile = {path_, std::string(bytes)};
  return {.Remarks = RemarksOnSuccess()};
}

void OverwrittenFile::Keep(std::string_view bytes) {
  if (lost_ != bytes) KeepCopy(lost_, BackupReason::Overwritten);
  switch (holds_) {
    case Holds::Nothing: return;
    case Holds::Unreadable: lacksBackup_ = true; return;
    case Holds::TooMuch:
      CheckThatItMayBeWritten();
      if (!Succeeds([this] { MoveBeside(); }) && beside_.empty()) Hold();
      return;
    case Holds::Known: break;
  }
  isChanged_ = isChanged_ && old_ != bytes;
  if (old_ != bytes) backup_ = KeepCopy(old_, isChanged_ ? BackupReason::ChangedOnDisk : BackupReason::Overwritten);
}

// Returns the path of the backup, or nothing when there are no bytes or they could not be stored.
std::optional<std::string> OverwrittenFile::KeepCopy(const std::string& bytes, BackupReason reason) {
  if (bytes.empty()) return std::nullopt;
  auto kept = KeepBackup(program_, program_.platform.files.AbsolutePath(path_), bytes, reason);
  lacksBackup_ = lacksBackup_ || !kept;
  return kept;
}

// The folder may allow a rename although the file itself is read-only.
void OverwrittenFile::CheckThatItMayBeWritten() { program_.platform.files.OpenInPlace(path_, 0); }

void OverwrittenFile::MoveBeside() {
  constexpr int MostNames = 99;
  FileSystem& files = program_.platform.files;
  const std::string target = files.ResolveLinks(path_);
  for (int number = 1; number <= MostNames; ++number) {
    const std::string name = target + ".old" + (number == 1 ? std::string() : NumberText(number));
    if (files.Finds(name)) continue;
    files.RenameFile(target, name);
    beside_ = name;
    if (Succeeds([&] { files.MakeFileLike(target, name); })) return;
    files.RenameFile(name, target);
    beside_.clear();
    break;
  }
  throw RuntimeError(error_number::PathFileAccess);
}

// Reads the old file into memory. A file that is too large for that is not overwritten.
void OverwrittenFile::Hold() {
  constexpr std::uint64_t MostHeld = std::uint64_t{256} * 1024 * 1024;
  if (length_ > MostHeld) throw RuntimeError(error_number::OutOfMemory);
  old_ = program_.platform.files.ReadFile(path_);
  holds_ = Holds::Known;
  lacksBackup_ = true;
}

void OverwrittenFile::Write(std::string_view bytes) {
  const auto file = program_.platform.files.OpenInPlace(path_, bytes.size());
  isTouched_ = true;
  file->Write(bytes);
  file->Close();
}

void OverwrittenFile::PutBack() {
  FileSystem& files = program_.platform.files;
  if (!beside_.empty()) {
    isAsBefore_ = Succeeds([this, &files] { files.RenameFile(beside_, files.ResolveLinks(path_)); });
  } else if (!isTouched_) {
    isAsBefore_ = !isSpoilt_;
  } else if (holds_ == Holds::Nothing) {
    isAsBefore_ = Succeeds([this, &files] { files.RemoveFile(files.ResolveLinks(path_)); });
  } else {
    isAsBefore_ = holds_ == Holds::Known && Succeeds([this] { Write(old_); });
  }
  if (holds_ != Holds::Known) return;
  // LastFile keeps the old bytes until they are on the disk again.
  if (!isAsBefore_) {
    program_.project.LastFile = {path_, old_, true};
    Succeeds([&] { program_.project.LastFile.SpoiltBytes = files.ReadFile(path_); });
  }
  if (isAsBefore_ && program_.project.LastFile.Path == path_) program_.project.LastFile.IsSpoilt = false;
}

std::vector<std::string> OverwrittenFile::RemarksOnSuccess() {
  std::vector<std::string> remarks;
  if (!beside_.empty()) {
    remarks.push_back("The old contents of " + path_ + " are too long for Backups. The old file is kept as " + beside_ +
                      ".");
  }
  if (lacksBackup_) {
    const std::string text =
        "The old contents of " + path_ + " could not be kept in " + BackupFolder(program_.session) + ".";
    if (std::exchange(program_.session.NoBackupReported, true)) {
      AddHistoryLine(program_, text);
    } else {
      remarks.push_back(text);
    }
  }
  if (isChanged_ && backup_) {
    remarks.push_back(path_ +
                      " had been changed by another program. It now holds the project as it is here; what the "
                      "other program wrote is kept in " +
                      *backup_ + ".");
  }
  return remarks;
}

std::vector<std::string> OverwrittenFile::RemarksOnFailure() const {
  if (isAsBefore_) {
    if (!backup_) return {};
    return {path_ + " is as it was before. A copy of it is kept in " + *backup_ + "."};
  }
  if (!beside_.empty()) return {path_ + " could not be saved. The old file is kept as " + beside_ + "."};
  if (backup_) return {path_ + " may be damaged. What it held before is kept in " + *backup_ + "."};
  if (holds_ == Holds::Known && !old_.empty()) {
    return {path_ +
            " may be damaged, and no backup of it could be kept. Save the project before you leave the program."};
  }
  if (isTouched_) return {path_ + " may be damaged."};
  return {};
}

}  // namespace orby
