#include "files/overwritten_file.h"

#include <utility>

#include "base/attempt.h"
#include "base/number_text.h"
#include "core/messages.h"
#include "files/backups.h"

namespace orby {

OverwrittenFile::OverwrittenFile(Program& program, std::string path) : program_(program), path_(std::move(path)) {
  Look();
}

void OverwrittenFile::Look() {
  FileSystem& files = program_.platform.files;
  const FileOnDisk& last = program_.LastFile;
  // What a failed save has left there is worth nothing.
  if (last.IsSpoilt && last.Path == path_) {
    holds_ = Holds::Known;
    old_ = last.Bytes;
    return;
  }
  if (!Succeeds([&] { length_ = files.FileLength(path_); })) return;
  holds_ = Holds::TooMuch;
  if (length_ > LargestBackup) return;
  // A pipe has no length and is not to be waited for.
  const bool isRead = length_ == 0 || Succeeds([&] { old_ = files.ReadFile(path_); });
  holds_ = isRead ? Holds::Known : Holds::Unreadable;
  isChanged_ = isRead && last.Path == path_ && last.Bytes != old_;
}

// A program for scripts keeps nothing.
bool OverwrittenFile::MayKeep() const { return !BackupFolder(program_).empty(); }

void OverwrittenFile::Overwrite(std::string_view bytes, std::vector<std::string>& remarks) {
  if (MayKeep()) Keep(bytes);
  try {
    Write(bytes);
  } catch (const RuntimeError&) {
    PutBack();
    TellFailed(remarks);
    throw;
  }
  program_.LastFile = {path_, std::string(bytes), false};
  TellKept(remarks);
}

void OverwrittenFile::Keep(std::string_view bytes) {
  switch (holds_) {
    case Holds::Nothing: return;
    case Holds::Unreadable: lacksBackup_ = true; return;
    case Holds::TooMuch:
      if (!Succeeds([this] { MoveBeside(); })) Hold();
      return;
    case Holds::Known: break;
  }
  isChanged_ = isChanged_ && old_ != bytes;
  if (old_.empty() || old_ == bytes) return;
  backup_ = KeepBackup(program_, program_.platform.files.AbsolutePath(path_), old_,
                       isChanged_ ? BackupReason::ChangedOnDisk : BackupReason::Overwritten);
  lacksBackup_ = !backup_;
}

void OverwrittenFile::MoveBeside() {
  constexpr int MostNames = 99;
  FileSystem& files = program_.platform.files;
  for (int number = 1; number <= MostNames; ++number) {
    const std::string name = path_ + ".old" + (number == 1 ? std::string() : NumberText(number));
    if (files.Finds(name, true)) continue;
    files.RenameFile(path_, name);
    beside_ = name;
    return;
  }
  throw RuntimeError(error_number::PathFileAccess);
}

// A file that cannot even be held in memory is not written over.
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
    isAsBefore_ = Succeeds([this, &files] { files.RenameFile(beside_, path_); });
  } else if (!isTouched_) {
    isAsBefore_ = !program_.LastFile.IsSpoilt || program_.LastFile.Path != path_;
  } else if (holds_ == Holds::Nothing) {
    isAsBefore_ = Succeeds([this, &files] { files.RemoveFile(path_); });
  } else {
    isAsBefore_ = holds_ == Holds::Known && Succeeds([this] { Write(old_); });
  }
  if (holds_ != Holds::Known) return;
  // Until they are on the disk again, the old bytes are those of the file.
  if (!isAsBefore_) program_.LastFile = {path_, old_, true};
  if (isAsBefore_ && program_.LastFile.Path == path_) program_.LastFile.IsSpoilt = false;
}

void OverwrittenFile::TellKept(std::vector<std::string>& remarks) {
  if (!beside_.empty()) {
    remarks.push_back("The file that " + path_ + " was before is too long for Backups. It is kept as " + beside_ + ".");
  }
  if (lacksBackup_) {
    const std::string text =
        "No backup of what " + path_ + " held before could be kept in " + BackupFolder(program_) + ".";
    if (std::exchange(program_.ToldOfNoBackup, true)) {
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
}

void OverwrittenFile::TellFailed(std::vector<std::string>& remarks) const {
  if (isAsBefore_) {
    if (backup_) remarks.push_back(path_ + " is as it was before. A copy of it is kept in " + *backup_ + ".");
  } else if (!beside_.empty()) {
    remarks.push_back(path_ + " could not be saved. The file that it was before is kept as " + beside_ + ".");
  } else if (backup_) {
    remarks.push_back(path_ + " may be damaged. What it held before is kept in " + *backup_ + ".");
  } else if (holds_ == Holds::Known && !old_.empty()) {
    remarks.push_back(path_ +
                      " may be damaged, and no backup of it could be kept. Save the project before you leave "
                      "the program.");
  }
}

}  // namespace orby
