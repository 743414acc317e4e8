// SPDX-License-Identifier: MIT
//
// An offer gets a name under which it is a template; a failed save is told.
#include "sales/offers/save_offer_template.h"

#include "testing/dialog_test.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

class SaveOfferTemplate : public DialogTest {
 protected:
  SaveOfferTemplate() {
    execute(
        u"CREATE TABLE Angebotskopf (Angebotsnummer INTEGER NOT NULL PRIMARY KEY, Vorlage VARCHAR(50) "
        u"COLLATE "
        u"ZQN_TEXT CHECK (Vorlage<>'Gesperrt'));"
        u"INSERT INTO Angebotskopf VALUES (100, NULL);"
        u"INSERT INTO Angebotskopf VALUES (200, 'Wartung')");
  }
  std::vector<String> offers() {
    return rows(u"SELECT Angebotsnummer, Vorlage FROM Angebotskopf ORDER BY 1");
  }
};

TEST_F(SaveOfferTemplate, ProposesANameAndStoresWhatIsEntered) {
  EXPECT_EQ(show(30, {std::int32_t{100}},
                 [&] {
                   EXPECT_EQ(form().Caption(), u"Angebot als Vorlage speichern");
                   EXPECT_EQ(focus(), u"VorlagenName");
                   EXPECT_EQ(text(u"VorlagenName"), u"Angebot 100");
                   type(u"Grundausstattung");
                   press(key::Enter);
                   EXPECT_FALSE(form().Visible());
                 }),
            Variant(std::int32_t{100}));
  EXPECT_THAT(offers(), ElementsAre(u"100|Grundausstattung", u"200|Wartung"));
}

TEST_F(SaveOfferTemplate, ASecondSaveOverwritesTheName) {
  show(30, {u"200"}, [&] {
    EXPECT_EQ(text(u"VorlagenName"), u"Wartung");
    EXPECT_EQ(get(u"VorlagenName", u"SelLength"), Variant(std::int32_t{7}));
    type(u"Wartung jährlich");
    click(u"btnOK");
  });
  EXPECT_THAT(offers(), ElementsAre(u"100|NULL", u"200|Wartung jährlich"));
}

TEST_F(SaveOfferTemplate, WithoutANumberSaysSoAndShowsNoForm) {
  for (const Variant& number :
       {Variant(std::int32_t{0}), Variant(Null), Variant(u""), Variant(u"abc"), Variant()}) {
    expectBox(u"Keine Angebotsnummer angegeben.", u"Keine Angebotsnummer", msgbox::Exclamation);
    EXPECT_EQ(showsNoForm(30, {number}), number);
    EXPECT_TRUE(statements().empty()) << "nothing is read for a form";
  }
}

TEST_F(SaveOfferTemplate, ANameThatCannotBeReadGivesWayToTheNumber) {
  for (const ado::Operation operation : {ado::Operation::Open, ado::Operation::Field}) {
    fail(operation, u"Angebotskopf", error::ProviderFailure);
    show(30, {std::int32_t{200}}, [&] {
      EXPECT_EQ(text(u"VorlagenName"), u"Angebot 200");
      EXPECT_TRUE(enabled(u"btnOK"));
    });
  }
}

TEST_F(SaveOfferTemplate, ANameOfBlanksIsProposedAnew) {
  execute(u"UPDATE Angebotskopf SET Vorlage='   ' WHERE Angebotsnummer=200");
  show(30, {std::int32_t{200}}, [&] { EXPECT_EQ(text(u"VorlagenName"), u"Angebot 200"); });
}

TEST_F(SaveOfferTemplate, StoresTheNameAsItStands) {
  show(30, {std::int32_t{100}}, [&] {
    EXPECT_EQ(statements().at(0), u"Select Vorlage from Angebotskopf Where Angebotsnummer=100");
    type(u"  Rand ");
    click(u"btnOK");
  });
  EXPECT_EQ(statements().at(0), u"Select Vorlage from Angebotskopf Where Angebotsnummer=100");
  EXPECT_EQ(rows(u"SELECT '[' || Vorlage || ']' FROM Angebotskopf WHERE Angebotsnummer=100"),
            std::vector<String>{u"[  Rand ]"});
}

