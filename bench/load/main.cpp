// SPDX-License-Identifier: MIT
//
// Many clerks on one database server, through the real dialogs. Run by tests/servers.py, which names the
// server and an empty database in the environment:
//
//     tests/servers.py serve postgresql --state DIR --database clerks -- build/load --clerks 50
//
// The figures: what each action took, and how that stands to the same statements sent bare. The exit status
// is 1 when an update was lost, a conflict not reported, a lock left, or an action took too long.
#include <CLI/CLI.hpp>
#include <cstdlib>
#include <iostream>
#include <stdexcept>

#include "crew.h"
#include "ground.h"
#include "long_list.h"
#include "report.h"

namespace {

zqn::load::Options parsed(CLI::App& app, int argc, char** argv) {
  zqn::load::Options options;
  std::vector<std::string> also;
  bool noBare = false;
  app.add_option("--clerks", options.clerks, "clerks, each a process with its own connection")
      ->capture_default_str()
      ->check(CLI::Range(1, zqn::load::MostClerks));
  app.add_option("--rounds", options.rounds, "measured rounds of each clerk's work")
      ->capture_default_str()
      ->check(CLI::Range(1, 100'000));
  app.add_option("--seed", options.seed, "draws the order of each clerk's work")->capture_default_str();
  app.add_option("--limit", options.limit, "seconds within which each action must end")
      ->capture_default_str();
  app.add_flag("--no-bare", noBare, "leave out the bare statements");
  app.add_option("--also", also, "connection string of a further node; the clerks are spread over all");
  app.add_option("--disturb", options.disturbance, "a command that is run at half time");
  app.add_option("--long-list", options.longList, "measure a list of so many rows instead")
      ->check(CLI::PositiveNumber);
  app.parse(argc, argv);

  const char* address = std::getenv("ZQN_ODBC");
  if (address == nullptr) throw std::runtime_error("ZQN_ODBC is not set; run this by tests/servers.py serve");
  options.servers.push_back(zqn::fromUtf8(address));
  for (const std::string& node : also) options.servers.push_back(zqn::fromUtf8(node));
  // What failed in the dialogs would only fail again.
  options.bare = !noBare && options.disturbance.empty();
  return options;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Many clerks on one database server");
  try {
    const zqn::load::Options options = parsed(app, argc, argv);
    if (options.longList > 0) {
      zqn::load::measureLongList(std::cout, options.servers.front(), options.longList);
      return 0;
    }
    std::cout << options.clerks << " clerks, " << options.rounds << " rounds, seed " << options.seed << "\n";
    return zqn::load::report(std::cout, options, zqn::load::runCrew(options)) ? 0 : 1;
  } catch (const CLI::ParseError& wrong) {
    return app.exit(wrong);
  } catch (const std::exception& failure) {
    std::cerr << "load: " << failure.what() << "\n";
    return 2;
  }
}
