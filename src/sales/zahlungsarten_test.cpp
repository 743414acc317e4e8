// SPDX-License-Identifier: MIT
//
// The payment types of both sides with their text blocks.
#include "sales/zahlungsarten.h"

#include "testing/dialog_test.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

class Zahlungsarten : public DialogTest {
 protected:
  Zahlungsarten() {
    for (const StringView table : {u"Zahlungsarten", u"ZahlungsartenEK"})
      execute(u"CREATE TABLE " + String(table) +
              u" (Zahlungsart VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, Kurztext VARCHAR(30) "
              u"COLLATE ZQN_TEXT, "
              u"OhneFibu BOOLEAN, ZahlungsartFibu VARCHAR(10) COLLATE ZQN_TEXT, DefaultZahlungsbedSchl "
              u"VARCHAR(3) COLLATE "
              u"ZQN_TEXT, OhneDruckSkonto INTEGER)");
    execute(
        u"CREATE TABLE Textbausteine (Textart VARCHAR(3) COLLATE ZQN_TEXT NOT NULL, TextNummer VARCHAR(15) "
        u"COLLATE "
        u"ZQN_TEXT NOT NULL, ZusatztextNummer VARCHAR(3) COLLATE ZQN_TEXT NOT NULL, SprachKZ VARCHAR(3) "
        u"COLLATE ZQN_TEXT "
        u"NOT NULL, Kurztext VARCHAR(50) COLLATE ZQN_TEXT, Langtext TEXT COLLATE ZQN_TEXT, WoDrucken "
        u"VARCHAR(8) COLLATE "
        u"ZQN_TEXT, Schriftart VARCHAR(50) COLLATE ZQN_TEXT, Schriftgröße INTEGER, Schriftstil VARCHAR(10) "
        u"COLLATE ZQN_TEXT, "
        u"PRIMARY KEY (Textart, TextNummer, ZusatztextNummer, SprachKZ));"
        u"CREATE TABLE Zahlungsbedingungen (ZahlBedSchl VARCHAR(3) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        u"Kurztext "
        u"VARCHAR(100) COLLATE ZQN_TEXT);"
        u"INSERT INTO Zahlungsbedingungen VALUES ('14', '14 Tage netto.');"
        u"INSERT INTO Zahlungsarten VALUES ('-', 'System', 0, NULL, NULL, 0);"
        u"INSERT INTO Zahlungsarten VALUES ('BAR', 'Barzahlung', 1, '-', NULL, -1);"
        u"INSERT INTO Zahlungsarten VALUES ('LAS', 'Lastschrift', 0, 'E', '14', 0);"
        u"INSERT INTO Zahlungsarten VALUES ('UEB', 'Überweisung', 0, NULL, NULL, NULL);"
        u"INSERT INTO ZahlungsartenEK VALUES ('SCH', 'Scheck', 0, 'S', NULL, 0);"
        u"INSERT INTO Textbausteine VALUES ('ZAA', 'LAS', '000', 'ÿÿÿ', 'Lastschrift', 'Wir buchen ab.', "
        u"'N-LR----', "
        u"'Times', 12, 'B---');"
        u"INSERT INTO Textbausteine VALUES ('ZAA', 'LAS', '000', 'E', 'Debit', 'We debit.', 'N-------', "
        u"'Arial', 10, '---L');"
        u"INSERT INTO Textbausteine VALUES ('ZAA', 'BAR', '000', 'ÿÿÿ', 'Bar', '', '---R----', 'Arial', 10, "
        u"'---L');"
        u"INSERT INTO Textbausteine VALUES ('EZA', 'SCH', '000', 'ÿÿÿ', 'Scheck', 'Per Scheck.', 'N----AE-', "
        u"'Arial', 10, "
        u"'---L')");
  }

