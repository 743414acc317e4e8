// SPDX-License-Identifier: MIT
//
// Thinks up scripts and runs each on every desktop: all must come to the same transcript, line by line.
//
//     parity --seeds 1:300                 these seeds, a script each
//     parity --minutes 60 --jobs 2         for an hour
//     parity --replay found.jsonl          a script that was kept
//
// Exit status 0 when all agree, 1 when something was found, 2 for wrong usage.
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <iostream>

#include "frontend/kinds.h"
#include "parity/call.h"
#include "parity/finding.h"

namespace zqn::parity {

namespace {

using Clock = std::chrono::steady_clock;

struct Options {
  std::string seeds = "1:100";
  std::uint64_t first = 1, count = 100;
  int kind = 0;
  int minutes = 0;
  int jobs = 1;
  int limit = 30;
  bool shrinks = true;
  std::string keep;
  std::vector<std::string> replay;
  std::uint64_t shown = 0;
};

/// What all processes count together.
struct Tally {
  std::atomic<std::uint64_t> next, scripts, lines, findings;
};

/// The forms of their own come up twice as often as the 22 kinds of the generic form.
const std::vector<int>& kindsInTurn() {
  static const std::vector<int> kinds = [] {
    std::vector<int> numbers;
    for (const KindInfo& info : dialogKinds()) {
      numbers.push_back(info.number);
      if (info.server == KindServer::Dedicated) numbers.push_back(info.number);
    }
    return numbers;
  }();
  return kinds;
}

struct Plan {
  int kind;
  std::vector<std::string> arguments;
  Random chance;
};

Plan planOf(std::uint64_t seed, const Options& options, const Stage& stage) {
  Random chance(seed);
  int kind = options.kind != 0 ? options.kind : kindsInTurn()[seed % kindsInTurn().size()];
  if (options.kind == 0 && chance.percent(1)) kind = 0;
  std::vector<std::string> arguments = anyCall(chance, kind, stage);
  return {kind, std::move(arguments), chance};
}

Compared allDesktops() {
  Compared compared;
  for (const DesktopEntry& entry : desktops()) compared.push_back(&entry);
  return compared;
}

void report(const std::string& title, const Shrunk& shown, const std::string& file) {
  std::vector<std::string> remarks{title + ": " + shown.finding.what};
  for (const std::string& detail : shown.finding.details) remarks.push_back(detail);
  const std::string text = scriptText(shown.smallest, remarks);
  std::cout << "\n" + text + "\n" << std::flush;
  if (!file.empty()) std::ofstream(file, std::ios::binary) << text;
}

void runSeed(std::uint64_t seed, const Options& options, const Stage& stage, const Runner& runner,
             Tally& tally) {
  const Compared compared = allDesktops();
  const Plan plan = planOf(seed, options, stage);
  std::vector<Outcome> outcomes{runner.think(*compared.front(), plan.arguments, plan.chance, plan.kind)};
  const Case given{plan.arguments, outcomes.front().script};
  for (std::size_t i = 1; i < compared.size(); ++i) outcomes.push_back(runner.replay(*compared[i], given));
  ++tally.scripts;
  tally.lines += given.lines.size();
  const std::optional<Finding> finding = compare(compared, outcomes);
  if (!finding) return;
  ++tally.findings;
  Shrunk shown{given, *finding};
  const std::string title = "seed " + std::to_string(seed);
  if (const auto again = examine(runner, compared, given); !again) {
    shown.finding.what += ", but not when it is run again";
  } else if (options.shrinks) {
    shown = shrink(runner, compared, given, *again);
  }
  const std::string name = "kind-" + std::to_string(plan.kind) + "-seed-" + std::to_string(seed) + ".jsonl";
  report(title, shown, options.keep.empty() ? "" : options.keep + "/" + name);
}

void work(const Options& options, const Stage& stage, Tally& tally, Clock::time_point end) {
  for (const DesktopEntry& entry : desktops()) entry.prepare();
  const Runner runner(stage, options.limit);
  while (true) {
    const std::uint64_t number = tally.next++;
    if (options.minutes > 0 ? Clock::now() >= end : number >= options.count) return;
    runSeed(options.first + number, options, stage, runner, tally);
  }
}

/// Words as a shell reads them, quotes around some.
std::vector<std::string> wordsOf(const std::string& text) {
  std::vector<std::string> words;
  std::string word;
  char quote = 0;
  bool begun = false;
  for (const char character : text) {
    if (quote != 0 ? character == quote : character == '\'' || character == '"') {
      quote = quote != 0 ? '\0' : character;
      begun = true;
    } else if (character == ' ' && quote == 0) {
      if (begun) words.push_back(std::exchange(word, {}));
      begun = false;
    } else {
      word += character;
      begun = true;
    }
  }
  if (begun) words.push_back(word);
  return words;
}

Case readCase(const std::string& file) {
  Case read;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error(file + " cannot be read");
  constexpr std::string_view argumentsMark = "# args:";
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with(argumentsMark)) read.arguments = wordsOf(line.substr(argumentsMark.size()));
    if (!line.empty() && !line.starts_with('#')) read.lines.push_back(line);
  }
  return read;
}

