// SPDX-License-Identifier: MIT
//
// A new offer: from nothing, from a template, as a copy; and the list of templates.
#include "sales/offers/offer_templates.h"

#include "desktop/headless/grid_mouse.h"
#include "testing/auskunft.h"
#include "testing/dialog_test.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

class OfferTemplates : public DialogTest {
 protected:
  OfferTemplates() {
    execute(
        u"CREATE TABLE Angebotskopf (Angebotsnummer INTEGER NOT NULL PRIMARY KEY, Vorlage VARCHAR(50) "
        u"COLLATE "
        u"ZQN_TEXT);"
        u"INSERT INTO Angebotskopf VALUES (100, NULL);"
        u"INSERT INTO Angebotskopf VALUES (200, 'Wartung');"
        u"INSERT INTO Angebotskopf VALUES (300, '');"
        u"INSERT INTO Angebotskopf VALUES (400, '   ');"
        u"INSERT INTO Angebotskopf VALUES (500, 'Baustelle')");
  }
  MSFlexGrid& grid() const { return form().Get<MSFlexGrid>(u"MSFlexGrid1"); }
  std::vector<String> templates() const {
    std::vector<String> texts;
    for (int row = 0; row < grid().Rows(); ++row) texts.push_back(grid().TextMatrix(row, 0));
    return texts;
  }
  /// A press and release on a row of the list; -1 is below the rows.
  void clickRow(int row, int button = 1) {
    if (!form().mousePressed(grid())) return;
    grid().userPressed({row, row < 0 ? -1 : 0}, button, 0);
    grid().userReleased({row, row < 0 ? -1 : 0}, button, 0);
  }
  void doubleClickRow(int row) {
    clickRow(row);
    if (form().mousePressed(grid()))
      grid().userPressed({row, row < 0 ? -1 : 0}, 1, 0, Press::SecondOfDoubleClick);
  }
  bool option(int index) const { return form().Get<OptionButton>(u"optAuswahl", index).Value(); }
  bool optionEnabled(int index) const { return form().Get<OptionButton>(u"optAuswahl", index).Enabled(); }
  void expectQuestion(StringView name, StringView number, MsgBoxResult answer) {
    expectBox(u"Möchten Sie die Vorlage '" + String(name) + u"' (Angebot " + String(number) +
                  u") aus der Liste der Vorlagen entfernen?",
              u"Aus Vorlagen entfernen?", msgbox::YesNo | msgbox::Question | msgbox::DefaultButton2, answer);
  }
  std::vector<String> named() {
    return rows(u"SELECT Angebotsnummer, Vorlage FROM Angebotskopf WHERE Vorlage>'' ORDER BY 1");
  }
};

// ---- the list

TEST_F(OfferTemplates, AreListedByNameAndABlankOneByItsNumber) {
  show(29, {u"egal"}, [&] {
    EXPECT_EQ(form().Caption(), u"Angebot erstellen");
    EXPECT_THAT(templates(), ElementsAre(u"Angebot 400", u"Baustelle", u"Wartung"));
    EXPECT_EQ(grid().Row(), 0);
    EXPECT_TRUE(grid().Visible());
    EXPECT_TRUE(option(0));
    EXPECT_TRUE(optionEnabled(1));
    EXPECT_FALSE(enabled(u"btnDelete"));
    EXPECT_EQ(focus(), u"optAuswahl(0)");
  });
}

TEST_F(OfferTemplates, WithoutAnyOnlyTheOtherWaysAreOpen) {
  execute(u"UPDATE Angebotskopf SET Vorlage=NULL");
  EXPECT_EQ(show(29, {u"7"},
                 [&] {
                   EXPECT_THAT(templates(), ElementsAre());
                   EXPECT_FALSE(optionEnabled(1));
                   EXPECT_FALSE(enabled(u"btnDelete"));
                   press(key::Escape);
                   EXPECT_TRUE(form().Visible());
                   click(u"btnCancel");
                   EXPECT_FALSE(form().Visible());
                 }),
            Variant(Null));
  EXPECT_EQ(param.at(0), Variant(Null));
}

