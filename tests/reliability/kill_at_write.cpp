// SPDX-License-Identifier: MIT
//
// For tests: ends a process, as kill -9 does, at one of the calls by which it changes files. To be preloaded:
//
//     LD_PRELOAD=libkill_at_write.so ZQN_KILL_AT=17 zqn-dialog init --db sqlite:a.sqlite
//
// Calls on files of a disk are counted from 1; pipes, terminals and devices are not. The call of that number does
// not happen; with ZQN_KILL_TORN=1, too, a write brings the first half of its bytes to the file.
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cstdlib>

namespace {

long numberIn(const char* variable) {
  const char* text = getenv(variable);
  return text != nullptr ? atol(text) : 0;
}

bool isDue() {
  static const long last = numberIn("ZQN_KILL_AT");
  static long count = 0;
  return ++count == last;
}

bool isTorn() {
  static const bool torn = numberIn("ZQN_KILL_TORN") != 0;
  return torn;
}

bool isOnDisk(int file) {
  struct stat state {};
  return fstat(file, &state) == 0 && S_ISREG(state.st_mode);
}

[[noreturn]] void end() {
  kill(getpid(), SIGKILL);
  for (;;) pause();
}

template <class Function>
Function* next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

template <class Function, class... Arguments>
auto unlessDue(const char* name, Arguments... arguments) {
  if (isDue()) end();
  return next<Function>(name)(arguments...);
}

}  // namespace

extern "C" {

ssize_t write(int file, const void* bytes, size_t count) {
  const auto real = next<ssize_t(int, const void*, size_t)>("write");
  if (isOnDisk(file) && isDue()) {
    if (isTorn()) real(file, bytes, count / 2);
    end();
  }
  return real(file, bytes, count);
}

ssize_t writev(int file, const iovec* parts, int count) {
  const auto real = next<ssize_t(int, const iovec*, int)>("writev");
  if (isOnDisk(file) && isDue()) {
    if (isTorn()) real(file, parts, count / 2);
    end();
  }
  return real(file, parts, count);
}

ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t place) {
  const auto real = next<ssize_t(int, const void*, size_t, off64_t)>("pwrite64");
  if (isOnDisk(file) && isDue()) {
    if (isTorn()) real(file, bytes, count / 2, place);
    end();
  }
  return real(file, bytes, count, place);
}

ssize_t pwrite(int file, const void* bytes, size_t count, off_t place) {
  return pwrite64(file, bytes, count, place);
}

int fsync(int file) { return unlessDue<int(int)>("fsync", file); }
int fdatasync(int file) { return unlessDue<int(int)>("fdatasync", file); }
int ftruncate(int file, off_t size) noexcept { return unlessDue<int(int, off_t)>("ftruncate", file, size); }
int ftruncate64(int file, off64_t size) noexcept {
  return unlessDue<int(int, off64_t)>("ftruncate64", file, size);
}
int unlink(const char* path) noexcept { return unlessDue<int(const char*)>("unlink", path); }
int remove(const char* path) noexcept { return unlessDue<int(const char*)>("remove", path); }
int rename(const char* from, const char* to) noexcept {
  return unlessDue<int(const char*, const char*)>("rename", from, to);
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
  return unlessDue<int(int, const char*, int, const char*, unsigned)>("renameat2", fromFolder, from, toFolder,
                                                                      to, flags);
}
int mkostemp(char* name, int flags) { return unlessDue<int(char*, int)>("mkostemp", name, flags); }
int mkdir(const char* path, mode_t mode) noexcept {
  return unlessDue<int(const char*, mode_t)>("mkdir", path, mode);
}

}  // extern "C"
