// SPDX-License-Identifier: MIT
//
// What a Host opens its dialogs with: database, user, settings, application folder, day.
//
//     HostOptions options;
//     options.database = "sqlite:waren.sqlite";
//     Host host(options);
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "runtime/variant.h"

namespace zqn::host {

/// A setting that holds for this run and is not stored; the command's `--set` and `--set-user`.
struct SettingForRun {
  String section, key, value;
  bool ofUser = false;
};

struct HostOptions {
  /// A URL as DatabaseAddress::read takes it; none: the file in the user's data folder.
  std::optional<std::string> database;
  /// Empty: the login name.
  String user;
  bool admin = false;
  /// False: a dialog gets the connection alone.
  bool session = true;
  std::vector<SettingForRun> settings;
  bool multiselect = false;
  /// The kind opens on the generic form, whatever form it has of its own.
  bool generic = false;
  /// The application folder; empty: the data folder.
  std::filesystem::path appPath;
  /// The day that the dialogs take as the present; none: the system's.
  std::optional<Date> today;
};

}  // namespace zqn::host
