// SPDX-License-Identifier: MIT
//
// A database that fails in the middle of the work: which failures the clerk sees, and that no half row is
// ever stored.
#include <algorithm>
#include <set>

#include "runtime/convert.h"
#include "testing/dialog_test.h"

namespace zqn::testing {
namespace {

using ado::Operation;

class FailingDatabase : public DialogTest {
 protected:
  FailingDatabase() {
    execute(
        u"CREATE TABLE Vertriebsstati (Status VARCHAR(10) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        u"Bezeichnung VARCHAR(30) COLLATE ZQN_TEXT, AutoOverwrite SMALLINT, Gewichtung DOUBLE)");
    reset();
  }

  void reset() {
    execute(
        u"DELETE FROM Vertriebsstati;"
        u"INSERT INTO Vertriebsstati VALUES ('10', 'Interesse', 0, 10);"
        u"INSERT INTO Vertriebsstati VALUES ('20', 'Angebot', -1, 40);"
        u"INSERT INTO Vertriebsstati VALUES ('30', 'Auftrag', 0, 90)");
    reportedErrors.clear();
  }

  /// Everything that a clerk does with a row: browse, change and save one, add one, delete one, take one.
  Variant wholeSession() {
    return show(21, {u"10"}, [&] {
      press(key::Down);
      click(u"Kurztext");
      type(u"geändert");
      click(u"AutoOverwrite");
      save();
      press(key::F6);
      type(u"40");
      press(key::Tab);
      type(u"neu");
      save();
      select(2);
      click(u"btnDelete");
      doubleClick(1);
    });
  }
  void save() {
    saved.insert(text(u"Schluessel") + u"|" + text(u"Kurztext") + u"|" +
                 CStr(get(u"AutoOverwrite", u"Value")) + u"|" + text(u"Gewichtung"));
    press(key::F9);
  }
  /// Whether a stored row is one of those before, or one as the form showed it when it was saved.
  bool isWhole(const String& row) const { return before.contains(row) || saved.contains(row); }
  /// Whether each column of the row is that of such a row, or Null: what a failed assignment of a single
  /// field may leave.
  bool isWholeButOneField(const String& row) const {
    std::set<String> known{u"NULL"};
    for (const auto& rows : {before, saved}) {
      for (const String& each : rows) {
        for (const String& column : Split(each, u"|")) known.insert(column);
      }
    }
    const auto columns = Split(row, u"|");
    return std::ranges::all_of(columns, [&](const String& column) { return known.contains(column); });
  }

  const std::set<String> before{u"10|Interesse|0|10", u"20|Angebot|-1|40", u"30|Auftrag|0|90"};
  std::set<String> saved;

