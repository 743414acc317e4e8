// SPDX-License-Identifier: MIT
//
// Kind 21 as a clerk works with it, and with it the pattern of all catalogue forms.
#include "catalogues/vertriebsstati.h"

#include "forms/tdb_list.h"
#include "testing/vertriebsstati.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// ---- opening

TEST_F(Vertriebsstati, OpensOnTheKeyThatWasHandedIn) {
  show(21, {u"20"}, [&] {
    EXPECT_EQ(form().Caption(), u"Vertriebsstati");
    EXPECT_THAT(listRows(), ElementsAre(u"10|Interesse geweckt", u"20|Angebot abgegeben", u"90|"));
    EXPECT_EQ(get(u"TDBList1", u"Row"), Variant(std::int32_t{1}));
    EXPECT_THAT(fields(), ElementsAre(u"20", u"Angebot abgegeben", u"40", u"1"));
    EXPECT_EQ(focus(), u"TDBList1");
    EXPECT_TRUE(enabled(u"btnOK"));
    EXPECT_TRUE(enabled(u"btnDelete"));
  });
}

TEST_F(Vertriebsstati, AnEmptyKeyShowsClearedFieldsAndNothingToSave) {
  show(21, {u""}, [&] {
    EXPECT_THAT(fields(), ElementsAre(u"", u"", u"0", u"0"));
    EXPECT_FALSE(enabled(u"btnOK"));
    EXPECT_FALSE(enabled(u"btnDelete"));
    EXPECT_TRUE(enabled(u"btnNew"));
    EXPECT_TRUE(enabled(u"btnCancel"));
    EXPECT_EQ(get(u"TDBList1", u"Row"), Variant(std::int32_t{0}));
  });
}

TEST_F(Vertriebsstati, AnUnknownKeyShowsClearedFieldsUnderThatKey) {
  show(21, {u"77"}, [&] {
    EXPECT_THAT(fields(), ElementsAre(u"77", u"", u"0", u"0"));
    EXPECT_TRUE(enabled(u"btnOK"));
  });
}

TEST_F(Vertriebsstati, NullInARowReadsAsEmptyAndZero) {
  show(21, {u"90"}, [&] { EXPECT_THAT(fields(), ElementsAre(u"90", u"", u"0", u"0")); });
}

TEST_F(Vertriebsstati, TheListIsReadByItsKeysAndCannotBeWrittenThrough) {
  show(21, {u"20"}, [&] {
    const ado::Recordset& list = *form().Get<TDBList>(u"TDBList1").DataSource();
    EXPECT_EQ(list.CursorLocation(), ado::adUseServer);
    EXPECT_EQ(list.CursorType(), ado::adOpenKeyset);
    EXPECT_EQ(list.LockType(), ado::adLockReadOnly);
  });
}

TEST_F(Vertriebsstati, StoredProgressIsCorrectedAsIfItWereTyped) {
  execute(
      u"INSERT INTO Vertriebsstati VALUES ('91', 'zu viel', 0, 150);"
      u"INSERT INTO Vertriebsstati VALUES ('92', 'gebrochen', 1, -12.5)");
  show(21, {u"91"}, [&] {
    EXPECT_EQ(text(u"Gewichtung"), u"100");
    press(key::Down);
    EXPECT_EQ(text(u"Gewichtung"), u"12") << "read up to its comma";
  });
}

TEST_F(Vertriebsstati, TheKeyIsShownAsItIsStored) {
  execute(
      u"INSERT INTO Vertriebsstati VALUES ('Abc', 'klein und groß', 0, 5);"
      u"INSERT INTO Vertriebsstati VALUES ('x', 'zuletzt', 0, 5)");
  show(21, {u"x"}, [&] {
    enter(u"aBC");
    EXPECT_THAT(fields(), ElementsAre(u"Abc", u"klein und groß", u"5", u"0"));
  });
}

TEST_F(Vertriebsstati, NullOpensOnTheEmptyKeyAndComesBack) {
  EXPECT_EQ(show(21, {Null}, [&] { EXPECT_THAT(fields(), ElementsAre(u"", u"", u"0", u"0")); }),
            Variant(Null));
  EXPECT_EQ(param.at(0), Variant(Null));
}

TEST_F(Vertriebsstati, AKeyThatIsNoTextShowsNoForm) {
  const std::shared_ptr<Object> noText;
  EXPECT_EQ(showsNoForm(21, {Variant(noText)}), Variant(noText));
}

TEST_F(Vertriebsstati, AKeyLongerThanTheFieldIsCut) {
  show(21, {u"2000"}, [&] { EXPECT_EQ(text(u"Schluessel"), u"200"); });
}

