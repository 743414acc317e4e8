// SPDX-License-Identifier: MIT
//
// What `--db` names: an SQLite file, or a database server by the connection string of its ODBC driver.
//
//     DatabaseAddress address = DatabaseAddress::read("odbc:Driver={PostgreSQL
//     Unicode};Server=db;PWD=geheim"); std::cout << address.shown();   // Driver={PostgreSQL
//     Unicode};Server=db;PWD=***
#pragma once

#include <filesystem>
#include <string>

#include "runtime/string.h"

namespace zqn::host {

class DatabaseAddress {
 public:
  /// Reads "sqlite:FILE" or "odbc:CONNECTION-STRING"; CommandFailure with WrongUsage for any other text.
  static DatabaseAddress read(const std::string& url);
  /// The file is made absolute, so that no name means anything else to SQLite.
  static DatabaseAddress ofFile(const std::filesystem::path& file);

  bool isServer() const noexcept { return !connectionString_.empty(); }
  /// Empty for a server.
  const std::filesystem::path& file() const noexcept { return file_; }
  /// As written, with the password; empty for a file.
  const String& connectionString() const noexcept { return connectionString_; }

  /// For a person: the file, or the connection string with "***" for a password.
  std::string shown() const;
  /// The same as `--db` takes it; a password has to be filled in again.
  std::string shownUrl() const;

 private:
  DatabaseAddress() = default;

  std::filesystem::path file_;
  String connectionString_;
};

}  // namespace zqn::host
