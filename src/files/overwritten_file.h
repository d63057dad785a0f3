// A project file that is written over: what it holds is kept first, and put back when the writing fails.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/program.h"
#include "files/backups.h"

namespace orby {

class OverwrittenFile {
 public:
  // Looks at what the path holds, and changes nothing.
  OverwrittenFile(Program& program, std::string path);

  // Keeps what the path holds and writes the bytes over it. Returns once the disk has them; the program knows them as
  // those of the file from then on. Appends what the user is to be told.
  // Throws the RuntimeError of the file, the old bytes being put back if they can be.
  void Overwrite(std::string_view bytes, std::vector<std::string>& remarks);

  // Where Overwrite has kept the old bytes; nothing if it kept none.
  const std::optional<std::string>& Backup() const { return backup_; }

 private:
  // What the path holds.
  enum class Holds {
    Nothing,     // no file is there
    Known,       // old_ has it
    Unreadable,  // a file that may not be read
    TooMuch,     // longer than LargestBackup; length_ bytes
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
  void TellKept(std::vector<std::string>& remarks);
  void TellFailed(std::vector<std::string>& remarks) const;

  Program& program_;
  std::string path_;
  Holds holds_ = Holds::Nothing;
  std::string old_;
  std::uint64_t length_ = 0;
  std::string lost_;                   // the old bytes of a failed save, where something else has come there since
  bool isSpoilt_ = false;              // the file is as a failed save left it
  bool isChanged_ = false;             // by another program
  bool lacksBackup_ = false;           // one was needed and could not be had
  std::optional<std::string> backup_;  // where the old bytes are kept
  std::string beside_;                 // the old file under its other name; empty: it was not renamed
  bool isTouched_ = false;             // the writing has begun
  bool isAsBefore_ = true;             // after a failure
};

}  // namespace orby
