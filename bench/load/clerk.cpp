// SPDX-License-Identifier: MIT
#include "clerk.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <random>

#include "ado/recordset.h"
#include "bare.h"
#include "ground.h"
#include "runtime/convert.h"
#include "runtime/digits.h"
#include "workplace.h"

namespace zqn::load {

namespace {

using Clock = std::chrono::steady_clock;

/// Runs it, and ends the process where it does not come back in time. Milliseconds.
template <class Act>
double timed(int limit, Act&& act) {
  alarm(static_cast<unsigned>(limit));
  const auto start = Clock::now();
  act();
  const double taken = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
  alarm(0);
  return taken;
}

/// Processor time of this process so far, in milliseconds.
double processorTime() {
  rusage used = {};
  getrusage(RUSAGE_SELF, &used);
  const auto milliseconds = [](const timeval& time) {
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-3 * static_cast<double>(time.tv_usec);
  };
  return milliseconds(used.ru_utime) + milliseconds(used.ru_stime);
}

/// What a row of the clerk's own should bear. Where the connection was lost while it was written, nobody can
/// know.
struct Expected {
  String name;
  std::vector<String> perhaps;
};

class Clerk {
 public:
  Clerk(int number, const Options& options, Tally& tally)
      : number_(number),
        options_(options),
        tally_(tally),
        server_("server " + std::to_string(serverOf(options, number) + 1)),
        order_(options.seed * 10'007U + static_cast<unsigned>(number)),
        workplace_(options.servers[serverOf(options, number)], u"clerk" + digits(number), tally),
        stage_{nameIn(number, 0), {}},
        priceList_{nameIn(number, 0), {}} {
    if (options.bare) bare_.emplace(options.servers[serverOf(options, number)]);
  }

  void work(const PhaseOfRound& now) {
    round_ = now.round;
    switch (now.phase) {
      case Phase::Dialogs:
        return dialogs();
      case Phase::Restore:
        return restore();
      case Phase::Bare:
        return bare();
      case Phase::Rush:
        return rush();
      case Phase::End:
        return;
    }
  }

  /// What the crew is to find in the database.
  void report() {
    expect("expected stage", ownStage(number_), stage_);
    expect("expected price list", ownPriceList(number_), priceList_);
    if (!lastShared_.empty()) tally_.text("shared", toUtf8(lastShared_));
  }

 private:
  struct Action {
    std::string name;
    void (Clerk::*act)();
  };
  struct Done {
    std::string name;
    Recording recording;
    std::int64_t rowsChanged;
  };

  bool measured() const { return round_ >= WarmUp; }
  String newName() const { return nameIn(number_, round_ + 1); }

  // ---- the phases

  void dialogs() {
    std::vector<Action> actions = {{"browse", &Clerk::browse},
                                   {"browse", &Clerk::browse},
                                   {"browse", &Clerk::browse},
                                   {"save", &Clerk::save},
                                   {"new row", &Clerk::add},
                                   {"delete", &Clerk::remove},
                                   {"split", &Clerk::split},
                                   {"price list, browse", &Clerk::browsePriceLists},
                                   {"price list, save", &Clerk::savePriceList}};
    std::ranges::shuffle(actions, order_);
    // A row is made before it is deleted.
    const auto added = std::ranges::find(actions, std::string("new row"), &Action::name);
    const auto removed = std::ranges::find(actions, std::string("delete"), &Action::name);
    if (removed < added) std::iter_swap(added, removed);

    done_.clear();
    before_ = {stage_.name, priceList_.name};
    const double before = processorTime();
    for (const Action& action : actions) perform(action);
    if (measured()) tally_.sample("processor.dialogs", processorTime() - before);
  }

  void perform(const Action& action) {
    workplace_.recording().clear();
    const std::int64_t rowsBefore = workplace_.watch().rowsChanged;
    const double taken = timed(options_.limit, [&] { (this->*action.act)(); });
    if (measured()) tally_.sample("dialogs." + action.name, taken);
    if (measured())
      tally_.count("statements." + action.name, static_cast<std::int64_t>(workplace_.recording().size()));
    done_.push_back(
        {action.name, std::move(workplace_.recording()), workplace_.watch().rowsChanged - rowsBefore});
    tellFailures(action.name);
  }

  /// Everything that has failed below the dialogs, whether they have passed over it or not.
  void tellFailures(const std::string& action) {
    for (const RuntimeError& failure : workplace_.watch().failures)
      tally_.count("failures." + server_ + ", " + action + ": " + std::to_string(failure.number()) + " " +
                   toUtf8(failure.description()));
    if (!workplace_.watch().failures.empty()) tally_.count("failed." + server_);
    if (!workplace_.watch().failures.empty() && measured()) tally_.count("failed actions");
    workplace_.watch().failures.clear();
  }

  void restore() {
    const auto put = [&](StringView table, StringView key, StringView column, const String& which,
                         const String& name) {
      workplace_.connection()->Execute(u"UPDATE " + String(table) + u" SET " + String(column) + u"=" +
                                       ado::sql::value(name) + u" WHERE " + String(key) + u"=" +
                                       ado::sql::value(which));
    };
    put(u"Vertriebsstati", u"Status", u"Bezeichnung", ownStage(number_), before_.first);
    put(u"Preislistenkopf", u"Preisliste", u"Langtext", ownPriceList(number_), before_.second);
  }

  void bare() {
    const double before = processorTime();
    for (const Done& done : done_) {
      std::int64_t changed = 0;
      const double taken = timed(options_.limit, [&] { changed = bare_->run(done.recording); });
      if (measured() && !done.recording.empty()) tally_.sample("bare." + done.name, taken);
      if (changed != done.rowsChanged)
        tally_.text("faults", "bare, '" + done.name + "' has changed " + std::to_string(changed) +
                                  " rows, the dialog " + std::to_string(done.rowsChanged));
    }
    if (measured()) tally_.sample("processor.bare", processorTime() - before);
  }

  void rush() {
    const double raised = timed(options_.limit, [&] { raise(); });
    if (measured()) tally_.sample("dialogs.counter, raised", raised);
    tellFailures("counter, raised");

    const Watch before = workplace_.watch();
    const double saved = timed(options_.limit, [&] { saveName(SharedKey, newName()); });
    if (measured()) tally_.sample("dialogs.save of a shared row", saved);
    const Watch& after = workplace_.watch();
    tally_.count("shared.saves");
    tally_.count("shared.conflicts", after.conflicts - before.conflicts);
    if (after.rowsChanged > before.rowsChanged) {
      tally_.count("shared.written");
      lastShared_ = newName();
    } else if (after.conflicts == before.conflicts && after.failures.empty()) {
      tally_.count("shared.unreported");
    }
    tellFailures("save of a shared row");
  }

  // ---- through the dialogs

  void browse() {
    workplace_.show(21, {Variant(ownStage(number_))}, [this] { workplace_.press(key::Down, 5); });
  }

  void saveName(StringView stage, const String& name) {
    workplace_.show(21, {Variant(stage)}, [&] {
      workplace_.click(u"Kurztext");
      workplace_.type(name);
      workplace_.press(key::F9);
    });
  }

  void save() {
    writing(stage_, [this] { saveName(ownStage(number_), newName()); });
  }

  void add() {
    workplace_.show(21, {Variant(ownStage(number_))}, [this] {
      workplace_.press(key::F6);
      workplace_.type(passingStage(number_));
      workplace_.press(key::Tab);
      workplace_.type(newName());
      workplace_.press(key::F9);
    });
  }

  void remove() {
    workplace_.show(21, {Variant(passingStage(number_))}, [this] { workplace_.click(u"btnDelete"); });
  }

  void split() {
    const VariantArray param{u"2|\"Stk\"|\"L-1\"|\"20260630000000\"|\"\"", 5.0, u"Stk", std::int32_t{1},
                             false};
    const Variant text = workplace_.show(34, param, [this] {
      workplace_.type(u"L-2");
      workplace_.press(key::Enter);
      workplace_.press(key::F9);
    });
    if (concatenate(text).find(u"\"L-2\"") == String::npos)
      tally_.text("faults", "the split came back as " + toUtf8(concatenate(text)));
  }

  void browsePriceLists() {
    workplace_.show(16, {Variant(ownPriceList(number_))}, [this] { workplace_.press(key::Down, 5); });
  }

  void savePriceList() {
    writing(priceList_, [this] {
      workplace_.show(16, {Variant(ownPriceList(number_))}, [this] {
        workplace_.click(u"Langtext");
        workplace_.type(newName());
        workplace_.press(key::F9);
      });
    });
  }

  /// Saves the name of this round in a row of the clerk's own.
  template <class Save>
  void writing(Expected& row, Save&& save) {
    const std::int64_t before = workplace_.watch().rowsChanged;
    save();
    if (workplace_.watch().rowsChanged > before) {
      row = {newName(), {}};
    } else if (!workplace_.watch().failures.empty()) {
      row.perhaps.push_back(newName());
    } else {
      tally_.text("faults",
                  "clerk " + std::to_string(number_) + " saved, and nothing was written or reported");
    }
  }

  // ---- the counter

  void raise() {
    const ado::sql::Text row =
        u"SELECT * FROM Vertriebsstati WHERE Status=" + ado::sql::value(String(CounterKey));
    for (;;) {
      const std::int64_t below = workplace_.watch().conflicts;
      ado::Recordset rs;
      bool updating = false;
      try {
        rs.Open(row, workplace_.connection(), ado::adOpenKeyset, ado::adLockOptimistic);
        ado::Field progress = rs.Fields(u"Gewichtung");
        progress.Value(CLng(progress.Value()) + 1);
        updating = true;
        rs.Update();
        rs.Close();
        tally_.count("counter.raised");
        if (workplace_.watch().conflicts != below) tally_.count("counter.unreported");
        return;
      } catch (const RuntimeError& failure) {
        tally_.count("counter.conflicts below", workplace_.watch().conflicts - below);
        if (failure.number() != error::RowConflict) {
          // A connection that is lost while the row is written leaves open whether it was.
          tally_.count(updating ? "counter.unknown" : "counter.failed");
          return;
        }
        tally_.count("counter.conflicts");
        if (rs.State() != ado::adStateClosed) rs.CancelUpdate();
      }
    }
  }

  void expect(const char* table, const String& key, const Expected& expected) {
    std::string names = "|" + toUtf8(expected.name) + "|";
    for (const String& name : expected.perhaps) names += toUtf8(name) + "|";
    tally_.text(table, toUtf8(key) + names);
  }

  int number_;
  const Options& options_;
  Tally& tally_;
  std::string server_;
  std::mt19937 order_;
  Workplace workplace_;
  std::optional<Bare> bare_;
  int round_ = 0;
  std::vector<Done> done_;
  std::pair<String, String> before_;
  Expected stage_, priceList_;
  String lastShared_;
};

}  // namespace

std::vector<PhaseOfRound> phasesOf(const Options& options) {
  std::vector<PhaseOfRound> phases;
  for (int round = 0; round < options.rounds + WarmUp; ++round) {
    phases.push_back({round, Phase::Dialogs});
    if (options.bare) phases.push_back({round, Phase::Restore});
    if (options.bare) phases.push_back({round, Phase::Bare});
    phases.push_back({round, Phase::Rush});
  }
  phases.push_back({0, Phase::End});
  return phases;
}

void workAsClerk(int number, const Options& options, Channel& channel, Tally& tally) {
  Clerk clerk(number, options, tally);
  for (const PhaseOfRound& phase : phasesOf(options)) {
    channel.meet();
    clerk.work(phase);
  }
  clerk.report();
}

}  // namespace zqn::load