  /// Captions of the toggles that are down, those that are hidden in brackets.
  std::string toggles() const {
    std::string names;
    for (const StringView each : {u"AN", u"AB", u"LS", u"RG", u"GS", u"AF", u"BS", u"LM"}) {
      const auto& toggle = form().Get<ToggleButton>(u"tglDruck" + String(each));
      if (!toggle.Value()) continue;
      names += (names.empty() ? "" : " ") + (toggle.Visible() ? toUtf8(each) : "(" + toUtf8(each) + ")");
    }
    return names;
  }
  int number(StringView control) const { return *get(control, u"Value").as<std::int32_t>(); }
  Variant terms() const { return get(u"DefaultZahlungsbedSchl", u"Value"); }
  String row(StringView table, StringView key) {
    const std::vector<String> found = rows(
        u"SELECT Kurztext, CAST(OhneFibu AS INTEGER), ZahlungsartFibu, DefaultZahlungsbedSchl, "
        u"OhneDruckSkonto FROM " +
        String(table) + u" WHERE Zahlungsart='" + String(key) + u"'");
    return found.empty() ? String(u"(fehlt)") : found.front();
  }
  std::vector<String> blocks(StringView key) {
    return rows(
        u"SELECT Textart, ZusatztextNummer, SprachKZ, Kurztext, Langtext, WoDrucken, Schriftart, "
        u"Schriftgröße, "
        u"Schriftstil FROM Textbausteine WHERE TextNummer='" +
        String(key) + u"' ORDER BY 1, 2, 3");
  }
  void enter(StringView key) {
    click(u"btnNew");
    type(key);
    press(key::Tab);
  }
  void expectDeleteQuestion() {
    expectBox(u"Datensatz löschen?", u"Abfrage", msgbox::YesNo | msgbox::Question, MsgBoxResult::Yes);
  }
};

// ---- reading

TEST_F(Zahlungsarten, AreListedForEachSide) {
  show(1, {u"LAS"}, [&] {
    EXPECT_EQ(form().Caption(), u"Zahlungsarten");
    EXPECT_THAT(listRows(), ElementsAre(u"BAR|Barzahlung", u"LAS|Lastschrift", u"UEB|Überweisung"));
  });
  show(2, {u""}, [&] { EXPECT_THAT(listRows(), ElementsAre(u"SCH|Scheck")); });
}

TEST_F(Zahlungsarten, ARowShowsItsTextBlockAndItsMarks) {
  show(1, {u"LAS"}, [&] {
    EXPECT_EQ(text(u"txtKurztext"), u"Lastschrift");
    EXPECT_EQ(text(u"ZahlungsartFibu"), u"E");
    EXPECT_EQ(text(u"txtLangtext"), u"Wir buchen ab.");
    EXPECT_EQ(toggles(), "AN LS RG");
    EXPECT_EQ(number(u"chkDefaultZahlungsbedSchl"), 1);
    EXPECT_EQ(terms(), Variant(u"14"));
    EXPECT_EQ(get(u"DefaultZahlungsbedSchl", u"EntryEnabled"), Variant(true));
    EXPECT_EQ(number(u"chkOhneFibu"), 0);
    EXPECT_EQ(number(u"chkOhneDruckSkonto"), 0);
  });
}

TEST_F(Zahlungsarten, ThePurchaseSideShowsItsOwnToggles) {
  show(2, {u"SCH"},
       [&] { EXPECT_EQ(toggles(), "(AN) AF BS") << "a mark of the other side ticks a hidden toggle"; });
  show(1, {u"LAS"}, [&] {
    for (const StringView hidden : {u"tglDruckAF", u"tglDruckBS", u"tglDruckLM"})
      EXPECT_FALSE(form().control(hidden).Visible());
  });
}

TEST_F(Zahlungsarten, BereichInSmallLettersIsThePurchaseSide) {
  frmZahlungsarten purchase;
  purchase.Connection = connection;
  purchase.Bereich = u"ek";
  purchase.SelectedKey = u"SCH";
  desktop.whenIdle([&] {
    EXPECT_EQ(text(u"txtKurztext"), u"Scheck");
    EXPECT_TRUE(form().control(u"tglDruckLM").Visible());
    form().closeBox();
  });
  purchase.ShowData();
}

TEST_F(Zahlungsarten, AnUnknownKeyIsPrintedEverywhereButOnCreditNotes) {
  show(1, {u"NEU"}, [&] {
    EXPECT_EQ(text(u"Schluessel"), u"NEU");
    EXPECT_EQ(toggles(), "AN AB LS RG (AF) (BS) (LM)");
  });
  show(2, {u"NEU"}, [&] { EXPECT_EQ(toggles(), "(AN) (AB) (LS) (RG) AF BS LM"); });
}