TEST_F(Vertriebsstati, TheReservedRowIsNotListedYetItsKeyOpensAndDeletesIt) {
  show(21, {u""}, [&] {
    enter(u"-");
    EXPECT_THAT(fields(), ElementsAre(u"-", u"reserviert", u"0", u"0"));
    expectDeleteQuestion(MsgBoxResult::Yes);
    click(u"btnDelete");
  });
  EXPECT_THAT(rows(u"SELECT Status FROM Vertriebsstati WHERE Status='-'"), IsEmpty());
}

// ---- browsing

TEST_F(Vertriebsstati, ArrowKeysLoadRowAfterRow) {
  show(21, {u"10"}, [&] {
    press(key::Down);
    EXPECT_THAT(fields(), ElementsAre(u"20", u"Angebot abgegeben", u"40", u"1"));
    press(key::End);
    EXPECT_EQ(text(u"Schluessel"), u"90");
    press(key::Home);
    EXPECT_EQ(text(u"Schluessel"), u"10");
  });
}

TEST_F(Vertriebsstati, TypingOnTheListFindsTheRowOfTheKey) {
  show(21, {u"10"}, [&] {
    type(u"9");
    EXPECT_EQ(text(u"Schluessel"), u"90");
    type(u"2");
    EXPECT_EQ(text(u"Schluessel"), u"20");
  });
}

TEST_F(Vertriebsstati, TheFirstRowLoadsWithOneClickWhenTheDialogOpenedWithoutAKey) {
  show(21, {u""}, [&] {
    EXPECT_FALSE(enabled(u"btnDelete"));
    select(0);
    EXPECT_EQ(text(u"Schluessel"), u"10");
    EXPECT_TRUE(enabled(u"btnOK"));
    EXPECT_TRUE(enabled(u"btnDelete"));
  });
}

TEST_F(Vertriebsstati, AClickOnTheMarkedRowLeavesWhatIsBeingTyped) {
  show(21, {u"10"}, [&] {
    click(u"Kurztext");
    type(u"getippt");
    select(0);
    EXPECT_EQ(text(u"Kurztext"), u"getippt");
    select(1);
    EXPECT_EQ(text(u"Kurztext"), u"Angebot abgegeben");
  });
}

TEST_F(Vertriebsstati, ClosingAfterBrowsingReturnsTheKeyThatCameIn) {
  EXPECT_EQ(show(21, {u"10"},
                 [&] {
                   press(key::Down);
                   click(u"btnCancel");
                   EXPECT_FALSE(form().Visible());
                 }),
            Variant(u"10"));
}

TEST_F(Vertriebsstati, BrowsingCostsOneQueryForEachRow) {
  show(21, {u"10"}, [&] {
    operations.clear();
    press(key::Down);
    EXPECT_EQ(std::ranges::count(operations, ado::Operation::Open, &std::pair<ado::Operation, String>::first),
              1);
  });
}

// ---- the key field

TEST_F(Vertriebsstati, TypingAKnownKeyLoadsItsRowAndSavingUpdatesIt) {
  show(21, {u"10"}, [&] {
    enter(u"20");
    EXPECT_THAT(fields(), ElementsAre(u"20", u"Angebot abgegeben", u"40", u"1"));
    EXPECT_EQ(get(u"TDBList1", u"Row"), Variant(std::int32_t{1}));
    EXPECT_EQ(focus(), u"Kurztext");
    type(u"verhandelt");
    click(u"btnOK");
    EXPECT_THAT(listRows(), ElementsAre(u"10|Interesse geweckt", u"20|verhandelt", u"90|"));
  });
  EXPECT_THAT(rows(u"SELECT * FROM Vertriebsstati WHERE Status='20'"), ElementsAre(u"20|verhandelt|1|40"));
}

TEST_F(Vertriebsstati, AKeyAboveTheCurrentRowIsShownThoughTheListStays) {
  show(21, {u"20"}, [&] {
    enter(u"10");
    EXPECT_THAT(fields(), ElementsAre(u"10", u"Interesse geweckt", u"10", u"0"));
    EXPECT_EQ(get(u"TDBList1", u"Row"), Variant(std::int32_t{1}));
    enter(u"90");
    EXPECT_EQ(get(u"TDBList1", u"Row"), Variant(std::int32_t{1}))
        << "after a search without success the list stays";
    EXPECT_EQ(text(u"Schluessel"), u"90");
  });
}

