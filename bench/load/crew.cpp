// SPDX-License-Identifier: MIT
#include "crew.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <sstream>
#include <stdexcept>

#include "ado/odbc/odbc.h"
#include "clerk.h"
#include "ground.h"
#include "runtime/convert.h"

namespace zqn::load {

namespace {

using Clock = std::chrono::steady_clock;

/// Runs it in a process of its own: a driver's handles do not outlive a fork.
pid_t apart(const std::function<void()>& work) {
  std::cout.flush();
  const pid_t process = fork();
  if (process < 0) throw std::runtime_error(std::string("no process: ") + std::strerror(errno));
  if (process > 0) return process;
  int status = 1;
  try {
    work();
    status = 0;
  } catch (const std::exception& failure) {
    std::cerr << "load: " << failure.what() << "\n";
  }
  _exit(status);
}

/// How a process has ended; empty when all was well.
std::string endOf(pid_t process, int limit) {
  int status = 0;
  while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
  }
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM)
    return "was not done with an action after " + std::to_string(limit) + " s";
  if (WIFSIGNALED(status)) return "was ended by signal " + std::to_string(WTERMSIG(status));
  return WEXITSTATUS(status) == 0 ? "" : "has given up";
}

struct Seat {
  pid_t process;
  Channel channel;
  bool present = true;
};

class Crew {
 public:
  explicit Crew(const Options& options) : options_(options) {
    const pid_t maker = apart([&] { makeGround(options_.servers.front(), options_.clerks); });
    if (!endOf(maker, 0).empty()) throw std::runtime_error("the tables could not be made");
    for (int clerk = 0; clerk < options_.clerks; ++clerk) seat(clerk);
  }

  Tally work() {
    for (const PhaseOfRound& phase : phasesOf(options_)) {
      gather();
      note(phase);
      if (phase.phase == Phase::End) lookForLocks();
      for (Seat& seat : seats_)
        if (seat.present) seat.channel.go();
    }
    for (std::size_t clerk = 0; clerk < seats_.size(); ++clerk) {
      Seat& seat = seats_[clerk];
      if (seat.present) tally_.read(seat.channel.receiveAll());
      const std::string end = endOf(seat.process, options_.limit);
      if (!end.empty()) fault("clerk " + std::to_string(clerk) + " " + end);
    }
    if (disturber_ > 0) endOf(disturber_, 0);
    lookAtRows();
    return std::move(tally_);
  }

 private:
  void fault(const std::string& text) { tally_.text("faults", text); }

  void seat(int clerk) {
    auto [mine, his] = Channel::pair();
    Channel& channel = his;
    const pid_t process = apart([&] {
      seats_.clear();
      Tally tally;
      workAsClerk(clerk, options_, channel, tally);
      channel.send(tally.lines());
    });
    seats_.push_back({process, std::move(mine)});
  }

  void gather() {
    for (Seat& seat : seats_)
      if (seat.present) seat.present = seat.channel.here();
  }

  /// The time of the phase that has ended, and what belongs to the beginning of the next one.
  void note(const PhaseOfRound& next) {
    const auto now = Clock::now();
    const double taken = std::chrono::duration<double, std::milli>(now - since_).count();
    if (running_.round >= WarmUp && running_.phase == Phase::Dialogs) tally_.sample("phase.dialogs", taken);
    if (running_.round >= WarmUp && running_.phase == Phase::Bare) tally_.sample("phase.bare", taken);
    since_ = now;
    running_ = next;
    const bool half = next.round == WarmUp + options_.rounds / 2 && next.phase == Phase::Dialogs;
    if (half && !options_.disturbance.empty())
      disturber_ = apart([&] {
        // Not before everybody is at work.
        usleep(100'000);
        if (std::system(options_.disturbance.c_str()) != 0)
          throw std::runtime_error("the disturbance failed");
      });
  }

  // ---- the end

  /// All clerks are connected still, and none of them does anything.
  void lookForLocks() {
    for (std::size_t server = 0; server < options_.servers.size(); ++server) {
      try {
        for (const std::string& left : leftOnServer(options_.servers[server]))
          fault("left on server " + std::to_string(server + 1) + ": " + left);
      } catch (const RuntimeError& failure) {
        const std::string words = "server " + std::to_string(server + 1) + " at the end: " + failure.what();
        options_.disturbance.empty() ? fault(words) : tally_.count("failures." + words);
      }
    }
  }

  void lookAtRows() {
    const Ref<ado::Connection> connection = ado::openOdbc(options_.servers.front());
    const auto raised = tally_.counted("counter.raised"), unknown = tally_.counted("counter.unknown");
    const std::int64_t stands =
        CLng(valueOf(*connection, u"SELECT Gewichtung FROM Vertriebsstati WHERE Status='ZZ0'"));
    tally_.count("counter.stands", stands);
    if (stands < raised || stands > raised + unknown)
      fault("the counter stands at " + std::to_string(stands) + " after " + std::to_string(raised) +
            " successful raises");
    if (tally_.counted("counter.unreported") + tally_.counted("shared.unreported") > 0 ||
        tally_.counted("counter.conflicts") != tally_.counted("counter.conflicts below"))
      fault("a conflict was not reported");

    const std::string shared = toUtf8(
        concatenate(valueOf(*connection, u"SELECT Bezeichnung FROM Vertriebsstati WHERE Status='ZZ1'")));
    const auto& lastOnes = tally_.texts("shared");
    if (options_.disturbance.empty() && std::ranges::find(lastOnes, shared) == lastOnes.end())
      fault("the shared row bears '" + shared + "', which nobody saved last");

    lookAtOwnRows(*connection, "expected stage", u"SELECT Bezeichnung FROM Vertriebsstati WHERE Status='");
    lookAtOwnRows(*connection, "expected price list",
                  u"SELECT Langtext FROM Preislistenkopf WHERE Preisliste='");
    const auto kept = valueOf(*connection, u"SELECT COUNT(*) FROM Vertriebsstati WHERE Status LIKE 'Y__'");
    if (options_.disturbance.empty() && CLng(kept) != 0) fault("rows that were deleted are still there");
  }

  void lookAtOwnRows(ado::Connection& connection, const char* expectations, StringView query) {
    for (const std::string& line : tally_.texts(expectations)) {
      std::istringstream parts(line);
      std::string key, name;
      std::getline(parts, key, '|');
      const std::string found =
          toUtf8(concatenate(valueOf(connection, String(query) + fromUtf8(key) + u"'")));
      bool expected = false;
      while (std::getline(parts, name, '|')) expected = expected || name == found;
      if (!expected) fault("row " + key + " bears '" + found + "', expected was " + line);
    }
  }

  const Options& options_;
  Tally tally_;
  std::vector<Seat> seats_;
  PhaseOfRound running_{0, Phase::Restore};
  Clock::time_point since_ = Clock::now();
  pid_t disturber_ = 0;
};

}  // namespace

Tally runCrew(const Options& options) { return Crew(options).work(); }

}  // namespace zqn::load
