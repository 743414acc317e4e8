// SPDX-License-Identifier: MIT
//
// A database that fails in the middle of the work: which routines of the catalogue forms go on with the next
// statement, and which let the clerk see it.
#include "testing/catalogue.h"

namespace zqn::testing {
namespace {

using ado::Operation;

class FailingRoutine;

constexpr StringView writeOf10 = u"WHERE Status='10'";

struct FaultCase {
  const char* name;
  Operation operation;
  /// A text that only the statement of that routine holds.
  StringView match;
  /// What the clerk does.
  void (*act)(FailingRoutine& clerk);
  /// The event procedure that the error leaves; "" when it is skipped.
  StringView procedure;
};

void PrintTo(const FaultCase& fault, std::ostream* out) { *out << fault.name; }

class FailingRoutine : public CatalogueTest, public ::testing::WithParamInterface<FaultCase> {
 public:
  using CatalogueTest::click;
  using CatalogueTest::doubleClick;
  using CatalogueTest::press;
  using CatalogueTest::type;

 protected:
  FailingRoutine() {
    execute(
        u"CREATE TABLE Vertriebsstati (Status VARCHAR(10) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        u"Bezeichnung VARCHAR(30) COLLATE ZQN_TEXT, AutoOverwrite SMALLINT, Gewichtung DOUBLE);"
        u"INSERT INTO Vertriebsstati VALUES ('10', 'Interesse', 0, 10);"
        u"INSERT INTO Vertriebsstati VALUES ('20', 'Angebot', -1, 40);"
        u"INSERT INTO Vertriebsstati VALUES ('30', 'Auftrag', 0, 90)");
  }
};

TEST_P(FailingRoutine, SkipsOrShows) {
  tolerateEverything();
  const FaultCase& fault = GetParam();
  show(21, {u"10"}, [&] {
    fail(fault.operation, fault.match, error::ProviderFailure);
    fault.act(*this);
    const std::vector<String> expected =
        fault.procedure.empty() ? std::vector<String>{} : std::vector<String>{String(fault.procedure)};
    EXPECT_EQ(reportedErrors, expected);
    EXPECT_EQ(passedOver.empty(), fault.match != writeOf10) << "what is passed over in writing is told";
    EXPECT_EQ(form().Notice().empty(), passedOver.empty());
  });
  EXPECT_EQ(
      rows(u"SELECT count(*) FROM Vertriebsstati WHERE Bezeichnung IS NULL OR Gewichtung IS NULL").front(),
      u"0");
}

void browse(FailingRoutine& clerk) { clerk.press(key::Down); }
void save(FailingRoutine& clerk) { clerk.click(u"btnOK"); }
void saveByKey(FailingRoutine& clerk) {
  clerk.click(u"Kurztext");
  clerk.press(key::F9);
}
void remove(FailingRoutine& clerk) { clerk.click(u"btnDelete"); }
void pick(FailingRoutine& clerk) { clerk.doubleClick(0); }
void pickByKey(FailingRoutine& clerk) { clerk.press(key::F9); }
void close(FailingRoutine& clerk) { clerk.press(key::F10); }
void leaveTheKey(FailingRoutine& clerk) {
  clerk.click(u"Schluessel");
  clerk.type(u"77");
  clerk.press(key::Tab);
}

constexpr StringView readOf20 = u"WHERE Status ='20'";
constexpr StringView readOf77 = u"WHERE Status ='77'";
constexpr StringView readOf10 = u"WHERE Status ='10'";
constexpr StringView theList = u"ORDER BY Status";

INSTANTIATE_TEST_SUITE_P(
    Vertriebsstati, FailingRoutine,
    ::testing::Values(
        FaultCase{"ReadingARowThatIsBrowsedTo", Operation::Open, readOf20, browse, u"TDBList1_RowColChange"},
        FaultCase{"AFieldOfARowThatIsBrowsedTo", Operation::Field, readOf20, browse,
                  u"TDBList1_RowColChange"},
        FaultCase{"ClosingTheRowThatIsBrowsedTo", Operation::Close, readOf20, browse,
                  u"TDBList1_RowColChange"},
        FaultCase{"ReadingARowThatIsTaken", Operation::Open, readOf10, pick, u"TDBList1_DblClick"},
        FaultCase{"ReadingARowThatIsTakenByF9", Operation::Open, readOf10, pickByKey, u""},
        FaultCase{"ReadingAKeyThatIsLeft", Operation::Open, readOf77, leaveTheKey, u""},
        FaultCase{"FindingAKeyThatIsLeft", Operation::Find, theList, leaveTheKey, u""},
        FaultCase{"OpeningTheRowToWrite", Operation::Open, writeOf10, save, u""},
        FaultCase{"AssigningAField", Operation::Field, writeOf10, save, u""},
        FaultCase{"UpdatingTheRow", Operation::Update, writeOf10, save, u""},
        FaultCase{"ClosingTheWrittenRow", Operation::Close, writeOf10, save, u""},
        FaultCase{"QueryingTheListAgain", Operation::Requery, theList, save, u"btnOK_Click"},
        FaultCase{"FindingTheSavedRow", Operation::Find, theList, save, u"btnOK_Click"},
        FaultCase{"QueryingTheListAgainAfterF9", Operation::Requery, theList, saveByKey, u""},
        FaultCase{"Deleting", Operation::Execute, u"Delete", remove, u"btnDelete_Click"},
        FaultCase{"OpeningTheListAfterDeleting", Operation::Open, theList, remove, u"btnDelete_Click"},
        FaultCase{"ClosingTheListAfterDeleting", Operation::Close, theList, remove, u""},
        FaultCase{"ClosingTheListAtTheEnd", Operation::Close, theList, close, u""}),
    [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace zqn::testing
