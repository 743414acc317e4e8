// SPDX-License-Identifier: MIT
#include "host/database/new_file.h"

#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

namespace zqn::host {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view mark = ".zqn-draft-";
constexpr std::string_view anyName = "XXXXXX";

[[noreturn]] void fail() { throw std::system_error(errno, std::generic_category()); }

fs::path folderOf(const fs::path& place) { return place.has_parent_path() ? place.parent_path() : "."; }

void removeDraft(const fs::path& draft) noexcept {
  std::error_code ignored;
  // The draft last: while it stands, whoever comes next finds what belongs to it.
  for (const char* suffix : {"-wal", "-shm", "-journal", ""}) fs::remove(draft.string() + suffix, ignored);
}

bool isDraftOf(const fs::path& file, const fs::path& place) {
  const std::string name = file.filename().string(), front = place.filename().string() + std::string(mark);
  return name.starts_with(front) && name.size() == front.size() + anyName.size();
}

void removeAbandonedDrafts(const fs::path& place) {
  std::error_code failure;
  for (fs::directory_iterator each(folderOf(place), failure), end; !failure && each != end;
       each.increment(failure)) {
    if (!isDraftOf(each->path(), place)) continue;
    const int file = open(each->path().c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    if (file < 0) continue;
    if (flock(file, LOCK_EX | LOCK_NB) == 0) removeDraft(each->path());
    close(file);
  }
}

/// The file behind the descriptor still has a name: nobody has taken it for an abandoned one meanwhile.
bool hasName(int file) {
  struct stat state {};
  return fstat(file, &state) == 0 && state.st_nlink > 0;
}

/// Renames where nothing stands at the new name; false where something does.
bool renameToNothing(const fs::path& from, const fs::path& to) {
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
  if (errno == EEXIST) return false;
  if (errno != EINVAL && errno != ENOSYS) fail();
  // A file system without this way of renaming may still have hard links.
  if (link(from.c_str(), to.c_str()) == 0) {
    unlink(from.c_str());
    return true;
  }
  if (errno == EEXIST) return false;
  fail();
}

void writeThrough(const fs::path& path, int flags) {
  const int file = open(path.c_str(), flags | O_CLOEXEC);
  if (file < 0) fail();
  // Some file systems cannot sync a folder; the name is then as safe as they make it.
  fsync(file);
  close(file);
}

}  // namespace

NewFile::NewFile(const fs::path& place) : place_(place) {
  removeAbandonedDrafts(place_);
  do {
    if (lock_ >= 0) close(lock_);
    std::string name = place_.string() + std::string(mark) + std::string(anyName);
    lock_ = mkostemp(name.data(), O_CLOEXEC);
    if (lock_ < 0) fail();
    draft_ = name;
    flock(lock_, LOCK_EX);
  } while (!hasName(lock_));
  // mkostemp makes it the owner's alone; a new file is everybody's as far as the umask lets it be.
  const mode_t mask = umask(0);
  umask(mask);
  fchmod(lock_, 0666 & ~mask);
}

NewFile::~NewFile() {
  if (!draft_.empty()) removeDraft(draft_);
  close(lock_);
}

bool NewFile::publish() {
  writeThrough(draft_, O_RDWR);
  if (!renameToNothing(draft_, place_)) return false;
  draft_.clear();
  writeThrough(folderOf(place_), O_RDONLY | O_DIRECTORY);
  return true;
}

}  // namespace zqn::host
