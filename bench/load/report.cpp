// SPDX-License-Identifier: MIT
#include "report.h"

#include <algorithm>
#include <cstdio>
#include <numeric>
#include <ostream>

namespace zqn::load {

namespace {

constexpr const char* Actions[] = {"browse",
                                   "save",
                                   "new row",
                                   "delete",
                                   "price list, browse",
                                   "price list, save",
                                   "split",
                                   "counter, raised",
                                   "save of a shared row"};

double sum(const std::vector<double>& values) { return std::accumulate(values.begin(), values.end(), 0.0); }

double quantile(std::vector<double> values, double part) {
  if (values.empty()) return 0;
  std::ranges::sort(values);
  return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

template <class... Values>
std::string line(const char* format, Values... values) {
  char text[200];
  std::snprintf(text, sizeof text, format, values...);
  return text;
}

void latencies(std::ostream& out, const Tally& tally) {
  out << line("%-22s %7s %10s %9s %9s %9s %12s %7s\n", "action, ms", "count", "statements", "median", "p95",
              "max", "bare median", "ratio");
  double dialogs = 0, bare = 0;
  for (const std::string action : Actions) {
    const auto& taken = tally.samples("dialogs." + action);
    if (taken.empty()) continue;
    const auto statements = static_cast<double>(tally.counted("statements." + action));
    out << line("%-22s %7zu %10.1f %9.2f %9.2f %9.2f", action.c_str(), taken.size(),
                statements / static_cast<double>(taken.size()), quantile(taken, 0.5), quantile(taken, 0.95),
                quantile(taken, 1));
    const auto& without = tally.samples("bare." + action);
    if (!without.empty()) {
      out << line(" %12.2f %7.2f", quantile(without, 0.5), sum(taken) / sum(without));
      dialogs += sum(taken);
      bare += sum(without);
    }
    out << "\n";
  }
  if (bare > 0)
    out << line("all actions with statements: %.1f s through the dialogs, %.1f s bare, ratio %.3f\n",
                dialogs / 1e3, bare / 1e3, dialogs / bare);
  const auto compare = [&](const char* what, const char* which) {
    const double with = sum(tally.samples(which + std::string(".dialogs"))),
                 without = sum(tally.samples(which + std::string(".bare")));
    if (without > 0)
      out << line("%s: %.2f s and %.2f s, ratio %.3f\n", what, with / 1e3, without / 1e3, with / without);
  };
  compare("by the clock, all clerks together", "phase");
  compare("processor time of the clerks' programs", "processor");
}

void counts(std::ostream& out, const char* title, const std::map<std::string, std::int64_t>& found) {
  if (!found.empty()) out << title << "\n";
  for (const auto& [name, number] : found) out << "  " << number << " x " << name << "\n";
}

}  // namespace

bool report(std::ostream& out, const Options& options, const Tally& tally) {
  latencies(out, tally);
  const auto n = [&](const char* name) { return static_cast<long long>(tally.counted(name)); };
  out << line("counter: %lld raises, %lld conflicts reported, stands at %lld", n("counter.raised"),
              n("counter.conflicts"), n("counter.stands"));
  if (n("counter.unknown") + n("counter.failed") > 0)
    out << line(", %lld failed, of %lld nobody can know", n("counter.failed"), n("counter.unknown"));
  out << line("\nshared row: %lld saves, %lld written, %lld conflicts reported\n", n("shared.saves"),
              n("shared.written"), n("shared.conflicts"));

  const auto failures = tally.countsOf("failures."), shown = tally.countsOf("shown.");
  counts(out, "failures below the dialogs:", failures);
  counts(out, "actions with failures:", tally.countsOf("failed."));
  counts(out, "shown to the clerks:", shown);
  bool good = tally.texts("faults").empty();
  if (options.disturbance.empty()) good = good && failures.empty() && shown.empty();
  for (const std::string& fault : tally.texts("faults")) out << "FAULT: " << fault << "\n";
  out << (good ? "no lost update, no conflict unreported, no lock left, every action in time\n"
               : "something is wrong\n");
  return good;
}

}  // namespace zqn::load
