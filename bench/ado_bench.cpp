// SPDX-License-Identifier: MIT
//
// Recordsets against SQLite's own interface, on the table that the catalogue of sales statuses has: the same
// statement, the same collation and the same pragmas. Both sides run in turn; `ratio` is that of the medians,
// `raw_us` and `ado_us` are the medians themselves.
//
//     ado_bench --benchmark_filter=Snapshot
//     ZQN_BENCH_FOLDER=/dev/shm ado_bench       where the database is made, else in the folder of temporary
//     files
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <numeric>
#include <random>

#include "ado/recordset.h"
#include "ado/sqlite/sqlite.h"
#include "runtime/locale.h"

namespace {

using namespace zqn;

std::string keyOf(int number) { return "k" + std::to_string(10000000 + number).substr(1); }

void check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "ado_bench: %s\n", what);
  std::abort();
}

/// SQLite as a program uses it that has no recordsets.
class Raw {
 public:
  explicit Raw(const std::string& path) {
    check(sqlite3_open(path.c_str(), &database_) == SQLITE_OK, "the database cannot be opened");
    const auto collate = [](void*, int m, const void* a, int n, const void* b) {
      return compareCollated(std::string_view(static_cast<const char*>(a), static_cast<std::size_t>(m)),
                             std::string_view(static_cast<const char*>(b), static_cast<std::size_t>(n)));
    };
    sqlite3_create_collation(database_, "ZQN_TEXT", SQLITE_UTF8, nullptr, collate);
    for (const char* pragma :
         {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL", "PRAGMA foreign_keys=ON"})
      run(pragma);
  }
  ~Raw() { sqlite3_close(database_); }
  Raw(const Raw&) = delete;
  Raw& operator=(const Raw&) = delete;

  /// Prepares, calls `row` for each row, finalizes.
  template <class Row>
  void select(const std::string& text, Row&& row) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(database_, text.c_str(), -1, &statement, nullptr) == SQLITE_OK, text.c_str());
    while (sqlite3_step(statement) == SQLITE_ROW) row(statement);
    check(sqlite3_finalize(statement) == SQLITE_OK, text.c_str());
  }
  void run(const std::string& text) {
    select(text, [](sqlite3_stmt*) {});
  }

 private:
  sqlite3* database_ = nullptr;
};

/// One file per number of rows, made when it is first asked for, gone at the end.
class Table {
 public:
  explicit Table(int rows) : rows_(rows) {
    const char* folder = std::getenv("ZQN_BENCH_FOLDER");
    path_ = (folder ? std::filesystem::path(folder) : std::filesystem::temp_directory_path()) /
            ("zqn-ado-bench-" + std::to_string(rows) + ".db");
    remove();
    raw_ = std::make_unique<Raw>(path_.string());
    raw_->run(
        "CREATE TABLE Vertriebsstati (Status VARCHAR(10) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        "Bezeichnung VARCHAR(30) COLLATE ZQN_TEXT, AutoOverwrite SMALLINT, Gewichtung DOUBLE)");
    std::vector<int> order(static_cast<std::size_t>(rows));
    std::iota(order.begin(), order.end(), 0);
    std::shuffle(order.begin(), order.end(), std::mt19937(1));
    raw_->run("BEGIN");
    for (const int number : order) {
      raw_->run("INSERT INTO Vertriebsstati VALUES ('" + keyOf(number) + "', 'Bezeichnung " +
                std::to_string(number) + "', " + std::to_string(number % 2) + ", " +
                std::to_string(number % 100) + ")");
    }
    raw_->run("COMMIT");
    raw_->run("PRAGMA wal_checkpoint(TRUNCATE)");
    connection_ = ado::openSqlite(path_);
  }
  ~Table() {
    connection_ = nothing;
    raw_.reset();
    remove();
  }

  static Table& of(std::int64_t rows) {
    static std::map<std::int64_t, Table> tables;
    return tables.try_emplace(rows, static_cast<int>(rows)).first->second;
  }

  Raw& raw() { return *raw_; }
  const Ref<ado::Connection>& connection() { return connection_; }
  std::string anyKey() { return keyOf(static_cast<int>(random_() % static_cast<unsigned>(rows_))); }
  std::string newKey() { return "n" + std::to_string(++added_); }

 private:
  void remove() const {
    for (const char* suffix : {"", "-wal", "-shm"}) std::filesystem::remove(path_.string() + suffix);
  }

