// SPDX-License-Identifier: MIT
//
// Kind 21, and with it all catalogue forms: keys, taking a key, what other people do meanwhile, how it ends.
#include "catalogues/vertriebsstati.h"
#include "contract/object_factory.h"
#include "forms/tdb_list.h"
#include "testing/vertriebsstati.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

// ---- keys

TEST_F(Vertriebsstati, FunctionKeysWorkOnlyWithoutShiftKeys) {
  show(21, {u"10"}, [&] {
    for (const int held : {shift::Shift, shift::Ctrl, shift::Alt}) {
      press(key::F6, held);
      EXPECT_EQ(text(u"Schluessel"), u"10");
      press(key::F9, held);
      press(key::F10, held);
      EXPECT_TRUE(form().Visible());
    }
    press(key::F6);
    EXPECT_EQ(text(u"Schluessel"), u"");
    EXPECT_EQ(focus(), u"Schluessel");
    EXPECT_FALSE(enabled(u"btnOK"));
    press(key::F10);
    EXPECT_FALSE(form().Visible());
  });
}

TEST_F(Vertriebsstati, F9PicksOnTheListAndSavesElsewhere) {
  EXPECT_EQ(show(21, {u"10"},
                 [&] {
                   press(key::Tab);
                   press(key::F9);
                   EXPECT_EQ(focus(), u"TDBList1") << "saved, and back on the list";
                   press(key::Down);
                   press(key::F9);
                   EXPECT_FALSE(form().Visible());
                 }),
            Variant(u"20"));
}

TEST_F(Vertriebsstati, EscapeClosesAndReturnsTheKeyThatCameIn) {
  EXPECT_EQ(show(21, {u"10"},
                 [&] {
                   click(u"Kurztext");
                   type(u"verworfen");
                   press(key::Escape);
                   EXPECT_FALSE(form().Visible());
                 }),
            Variant(u"10"));
  EXPECT_THAT(rows(u"SELECT Bezeichnung FROM Vertriebsstati WHERE Status='10'"),
              ElementsAre(u"Interesse geweckt"));
}

TEST_F(Vertriebsstati, EnterWalksThroughTheFieldsInTheTabOrder) {
  show(21, {u"10"}, [&] {
    for (const StringView next : {u"Schluessel", u"Kurztext", u"Gewichtung", u"AutoOverwrite", u"btnOK"}) {
      press(key::Enter);
      EXPECT_EQ(focus(), String(next));
    }
  });
}

TEST_F(Vertriebsstati, TabRunsThroughAllControlsAndBack) {
  show(21, {u"10"}, [&] {
    const std::vector<StringView> order = {u"Schluessel",    u"Kurztext",  u"Gewichtung",
                                           u"AutoOverwrite", u"btnOK",     u"btnCancel",
                                           u"btnNew",        u"btnDelete", u"TDBList1"};
    for (const StringView next : order) {
      press(key::Tab);
      EXPECT_EQ(focus(), String(next));
    }
    press(key::Tab, shift::Shift);
    EXPECT_EQ(focus(), u"btnDelete");
  });
}

// ---- taking a key

TEST_F(Vertriebsstati, ADoubleClickTakesTheKeyAndCloses) {
  int reports = 0;
  dialog.DblClick = [&](const Variant&) { ++reports; };
  EXPECT_EQ(show(21, {u"10"},
                 [&] {
                   doubleClick(1);
                   EXPECT_FALSE(form().Visible());
                 }),
            Variant(u"20"));
  EXPECT_EQ(param.at(0), Variant(u"20"));
  EXPECT_EQ(reports, 0);
}

TEST_F(Vertriebsstati, WithMultiselectEachDoubleClickIsReportedAndTheFormStays) {
  heard();
  EXPECT_EQ(show(21, {u"10"},
                 [&] {
                   for (const int row : {1, 1, 2}) doubleClick(row);
                   EXPECT_TRUE(form().Visible());
                 }),
            Variant(u"90"));
  EXPECT_THAT(heard(), ElementsAre(Variant(u"20"), Variant(u"20"), Variant(u"90")));
}