TEST_F(SaveOfferTemplate, NeedsNoRightToChangeCatalogues) {
  session->SaveSetting(u"ZQNComDlg", u"AdminsOnly", u"1", Missing, zqnSaveAsGlobalSetting);
  show(30, {std::int32_t{100}}, [&] { click(u"btnOK"); });
  EXPECT_THAT(offers(), ElementsAre(u"100|Angebot 100", u"200|Wartung"));
}

TEST_F(SaveOfferTemplate, ABlankNameCannotBeSaved) {
  show(30, {std::int32_t{100}}, [&] {
    type(u"   ");
    EXPECT_FALSE(enabled(u"btnOK"));
    press(key::Enter);
    EXPECT_TRUE(form().Visible());
    type(u"x");
    EXPECT_TRUE(enabled(u"btnOK"));
  });
  EXPECT_THAT(offers(), ElementsAre(u"100|NULL", u"200|Wartung"));
}

TEST_F(SaveOfferTemplate, AnOfferThatIsGoneClosesTheFormWithoutAWord) {
  show(30, {std::int32_t{100}}, [&] {
    somebodyElse(u"DELETE FROM Angebotskopf WHERE Angebotsnummer=100");
    click(u"btnOK");
    EXPECT_FALSE(form().Visible());
  });
  EXPECT_THAT(offers(), ElementsAre(u"200|Wartung"));
}

TEST_F(SaveOfferTemplate, EscAndAbbrechenLeaveTheOfferAlone) {
  show(30, {std::int32_t{100}}, [&] {
    press(key::Escape);
    EXPECT_FALSE(form().Visible());
  });
  show(30, {std::int32_t{100}}, [&] { click(u"btnCancel"); });
  EXPECT_THAT(offers(), ElementsAre(u"100|NULL", u"200|Wartung"));
}

TEST_F(SaveOfferTemplate, AFailedSaveIsToldWithNumberAndWordsAndTheFormStays) {
  const std::pair<ado::Operation, std::int32_t> failures[] = {
      {ado::Operation::Open, error::CommandText},
      {ado::Operation::Field, error::ItemNotFound},
      {ado::Operation::Update, error::ProviderFailure},
      {ado::Operation::Close, error::ProviderFailure}};
  show(30, {std::int32_t{100}}, [&] {
    for (const auto& [operation, number] : failures) {
      fail(operation, u"Angebotskopf", number);
      expectBox(u"Beim Speichern ist folgender Fehler aufgetreten: injected", u"Fehler " + CStr(number),
                msgbox::Exclamation);
      click(u"btnOK");
      EXPECT_TRUE(form().Visible());
      EXPECT_EQ(focus(), u"VorlagenName");
    }
    click(u"btnOK");
    EXPECT_FALSE(form().Visible());
  });
  EXPECT_THAT(offers(), ElementsAre(u"100|Angebot 100", u"200|Wartung"));
}

TEST_F(SaveOfferTemplate, TellsTheWordsOfTheDatabaseItself) {
  show(30, {std::int32_t{100}}, [&] {
    type(u"Gesperrt");
    expectBox(
        u"Beim Speichern ist folgender Fehler aufgetreten: CHECK constraint failed: Vorlage<>'Gesperrt'",
        u"Fehler " + CStr(error::IntegrityViolation), msgbox::Exclamation);
    click(u"btnOK");
  });
}

TEST_F(SaveOfferTemplate, ANumberThatIsNoneIsReadAsFarAsItGoes) {
  show(30, {u"12a"}, [&] {
    EXPECT_EQ(text(u"VorlagenName"), u"Angebot 12a") << "the statement is invalid, and passed over";
    expectBox(
        u"Beim Speichern ist folgender Fehler aufgetreten: Ungültiger Wert in der Anweisung: "
        u"Select Vorlage from Angebotskopf Where Angebotsnummer=12a",
        u"Fehler " + CStr(error::CommandText), msgbox::Exclamation);
    click(u"btnOK");
  });
}

}  // namespace
}  // namespace zqn::testing