  int rows_;
  int added_ = 0;
  std::mt19937 random_{2};
  std::filesystem::path path_;
  std::unique_ptr<Raw> raw_;
  Ref<ado::Connection> connection_;
};

using Clock = std::chrono::steady_clock;

double microseconds(const std::function<void()>& run) {
  const auto begin = Clock::now();
  run();
  return std::chrono::duration<double, std::micro>(Clock::now() - begin).count();
}

double median(std::vector<double>& values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// Runs both in turn, the first of them alternating.
void compare(benchmark::State& state, const std::function<void()>& raw, const std::function<void()>& ado) {
  std::vector<double> rawTimes, adoTimes;
  raw();
  ado();
  for (auto _ : state) {
    const bool rawFirst = rawTimes.size() % 2 == 0;
    if (rawFirst) rawTimes.push_back(microseconds(raw));
    adoTimes.push_back(microseconds(ado));
    if (!rawFirst) rawTimes.push_back(microseconds(raw));
    state.SetIterationTime(adoTimes.back() / 1e6);
  }
  const double rawMedian = median(rawTimes);
  const double adoMedian = median(adoTimes);
  state.counters["raw_us"] = rawMedian;
  state.counters["ado_us"] = adoMedian;
  state.counters["ratio"] = adoMedian / rawMedian;
}

const std::string ListText =
    "SELECT Status, Bezeichnung FROM Vertriebsstati Where Status<>'-' ORDER BY Status";

Ref<ado::Recordset> openList(Table& table, int location) {
  auto rs = Ref<ado::Recordset>::make();
  rs->CursorLocation(location);
  rs->Open(fromUtf8(ListText), table.connection(), ado::adOpenKeyset);
  return rs;
}

void drawPage(ado::Recordset& rs) {
  for (int row = 0; row < std::min(rs.knownRows(), 20); ++row) {
    benchmark::DoNotOptimize(rs.rowText(row, 0));
    benchmark::DoNotOptimize(rs.rowText(row, 1));
  }
}

void readColumn(sqlite3_stmt* statement, int column) {
  benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
  benchmark::DoNotOptimize(sqlite3_column_bytes(statement, column));
}

void stepThrough(Table& table) {
  table.raw().select(ListText, [](sqlite3_stmt* statement) {
    readColumn(statement, 0);
    readColumn(statement, 1);
  });
}

std::size_t memoryInUse() {
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

// ---- lists

void ListOpensWithItsFirstPage(benchmark::State& state) {
  Table& table = Table::of(state.range());
  compare(
      state, [&] { stepThrough(table); }, [&] { drawPage(*openList(table, ado::adUseServer)); });
}

void ListReadsAllKeys(benchmark::State& state) {
  Table& table = Table::of(state.range());
  compare(
      state, [&] { stepThrough(table); },
      [&] {
        const auto rs = openList(table, ado::adUseServer);
        drawPage(*rs);
        check(rs->RecordCount() == state.range(), "rows are missing");
      });
  const std::size_t before = memoryInUse();
  const auto rs = openList(table, ado::adUseServer);
  rs->RecordCount();
  rs->Find(fromUtf8("Status='" + keyOf(static_cast<int>(state.range()) - 1) + "'"));
  check(!rs->IsEOF(), "a key is missing");
  state.counters["bytes_a_row"] =
      static_cast<double>(memoryInUse() - before) / static_cast<double>(state.range());
}

void SnapshotReadsAllRows(benchmark::State& state) {
  Table& table = Table::of(state.range());
  compare(
      state,
      [&] {
        std::vector<std::string> cells;
        table.raw().select(ListText, [&](sqlite3_stmt* statement) {
          for (int column = 0; column < 2; ++column) {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            cells.emplace_back(text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
          }
        });
        benchmark::DoNotOptimize(cells.data());
      },
      [&] { benchmark::DoNotOptimize(openList(table, ado::adUseClient)->RecordCount()); });
}

void findsByKey(benchmark::State& state, int location) {
  Table& table = Table::of(state.range());
  const auto rs = openList(table, location);
  rs->MoveLast();
  const auto find = [&] {
    rs->MoveFirst();
    rs->Find(u"Status=" + ado::sql::value(fromUtf8(table.anyKey())));
    check(!rs->IsEOF(), "a key is missing");
  };
  state.counters["first_us"] = microseconds(find);
  for (auto _ : state) find();
}

void ListFindsByKey(benchmark::State& state) { findsByKey(state, ado::adUseServer); }
void SnapshotFindsByKey(benchmark::State& state) { findsByKey(state, ado::adUseClient); }

// ---- single rows

Ref<ado::Recordset> openRow(Table& table, const std::string& key) {
  auto rs = Ref<ado::Recordset>::make();
  rs->Open(u"SELECT * FROM Vertriebsstati WHERE Status=" + ado::sql::value(fromUtf8(key)), table.connection(),
           ado::adOpenKeyset, ado::adLockOptimistic);
  return rs;
}

int readRow(Table& table, const std::string& key) {
  int rows = 0;
  table.raw().select("SELECT * FROM Vertriebsstati WHERE Status='" + key + "'", [&](sqlite3_stmt* statement) {
    readColumn(statement, 0);
    readColumn(statement, 1);
    benchmark::DoNotOptimize(sqlite3_column_int64(statement, 2));
    benchmark::DoNotOptimize(sqlite3_column_double(statement, 3));
    ++rows;
  });
  return rows;
}

void assignRow(ado::Recordset& rs, const std::string& key, int value) {
  rs.Fields(u"Status").Value(fromUtf8(key));
  rs.Fields(u"Bezeichnung").Value(fromUtf8("Wert " + std::to_string(value)));
  rs.Fields(u"AutoOverwrite").Value(value % 2);
  rs.Fields(u"Gewichtung").Value(value % 100);
  rs.Update();
  rs.Close();
}

std::string literals(const std::string& key, int value) {
  return "'" + key + "', 'Wert " + std::to_string(value) + "', " + std::to_string(value % 2) + ", " +
         std::to_string(value % 100);
}

void RowIsRead(benchmark::State& state) {
  Table& table = Table::of(state.range());
  compare(
      state, [&] { check(readRow(table, table.anyKey()) == 1, "a row is missing"); },
      [&] {
        const auto rs = openRow(table, table.anyKey());
        for (int i = 0; i < 4; ++i) benchmark::DoNotOptimize(rs->Fields(i).Value());
        rs->Close();
      });
}

void RowIsUpdated(benchmark::State& state) {
  Table& table = Table::of(state.range());
  int value = 0;
  compare(
      state,
      [&] {
        const std::string key = table.anyKey();
        check(readRow(table, key) == 1, "a row is missing");
        const int fresh = ++value;
        table.raw().run("UPDATE Vertriebsstati SET Status='" + key + "', Bezeichnung='Wert " +
                        std::to_string(fresh) + "', AutoOverwrite=" + std::to_string(fresh % 2) +
                        ", Gewichtung=" + std::to_string(fresh % 100) + " WHERE Status='" + key + "'");
      },
      [&] {
        const std::string key = table.anyKey();
        assignRow(*openRow(table, key), key, ++value);
      });
}

void RowIsAdded(benchmark::State& state) {
  Table& table = Table::of(state.range());
  int value = 0;
  compare(
      state,
      [&] {
        const std::string key = table.newKey();
        check(readRow(table, key) == 0, "a new key is there already");
        table.raw().run("INSERT INTO Vertriebsstati VALUES (" + literals(key, ++value) + ")");
      },
      [&] {
        const std::string key = table.newKey();
        const auto rs = openRow(table, key);
        check(rs->IsEOF(), "a new key is there already");
        rs->AddNew();
        assignRow(*rs, key, ++value);
      });
  table.raw().run("DELETE FROM Vertriebsstati WHERE Status>='n'");
}

constexpr std::int64_t Million = 1000000;

BENCHMARK(ListOpensWithItsFirstPage)
    ->Arg(30)
    ->UseManualTime()
    ->Iterations(5000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(ListOpensWithItsFirstPage)
    ->Arg(Million)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ListReadsAllKeys)->Arg(Million)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(SnapshotReadsAllRows)->Arg(Million)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(ListFindsByKey)->Arg(10000)->Arg(Million)->Unit(benchmark::kMicrosecond);
BENCHMARK(SnapshotFindsByKey)->Arg(10000)->Arg(Million)->Unit(benchmark::kMicrosecond);
BENCHMARK(RowIsRead)->Arg(10000)->Arg(Million)->UseManualTime()->Iterations(20000)->Unit(
    benchmark::kMicrosecond);
BENCHMARK(RowIsUpdated)
    ->Arg(10000)
    ->Arg(Million)
    ->UseManualTime()
    ->Iterations(500)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(RowIsAdded)
    ->Arg(10000)
    ->Arg(Million)
    ->UseManualTime()
    ->Iterations(500)
    ->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
