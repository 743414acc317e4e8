// SPDX-License-Identifier: MIT
//
// What a clerk waits for: opening, saving and browsing, on the headless desktop over a real database. Each
// figure stands beside the raw SQLite statements that do the same work in the same run; the ratio is the
// counter "ratio".
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <random>

#include "ado/sqlite/sqlite.h"
#include "desktop/headless/headless_desktop.h"
#include "forms/form.h"
#include "forms/tdb_list.h"
#include "forms/tdb_number.h"
#include "forms/text_box.h"
#include "frontend/orb_dialog.h"
#include "runtime/locale.h"

namespace zqn {
namespace {

using Clock = std::chrono::steady_clock;

double seconds(Clock::time_point from) { return std::chrono::duration<double>(Clock::now() - from).count(); }

int collate(void*, int leftSize, const void* left, int rightSize, const void* right) {
  return compareCollated(
      std::string_view(static_cast<const char*>(left), static_cast<std::size_t>(leftSize)),
      std::string_view(static_cast<const char*>(right), static_cast<std::size_t>(rightSize)));
}

/// A database with both catalogues, `rows` each, keys inserted in shuffled order; one file for a size, made
/// once.
class World {
 public:
  explicit World(int rows) {
    path_ = std::filesystem::temp_directory_path() / ("zqn-bench-" + std::to_string(rows) + ".db");
    std::filesystem::remove(path_);
    connection = ado::openSqlite(path_);
    sqlite3_open(path_.c_str(), &raw);
    sqlite3_create_collation(raw, "ZQN_TEXT", SQLITE_UTF8, nullptr, collate);
    run("PRAGMA synchronous=FULL");
    run("CREATE TABLE Vertriebsstati (Status VARCHAR(10) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        "Bezeichnung VARCHAR(30) COLLATE ZQN_TEXT, AutoOverwrite BOOLEAN, Gewichtung INTEGER)");
    run("CREATE TABLE Zahlungsbedingungen (ZahlBedSchl VARCHAR(10) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        "Kurztext VARCHAR(100) COLLATE ZQN_TEXT, SkontoTage1 INTEGER, SkontoTage2 INTEGER, SkontoTage3 "
        "INTEGER, NettoTage "
        "INTEGER, SkontoProzent1 DOUBLE, SkontoProzent2 DOUBLE, SkontoProzent3 DOUBLE)");
    fill(rows);
    connection->Execute(u"PRAGMA wal_checkpoint(TRUNCATE)");
    dialog.Connection(connection);
  }
  ~World() {
    connection->Close();
    sqlite3_close(raw);
    for (const char* suffix : {"", "-wal", "-shm"}) std::filesystem::remove(path_.string() + suffix);
  }

  void run(const std::string& statement) { sqlite3_exec(raw, statement.c_str(), nullptr, nullptr, nullptr); }

  /// Shows a kind; `act` runs when the form waits, then the form is closed. Returns the seconds until it
  /// waited.
  double show(std::int32_t kind, StringView key, const std::function<void(Form&)>& act = {}) {
    const auto start = Clock::now();
    double waited = 0;
    desktop.whenIdle([&] {
      waited = seconds(start);
      if (act) act(*desktop.activeForm());
      desktop.activeForm()->closeBox();
    });
    VariantArray param{Variant(key)};
    dialog.Show(kind, param);
    return waited;
  }

  headless::HeadlessDesktop desktop;
  Desktop::Scope scope{desktop};
  Ref<ado::Connection> connection;
  ORBDialog dialog;
  sqlite3* raw = nullptr;

 private:
  void fill(int rows) {
    std::vector<int> order(static_cast<std::size_t>(rows));
    for (int i = 0; i < rows; ++i) order[static_cast<std::size_t>(i)] = i;
    std::shuffle(order.begin(), order.end(), std::mt19937(7));
    run("BEGIN");
    for (const char* insert : {"INSERT INTO Vertriebsstati VALUES (?, ?, 0, 10)",
                               "INSERT INTO Zahlungsbedingungen VALUES (?, ?, 10, 20, 0, 30, 3, 2, 0)"}) {
      sqlite3_stmt* statement = nullptr;
      sqlite3_prepare_v2(raw, insert, -1, &statement, nullptr);
      for (const int number : order) {
        char key[16], text[40];
        std::snprintf(key, sizeof key, "%07d", number);
        std::snprintf(text, sizeof text, "Eintrag Nummer %d im Katalog", number);
        sqlite3_bind_text(statement, 1, key, -1, SQLITE_TRANSIENT);
        sqlite3_bind_text(statement, 2, text, -1, SQLITE_TRANSIENT);
        sqlite3_step(statement);
        sqlite3_reset(statement);
      }
      sqlite3_finalize(statement);
    }
    run("COMMIT");
  }