TEST_F(OfferTemplates, AFailedQueryGivesAnEmptyList) {
  fail(ado::Operation::Open, u"Order by Vorlage", error::ProviderFailure);
  show(29, {u""}, [&] {
    EXPECT_THAT(templates(), ElementsAre());
    EXPECT_FALSE(optionEnabled(1));
    EXPECT_TRUE(grid().Visible());
  });
}

TEST_F(OfferTemplates, ARowWithoutAReadableNumberEndsTheListAndCannotBeChosen) {
  // Beyond 32 bits no offer has a number.
  execute(
      u"UPDATE Angebotskopf SET Angebotsnummer=99999999999 WHERE Angebotsnummer=500;"
      u"INSERT INTO Angebotskopf VALUES (600, 'Zuletzt')");
  EXPECT_EQ(show(29, {u""},
                 [&] {
                   EXPECT_THAT(templates(), ElementsAre(u"Angebot 400", u"Baustelle"));
                   EXPECT_TRUE(optionEnabled(1));
                   clickRow(1);
                   click(u"btnDelete");
                   EXPECT_EQ(templates().size(), 2u) << "no question is asked";
                   expectBox(u"Sie müssen eine Vorlage ausgewählen!", u"Vorlage", msgbox::Exclamation);
                   click(u"btnOK");
                   EXPECT_EQ(focus(), u"MSFlexGrid1");
                   EXPECT_TRUE(form().Visible());
                 }),
            Variant(Null));
}

TEST_F(OfferTemplates, ARowWithoutAReadableNameEndsTheListAndCanBeChosen) {
  show(29, {u""}, [] {});
  // Three fields of the first row, whose name is blank; then number and name of the second one.
  std::size_t position = 0;
  for (int fields = 0; fields < 5; ++position)
    fields += operations.at(position).first == ado::Operation::Field;
  operations.clear();
  failAt(position);
  EXPECT_EQ(show(29, {u""},
                 [&] {
                   EXPECT_THAT(templates(), ElementsAre(u"Angebot 400", u""));
                   clickRow(1);
                   click(u"btnOK");
                 }),
            Variant(std::int32_t{500}));
}

TEST_F(OfferTemplates, TheOneColumnIsAsWideAsTheListAndStandsToTheLeft) {
  show(29, {u""}, [&] {
    EXPECT_EQ(grid().Cols(), 1);
    EXPECT_EQ(grid().ColWidth(0), grid().Width());
    for (int row = 0; row < 3; ++row) {
      grid().Row(row);
      EXPECT_EQ(grid().CellAlignment(), 1);
    }
  });
}

TEST_F(OfferTemplates, AreReadByOneStatement) {
  show(29, {u""}, [&] {
    EXPECT_THAT(
        statements(),
        ElementsAre(u"Select Angebotsnummer, Vorlage From Angebotskopf Where Vorlage>'' Order by Vorlage"));
    form().control(u"Angebotsnummer").SetFocus();
    type(u"100");
    click(u"btnOK");
    EXPECT_THAT(statements(),
                ElementsAre(u"Select Angebotsnummer from Angebotskopf Where Angebotsnummer=100"));
  });
  show(29, {u""}, [&] {
    clickRow(1);
    statements();
    expectQuestion(u"Baustelle", u"500", MsgBoxResult::Yes);
    click(u"btnDelete");
    EXPECT_THAT(
        statements(),
        ElementsAre(u"Select Vorlage from Angebotskopf Where Angebotsnummer=500",
                    u"Select Angebotsnummer, Vorlage From Angebotskopf Where Vorlage>'' Order by Vorlage"));
  });
}

// ---- the three ways

TEST_F(OfferTemplates, OkWithoutAChoiceMakesANewOffer) {
  EXPECT_EQ(show(29, {u""}, [&] { press(key::Enter); }), Variant(std::int32_t{-1}));
}

TEST_F(OfferTemplates, ADoubleClickTakesTheTemplate) {
  EXPECT_EQ(show(29, {u""},
                 [&] {
                   doubleClickRow(2);
                   EXPECT_FALSE(form().Visible());
                 }),
            Variant(std::int32_t{200}));
}

TEST_F(OfferTemplates, ADoubleClickBelowTheRowsDoesNothing) {
  show(29, {u""}, [&] {
    doubleClickRow(-1);
    EXPECT_TRUE(form().Visible());
  });
}

