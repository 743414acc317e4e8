// SPDX-License-Identifier: MIT
//
// For tests: the path of a database file that is gone, with its companions, at the end of the scope. It is in
// memory where the system has room for files there.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <string>

#include "ado/sqlite/sqlite.h"

namespace zqn::ado::sqlite {

class TemporaryFile {
 public:
  TemporaryFile() {
    const std::filesystem::path memory = "/dev/shm";
    const bool inMemory = std::filesystem::is_directory(memory);
    std::string pattern =
        ((inMemory ? memory : std::filesystem::temp_directory_path()) / "zqn-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
  }
  ~TemporaryFile() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const std::filesystem::path& folder() const { return folder_; }
  std::filesystem::path path() const { return folder_ / "Test.db"; }

 private:
  std::filesystem::path folder_;
};

}  // namespace zqn::ado::sqlite