  std::set<String> table() {
    const auto all = rows(u"SELECT * FROM Vertriebsstati");
    return {all.begin(), all.end()};
  }
};

TEST_F(FailingDatabase, LeavesTheHostAliveAndWholeRowsWhereverItFails) {
  tolerateEverything();
  EXPECT_EQ(wholeSession(), Variant(u"20"));
  EXPECT_TRUE(reportedErrors.empty());
  const std::size_t count = operations.size();
  std::set<Operation> kinds;
  for (const auto& [operation, statement] : operations) kinds.insert(operation);
  ASSERT_EQ(kinds.size(), 8u) << "the session must meet every kind of operation";
  EXPECT_EQ(table(), (std::set<String>{u"10|Interesse|0|10", u"20|geändert|0|40", u"40|neu|0|0"}));

  const std::set<String> mayReport{u"TDBList1_RowColChange", u"TDBList1_DblClick", u"btnDelete_Click",
                                   u"btnOK_Click"};
  std::size_t silent = 0;
  for (std::size_t position = 1; position <= count; ++position) {
    reset();
    saved.clear();
    failAt(position);
    const Variant taken = wholeSession();
    failAt(0);
    const auto& [operation, statement] = operations[position - 1];
    SCOPED_TRACE("operation " + std::to_string(position) + " of kind " +
                 std::to_string(static_cast<int>(operation)) + " on " + toUtf8(statement));
    EXPECT_EQ(desktop.activeForm(), nullptr);
    EXPECT_FALSE(taken.isEmpty());
    EXPECT_LE(connection->openRecordsets(), operation == Operation::Close ? 1u : 0u);
    const bool fieldOfAWrittenRow =
        operation == Operation::Field && InStr(statement, u"WHERE Status='") != String::npos;
    for (const String& row : table()) {
      EXPECT_TRUE(fieldOfAWrittenRow ? isWholeButOneField(row) : isWhole(row)) << toUtf8(row);
    }
    for (const String& procedure : reportedErrors)
      EXPECT_TRUE(mayReport.contains(procedure)) << toUtf8(procedure);
    silent += reportedErrors.empty() ? 1 : 0;
  }
  EXPECT_GT(silent, 0u);
  EXPECT_LT(silent, count);
}

// ---- which routine skips, and which lets out

struct FaultCase {
  const char* name;
  Operation operation;
  /// A text that only the statement of that routine holds.
  StringView match;
  /// What the clerk does.
  void (*act)(FailingDatabase& clerk);
  /// The event procedure that the error leaves; "" when it is skipped.
  StringView procedure;
};

void PrintTo(const FaultCase& fault, std::ostream* out) { *out << fault.name; }

}  // namespace

// Named access for the table of cases: what a clerk does stands beside what follows.
class FailingRoutine : public FailingDatabase, public ::testing::WithParamInterface<FaultCase> {
 public:
  static void browse(FailingDatabase& clerk) { static_cast<FailingRoutine&>(clerk).press(key::Down); }
  static void save(FailingDatabase& clerk) { static_cast<FailingRoutine&>(clerk).click(u"btnOK"); }
  static void saveByKey(FailingDatabase& clerk) {
    auto& self = static_cast<FailingRoutine&>(clerk);
    self.click(u"Kurztext");
    self.press(key::F9);
  }
  static void remove(FailingDatabase& clerk) { static_cast<FailingRoutine&>(clerk).click(u"btnDelete"); }
  static void pick(FailingDatabase& clerk) { static_cast<FailingRoutine&>(clerk).doubleClick(0); }
  static void leaveTheKey(FailingDatabase& clerk) {
    auto& self = static_cast<FailingRoutine&>(clerk);
    self.click(u"Schluessel");
    self.type(u"77");
    self.press(key::Tab);
  }
};

namespace {

TEST_P(FailingRoutine, SkipsOrShows) {
  tolerateEverything();
  const FaultCase& fault = GetParam();
  show(21, {u"10"}, [&] {
    fail(fault.operation, fault.match, error::ProviderFailure);
    fault.act(*this);
    const std::vector<String> expected =
        fault.procedure.empty() ? std::vector<String>{} : std::vector<String>{String(fault.procedure)};
    EXPECT_EQ(reportedErrors, expected);
  });
  EXPECT_EQ(
      rows(u"SELECT count(*) FROM Vertriebsstati WHERE Bezeichnung IS NULL OR Gewichtung IS NULL").front(),
      u"0");
}

constexpr StringView readOf20 = u"WHERE Status ='20'";
constexpr StringView readOf77 = u"WHERE Status ='77'";
constexpr StringView readOf10 = u"WHERE Status ='10'";
constexpr StringView writeOf10 = u"WHERE Status='10'";
constexpr StringView theList = u"ORDER BY Status";

INSTANTIATE_TEST_SUITE_P(
    Vertriebsstati, FailingRoutine,
    ::testing::Values(
        FaultCase{"ReadingARowThatIsBrowsedTo", Operation::Open, readOf20, FailingRoutine::browse,
                  u"TDBList1_RowColChange"},
        FaultCase{"AFieldOfARowThatIsBrowsedTo", Operation::Field, readOf20, FailingRoutine::browse,
                  u"TDBList1_RowColChange"},
        FaultCase{"ClosingTheRowThatIsBrowsedTo", Operation::Close, readOf20, FailingRoutine::browse,
                  u"TDBList1_RowColChange"},
        FaultCase{"ReadingARowThatIsTaken", Operation::Open, readOf10, FailingRoutine::pick,
                  u"TDBList1_DblClick"},
        FaultCase{"ReadingAKeyThatIsLeft", Operation::Open, readOf77, FailingRoutine::leaveTheKey, u""},
        FaultCase{"FindingAKeyThatIsLeft", Operation::Find, theList, FailingRoutine::leaveTheKey, u""},
        FaultCase{"OpeningTheRowToWrite", Operation::Open, writeOf10, FailingRoutine::save, u""},
        FaultCase{"AssigningAField", Operation::Field, writeOf10, FailingRoutine::save, u""},
        FaultCase{"UpdatingTheRow", Operation::Update, writeOf10, FailingRoutine::save, u""},
        FaultCase{"ClosingTheWrittenRow", Operation::Close, writeOf10, FailingRoutine::save, u""},
        FaultCase{"QueryingTheListAgain", Operation::Requery, theList, FailingRoutine::save, u"btnOK_Click"},
        FaultCase{"FindingTheSavedRow", Operation::Find, theList, FailingRoutine::save, u"btnOK_Click"},
        FaultCase{"QueryingTheListAgainAfterF9", Operation::Requery, theList, FailingRoutine::saveByKey, u""},
        FaultCase{"Deleting", Operation::Execute, u"Delete", FailingRoutine::remove, u"btnDelete_Click"},
        FaultCase{"OpeningTheListAfterDeleting", Operation::Open, theList, FailingRoutine::remove,
                  u"btnDelete_Click"}),
    [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace zqn::testing