TEST_F(OfferTemplates, AClickChoosesTemplatesAndTheListIsATabStop) {
  EXPECT_EQ(show(29, {u""},
                 [&] {
                   clickRow(1);
                   EXPECT_TRUE(option(1));
                   EXPECT_EQ(get(u"MSFlexGrid1", u"TabStop"), Variant(true));
                   EXPECT_EQ(get(u"Angebotsnummer", u"TabStop"), Variant(false));
                   EXPECT_EQ(grid().SelectionMode(), FlexGrid::ByRow);
                   EXPECT_TRUE(enabled(u"btnDelete"));
                   click(u"btnOK");
                 }),
            Variant(std::int32_t{500}));
}

TEST_F(OfferTemplates, ChosenFromAnEmptyListOkMakesANewOffer) {
  execute(u"UPDATE Angebotskopf SET Vorlage=NULL");
  EXPECT_EQ(show(29, {u""},
                 [&] {
                   clickRow(-1);
                   EXPECT_TRUE(option(1));
                   EXPECT_FALSE(enabled(u"btnDelete"));
                   click(u"btnOK");
                 }),
            Variant(std::int32_t{-1}));
}

TEST_F(OfferTemplates, NeedNoRightToChangeCatalogues) {
  session->SaveSetting(u"ZQNComDlg", u"AdminsOnly", u"1", Missing, zqnSaveAsGlobalSetting);
  show(29, {u""}, [&] {
    clickRow(1);
    expectQuestion(u"Baustelle", u"500", MsgBoxResult::Yes);
    click(u"btnDelete");
  });
  EXPECT_THAT(named(), ElementsAre(u"200|Wartung", u"400|   "));
}

TEST_F(OfferTemplates, EachOptionMovesTheTabStops) {
  show(29, {u""}, [&] {
    click(u"optAuswahl(2)");
    EXPECT_EQ(get(u"MSFlexGrid1", u"TabStop"), Variant(false));
    EXPECT_EQ(get(u"Angebotsnummer", u"TabStop"), Variant(true));
    EXPECT_EQ(grid().SelectionMode(), FlexGrid::ByColumn);
    click(u"optAuswahl(0)");
    EXPECT_EQ(get(u"Angebotsnummer", u"TabStop"), Variant(false));
    EXPECT_EQ(grid().SelectionMode(), FlexGrid::ByColumn);
  });
}

TEST_F(OfferTemplates, CopyTakesANumberThatExists) {
  EXPECT_EQ(show(29, {u""},
                 [&] {
                   form().control(u"Angebotsnummer").SetFocus();
                   EXPECT_TRUE(option(2));
                   type(u"100");
                   press(key::Enter);
                 }),
            Variant(std::int32_t{100}));
}

TEST_F(OfferTemplates, TheNumberKeepsItsDigitsAlone) {
  show(29, {u""}, [&] {
    for (const auto& [typed, left] : {std::pair{u"12a", u"12"},
                                      {u"abc", u""},
                                      {u" 7", u"7"},
                                      {u"0", u""},
                                      {u"17.6", u"18"},
                                      {u"0.4", u""},
                                      {u"1e2", u"100"},
                                      {u"99999999999", u"99999999999"},
                                      {u"1e400", u"1e400"}}) {
      form().control(u"Angebotsnummer").SetFocus();
      form().Get<TextBox>(u"Angebotsnummer").Text(u"");
      type(typed);
      form().control(u"btnCancel").SetFocus();
      EXPECT_EQ(text(u"Angebotsnummer"), left);
    }
  });
}

