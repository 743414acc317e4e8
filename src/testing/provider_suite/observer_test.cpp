// SPDX-License-Identifier: MIT
#include <optional>

#include "testing/provider_suite/suite.h"

namespace zqn::ado::suite {

namespace {

using Operations = std::vector<Operation>;

/// Notes every operation on a connection, and makes those of one kind fail.
class Recorder : public Observer {
 public:
  explicit Recorder(Ref<Connection> connection) : connection_(std::move(connection)) {
    connection_->observer(this);
  }
  ~Recorder() override { connection_->observer(nullptr); }

  void Before(Operation operation, StringView statement, StringView criterion) override {
    operations_.push_back(operation);
    lastStatement = statement;
    lastCriterion = criterion;
    if (operation == failing_) throw RuntimeError(Fault, u"fault");
  }

  /// The operations of a statement.
  template <class Statement>
  Operations during(Statement&& statement) {
    operations_.clear();
    statement();
    return operations_;
  }
  /// The error of a statement during which every operation of that kind fails.
  template <class Statement>
  std::int32_t failing(Operation operation, Statement&& statement) {
    failing_ = operation;
    const std::int32_t number = errorNumberOf(statement);
    failing_.reset();
    return number;
  }

  static constexpr std::int32_t Fault = -2147467259;
  String lastStatement, lastCriterion;