TEST_F(Vertriebsstati, LeavingAnUnknownKeyClearsTheFieldsAndSavingInsertsIt) {
  show(21, {u"20"}, [&] {
    enter(u"55");
    EXPECT_THAT(fields(), ElementsAre(u"55", u"", u"0", u"0"));
    type(u"Probe");
    click(u"btnOK");
    EXPECT_THAT(listRows(),
                ElementsAre(u"10|Interesse geweckt", u"20|Angebot abgegeben", u"55|Probe", u"90|"));
    EXPECT_EQ(get(u"TDBList1", u"Row"), Variant(std::int32_t{2}));
    EXPECT_EQ(focus(), u"TDBList1");
  });
  EXPECT_THAT(rows(u"SELECT * FROM Vertriebsstati WHERE Status='55'"), ElementsAre(u"55|Probe|0|0"));
}

TEST_F(Vertriebsstati, AKeyOfBlanksCannotBeSavedOrDeleted) {
  show(21, {u"10"}, [&] {
    enter(u"  ");
    EXPECT_FALSE(enabled(u"btnOK"));
    EXPECT_FALSE(enabled(u"btnDelete"));
    press(key::F9);
  });
  EXPECT_EQ(rows(u"SELECT * FROM Vertriebsstati").size(), 4u);
}

TEST_F(Vertriebsstati, EachFieldIsSelectedWholeWhenItGetsTheFocus) {
  show(21, {u"20"}, [&] {
    for (const StringView field : {u"Schluessel", u"Kurztext", u"Gewichtung"}) {
      click(field);
      press(key::End);
      press(key::Tab);
      press(key::Tab, shift::Shift);
      EXPECT_EQ(focus(), String(field));
      EXPECT_EQ(number(field, u"SelStart"), 0);
      EXPECT_EQ(number(field, u"SelLength"), static_cast<int>(text(field).size()));
    }
    type(u"7");
    EXPECT_EQ(text(u"Gewichtung"), u"7") << "typing replaces it";
  });
}

// ---- saving

TEST_F(Vertriebsstati, SavingAKnownKeyOverwritesItsRowWithoutAsking) {
  show(21, {u"10"}, [&] {
    click(u"Kurztext");
    type(u"  Neuer Text ");
    click(u"Gewichtung");
    type(u"15");
    click(u"AutoOverwrite");
    click(u"btnOK");
    EXPECT_THAT(fields(), ElementsAre(u"10", u"Neuer Text", u"15", u"1"));
  });
  EXPECT_THAT(rows(u"SELECT * FROM Vertriebsstati WHERE Status='10'"), ElementsAre(u"10|Neuer Text|1|15"));
}

TEST_F(Vertriebsstati, TheKeyIsStoredAsTypedAndAnEmptyNameAsNull) {
  show(21, {u""}, [&] {
    enter(u"a ");
    type(u"   ");
    click(u"btnOK");
  });
  EXPECT_THAT(rows(u"SELECT Status, Bezeichnung FROM Vertriebsstati WHERE Status='a'"),
              ElementsAre(u"a |NULL"));
}

TEST_F(Vertriebsstati, SavingAReservedKeyShowsTheErrorAndKeepsTheRow) {
  expectError(u"btnOK_Click", error::NoCurrentRecord);
  show(21, {u""}, [&] {
    enter(u"-");
    type(u"geändert");
    click(u"btnOK");
    EXPECT_TRUE(form().Visible());
  });
  EXPECT_THAT(rows(u"SELECT Bezeichnung FROM Vertriebsstati WHERE Status='-'"), ElementsAre(u"geändert"));
}

TEST_F(Vertriebsstati, SavingDoesNotTakeTheKey) {
  EXPECT_EQ(show(21, {u"20"},
                 [&] {
                   enter(u"55");
                   click(u"btnOK");
                 }),
            Variant(u"20"));
}

TEST_F(Vertriebsstati, AFirstRowThatIsNotStoredLeavesNothingToSearch) {
  execute(u"DELETE FROM Vertriebsstati");
  fail(ado::Operation::Update, u"Vertriebsstati", error::IntegrityViolation);
  expectError(u"btnOK_Click", error::NoCurrentRecord);
  show(21, {u""}, [&] {
    enter(u"10");
    operations.clear();
    click(u"btnOK");
    EXPECT_EQ(operations.back().first, ado::Operation::Requery);
  });
}

TEST_F(Vertriebsstati, WithoutTheRightSavingOnlySaysSo) {
  forbidChanges();
  expectBox(noRightToSave, u"TALVEX Software", msgbox::Information);
  show(21, {u"10"}, [&] {
    click(u"Kurztext");
    type(u"heimlich");
    press(key::F9);
  });
  EXPECT_THAT(rows(u"SELECT Bezeichnung FROM Vertriebsstati WHERE Status='10'"),
              ElementsAre(u"Interesse geweckt"));
}