TEST_F(OfferTemplates, AMissingOrUnknownNumberIsRefused) {
  EXPECT_EQ(show(29, {u""},
                 [&] {
                   click(u"optAuswahl(2)");
                   expectBox(u"Sie müssen eine Angebotsnummer angeben!", u"Angebotsnummer",
                             msgbox::Exclamation);
                   click(u"btnOK");
                   EXPECT_EQ(focus(), u"Angebotsnummer");
                   for (const StringView number : {u"77", u"99999999999", u"-5", u"1e400", u"-1e400"}) {
                     form().Get<TextBox>(u"Angebotsnummer").Text(number);
                     expectBox(u"Das angegebene Angebot existiert nicht!", u"Angebot nicht vorhanden",
                               msgbox::Exclamation);
                     click(u"btnOK");
                     EXPECT_EQ(focus(), u"Angebotsnummer");
                     EXPECT_TRUE(form().Visible());
                   }
                   form().Get<TextBox>(u"Angebotsnummer").Text(u"7777");
                   expectBox(u"Das angegebene Angebot existiert nicht!", u"Angebot nicht vorhanden",
                             msgbox::Exclamation);
                   press(key::Enter);
                   EXPECT_EQ(get(u"Angebotsnummer", u"SelLength"), Variant(std::int32_t{4}))
                       << "selected, though the focus has been there all the time";
                 }),
            Variant(Null));
}

TEST_F(OfferTemplates, AFailingQueryMeansThatTheOfferDoesNotExist) {
  fail(ado::Operation::Open, u"Select Angebotsnummer from", error::ProviderFailure);
  show(29, {u""}, [&] {
    form().control(u"Angebotsnummer").SetFocus();
    type(u"100");
    expectBox(u"Das angegebene Angebot existiert nicht!", u"Angebot nicht vorhanden", msgbox::Exclamation);
    click(u"btnOK");
  });
}

// ---- taking off the list

TEST_F(OfferTemplates, RemovingAsksAndLeavesTheOffer) {
  show(29, {u""}, [&] {
    clickRow(1);
    expectQuestion(u"Baustelle", u"500", MsgBoxResult::No);
    click(u"btnDelete");
    expectQuestion(u"Baustelle", u"500", MsgBoxResult::Yes);
    press(key::Escape);
    EXPECT_THAT(templates(), ElementsAre(u"Angebot 400", u"Wartung"));
    EXPECT_TRUE(enabled(u"btnDelete"));
  });
  EXPECT_THAT(named(), ElementsAre(u"200|Wartung", u"400|   "));
  EXPECT_EQ(rows(u"SELECT COUNT(*) FROM Angebotskopf"), std::vector<String>{u"5"});
}

TEST_F(OfferTemplates, RemovingTheLastOneFallsBackToANewOffer) {
  execute(u"UPDATE Angebotskopf SET Vorlage=NULL WHERE Angebotsnummer<>200");
  EXPECT_EQ(show(29, {u""},
                 [&] {
                   clickRow(0);
                   expectQuestion(u"Wartung", u"200", MsgBoxResult::Yes);
                   click(u"btnDelete");
                   EXPECT_TRUE(option(0));
                   EXPECT_FALSE(optionEnabled(1));
                   EXPECT_FALSE(enabled(u"MSFlexGrid1"));
                   EXPECT_FALSE(enabled(u"btnDelete"));
                   click(u"btnOK");
                 }),
            Variant(std::int32_t{-1}));
}

TEST_F(OfferTemplates, TheRightButtonOpensTheMenuOnItsRow) {
  tolerateEverything();
  show(29, {u""}, [&] {
    click(u"optAuswahl(1)");
    bool opened = false;
    desktop.whenIdle([&] {
      if (desktop.openPopupMenu() != nullptr) {
        opened = true;
        EXPECT_EQ(focus(), u"MSFlexGrid1");
        EXPECT_TRUE(desktop.openPopupMenu()->items().at(0)->Enabled());
        EXPECT_EQ(desktop.openPopupMenu()->Name(), u"mnuPopup");
        EXPECT_TRUE(desktop.take(&form().Get<Menu>(u"mnuDelete")));
      } else if (desktop.openMessageBox() != nullptr) {
        EXPECT_EQ(desktop.openMessageBox()->title, u"Aus Vorlagen entfernen?");
        desktop.answer(MsgBoxResult::Yes);
      } else {
        form().closeBox();
      }
    });
    // A press of the right button by itself does not move the focus.
    EXPECT_EQ(focus(), u"optAuswahl(1)");
    grid().userPressed({2, 0}, 2, 0);
    grid().userReleased({2, 0}, 2, 0);
    EXPECT_TRUE(opened);
  });
  EXPECT_THAT(named(), ElementsAre(u"400|   ", u"500|Baustelle"));
}

