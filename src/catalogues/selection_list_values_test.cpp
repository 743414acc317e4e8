// SPDX-License-Identifier: MIT
//
// Kind 28 as a clerk works with it: the values of one selection field, the empty one among them.
#include "catalogues/selection_list_values.h"

#include "testing/catalogue.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SelectionListValues : public CatalogueTest {
 protected:
  SelectionListValues() {
    execute(
        u"CREATE TABLE SelectionListValues (ReferenceType VARCHAR(50) COLLATE ZQN_TEXT NOT NULL, FieldID "
        u"INTEGER "
        u"NOT NULL, ListValue VARCHAR(255) COLLATE ZQN_TEXT NOT NULL, PRIMARY KEY (ReferenceType, FieldID, "
        u"ListValue));"
        u"INSERT INTO SelectionListValues VALUES ('Artikel', 1, '-');"
        u"INSERT INTO SelectionListValues VALUES ('Artikel', 1, 'Messing');"
        u"INSERT INTO SelectionListValues VALUES ('Artikel', 1, '(rot)');"
        u"INSERT INTO SelectionListValues VALUES ('Artikel', 2, 'Messing');"
        u"INSERT INTO SelectionListValues VALUES ('Kunden', 1, 'Brauerei')");
  }

  Variant showField(StringView key, const std::function<void()>& acts = {}) {
    return show(28, {Variant(key), u"Artikel", std::int32_t{1}, u""}, acts);
  }
  std::vector<String> stored() {
    return rows(u"SELECT ListValue FROM SelectionListValues WHERE ReferenceType='Artikel' AND FieldID=1");
  }
};

// ---- opening

TEST_F(SelectionListValues, ShowsTheValuesOfTheFieldTheEmptyOneAsAnEmptyLine) {
  showField(u"Messing", [&] {
    EXPECT_THAT(listRows(), ElementsAre(u"(rot)|(rot)", u"-|", u"Messing|Messing"))
        << "sorted by what is stored";
    EXPECT_EQ(get(u"TDBList1", u"Columns(0).Visible"), Variant(false));
    EXPECT_EQ(get(u"TDBList1", u"Columns(1).Caption"), Variant(u"Wert"));
    EXPECT_EQ(text(u"Schluessel"), u"Messing");
    EXPECT_EQ(number(u"TDBList1", u"Row"), 2);
  });
}

TEST_F(SelectionListValues, TheCaptionIsTheCallersUnlessItIsBlank) {
  const std::vector<std::pair<Variant, String>> cases = {
      {u"Werkstoffe", u"Werkstoffe"}, {u" Werk ", u" Werk "}, {u"  ", u"Wertliste"},
      {Variant(), u"Wertliste"},      {Null, u"Wertliste"},   {std::int32_t{7}, u"7"}};
  for (const auto& each : cases)
    show(28, {u"", u"Artikel", u"1", each.first}, [&] { EXPECT_EQ(form().Caption(), each.second); });
}

TEST_F(SelectionListValues, AnEmptyKeyMarksTheEmptyValueAndItsButtonsAreReady) {
  showField(u"", [&] {
    EXPECT_EQ(number(u"TDBList1", u"Row"), 1);
    EXPECT_EQ(text(u"Schluessel"), u"");
    EXPECT_TRUE(enabled(u"btnOK"));
    EXPECT_TRUE(enabled(u"btnDelete"));
  });
}

TEST_F(SelectionListValues, TheStoredFormOfTheEmptyValueIsShownAsEmpty) {
  showField(u"-", [&] {
    EXPECT_EQ(text(u"Schluessel"), u"");
    EXPECT_EQ(number(u"TDBList1", u"Row"), 1);
  });
}

TEST_F(SelectionListValues, AFieldNumberMayBeATextWithBlanks) {
  show(28, {u"", u"Artikel", u" 1 ", u""}, [&] { EXPECT_EQ(listRows().size(), 3u); });
}

TEST_F(SelectionListValues, AFieldNumberThatIsNoneLeavesTheListEmptyAndNothingIsWritten) {
  for (const Variant& field : {Variant(u"eins"), Variant(u"1 OR 1"), Variant(), Variant(Null)}) {
    show(28, {u"", u"Artikel", field, u""}, [&] {
      EXPECT_THAT(listRows(), IsEmpty());
      enter(u"neu");
      click(u"btnOK");
      EXPECT_THAT(listRows(), IsEmpty());
    });
  }
  EXPECT_EQ(rows(u"SELECT * FROM SelectionListValues").size(), 5u);
}

