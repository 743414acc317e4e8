// SPDX-License-Identifier: MIT
#include "host/command/program.h"

#include <filesystem>
#include <iostream>

#include "desktop/headless/headless_desktop.h"
#include "host/command/kinds_command.h"
#include "host/command/show_command.h"
#include "host/command/sql_command.h"
#include "host/command/standard_streams.h"
#include "host/database/database.h"
#include "host/database/messages.h"
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
            << printable(address.shown()) << "\n";
  tellFindings(*openDatabase(address), address);
}

ExitStatus show(const Options& options, const WithWindows& withWindows) {
  if (options.show.script == "-") requireInput();
  return options.show.ui == Ui::Headless ? showHeadless(options) : withWindows(options);
}

ExitStatus run(const Options& options, const WithWindows& withWindows) {
  ExitStatus status = ExitStatus::Done;
  if (options.command == Command::Desk) return withWindows(options);
  requireOutput();
  switch (options.command) {
    case Command::Help:
      std::cout << options.help;
      break;
    case Command::Kinds:
      listKinds(std::cout, options.json);
      break;
    case Command::Init:
      init(options);
      break;
    case Command::Sql:
      requireInput();
      runStatements(*openDatabase(DatabaseAddress::read(*options.host.database)), std::cin, std::cout);
      break;
    case Command::Show:
      status = show(options, withWindows);
      break;
    case Command::Desk:
      break;
  }
  requireWritten();
  return status;
}

}  // namespace

int runProgram(int argc, char** argv, const WithWindows& withWindows) {
  prepareStandardStreams();
  try {
    return static_cast<int>(run(parseCommandLine(argc, argv), withWindows));
  } catch (const CommandFailure& failure) {
    tell(failure.what());
    if (!failure.statement().empty()) std::cerr << printable(failure.statement(), "\n\t") << std::endl;
    return static_cast<int>(failure.status());
  } catch (const std::filesystem::filesystem_error& failure) {
    // The folder that the command was called in may be gone.
    tell(failure.what());
    return static_cast<int>(ExitStatus::CannotOpen);
  }
}

}  // namespace zqn::host
