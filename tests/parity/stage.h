// SPDX-License-Identifier: MIT
//
// What all cases run on: a database with the sample, copied for each run, an application folder with layouts,
// and the rows of the sample, from which scripts take the keys they act on.
//
//     Stage stage;
//     std::filesystem::copy_file(stage.database(), copy);
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "host/database/schema/table.h"

namespace zqn::parity {

class Stage {
 public:
  /// Makes a folder with the database, in memory where the system has a place for that. CommandFailure,
  /// std::filesystem::filesystem_error.
  Stage();
  /// Removes the folder, in the process that made it.
  ~Stage();
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  const std::filesystem::path& folder() const noexcept { return folder_; }
  std::filesystem::path database() const { return folder_ / "sample.sqlite"; }
  std::filesystem::path application() const { return folder_ / "application"; }

  /// The rows of a table; empty for a name that is none.
  const std::vector<host::Row>& rows(const std::string& table) const;

 private:
  std::filesystem::path folder_;
  int owner_;
  std::map<std::string, std::vector<host::Row>> rows_;
};

}  // namespace zqn::parity