int replay(const Options& options, const Stage& stage) {
  for (const DesktopEntry& entry : desktops()) entry.prepare();
  const Runner runner(stage, options.limit);
  int found = 0;
  for (const std::string& file : options.replay) {
    const Case given = readCase(file);
    const auto finding = examine(runner, allDesktops(), given);
    found += finding ? 1 : 0;
    if (!finding) std::cout << file << ": all agree\n";
    if (finding)
      report(file, options.shrinks ? shrink(runner, allDesktops(), given, *finding) : Shrunk{given, *finding},
             "");
  }
  return found > 0 ? 1 : 0;
}

int showScript(const Options& options, const Stage& stage) {
  const Plan plan = planOf(options.shown, options, stage);
  desktops().front().prepare();
  const Runner runner(stage, options.limit);
  const Outcome outcome = runner.think(desktops().front(), plan.arguments, plan.chance, plan.kind);
  std::cout << scriptText({plan.arguments, outcome.script}, {});
  return 0;
}

int runAll(const Options& options, const Stage& stage) {
  void* const shared =
      mmap(nullptr, sizeof(Tally), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (shared == MAP_FAILED) throw std::runtime_error("no memory to count in");
  Tally& tally = *new (shared) Tally{};
  const Clock::time_point begin = Clock::now();
  std::cout.flush();
  for (int job = 0; job < options.jobs; ++job) {
    if (fork() != 0) continue;
    int status = 0;
    try {
      work(options, stage, tally, begin + std::chrono::minutes(options.minutes));
    } catch (const std::exception& failure) {
      std::cerr << "parity: " << failure.what() << "\n";
      status = 2;
    }
    std::cout.flush();
    _exit(status);
  }
  bool lost = false;
  for (int status = 0; wait(&status) > 0;) lost |= status != 0;
  const std::chrono::duration<double> taken = Clock::now() - begin;
  std::cout << tally.scripts << " scripts with " << tally.lines << " lines on " << desktops().size()
            << " desktops in " << static_cast<int>(taken.count() + 0.5) << " s: " << tally.findings
            << " found\n";
  if (lost) std::cout << "a process that ran them has ended before its time\n";
  return tally.findings > 0 || lost ? 1 : 0;
}

int run(Options options) {
  char colon = ':';
  std::istringstream range(options.seeds);
  if (!(range >> options.first >> colon >> options.count) || colon != ':' || options.jobs < 1 ||
      options.limit < 1)
    throw std::runtime_error("--seeds is FROM:COUNT; --jobs and --limit are 1 at least");
  const Stage stage;
  if (!options.replay.empty()) return replay(options, stage);
  if (options.shown != 0) return showScript(options, stage);
  return runAll(options, stage);
}

}  // namespace

}  // namespace zqn::parity

int main(int argc, char** argv) {
  zqn::parity::Options options;
  CLI::App app("Runs random scripts on every desktop and holds their transcripts against each other");
  app.add_option("--seeds", options.seeds, "A script for each of these seeds")->option_text("FROM:COUNT");
  app.add_option("--kind", options.kind, "This kind alone; the seeds go through all kinds unless given");
  app.add_option("--minutes", options.minutes, "So long, from the first seed on");
  app.add_option("--jobs", options.jobs, "So many at once");
  app.add_option("--limit", options.limit, "Seconds after which a run hangs");
  app.add_option("--keep", options.keep, "Folder for the scripts found")->check(CLI::ExistingDirectory);
  app.add_flag("!--no-shrink", options.shrinks, "Shows scripts as they were found");
  app.add_option("--replay", options.replay, "Runs kept scripts again");
  app.add_option("--show", options.shown, "Prints the script of a seed");
  CLI11_PARSE(app, argc, argv);
  try {
    return zqn::parity::run(options);
  } catch (const std::exception& failure) {
    std::cerr << "parity: " << failure.what() << "\n";
    return 2;
  }
}