 private:
  Ref<Connection> connection_;
  Operations operations_;
  std::optional<Operation> failing_;
};

const sql::Text All = u"SELECT * FROM Vertriebsstati ORDER BY Status";

}  // namespace

TEST_P(RecordsetTest, TellsEachOperationOnce) {
  Recorder recorder(connection);
  Ref<Recordset> rs;
  EXPECT_EQ(recorder.during([&] { rs = openForWrite(All); }), Operations{Operation::Open});
  EXPECT_EQ(recorder.lastStatement, All.text());
  EXPECT_EQ(recorder.during([&] { rs->Find(u"Status='20'"); }), Operations{Operation::Find});
  EXPECT_EQ(recorder.lastStatement, All.text());
  EXPECT_EQ(recorder.lastCriterion, u"Status='20'");
  EXPECT_EQ(recorder.during([&] { rs->Fields(u"Status").Value(); }), Operations{Operation::Field});
  EXPECT_EQ(recorder.during([&] { rs->Fields(u"Bezeichnung").Value(u"Neu"); }), Operations{Operation::Field});
  EXPECT_EQ(recorder.during([&] { rs->Update(); }), Operations{Operation::Update});
  EXPECT_EQ(recorder.during([&] { rs->AddNew(); }), Operations{Operation::AddNew});
  EXPECT_EQ(recorder.during([&] { rs->CancelUpdate(); }), Operations{});
  EXPECT_EQ(recorder.during([&] { rs->Requery(); }), Operations{Operation::Requery});
  EXPECT_EQ(recorder.during([&] { rs->MoveFirst(); }), Operations{});
  EXPECT_EQ(recorder.during([&] { rs->Close(); }), Operations{Operation::Close});
  EXPECT_EQ(recorder.during([&] { connection->Execute(u"DELETE FROM Vertriebsstati"); }),
            Operations{Operation::Execute});
  EXPECT_EQ(recorder.lastStatement, u"DELETE FROM Vertriebsstati");
}

TEST_P(RecordsetTest, TellsTheUpdateThatAMoveImplies) {
  Recorder recorder(connection);
  const auto rs = openForWrite(All);
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  EXPECT_EQ(recorder.during([&] { rs->MoveNext(); }), Operations{Operation::Update});
}

TEST_P(RecordsetTest, IsToldOfInvalidStatementsAsTheyStand) {
  Recorder recorder(connection);
  errorNumberOf([&] { open(u"SELECT * FROM Vertriebsstati WHERE Status=" + sql::value(u"1'0")); });
  EXPECT_EQ(recorder.lastStatement, u"SELECT * FROM Vertriebsstati WHERE Status='1'0'");
  errorNumberOf([&] { connection->Execute(u"DELETE FROM Vertriebsstati WHERE Status=" + sql::value(u"'")); });
  EXPECT_EQ(recorder.lastStatement, u"DELETE FROM Vertriebsstati WHERE Status='''");
}

TEST_P(RecordsetTest, SeesNothingOfWhatAListDraws) {
  Recorder recorder(connection);
  const auto rs = openForWrite(All);
  EXPECT_EQ(recorder.during([&] {
    rs->rowText(1, 1);
    rs->rowValue(2, 0);
    rs->fetchKeys(100);
    rs->rowOf(rs->bookmarkOf(1));
    rs->Bookmark(rs->bookmarkOf(1));
    rs->Fields(u"Status").Name();
  }),
            Operations{});
}

TEST_P(RecordsetTest, FailedOpenStaysClosed) {
  Recorder recorder(connection);
  Recordset rs;
  EXPECT_EQ(recorder.failing(Operation::Open, [&] { rs.Open(All, connection); }), Recorder::Fault);
  EXPECT_EQ(rs.State(), adStateClosed);
}

TEST_P(RecordsetTest, FailedUpdateLeavesTheEditPending) {
  Recorder recorder(connection);
  const auto rs = openForWrite(All);
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  EXPECT_EQ(recorder.failing(Operation::Update, [&] { rs->Update(); }), Recorder::Fault);
  EXPECT_EQ(recorder.failing(Operation::Update, [&] { rs->MoveNext(); }), Recorder::Fault);
  EXPECT_EQ(rs->EditMode(), adEditInProgress);
  EXPECT_EQ(rs->currentRow(), 0);
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Angebot / 30|Null");
  rs->Update();
  EXPECT_EQ(stored(), u"10|Neu / 20|Angebot / 30|Null");
}

TEST_P(RecordsetTest, FailedAddNewChangesNothing) {
  Recorder recorder(connection);
  const auto rs = openForWrite(All);
  rs->MoveNext();
  EXPECT_EQ(recorder.failing(Operation::AddNew, [&] { rs->AddNew(); }), Recorder::Fault);
  EXPECT_EQ(rs->EditMode(), adEditNone);
  EXPECT_EQ(rs->currentRow(), 1);
}

TEST_P(RecordsetTest, RequeryAfterAFailedOneIsTold) {
  Recorder recorder(connection);
  const auto rs = list();
  EXPECT_EQ(recorder.failing(Operation::Requery, [&] { rs->Requery(); }), Recorder::Fault);
  EXPECT_EQ(recorder.during([&] { rs->Requery(); }), Operations{Operation::Requery});
  EXPECT_EQ(keysFrom(*rs), u"10 20 30");
}

TEST_P(RecordsetTest, FailedRequeryCloses) {
  Recorder recorder(connection);
  const auto rs = openForWrite(All);
  EXPECT_EQ(recorder.failing(Operation::Requery, [&] { rs->Requery(); }), Recorder::Fault);
  EXPECT_EQ(rs->State(), adStateClosed);
}

TEST_P(RecordsetTest, FailedFindDoesNotMove) {
  Recorder recorder(connection);
  const auto rs = openForWrite(All);
  EXPECT_EQ(recorder.failing(Operation::Find, [&] { rs->Find(u"Status='20'"); }), Recorder::Fault);
  EXPECT_EQ(rs->currentRow(), 0);
}

TEST_P(RecordsetTest, FailedCloseStaysOpen) {
  Recorder recorder(connection);
  const auto rs = openForWrite(All);
  EXPECT_EQ(recorder.failing(Operation::Close, [&] { rs->Close(); }), Recorder::Fault);
  EXPECT_EQ(rs->State(), adStateOpen);
  EXPECT_EQ(key(*rs), u"10");
}

TEST_P(RecordsetTest, FailedFieldAssignmentKeepsThatFieldOnly) {
  Recorder recorder(connection);
  const auto rs = openForWrite(All);
  EXPECT_EQ(recorder.failing(Operation::Field, [&] { rs->Fields(u"Status").Value(); }), Recorder::Fault);
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  EXPECT_EQ(recorder.failing(Operation::Field, [&] { rs->Fields(u"Gewichtung").Value(99); }),
            Recorder::Fault);
  rs->Update();
  EXPECT_EQ(stored(u"SELECT * FROM Vertriebsstati WHERE Status='10'"), u"10|Neu|0|10");
}

TEST_P(RecordsetTest, FailedExecuteDoesNotReachTheDatabase) {
  Recorder recorder(connection);
  EXPECT_EQ(recorder.failing(Operation::Execute, [&] { connection->Execute(u"DELETE FROM Vertriebsstati"); }),
            Recorder::Fault);
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Angebot / 30|Null");
}

}  // namespace zqn::ado::suite