TEST_F(OfferTemplates, TheRightButtonBelowTheRowsOpensNothing) {
  show(29, {u""}, [&] {
    clickRow(1);
    desktop.whenIdle([&] {
      if (desktop.openPopupMenu() == nullptr) return form().closeBox();
      ADD_FAILURE() << "a menu has opened";
      desktop.take(nullptr);
    });
    clickRow(-1, 2);
    EXPECT_EQ(grid().Row(), 1);
  });
}

TEST_F(OfferTemplates, TheListIsHiddenWhileItIsFilledAndCanBeUsedAfterwards) {
  show(29, {u""}, [&] {
    clickRow(1);
    EXPECT_EQ(focus(), u"MSFlexGrid1");
    expectQuestion(u"Baustelle", u"500", MsgBoxResult::Yes);
    press(key::Escape);
    EXPECT_EQ(focus(), u"btnOK") << "the focus leaves what is hidden";
    EXPECT_TRUE(grid().Visible());
    grid().Enabled(false);
    expectQuestion(u"Angebot 400", u"400", MsgBoxResult::Yes);
    click(u"btnDelete");
    EXPECT_TRUE(grid().Enabled());
  });
}

TEST_F(OfferTemplates, AnOfferThatIsGoneLeavesTheListWithoutAWord) {
  show(29, {u""}, [&] {
    clickRow(1);
    somebodyElse(u"DELETE FROM Angebotskopf WHERE Angebotsnummer=500");
    expectQuestion(u"Baustelle", u"500", MsgBoxResult::Yes);
    click(u"btnDelete");
    EXPECT_THAT(templates(), ElementsAre(u"Angebot 400", u"Wartung"));
  });
}

TEST_F(OfferTemplates, ARemovalThatFailsIsPassedOver) {
  fail(ado::Operation::Update, u"Angebotskopf", error::ProviderFailure);
  show(29, {u""}, [&] {
    clickRow(1);
    expectQuestion(u"Baustelle", u"500", MsgBoxResult::Yes);
    click(u"btnDelete");
    EXPECT_EQ(templates().size(), 3u);
    EXPECT_THAT(passedOver, ::testing::ElementsAre("mnuDelete_Click:-2147467259", "mnuDelete_Click:3219"));
  });
}

// ---- the offer information

TEST_F(OfferTemplates, TheOfferInformationGivesTheNumber) {
  OfferedAuskunft auskunft;
  auskunft.result = 1;
  auskunft.items[u"Belegnummer"] = std::int32_t{100};
  EXPECT_EQ(show(29, {u""},
                 [&] {
                   click(u"btnAngebotsAuskunft");
                   EXPECT_TRUE(option(2));
                   EXPECT_EQ(text(u"Angebotsnummer"), u"100");
                   EXPECT_EQ(focus(), u"Angebotsnummer");
                   EXPECT_EQ(get(u"Angebotsnummer", u"SelLength"), Variant(std::int32_t{3}));
                   press(key::F4, shift::Shift);
                   EXPECT_EQ(auskunft.asked.size(), 1u) << "F4 alone asks";
                   auskunft.result = 0;
                   press(key::F4);
                   EXPECT_EQ(auskunft.asked.size(), 2u);
                   EXPECT_EQ(text(u"Angebotsnummer"), u"100") << "nothing taken";
                   click(u"btnOK");
                 }),
            Variant(std::int32_t{100}));
  EXPECT_EQ(auskunft.asked.front(), u"AUSK_Angebotsauskunft|Angebotsauskunft|Take Über&nehmen 0 0111");
}

TEST_F(OfferTemplates, WithoutTheOfferInformationThePersonSeesTheError) {
  show(29, {u""}, [&] {
    expectError(u"btnAngebotsAuskunft_Click", error::CannotCreateObject);
    click(u"btnAngebotsAuskunft");
    EXPECT_TRUE(option(2));
    form().control(u"Angebotsnummer").SetFocus();
    expectError(u"Angebotsnummer_KeyDown", error::CannotCreateObject);
    press(key::F4);
  });
}

}  // namespace
}  // namespace zqn::testing