TEST_F(Zahlungsarten, ARowWithoutATextBlockShowsNoMarks) {
  show(1, {u"UEB"}, [&] {
    EXPECT_EQ(toggles(), "");
    EXPECT_EQ(text(u"txtLangtext"), u"");
  });
}

TEST_F(Zahlungsarten, ABlockWithoutALongTextStillGivesItsMarks) {
  show(1, {u"BAR"}, [&] {
    EXPECT_EQ(toggles(), "RG");
    EXPECT_EQ(text(u"txtLangtext"), u"");
  });
}

TEST_F(Zahlungsarten, AHyphenIsTheTickWithoutTransferAndNullIsNot) {
  show(1, {u"BAR"}, [&] {
    EXPECT_EQ(number(u"chkOhneFibu"), 1);
    EXPECT_EQ(text(u"ZahlungsartFibu"), u"");
    EXPECT_FALSE(enabled(u"ZahlungsartFibu"));
    EXPECT_EQ(number(u"chkOhneDruckSkonto"), 1);
    select(2);
    EXPECT_EQ(number(u"chkOhneFibu"), 0);
    EXPECT_EQ(text(u"ZahlungsartFibu"), u"");
    EXPECT_TRUE(enabled(u"ZahlungsartFibu"));
    EXPECT_EQ(number(u"chkOhneDruckSkonto"), 0) << "Null is 0";
  });
}

// ---- writing

TEST_F(Zahlungsarten, ANewOneIsStoredWithItsTextBlock) {
  show(1, {u""}, [&] {
    enter(u"neu");
    type(u"  Neue Art ");
    form().control(u"txtLangtext").SetFocus();
    type(u"Zahlbar sofort.");
    click(u"tglDruckGS");
    press(key::F9);
    EXPECT_EQ(focus(), u"TDBList1");
  });
  EXPECT_EQ(row(u"Zahlungsarten", u"neu"), u"Neue Art|0|NULL|NULL|0");
  EXPECT_THAT(blocks(u"neu"), ElementsAre(u"ZAA|000|ÿÿÿ|  Neue Art |Zahlbar sofort.|NBLRG---|Arial|10|---L"));
}

TEST_F(Zahlungsarten, ThePurchaseSideStoresItsOwnMarks) {
  show(2, {u"SCH"}, [&] {
    click(u"tglDruckLM");
    click(u"btnOK");
  });
  EXPECT_THAT(blocks(u"SCH"), ElementsAre(u"EZA|000|ÿÿÿ|Scheck|Per Scheck.|-----AEM|Arial|10|---L"));
  EXPECT_EQ(row(u"ZahlungsartenEK", u"SCH"), u"Scheck|0|S|NULL|0");
}

TEST_F(Zahlungsarten, TheFontOfABlockIsAlwaysTheSame) {
  show(1, {u"LAS"}, [&] { click(u"btnOK"); });
  EXPECT_THAT(blocks(u"LAS"), ElementsAre(u"ZAA|000|E|Debit|We debit.|N-------|Arial|10|---L",
                                          u"ZAA|000|ÿÿÿ|Lastschrift|Wir buchen ab.|N-LR----|Arial|10|---L"));
}

TEST_F(Zahlungsarten, WithoutTransferAHyphenIsStored) {
  show(1, {u"LAS"}, [&] {
    click(u"chkOhneFibu");
    EXPECT_FALSE(enabled(u"ZahlungsartFibu"));
    click(u"chkOhneDruckSkonto");
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"Zahlungsarten", u"LAS"), u"Lastschrift|1|-|14|-1");
}

TEST_F(Zahlungsarten, UntickedTermsAreStoredAsNull) {
  show(1, {u"LAS"}, [&] {
    click(u"chkDefaultZahlungsbedSchl");
    EXPECT_EQ(terms(), Variant(u"14"));
    EXPECT_EQ(get(u"DefaultZahlungsbedSchl", u"EntryEnabled"), Variant(false));
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"Zahlungsarten", u"LAS"), u"Lastschrift|0|E|NULL|0");
}

TEST_F(Zahlungsarten, TheAccountingCodeIsFreeText) {
  show(1, {u"UEB"}, [&] {
    form().control(u"ZahlungsartFibu").SetFocus();
    type(u"XY");
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"Zahlungsarten", u"UEB"), u"Überweisung|0|XY|NULL|0");
}

