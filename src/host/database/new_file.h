// SPDX-License-Identifier: MIT
//
// A file that appears under its name whole or not at all, whoever else makes the same one and however early the
// process ends. It is written as a draft beside its place:
//
//     NewFile file("waren.sqlite");
//     makeTables(*ado::openSqlite(file.draft()));
//     if (!file.publish()) std::cerr << "somebody else was quicker\n";
#pragma once

#include <filesystem>

namespace zqn::host {

class NewFile {
 public:
  /// Makes an empty draft in the folder of `place`, which must exist, and locks it. Drafts of the same place
  /// that nobody holds any more, a process ended before it had published, are removed. std::system_error when
  /// the folder cannot be written.
  explicit NewFile(const std::filesystem::path& place);
  /// Removes the draft, with the files that SQLite keeps beside it, unless it was published.
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  /// The place's name with ".zqn-draft-" and six characters behind it.
  const std::filesystem::path& draft() const noexcept { return draft_; }

  /// Gives the draft its name, on the disk too. False when something stands there already: it stays as it is.
  /// Nobody may have the draft open. std::system_error when the file system refuses.
  bool publish();

 private:
  std::filesystem::path place_, draft_;
  int lock_ = -1;
};

}  // namespace zqn::host