// ---- elements of Param

TEST_F(SelectionListValues, AllFourElementsComeBack) {
  const VariantArray handedIn{u"Messing", u"Artikel", std::int32_t{1}, u"Werkstoff"};
  EXPECT_EQ(show(28, handedIn, [&] { doubleClick(0); }), Variant(u"(rot)"));
  EXPECT_THAT(param.elements(), ElementsAre(Variant(u"(rot)"), Variant(u"Artikel"), Variant(std::int32_t{1}),
                                            Variant(u"Werkstoff")));
}

TEST_F(SelectionListValues, MissingElementsLeaveTheirMembersEmptyAndOnlyTheOthersComeBack) {
  EXPECT_EQ(show(28, {u"Messing", u"Artikel"},
                 [&] {
                   EXPECT_EQ(form().Caption(), u"Wertliste");
                   EXPECT_THAT(listRows(), IsEmpty());
                   EXPECT_EQ(text(u"Schluessel"), u"Messing");
                 }),
            Variant(u"Messing"));
  EXPECT_EQ(param.size(), 2u);
  EXPECT_TRUE(show(28, {}).isEmpty());
  EXPECT_EQ(param.size(), 0u);
}

// ---- saving

TEST_F(SelectionListValues, SavingAnEmptyKeyStoresTheEmptyValueOnce) {
  execute(u"DELETE FROM SelectionListValues WHERE ListValue='-'");
  showField(u"Messing", [&] {
    click(u"btnNew");
    click(u"btnOK");
    EXPECT_THAT(listRows(), ElementsAre(u"(rot)|(rot)", u"-|", u"Messing|Messing"));
    EXPECT_EQ(number(u"TDBList1", u"Row"), 1);
    EXPECT_EQ(get(u"TDBList1", u"Columns(0).Visible"), Variant(false))
        << "hidden also after the list was bound anew";
    EXPECT_EQ(text(u"Schluessel"), u"");
    click(u"btnNew");
    click(u"btnOK");
  });
  EXPECT_EQ(stored().size(), 3u);
}

TEST_F(SelectionListValues, ValuesAreStoredAsTypedAndBlanksAloneAreTheEmptyValue) {
  showField(u"", [&] {
    for (const StringView typed : {u"0", u" a b ", u"   "}) {
      enter(typed);
      click(u"btnOK");
    }
  });
  EXPECT_THAT(stored(), ::testing::UnorderedElementsAre(u"-", u"(rot)", u"Messing", u"0", u" a b "));
}

TEST_F(SelectionListValues, ALongValueIsStoredWhole) {
  const String longest(255, u'x');
  showField(u"", [&] {
    enter(longest + u"y");
    click(u"btnOK");
  });
  EXPECT_THAT(stored(), ::testing::Contains(longest));
}

TEST_F(SelectionListValues, FieldsHaveListsOfTheirOwn) {
  show(28, {u"", u"Artikel", std::int32_t{2}, u""}, [&] {
    EXPECT_THAT(listRows(), ElementsAre(u"Messing|Messing"));
    enter(u"Bronze");
    click(u"btnOK");
    deleteRow();
  });
  show(28, {u"Messing", u"Artikel", std::int32_t{2}, u""}, [&] { deleteRow(); });
  EXPECT_THAT(stored(), ::testing::UnorderedElementsAre(u"-", u"(rot)", u"Messing"));
  EXPECT_THAT(rows(u"SELECT * FROM SelectionListValues WHERE FieldID=2"), IsEmpty());
}

TEST_F(SelectionListValues, NobodyIsAskedForRights) {
  forbidChanges();
  showField(u"Messing", [&] {
    enter(u"Stahl");
    press(key::F9);
    EXPECT_THAT(stored(), ::testing::Contains(String(u"Stahl")));
    deleteRow();
  });
  EXPECT_THAT(stored(), ::testing::Not(::testing::Contains(String(u"Stahl"))));
}

