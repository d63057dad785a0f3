#include "disk_calls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>

namespace orby::test {
namespace {

bool isCounting = false;
Mishap plan;
const char* happenedAt = nullptr;

// Returns true if the call of this name must fail, and sets its error. If the process is to be killed, does half of the
// call's work first and does not return.
template <class Half>
bool Fails(const char* name, const Half& half) {
  if (!isCounting || plan.after < 0) return false;
  if (plan.after-- > 0) return false;
  happenedAt = happenedAt == nullptr ? name : happenedAt;
  if (plan.systemError == 0) {
    half();
    std::raise(SIGKILL);
  }
  if (plan.lasts) plan.after = 0;
  errno = plan.systemError;
  return true;
}

bool Fails(const char* name) {
  return Fails(name, [] {});
}

}  // namespace

void BeginMishap(const Mishap& mishap) {
  plan = mishap;
  happenedAt = nullptr;
  isCounting = true;
}

std::string EndMishap() {
  isCounting = false;
  return happenedAt == nullptr ? "" : happenedAt;
}

// The linker uses these names for a wrapped function.
int RealOpen(const char* path, int flags, ...) asm("__real_open");
int WrappedOpen(const char* path, int flags, mode_t mode) asm("__wrap_open");
ssize_t RealWrite(int file, const void* bytes, std::size_t count) asm("__real_write");
ssize_t WrappedWrite(int file, const void* bytes, std::size_t count) asm("__wrap_write");
int RealTruncate(int file, off_t length) asm("__real_ftruncate");
int WrappedTruncate(int file, off_t length) asm("__wrap_ftruncate");
int RealAllocate(int file, int mode, off_t offset, off_t length) asm("__real_fallocate");
int WrappedAllocate(int file, int mode, off_t offset, off_t length) asm("__wrap_fallocate");
int RealFlush(int file) asm("__real_fsync");
int WrappedFlush(int file) asm("__wrap_fsync");
int RealClose(int file) asm("__real_close");
int WrappedClose(int file) asm("__wrap_close");
int RealRename(const char* path, const char* newPath) asm("__real_rename");
int WrappedRename(const char* path, const char* newPath) asm("__wrap_rename");
int RealRemove(const char* path) asm("__real_unlink");
int WrappedRemove(const char* path) asm("__wrap_unlink");
std::FILE* RealOpenStream(const char* path, const char* mode) asm("__real_fopen");
std::FILE* WrappedOpenStream(const char* path, const char* mode) asm("__wrap_fopen");
int RealCloseStream(std::FILE* file) asm("__real_fclose");
int WrappedCloseStream(std::FILE* file) asm("__wrap_fclose");

int WrappedOpen(const char* path, int flags, mode_t mode) {
  const bool writes = (flags & (O_WRONLY | O_RDWR)) != 0;
  return writes && Fails("open") ? -1 : RealOpen(path, flags, mode);
}

ssize_t WrappedWrite(int file, const void* bytes, std::size_t count) {
  const auto half = [=] { static_cast<void>(RealWrite(file, bytes, count / 2)); };
  return Fails("write", half) ? -1 : RealWrite(file, bytes, count);
}

int WrappedTruncate(int file, off_t length) { return Fails("ftruncate") ? -1 : RealTruncate(file, length); }

int WrappedAllocate(int file, int mode, off_t offset, off_t length) {
  return Fails("fallocate") ? -1 : RealAllocate(file, mode, offset, length);
}

int WrappedFlush(int file) { return Fails("fsync") ? -1 : RealFlush(file); }

int WrappedClose(int file) {
  if (!Fails("close")) return RealClose(file);
  const int systemError = errno;
  RealClose(file);
  errno = systemError;
  return -1;
}

int WrappedRename(const char* path, const char* newPath) { return Fails("rename") ? -1 : RealRename(path, newPath); }

int WrappedRemove(const char* path) { return Fails("unlink") ? -1 : RealRemove(path); }

std::FILE* WrappedOpenStream(const char* path, const char* mode) {
  return *mode == 'w' && Fails("fopen") ? nullptr : RealOpenStream(path, mode);
}

int WrappedCloseStream(std::FILE* file) {
  if (!Fails("fclose")) return RealCloseStream(file);
  const int systemError = errno;
  RealCloseStream(file);
  errno = systemError;
  return EOF;
}

}  // namespace orby::test