TEST_F(Vertriebsstati, AnEmptyKeyIsNotSavedAndTheMissingRightNotMentioned) {
  forbidChanges();
  show(21, {u""}, [&] {
    press(key::Tab);
    press(key::F9);
  });
}

TEST_F(Vertriebsstati, AKeyWithAnApostropheIsNeverStored) {
  expectError(u"btnOK_Click", error::InvalidArgument);
  show(21, {u"10"}, [&] {
    click(u"Schluessel");
    type(u"a'b");
    press(key::Tab);
    EXPECT_EQ(text(u"Schluessel"), u"a'b");
    EXPECT_EQ(text(u"Gewichtung"), u"10") << "a record that cannot be read leaves the fields";
    click(u"btnOK");
  });
  EXPECT_EQ(rows(u"SELECT * FROM Vertriebsstati").size(), 4u);
}

// ---- progress

TEST_F(Vertriebsstati, ProgressIsQuietlyMadeAWholeNumberUpToHundred) {
  const std::vector<std::pair<String, String>> typedAndShown = {
      {u"150", u"100"}, {u"100", u"100"}, {u"101", u"100"},  {u"-7", u"7"}, {u"-2.5", u"3"},
      {u"1,5", u"1"},   {u"55%", u"55"},  {u"abc", u"0"},    {u" ", u"0"},  {u"&H10", u"16"},
      {u"1e3", u"100"}, {u"-5", u"5"},    {u"1e999", u"100"}};
  show(21, {u"10"}, [&] {
    for (const auto& [typed, shown] : typedAndShown) {
      click(u"Gewichtung");
      type(typed);
      press(key::Tab);
      EXPECT_EQ(text(u"Gewichtung"), shown) << toUtf8(typed);
    }
  });
}

TEST_F(Vertriebsstati, ProgressIsCorrectedOnSavingEvenWhenTheFieldStillHasTheFocus) {
  show(21, {u"10"}, [&] {
    click(u"Gewichtung");
    type(u"150");
    press(key::F9);
  });
  EXPECT_THAT(rows(u"SELECT Gewichtung FROM Vertriebsstati WHERE Status='10'"), ElementsAre(u"100"));
}

// ---- deleting

TEST_F(Vertriebsstati, DeletingAsksAndThenShowsTheFirstRow) {
  show(21, {u"20"}, [&] {
    expectDeleteQuestion(MsgBoxResult::No);
    click(u"btnDelete");
    EXPECT_EQ(listRows().size(), 3u);
    expectDeleteQuestion(MsgBoxResult::Yes);
    click(u"btnDelete");
    EXPECT_THAT(listRows(), ElementsAre(u"10|Interesse geweckt", u"90|"));
    EXPECT_THAT(fields(), ElementsAre(u"10", u"Interesse geweckt", u"10", u"0"));
    EXPECT_EQ(focus(), u"TDBList1");
  });
  EXPECT_THAT(rows(u"SELECT Status FROM Vertriebsstati WHERE Status='20'"), IsEmpty());
}

TEST_F(Vertriebsstati, DeletingTheLastRowEmptiesTheFormAndGoesToTheKey) {
  execute(u"DELETE FROM Vertriebsstati WHERE Status<>'10'");
  show(21, {u"10"}, [&] {
    expectDeleteQuestion(MsgBoxResult::Yes);
    click(u"btnDelete");
    EXPECT_THAT(listRows(), IsEmpty());
    EXPECT_THAT(fields(), ElementsAre(u"", u"", u"0", u"0"));
    EXPECT_EQ(focus(), u"Schluessel");
    EXPECT_TRUE(enabled(u"btnOK")) << "no step renews the buttons here";
  });
}

TEST_F(Vertriebsstati, WithoutTheRightDeletingOnlySaysSo) {
  forbidChanges();
  expectBox(noRightToDelete, u"TALVEX Software", msgbox::Information);
  show(21, {u"10"}, [&] { click(u"btnDelete"); });
  EXPECT_EQ(rows(u"SELECT * FROM Vertriebsstati").size(), 4u);
}

TEST_F(Vertriebsstati, ARefusedDeleteIsShownAndTheFormStays) {
  expectDeleteQuestion(MsgBoxResult::Yes);
  expectError(u"btnDelete_Click", error::IntegrityViolation);
  fail(ado::Operation::Execute, u"Delete FROM Vertriebsstati", error::IntegrityViolation);
  show(21, {u"10"}, [&] {
    click(u"btnDelete");
    EXPECT_TRUE(form().Visible());
    EXPECT_EQ(listRows().size(), 3u);
  });
}

}  // namespace
}  // namespace zqn::testing