TEST_F(Vertriebsstati, EnterTakesTheKeyWhereTheListGetsIt) {
  EXPECT_EQ(show(21, {u"10"},
                 [&] {
                   select(1);
                   TDBList& list = form().Get<TDBList>(u"TDBList1");
                   int letter = u'a';
                   list.KeyPress.raise(letter);
                   EXPECT_TRUE(form().Visible());
                   int enter = key::Enter;
                   list.KeyPress.raise(enter);
                   EXPECT_FALSE(form().Visible());
                 }),
            Variant(u"20"));
}

TEST_F(Vertriebsstati, FromAnEmptyListNothingIsTaken) {
  execute(u"DELETE FROM Vertriebsstati WHERE Status<>'-'");
  EXPECT_EQ(show(21, {u"10"},
                 [&] {
                   press(key::F9);
                   EXPECT_TRUE(form().Visible());
                   EXPECT_EQ(text(u"Schluessel"), u"10");
                 }),
            Variant(u"10"));
}

TEST_F(Vertriebsstati, ARowWithABlankKeyIsNeitherShownNorTaken) {
  execute(u"INSERT INTO Vertriebsstati VALUES ('  ', 'leer', 0, 0)");
  show(21, {u"10"}, [&] {
    EXPECT_EQ(listRows().front(), u"  |leer");
    doubleClick(0);
    EXPECT_TRUE(form().Visible());
    EXPECT_THAT(fields(), ElementsAre(u"10", u"Interesse geweckt", u"10", u"0"));
  });
}

// ---- two clerks

TEST_F(Vertriebsstati, TheRowIsReadAfreshBeforeItIsWritten) {
  show(21, {u"10"}, [&] {
    somebodyElse(u"UPDATE Vertriebsstati SET Bezeichnung='fremd', Gewichtung=77 WHERE Status='10'");
    click(u"Kurztext");
    type(u"meins");
    click(u"btnOK");
  });
  EXPECT_THAT(rows(u"SELECT Bezeichnung, Gewichtung FROM Vertriebsstati WHERE Status='10'"),
              ElementsAre(u"meins|10"));
}

TEST_F(Vertriebsstati, ARowThatSomebodyDeletedLeavesWhatIsShown) {
  show(21, {u"10"}, [&] {
    somebodyElse(u"DELETE FROM Vertriebsstati WHERE Status='20'");
    press(key::Down);
    EXPECT_EQ(text(u"Schluessel"), u"10") << "the texts of a row that is gone are empty: nothing to load";
    EXPECT_EQ(listRows()[1], u"|");
  });
}

TEST_F(Vertriebsstati, ReadingARowThatFailsInTheListIsShown) {
  expectError(u"TDBList1_RowColChange", error::ProviderFailure);
  show(21, {u"10"}, [&] {
    fail(ado::Operation::Open, u"WHERE Status ='20'", error::ProviderFailure);
    press(key::Down);
    EXPECT_EQ(text(u"Schluessel"), u"20");
    EXPECT_EQ(text(u"Kurztext"), u"Interesse geweckt");
  });
}

// ---- life

TEST_F(Vertriebsstati, ClosingLetsGoOfTheCompanionAndOfTheList) {
  struct Counted final : ZQSendKeys {
    void SendKeys(String&, Variant&) override {}
    void SendKeys2(StringView) override {}
  };
  constexpr StringView name = u"ZQBSendKeys.ZQSendKeys";
  const std::shared_ptr<Object> usual = ObjectFactory::current().CreateObject(name);
  std::weak_ptr<Object> made;
  ObjectFactory::current().offer(name, [&] {
    auto keys = std::make_shared<Counted>();
    made = keys;
    return keys;
  });
  {
    frmVertriebsstati open;
    open.Connection = connection;
    open.SelectedKey = u"10";
    during([&] { open.ShowData(); },
           [&] {
             EXPECT_FALSE(made.expired());
             EXPECT_EQ(connection->openRecordsets(), 1u);
           });
    EXPECT_TRUE(made.expired());
    EXPECT_EQ(connection->openRecordsets(), 0u);
  }
  ObjectFactory::current().offer(name, [usual] { return usual; });
}

TEST_F(Vertriebsstati, OpenedAndClosedTwoHundredTimesLeavesNothingOpen) {
  for (int i = 0; i < 200; ++i) show(21, {u"10"});
  EXPECT_EQ(connection->openRecordsets(), 0u);
}

}  // namespace
}  // namespace zqn::testing
