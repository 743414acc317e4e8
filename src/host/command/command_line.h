// SPDX-License-Identifier: MIT
//
// The command line of `zqn-dialog`, read and checked: what is left to a command is to do it. Nothing is
// opened or created here.
//
//     Options options = parseCommandLine(argc, argv);
//     if (options.command == Command::Show) show(options);
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "host/session/host_options.h"
#include "runtime/variant.h"

namespace zqn::host {

enum class Command { Desk, Kinds, Init, Sql, Show, Help };
enum class Ui { Qt, Headless };

struct ShowOptions {
  std::int32_t kind = 0;
  VariantArray param;
  Ui ui = Ui::Qt;
  /// "-" is standard input.
  std::optional<std::filesystem::path> script;
  std::optional<std::filesystem::path> transcript;
};

struct InitOptions {
  bool sample = false;
  /// Generated rows in each catalogue; 0 for none.
  int rows = 0;
};

struct Options {
  Command command = Command::Desk;
  HostOptions host;
  ShowOptions show;
  InitOptions init;
  /// `kinds --json`.
  bool json = false;
  /// What `--help` or `--version` prints.
  std::string help;
};

/// Reads the arguments behind the program's name. CommandFailure with WrongUsage, naming the argument and the
/// right form.
Options parseCommandLine(int argc, const char* const* argv);

}  // namespace zqn::host
