// SPDX-License-Identifier: MIT
//
// The list of the sales statuses over a million rows, as a clerk meets it, against Qt's own table of the same
// rows (QSqlTableModel in a QTableView): from the order to open until the first paint, and from the order to
// show the row of a key near the end until it is painted; and all rows read into memory, as a client-side
// snapshot and by the same model. Both sides run in turn on the same file; a ratio is that of the medians.
//
//     qt_list_bench [rows] [rounds]
//     ZQN_BENCH_FOLDER=/dev/shm qt_list_bench     where the database is made, else in the folder of temporary
//     files
#include <sqlite3.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDialog>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlTableModel>
#include <QTableView>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <vector>

#include "ado/recordset.h"
#include "ado/sqlite/sqlite.h"
#include "catalogues/vertriebsstati.h"
#include "desktop/qt/qt_desktop.h"
#include "desktop/qt/text.h"
#include "runtime/convert.h"
#include "runtime/locale.h"

namespace {

using namespace zqn;
using Clock = std::chrono::steady_clock;

/// Runs the events until the table that is in sight has been painted.
class PaintWatch : public QObject {
 public:
  PaintWatch() { qApp->installEventFilter(this); }
  ~PaintWatch() override { qApp->removeEventFilter(this); }

  /// From now on the next paint counts.
  void start() {
    painted_ = false;
    begin_ = Clock::now();
  }
  bool isDone() const { return painted_; }
  double elapsed() const { return std::chrono::duration<double, std::milli>(Clock::now() - begin_).count(); }
  double milliseconds() const { return std::chrono::duration<double, std::milli>(end_ - begin_).count(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool ofTable = event->type() == QEvent::Paint && watched->parent() != nullptr &&
                         dynamic_cast<QTableView*>(watched->parent()) != nullptr &&
                         watched->objectName() == QLatin1String("qt_scrollarea_viewport");
    if (ofTable && !painted_ && !painting_) {
      // The paint itself counts: it is done here, and not again.
      painting_ = true;
      QCoreApplication::sendEvent(watched, event);
      painting_ = false;
      end_ = Clock::now();
      painted_ = true;
      return true;
    }
    return false;
  }

 private:
  Clock::time_point begin_, end_;
  bool painted_ = true;
  bool painting_ = false;
};

void runUntil(const std::function<bool()>& done) {
  while (!done()) QAbstractEventDispatcher::instance()->processEvents(QEventLoop::WaitForMoreEvents);
}

struct Times {
  double open = 0;
  double find = 0;
};

constexpr StringView statement =
    u"SELECT Status, Bezeichnung FROM Vertriebsstati Where Status<>'-' ORDER BY Status";

namespace plan {

constexpr ControlDesign roster[] = {{u"TDBList1", ControlKind::TDBList, u"", 120, 120, 6135, 2415}};
constexpr FormDesign form{u"frmListe", u"Liste", 6420, 2655, roster};

}  // namespace plan

/// Our list: in a window of its own, or in the whole form of kind 21.
class Ours {
 public:
  Ours(const std::filesystem::path& file, PaintWatch& watch)
      : connection_(ado::openSqlite(file)), watch_(watch) {}

  Times list(const String& key) {
    watch_.start();
    Form form(plan::form);
    auto& list = form.Get<TDBList>(u"TDBList1");
    auto rows = Ref<ado::Recordset>::make();
    rows->Open(statement, connection_, ado::adOpenKeyset, ado::adLockReadOnly);
    list.DataSource(rows);
    return shown(form, list, key, [&] {
      rows->MoveFirst();
      rows->Find(u"Status=" + ado::sql::value(key));
      list.Bookmark(rows->Bookmark());
    });
  }

  Times wholeForm(const String& key) {
    watch_.start();
    frmVertriebsstati form;
    form.Connection = connection_;
    form.SelectedKey = firstKey;
    form.Get<TextBox>(u"Schluessel").MaxLength(static_cast<int>(key.size()));
    auto& list = form.Get<TDBList>(u"TDBList1");
    return shown(
        form, list, key,
        [&] {
          form.Get<TextBox>(u"Schluessel").Text(key);
          form.Get<TextBox>(u"Schluessel").LostFocus.raise();
        },
        [&] { form.ShowData(); });
  }

  /// Milliseconds that a client-side snapshot of all rows takes.
  double snapshot() {
    watch_.start();
    ado::Recordset rows;
    rows.CursorLocation(ado::adUseClient);
    rows.Open(statement, connection_, ado::adOpenStatic, ado::adLockReadOnly);
    return watch_.elapsed();
  }

  String firstKey;

 private:
  template <class Find>
  Times shown(Form& form, TDBList& list, const String& key, Find find) {
    return shown(form, list, key, find, [&] { form.Show(); });
  }

  template <class Find, class Show>
  Times shown(Form& form, TDBList& list, const String& key, Find find, Show show) {
    Times times;
    int step = 0;
    desktop_.whenIdle([&] {
      if (!watch_.isDone()) return;
      if (step == 0) {
        times.open = watch_.milliseconds();
        watch_.start();
        find();
      } else if (step == 1) {
        times.find = watch_.milliseconds();
        if (list.Text() != key) throw std::logic_error("the row was not found");
        form.UnloadMe();
      }
      ++step;
    });
    show();
    return times;
  }