  std::filesystem::path path_;
};

World& world(int rows) {
  static std::map<int, std::unique_ptr<World>> worlds;
  auto& found = worlds[rows];
  if (!found) found = std::make_unique<World>(rows);
  return *found;
}

/// All rows of a statement stepped, its first columns read.
double rawStep(sqlite3* raw, const char* sql, int columns) {
  const auto start = Clock::now();
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(raw, sql, -1, &statement, nullptr);
  while (sqlite3_step(statement) == SQLITE_ROW) {
    for (int i = 0; i < columns; ++i) benchmark::DoNotOptimize(sqlite3_column_text(statement, i));
  }
  sqlite3_finalize(statement);
  return seconds(start);
}

constexpr const char* listOf21 =
    "SELECT Status, Bezeichnung FROM Vertriebsstati Where Status<>'-' ORDER BY Status";

/// Kind 21 over a million rows until the form waits, with a key near the beginning and one near the end.
void OpenKind21(benchmark::State& state) {
  World& w = world(1'000'000);
  const StringView key = state.range(0) == 0 ? u"0000010" : u"0999990";
  rawStep(w.raw, listOf21, 2);
  double ours = 0, raw = 0;
  for (auto _ : state) {
    ours += w.show(21, key);
    raw += rawStep(w.raw, listOf21, 2);
  }
  state.counters["ms"] = 1e3 * ours / static_cast<double>(state.iterations());
  state.counters["ratio"] = ours / raw;
}
BENCHMARK(OpenKind21)->Arg(0)->Arg(1)->ArgName("keyAtTheEnd")->Iterations(3)->Unit(benchmark::kMillisecond);

/// Saving one existing row, from F9 until the list is read again, against the statements that do the same:
/// find the row, write it, read the list's keys anew to its row.
void SaveExistingRow(benchmark::State& state) {
  World& w = world(1000);
  double ours = 0, raw = 0;
  int round = 0;
  w.show(21, u"0000500", [&](Form& form) {
    auto& list = form.Get<TDBList>(u"TDBList1");
    auto& name = form.Get<TextBox>(u"Kurztext");
    sqlite3_stmt *find = nullptr, *update = nullptr;
    sqlite3_prepare_v2(w.raw, "SELECT * FROM Vertriebsstati WHERE Status=?", -1, &find, nullptr);
    sqlite3_prepare_v2(w.raw,
                       "UPDATE Vertriebsstati SET Status=?1, Bezeichnung=?2, AutoOverwrite=?3, Gewichtung=?4 "
                       "WHERE Status=?1",
                       -1, &update, nullptr);
    for (auto _ : state) {
      list.SetFocus();
      name.SetFocus();
      name.Text(u"Stand " + numberText(++round));
      auto start = Clock::now();
      w.desktop.press(KeyStroke::ofCode(key::F9));
      ours += seconds(start);

      const std::string fresh = "Stand " + std::to_string(-round);
      start = Clock::now();
      sqlite3_bind_text(find, 1, "0000500", -1, SQLITE_STATIC);
      sqlite3_step(find);
      for (int i = 0; i < 4; ++i) benchmark::DoNotOptimize(sqlite3_column_text(find, i));
      sqlite3_reset(find);
      sqlite3_bind_text(update, 1, "0000500", -1, SQLITE_STATIC);
      sqlite3_bind_text(update, 2, fresh.c_str(), -1, SQLITE_STATIC);
      sqlite3_bind_int(update, 3, round % 2);
      sqlite3_bind_int(update, 4, 10);
      sqlite3_step(update);
      sqlite3_reset(update);
      raw += seconds(start);
    }
    sqlite3_finalize(find);
    sqlite3_finalize(update);
  });
  state.counters["us"] = 1e6 * ours / static_cast<double>(state.iterations());
  state.counters["ratio"] = ours / raw;
}
BENCHMARK(SaveExistingRow)->Iterations(300)->Unit(benchmark::kMicrosecond);

/// A whole call on 1,000 rows: Show, wait, close.
void ShowAndClose(benchmark::State& state) {
  World& w = world(1000);
  const auto kind = static_cast<std::int32_t>(state.range(0));
  for (auto _ : state) w.show(kind, u"0000500");
}
BENCHMARK(ShowAndClose)->Arg(21)->Arg(3)->ArgName("kind")->Unit(benchmark::kMicrosecond);

/// One digit typed into a discount field, until the sentence is rebuilt.
void TypeADigit(benchmark::State& state) {
  World& w = world(1000);
  w.show(3, u"0000500", [&](Form& form) {
    auto& percent = form.Get<TDBNumber>(u"tdbnPercent", 0);
    percent.SetFocus();
    for (auto _ : state) {
      w.desktop.press(KeyStroke::ofCharacter(u'2'));
      state.PauseTiming();
      w.desktop.press(KeyStroke::ofCode(key::Backspace));
      state.ResumeTiming();
    }
  });
}
BENCHMARK(TypeADigit)->Unit(benchmark::kMicrosecond);

/// One row down in a list of 100,000 rows, against the raw query for that row. Goal: at most 1.5 times the
/// raw query plus 50 us.
void OneRowDown(benchmark::State& state) {
  World& w = world(100'000);
  double ours = 0, raw = 0;
  w.show(3, u"0000500", [&](Form& form) {
    form.Get<TDBList>(u"tdblShow").SetFocus();
    int row = 500;
    for (auto _ : state) {
      auto start = Clock::now();
      w.desktop.press(KeyStroke::ofCode(key::Down));
      ours += seconds(start);
      char sql[100];
      std::snprintf(sql, sizeof sql, "SELECT * FROM Zahlungsbedingungen WHERE ZahlBedSchl = '%07d'", ++row);
      raw += rawStep(w.raw, sql, 9);
    }
  });
  const auto rounds = static_cast<double>(state.iterations());
  state.counters["us"] = 1e6 * ours / rounds;
  state.counters["of_goal"] = ours / (1.5 * raw + 50e-6 * rounds);
}
BENCHMARK(OneRowDown)->Iterations(5000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zqn

BENCHMARK_MAIN();