TEST_F(SelectionListValues, DeletesTheEmptyValueByItsButton) {
  showField(u"", [&] {
    deleteRow();
    EXPECT_THAT(listRows(), ElementsAre(u"(rot)|(rot)", u"Messing|Messing"));
    EXPECT_EQ(text(u"Schluessel"), u"(rot)");
    EXPECT_EQ(focus(), u"TDBList1");
  });
}

TEST_F(SelectionListValues, DeletingAsksFirst) {
  expectDeleteQuestion(MsgBoxResult::No);
  showField(u"Messing", [&] { click(u"btnDelete"); });
  EXPECT_EQ(stored().size(), 3u);
}

// ---- picking

TEST_F(SelectionListValues, ADoubleClickOnTheEmptyLineReturnsAnEmptyText) {
  EXPECT_EQ(showField(u"Messing",
                      [&] {
                        doubleClick(1);
                        EXPECT_FALSE(form().Visible());
                      }),
            Variant(u""));
  EXPECT_EQ(param.at(0), Variant(u""));
}

TEST_F(SelectionListValues, BrowsingShowsTheEmptyValueAsEmptyText) {
  showField(u"(rot)", [&] {
    press(key::Down);
    EXPECT_EQ(text(u"Schluessel"), u"");
    press(key::Down);
    EXPECT_EQ(text(u"Schluessel"), u"Messing");
  });
}

TEST_F(SelectionListValues, NobodyHearsOfPicks) {
  heard();
  EXPECT_EQ(showField(u"", [&] { doubleClick(2); }), Variant(u"Messing"));
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(SelectionListValues, HandsTheseStatementsToTheDatabase) {
  const StringView of = u"FROM SelectionListValues Where ReferenceType='Artikel' AND FieldID=1";
  showField(u"Messing", [&] {
    EXPECT_THAT(
        statements(),
        ElementsAre(u"SELECT ListValue, Case When ListValue='-' Then null Else ListValue End As Wert " +
                        String(of) + u" ORDER BY ListValue",
                    u"SELECT ListValue " + String(of) + u" AND Listvalue='Messing'",
                    u"SELECT ListValue " + String(of) + u" AND Listvalue='Messing'"));
    click(u"btnNew");
    click(u"btnOK");
    EXPECT_THAT(statements(), ElementsAre(u"SELECT ListValue " + String(of) + u" AND Listvalue=''",
                                          u"SELECT * " + String(of) + u" AND Listvalue='-'",
                                          u"SELECT ListValue " + String(of) + u" AND Listvalue=''"));
    deleteRow();
    EXPECT_EQ(statements().front(), u"DELETE " + String(of) + u" AND Listvalue='-'");
  });
}

// ---- failures

TEST_F(SelectionListValues, SavingPassesOverFailures) {
  for (const ado::Operation failing : {ado::Operation::Requery, ado::Operation::Find}) {
    showField(u"Messing", [&] {
      fail(failing, u"ORDER BY ListValue", error::ProviderFailure);
      click(u"btnOK");
      EXPECT_EQ(focus(), u"TDBList1") << "the last statement ran";
    });
  }
}

TEST_F(SelectionListValues, OpeningPassesOverFailures) {
  fail(ado::Operation::Open, u"SelectionListValues", error::ProviderFailure, 2);
  showField(u"Messing", [&] {
    EXPECT_THAT(listRows(), IsEmpty());
    EXPECT_EQ(text(u"Schluessel"), u"Messing");
    EXPECT_TRUE(enabled(u"btnOK"));
  });
}

TEST_F(SelectionListValues, WhatIsNoTextIsPassedOverAndTheFormComesUpAllTheSame) {
  const Variant noText{std::shared_ptr<Object>()};
  show(28, {noText, u"Artikel", std::int32_t{1}, noText}, [&] {
    EXPECT_EQ(form().Caption(), u"Wertliste");
    EXPECT_EQ(text(u"Schluessel"), u"");
    EXPECT_EQ(listRows().size(), 3u);
    EXPECT_TRUE(enabled(u"btnOK"));
  });
}

TEST_F(SelectionListValues, AFailedDeleteIsShown) {
  expectDeleteQuestion(MsgBoxResult::Yes);
  expectError(u"btnDelete_Click", error::IntegrityViolation);
  fail(ado::Operation::Execute, u"DELETE", error::IntegrityViolation);
  showField(u"Messing", [&] { click(u"btnDelete"); });
}

}  // namespace
}  // namespace zqn::testing
