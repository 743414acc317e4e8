// SPDX-License-Identifier: MIT
#include "host/command/program.h"

#include <filesystem>
#include <iostream>

#include "desktop/headless/headless_desktop.h"
#include "host/command/kinds_command.h"
#include "host/command/show_command.h"
#include "host/command/sql_command.h"
#include "host/database/database.h"
#include "host/script/headless_user.h"

namespace zqn::host {

namespace {

ExitStatus showHeadless(const Options& options) {
  headless::HeadlessDesktop desktop;
  script::HeadlessUser input(desktop);
  return showDialog(options, desktop, input);
}

void init(const Options& options) {
  const auto address = DatabaseAddress::read(*options.host.database);
  const Created created = createTables(address, {.sample = options.init.sample, .rows = options.init.rows});
  std::cout << "created " << created.tables << " tables with " << created.rows << " rows in "
            << address.shown() << "\n";
  tellFindings(*openDatabase(address), address);
}

ExitStatus run(const Options& options, const WithWindows& withWindows) {
  switch (options.command) {
    case Command::Help:
      std::cout << options.help;
      return ExitStatus::Done;
    case Command::Kinds:
      listKinds(std::cout, options.json);
      return ExitStatus::Done;
    case Command::Init:
      init(options);
      return ExitStatus::Done;
    case Command::Sql:
      runStatements(*openDatabase(DatabaseAddress::read(*options.host.database)), std::cin, std::cout);
      return ExitStatus::Done;
    case Command::Show:
      if (options.show.ui == Ui::Headless) return showHeadless(options);
      [[fallthrough]];
    case Command::Desk:
      return withWindows(options);
  }
  return ExitStatus::WrongUsage;
}

}  // namespace

int runProgram(int argc, char** argv, const WithWindows& withWindows) {
  try {
    return static_cast<int>(run(parseCommandLine(argc, argv), withWindows));
  } catch (const CommandFailure& failure) {
    std::cerr << "zqn-dialog: " << failure.what() << "\n";
    return static_cast<int>(failure.status());
  } catch (const std::filesystem::filesystem_error& failure) {
    // The folder that the command was called in may be gone.
    std::cerr << "zqn-dialog: " << failure.what() << "\n";
    return static_cast<int>(ExitStatus::CannotOpen);
  }
}

}  // namespace zqn::host