  Ref<ado::Connection> connection_;
  PaintWatch& watch_;
  qt::QtDesktop desktop_;
  Desktop::Scope scope_{desktop_};
};

/// Qt's table of the same rows.
class Theirs {
 public:
  Theirs(const std::filesystem::path& file, PaintWatch& watch)
      : database_(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"))), watch_(watch) {
    database_.setDatabaseName(QString::fromStdString(file.string()));
    if (!database_.open()) throw std::runtime_error("Qt cannot open the database");
    const auto collate = [](void*, int m, const void* a, int n, const void* b) {
      return compareCollated(std::string_view(static_cast<const char*>(a), static_cast<std::size_t>(m)),
                             std::string_view(static_cast<const char*>(b), static_cast<std::size_t>(n)));
    };
    sqlite3* const handle = *static_cast<sqlite3* const*>(database_.driver()->handle().constData());
    sqlite3_create_collation(handle, "ZQN_TEXT", SQLITE_UTF8, nullptr, collate);
  }

  Times list(const String& key) {
    Times times;
    watch_.start();
    QDialog window;
    window.setFixedSize(428, 177);
    QTableView view(&window);
    view.setGeometry(8, 8, 409, 161);
    QSqlTableModel model(nullptr, database_);
    select(model);
    view.setModel(&model);
    window.show();
    runUntil([&] { return watch_.isDone(); });
    times.open = watch_.milliseconds();

    watch_.start();
    const QString wanted = qt::toQt(key);
    int row = 0;
    for (;; ++row) {
      while (row >= model.rowCount() && model.canFetchMore()) model.fetchMore();
      if (row >= model.rowCount()) throw std::logic_error("Qt did not find the row");
      if (model.data(model.index(row, 0)).toString() == wanted) break;
    }
    view.selectRow(row);
    view.scrollTo(model.index(row, 0));
    runUntil([&] { return watch_.isDone(); });
    times.find = watch_.milliseconds();
    return times;
  }

  /// Milliseconds until the model alone holds all rows.
  double snapshot() {
    watch_.start();
    QSqlTableModel model(nullptr, database_);
    select(model);
    while (model.canFetchMore()) model.fetchMore();
    return watch_.elapsed();
  }

 private:
  static void select(QSqlTableModel& model) {
    model.setTable(QStringLiteral("Vertriebsstati"));
    model.setFilter(QStringLiteral("Status<>'-'"));
    model.setSort(0, Qt::AscendingOrder);
    if (!model.select()) throw std::runtime_error("Qt cannot read the table");
  }

  QSqlDatabase database_;
  PaintWatch& watch_;
};

std::filesystem::path makeTable(int rows) {
  const char* folder = std::getenv("ZQN_BENCH_FOLDER");
  const auto file =
      (folder != nullptr ? std::filesystem::path(folder) : std::filesystem::temp_directory_path()) /
      "zqn-qt-list-bench.db";
  std::filesystem::remove(file);
  const Ref<ado::Connection> connection = ado::openSqlite(file);
  connection->Execute(
      u"CREATE TABLE Vertriebsstati (Status VARCHAR(10) COLLATE ZQN_TEXT PRIMARY KEY, Bezeichnung "
      u"VARCHAR(50) "
      u"COLLATE ZQN_TEXT, AutoOverwrite INTEGER, Gewichtung INTEGER)");
  // Rows lie in another order than their keys, as they do after years of work.
  connection->Execute(u"WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < " +
                      CStr(std::int32_t{rows}) +
                      u") INSERT INTO Vertriebsstati SELECT printf('%07d', (i * 611953) % " +
                      CStr(std::int32_t{rows}) + u"), 'Stufe ' || i, 0, 50 FROM n");
  return file;
}

double median(std::vector<double> values) {
  std::ranges::nth_element(values, values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2));
  return values[values.size() / 2];
}

class Column {
 public:
  void add(const Times& times) {
    open_.push_back(times.open);
    find_.push_back(times.find);
  }
  double open() const { return median(open_); }
  double find() const { return median(find_); }

 private:
  std::vector<double> open_, find_;
};

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  qt::configureApplication(app);
  const int rows = argc > 1 ? std::atoi(argv[1]) : 1'000'000;
  const int rounds = argc > 2 ? std::atoi(argv[2]) : 5;

  const std::filesystem::path file = makeTable(rows);
  const String key = fromUtf8(QString::asprintf("%07d", rows - 10).toStdString());
  Column list, form, theirs;
  std::vector<double> ourRows, theirRows;
  {
    PaintWatch watch;
    Ours ours(file, watch);
    ours.firstKey = u"0000000";
    Theirs table(file, watch);
    for (int i = 0; i <= rounds; ++i) {
      const Times a = ours.list(key);
      const Times b = ours.wholeForm(key);
      const Times c = table.list(key);
      if (i == 0) continue;  // the first round warms up
      list.add(a);
      form.add(b);
      theirs.add(c);
    }
    for (int i = 0; i < rounds; ++i) {
      ourRows.push_back(ours.snapshot());
      theirRows.push_back(table.snapshot());
    }
  }
  std::filesystem::remove(file);

  std::printf("%d rows, medians of %d rounds, milliseconds\n", rows, rounds);
  std::printf("%-28s %10s %10s\n", "", "open", "find");
  std::printf("%-28s %10.2f %10.2f\n", "QSqlTableModel, QTableView", theirs.open(), theirs.find());
  std::printf("%-28s %10.2f %10.2f   ratio %.2f %.3f\n", "list alone", list.open(), list.find(),
              list.open() / theirs.open(), list.find() / theirs.find());
  std::printf("%-28s %10.2f %10.2f   ratio %.2f %.3f\n", "whole form, 14 controls", form.open(), form.find(),
              form.open() / theirs.open(), form.find() / theirs.find());
  std::printf("%-28s %10.2f\n", "QSqlTableModel to its end", median(theirRows));
  std::printf("%-28s %10.2f   ratio %.2f\n", "client-side snapshot", median(ourRows),
              median(ourRows) / median(theirRows));
  return 0;
}