TEST_F(Zahlungsarten, ARowThatCannotBeSavedIsPassedOverAndItsTextIsWritten) {
  fail(ado::Operation::Update, u"FROM Zahlungsarten", error::ProviderFailure);
  show(1, {u"UEB"}, [&] {
    form().control(u"txtKurztext").SetFocus();
    type(u"Anders");
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"Zahlungsarten", u"UEB"), u"Überweisung|0|NULL|NULL|NULL");
  EXPECT_EQ(blocks(u"UEB").size(), 1u);
}

// ---- deleting and picking

TEST_F(Zahlungsarten, DeletingLeavesTextsOfOtherLanguages) {
  show(1, {u"LAS"}, [&] {
    expectDeleteQuestion();
    click(u"btnDelete");
    EXPECT_THAT(listRows(), ElementsAre(u"BAR|Barzahlung", u"UEB|Überweisung"));
  });
  EXPECT_THAT(blocks(u"LAS"), ElementsAre(u"ZAA|000|E|Debit|We debit.|N-------|Arial|10|---L"));
}

TEST_F(Zahlungsarten, AFailingSecondStatementLeavesTheTextAndIsShown) {
  fail(ado::Operation::Execute, u"DELETE FROM Textbausteine", error::ProviderFailure);
  show(1, {u"LAS"}, [&] {
    expectDeleteQuestion();
    expectError(u"btnDelete_Click", error::ProviderFailure);
    click(u"btnDelete");
  });
  EXPECT_EQ(row(u"Zahlungsarten", u"LAS"), u"(fehlt)");
  EXPECT_EQ(blocks(u"LAS").size(), 2u);
}

TEST_F(Zahlungsarten, ADoubleClickPicksAndMultiselectStaysQuiet) {
  EXPECT_EQ(show(1, {u"LAS"}, [&] { doubleClick(0); }), Variant(u"BAR"));
  dialog.Multiselect(true);
  dialog.DblClick = [](const Variant&) { ADD_FAILURE() << "the host was told"; };
  EXPECT_EQ(show(1, {u"LAS"},
                 [&] {
                   doubleClick(0);
                   EXPECT_TRUE(form().Visible());
                 }),
            Variant(u"BAR"));
}

TEST_F(Zahlungsarten, AFailureWhileFillingIsPassedOver) {
  fail(ado::Operation::Open, u"ORDER BY Zahlungsart", error::ProviderFailure);
  show(1, {u"LAS"}, [&] {
    EXPECT_TRUE(form().Visible());
    EXPECT_EQ(text(u"txtKurztext"), u"Lastschrift");
  });
}

TEST_F(Zahlungsarten, WithoutTheRightNothingIsSaved) {
  session->SaveSetting(u"ZQNComDlg", u"AdminsOnly", u"1", Missing, zqnSaveAsGlobalSetting);
  expectBox(u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu speichern.",
            u"TALVEX Software", msgbox::Information);
  show(2, {u"SCH"}, [&] { click(u"btnOK"); });
}

// ---- the generic form reads and writes the same rows

TEST_F(Zahlungsarten, BothFormsReadEachOthersRows) {
  show(1, {u""}, [&] {
    enter(u"GEM");
    type(u"Gemeinsam");
    form().control(u"txtLangtext").SetFocus();
    type(u"Aus dem einen Dialog.");
    click(u"btnOK");
  });
  param = {u"GEM"};
  desktop.whenIdle([&] {
    EXPECT_EQ(text(u"txtKeyText"), u"Gemeinsam");
    EXPECT_EQ(text(u"txtLangtext"), u"Aus dem einen Dialog.");
    form().Get<TextBox>(u"txtLangtext").Text(u"Aus dem anderen.");
    click(u"cmdOK");
    form().closeBox();
  });
  dialog.ShowGeneric(1, param);
  ORBDialog again;
  again.Session(Ref<Session>(session));
  desktop.whenIdle([&] {
    EXPECT_EQ(text(u"txtLangtext"), u"Aus dem anderen.");
    EXPECT_EQ(text(u"txtKurztext"), u"Gemeinsam");
    form().closeBox();
  });
  again.Show(1, param);
}

}  // namespace
}  // namespace zqn::testing
