// SPDX-License-Identifier: MIT
//
// The key of a drop-down over a catalogue: by code, typed, and chosen from the list.
#include "forms/zq_combo.h"

#include "ado/sqlite/sqlite.h"
#include "runtime/convert.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"txtKey", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"Typed",
     ControlKind::zqCombo,
     u"",
     0,
     400,
     3135,
     315,
     {.rowsourcetype = 2, .maxrows = 5, .allowedit = true}},
    {u"Picked", ControlKind::zqCombo, u"", 0, 800, 3135, 315, {.rowsourcetype = 9, .maxrows = 4}},
    {u"Shut",
     ControlKind::zqCombo,
     u"",
     0,
     1200,
     3135,
     315,
     {.rowsourcetype = 4, .allowedit = true, .Enabled = false}},
    {u"Terms", ControlKind::zqCombo, u"", 0, 1600, 3135, 315, {.rowsourcetype = 7, .allowedit = true}},
    {u"btnOK", ControlKind::CommandButton, u"Speichern", 0, 2000, 1215, 315, {.Default = true}},
    {u"btnCancel", ControlKind::CommandButton, u"Schließen", 0, 2400, 1215, 315, {.Cancel = true}},
};

struct CountingObserver : ado::Observer {
  void Before(ado::Operation, StringView, StringView) override { ++count; }
  int count = 0;
};

class zqComboTest : public FormTest {
 protected:
  zqComboTest() {
    create(u"Vertriebsstati", u"Status", u"Bezeichnung",
           u"('-', 'keiner'), ('10', 'Erstkontakt'), ('20', 'Angebot'), ('200', 'Angebot besprochen'), "
           u"('V1', NULL)");
    create(u"Adressherkunft", u"Herkunft", u"Bezeichnung", u"('-', 'keine'), ('MESSE', 'Messe Hannover')");
    create(u"Zahlungsbedingungen", u"ZahlBedSchl", u"Kurztext",
           u"('-', 'Null Tage'), ('01', '14 Tage netto')");
    create(u"Preislistenkopf", u"Preisliste", u"Langtext",
           u"('-', 'keine'), ('A', 'Handel'), ('B', 'Industrie'), ('BX', 'Export')");
    watchClicks(form);
    typed.ValueChange = [this] { note("=" + value(typed)); };
  }

  void create(StringView table, StringView key, StringView text, StringView rows) {
    const String name(table);
    execute(u"CREATE TABLE " + name + u" (" + String(key) + u" VARCHAR(15) COLLATE ZQN_TEXT PRIMARY KEY, " +
            String(text) + u" VARCHAR(50))");
    execute(u"INSERT INTO " + name + u" VALUES " + String(rows));
  }
  void execute(StringView statement) { connection->Execute(ado::sql::Text(statement)); }
  void connect() {
    for (zqCombo* each : {&typed, &picked, &shut, &terms}) each->Connection(connection);
    happened();
  }
  static std::string value(const zqCombo& combo) {
    return combo.Value().isNull() ? "Null" : toUtf8(CStr(combo.Value()));
  }
  /// Value, text with the selection in brackets, and the open list.
  static std::string state(const zqCombo& combo) {
    std::string text = toUtf8(combo.Text());
    if (combo.SelLength() > 0) {
      const auto at = static_cast<std::size_t>(combo.SelStart());
      const auto size = static_cast<std::size_t>(combo.SelLength());
      text = toUtf8(StringView(combo.Text()).substr(0, at)) + "[" +
             toUtf8(StringView(combo.Text()).substr(at, size)) + "]" +
             toUtf8(StringView(combo.Text()).substr(at + size));
    }
    return value(combo) + ": " + text +
           (combo.isOpen() ? " (open at " + std::to_string(combo.markedEntry()) + ")" : "");
  }
  static std::string offers(zqCombo& combo) {
    combo.readEntries();
    std::string all;
    for (int i = 0; i < combo.ListCount(); ++i) all += (i > 0 ? " | " : "") + toUtf8(combo.List(i));
    return all;
  }
  /// In the combo, with all of it connected.
  void showAt(zqCombo& combo, const std::function<void()>& acts) {
    connect();
    show(form, [&] {
      combo.SetFocus();
      happened();
      acts();
      happened();
    });
  }

  Ref<ado::Connection> connection = ado::openSqlite(":memory:");
  SampleForm form{roster};
  zqCombo& typed = form.Get<zqCombo>(u"Typed");
  zqCombo& picked = form.Get<zqCombo>(u"Picked");
  zqCombo& shut = form.Get<zqCombo>(u"Shut");
  zqCombo& terms = form.Get<zqCombo>(u"Terms");
};

using ComboOverKeys = zqComboTest;
using ComboTyping = zqComboTest;
using ComboList = zqComboTest;

// ---- what it offers

TEST_F(ComboOverKeys, OffersTheCatalogueOfItsRowsourcetypeWithoutTheReservedRow) {
  connect();
  EXPECT_EQ(offers(typed), "10 Erstkontakt | 20 Angebot | 200 Angebot besprochen | V1");
  EXPECT_EQ(offers(shut), "MESSE Messe Hannover");
  EXPECT_EQ(offers(terms), "- Null Tage | 01 14 Tage netto") << "payment terms reserve no key";
  EXPECT_EQ(offers(picked), "A Handel | B Industrie | BX Export");
  EXPECT_EQ(typed.keyOf(1), u"20");
  EXPECT_EQ(typed.textOf(1), u"Angebot");
  EXPECT_EQ(typed.keyOf(4), u"");
  EXPECT_EQ(typed.List(-1), u"");
}

TEST_F(ComboOverKeys, ReadsNothingBeforeATextIsNeeded) {
  connect();
  typed.Value(Null);
  EXPECT_EQ(typed.ListCount(), 0);
  typed.Value(u"20");
  EXPECT_EQ(typed.ListCount(), 4);
}

TEST_F(ComboOverKeys, ShowsKeyAndTextOnceItIsConnected) {
  typed.Value(u"20");
  EXPECT_EQ(state(typed), "20: 20");
  connect();
  EXPECT_EQ(state(typed), "20: 20 Angebot");
  typed.Connection(nothing);
  EXPECT_EQ(state(typed), "20: 20");
  happened();
}

TEST_F(ComboOverKeys, KeepsAndShowsAKeyThatIsNotOffered) {
  connect();
  typed.Value(u"99");
  EXPECT_EQ(state(typed), "99: 99");
  EXPECT_EQ(typed.ListIndex(), -1);
  typed.Value(u"-");
  EXPECT_EQ(state(typed), "-: -");
  typed.Value(u"v1");
  EXPECT_EQ(state(typed), "v1: V1") << "case does not count, and the value stays as it was assigned";
  EXPECT_EQ(happened(), "=99 =- =v1");
}

TEST_F(ComboOverKeys, NullStaysNullAndAnEmptyKeyStaysEmpty) {
  connect();
  typed.Value(u"");
  EXPECT_EQ(typed.Value(), Variant(u""));
  typed.Value(Null);
  EXPECT_TRUE(typed.Value().isNull());
  EXPECT_EQ(typed.Text(), u"");
  happened();
}

TEST_F(ComboOverKeys, ByCodeRaisesNoClick) {
  connect();
  typed.Value(u"10");
  typed.Value(u"10");
  EXPECT_EQ(happened(), "=10");
}

TEST_F(ComboOverKeys, IsNoStatementOfTheDialog) {
  CountingObserver observer;
  connection->observer(&observer);
  connect();
  typed.Value(u"10");
  EXPECT_EQ(typed.ListCount(), 4);
  EXPECT_EQ(observer.count, 0);
  EXPECT_EQ(connection->observer(), &observer);
  happened();
}

TEST_F(ComboOverKeys, WithoutItsTableHasNoEntriesAndKeepsTheValue) {
  execute(u"DROP TABLE Vertriebsstati");
  typed.Value(u"20");
  showAt(typed, [&] {
    press(key::F4);
    EXPECT_EQ(state(typed), "20: [20]");
    EXPECT_EQ(typed.ListCount(), 0);
    press(key::Down);
    EXPECT_EQ(state(typed), "20: [20]");
  });
}

TEST_F(ComboOverKeys, IsUsableWhileEnabledOrEntryEnabled) {
  EXPECT_FALSE(shut.isUsable());
  shut.EntryEnabled(true);
  EXPECT_TRUE(shut.isUsable());
  EXPECT_FALSE(shut.Enabled());
  shut.Enabled(true);
  shut.EntryEnabled(false);
  EXPECT_TRUE(shut.isUsable());
  EXPECT_FALSE(shut.EntryEnabled());
  shut.Enabled(false);
  EXPECT_FALSE(shut.isUsable());
}

TEST_F(ComboOverKeys, IsReachedByNamesOfItsProperties) {
  connect();
  typed.Control::Property(u"Value", Variant(u"20"));
  EXPECT_EQ(typed.Property(u"value"), Variant(u"20"));
  EXPECT_EQ(typed.Property(u"Text"), Variant(u"20 Angebot"));
  EXPECT_EQ(shut.Property(u"Enabled"), Variant(false));
  shut.Control::Property(u"EntryEnabled", Variant(true));
  EXPECT_EQ(shut.Property(u"EntryEnabled"), Variant(true));
  EXPECT_EQ(shut.Property(u"Enabled"), Variant(false));
  shut.Control::Property(u"Enabled", Variant(std::int32_t{1}));
  EXPECT_EQ(shut.Property(u"Enabled"), Variant(true));
  EXPECT_EQ(typed.Property(u"rowsourcetype"), Variant(std::int32_t{2}));
  EXPECT_EQ(typed.Property(u"maxrows"), Variant(std::int32_t{5}));
  EXPECT_EQ(picked.Property(u"allowedit"), Variant(false));
  EXPECT_EQ(errorNumberOf([&] { typed.Control::Property(u"allowedit", Variant(false)); }),
            error::PropertyIsReadOnly);
  happened();
}

// ---- typing

TEST_F(ComboTyping, CompletesTheFrontOfAKeyAndOfAText) {
  showAt(typed, [&] {
    type(u"2");
    EXPECT_EQ(state(typed), "20: 2[0 Angebot]");
    type(u"00");
    EXPECT_EQ(state(typed), "200: 200[ Angebot besprochen]");
    pressCtrl(u'a');
    type(u"er");
    EXPECT_EQ(state(typed), "10: er[stkontakt]");
    press(key::Tab);
    EXPECT_EQ(state(typed), "10: 10 Erstkontakt");
    EXPECT_EQ(happened(), "=20 Typed_Click =200 Typed_Click =10 Typed_Click");
  });
}

TEST_F(ComboTyping, NeverTakesTheEntryFoundForAnOlderText) {
  typed.Value(u"V1");
  showAt(typed, [&] {
    type(u"2");
    EXPECT_EQ(value(typed), "20");
    type(u"x");
    EXPECT_EQ(state(typed), "V1: 2x") << "the value is again what it was";
    press(key::Tab);
    EXPECT_EQ(state(typed), "V1: V1");
  });
}

TEST_F(ComboTyping, WhatIsDeletedIsNotBroughtBack) {
  showAt(typed, [&] {
    type(u"1");
    EXPECT_EQ(state(typed), "10: 1[0 Erstkontakt]");
    press(key::Backspace);
    EXPECT_EQ(state(typed), "Null: 1");
    type(u"0");
    EXPECT_EQ(state(typed), "10: 10[ Erstkontakt]");
    press(key::End);
    press(key::Backspace);
    EXPECT_EQ(state(typed), "Null: 10 Erstkontak");
    press(key::Home);
    type(u"2");
    EXPECT_EQ(state(typed), "Null: 210 Erstkontak") << "in the middle of a text nothing is completed";
  });
}

TEST_F(ComboTyping, AWholeKeyIsItsEntryAlsoPasted) {
  desktop.copyToClipboard(u"200");
  showAt(typed, [&] {
    pressCtrl(u'v');
    EXPECT_EQ(state(typed), "200: 200[ Angebot besprochen]");
    press(key::Delete);
    EXPECT_EQ(state(typed), "200: 200");
  });
}

TEST_F(ComboTyping, AnEmptiedFieldIsNull) {
  typed.Value(u"20");
  showAt(typed, [&] {
    press(key::Delete);
    EXPECT_EQ(state(typed), "Null: ");
    EXPECT_EQ(happened(), "=Null") << "no entry was chosen";
    press(key::Tab);
    EXPECT_EQ(state(typed), "Null: ");
  });
}

TEST_F(ComboTyping, EnteringAndLeavingChangesNothing) {
  typed.Value(u"99");
  showAt(typed, [&] {
    EXPECT_EQ(state(typed), "99: [99]");
    press(key::Tab);
    EXPECT_EQ(state(typed), "99: [99]");
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(ComboTyping, ArrowsChooseAtOnce) {
  showAt(typed, [&] {
    press(key::Down);
    press(key::Down);
    EXPECT_EQ(state(typed), "20: [20 Angebot]");
    press(key::PageDown);
    press(key::Up);
    EXPECT_EQ(state(typed), "200: [200 Angebot besprochen]");
    press(key::Left);
    press(key::Right);
    EXPECT_EQ(state(typed), "200: 200 Angebot besprochen") << "these are the caret's";
    EXPECT_EQ(typed.SelStart(), 1);
  });
}

TEST_F(ComboTyping, WithoutAllowEditALetterLeadsToTheNextEntry) {
  showAt(picked, [&] {
    type(u"b");
    EXPECT_EQ(state(picked), "B: [B Industrie]");
    type(u"b");
    EXPECT_EQ(state(picked), "BX: [BX Export]");
    type(u"x");
    press(key::Backspace);
    press(key::Delete);
    pressCtrl(u'v');
    EXPECT_EQ(state(picked), "BX: [BX Export]");
    press(key::Home);
    EXPECT_EQ(value(picked), "A");
    pressCtrl(u'c');
    EXPECT_EQ(desktop.clipboardText(), u"A Handel");
  });
}

// ---- the list

TEST_F(ComboList, OpensWithFreshEntriesAndTakesTheMarkedOne) {
  typed.Value(u"20");
  showAt(typed, [&] {
    execute(u"INSERT INTO Vertriebsstati VALUES ('15', 'Besuch')");
    press(key::F4);
    EXPECT_EQ(typed.ListCount(), 5);
    EXPECT_EQ(state(typed), "20: [20 Angebot] (open at 2)");
    press(key::Up);
    EXPECT_EQ(happened(), "");
    press(key::Enter);
    EXPECT_EQ(state(typed), "15: [15 Besuch]");
    EXPECT_EQ(happened(), "=15 Typed_Click") << "the default button was not pressed";
  });
}

TEST_F(ComboList, StaysAsItIsWhileItIsOpen) {
  showAt(typed, [&] {
    press(key::F4);
    execute(u"DELETE FROM Vertriebsstati");
    typed.readEntries();
    EXPECT_EQ(typed.ListCount(), 4);
    press(key::Escape);
    press(key::F4);
    EXPECT_FALSE(typed.isOpen()) << "there is nothing to show";
  });
}

TEST_F(ComboList, EscapeLeavesTheValueAndTheForm) {
  typed.Value(u"20");
  showAt(typed, [&] {
    press(key::Down, shift::Alt);
    press(key::PageDown);
    EXPECT_EQ(state(typed), "20: [20 Angebot] (open at 3)");
    press(key::Escape);
    EXPECT_EQ(state(typed), "20: [20 Angebot]");
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(ComboList, EscapePutsBackWhatStoodBeforeSomethingWasTypedBesideIt) {
  typed.Value(u"20");
  showAt(typed, [&] {
    press(key::F4);
    type(u"1");
    EXPECT_EQ(state(typed), "10: 1[0 Erstkontakt] (open at 0)");
    EXPECT_EQ(happened(), "=10 Typed_Click");
    press(key::Escape);
    EXPECT_EQ(state(typed), "20: [20 Angebot]");
    EXPECT_EQ(happened(), "=20 Typed_Click");
  });
}

TEST_F(ComboList, EscapePutsBackATextThatIsNoEntry) {
  typed.Value(u"V1");
  showAt(typed, [&] {
    type(u"2x");
    happened();
    press(key::F4);
    type(u"y");
    press(key::Escape);
    EXPECT_EQ(state(typed), "V1: 2x");
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(ComboList, AKeyThatLeadsNowhereTakesNothing) {
  picked.Value(u"BX");
  showAt(picked, [&] {
    press(key::Down);
    press(key::End);
    EXPECT_EQ(happened(), "");
    press(key::Up);
    EXPECT_EQ(happened(), "Picked_Click");
  });
}

TEST_F(ComboList, TypingBesideItMovesTheMark) {
  showAt(typed, [&] {
    press(key::F4);
    EXPECT_EQ(typed.markedEntry(), -1);
    type(u"2");
    EXPECT_EQ(state(typed), "20: 2[0 Angebot] (open at 1)");
    press(key::Backspace);
    EXPECT_EQ(state(typed), "Null: 2 (open at -1)");
    press(key::Home);
    press(key::Delete);
    EXPECT_EQ(state(typed), "Null:  (open at -1)");
    press(key::F10);
    type(u"v");
    press(key::Tab);
    EXPECT_EQ(state(typed), "V1: [V1]");
    EXPECT_EQ(focusOf(form), "Picked");
  });
}

TEST_F(ComboList, AClickSetsTheCaretOrOpensWhereNothingIsTyped) {
  connect();
  show(form, [&] {
    click(typed);
    EXPECT_FALSE(typed.isOpen());
    click(picked);
    EXPECT_TRUE(picked.isOpen());
    click(picked);
    EXPECT_FALSE(picked.isOpen());
    click(picked);
    click(typed);
    EXPECT_FALSE(picked.isOpen()) << "the list closes when the focus leaves";
    typed.userOpened();
    typed.userToggled();
    EXPECT_FALSE(typed.isOpen());
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(ComboList, TheSameEntryTakenAgainIsAChoice) {
  picked.Value(u"B");
  showAt(picked, [&] {
    press(key::F4);
    picked.userChose(1);
    EXPECT_EQ(happened(), "Picked_Click");
    EXPECT_EQ(state(picked), "B: [B Industrie]");
    press(key::F4);
    picked.userMarked(2);
    press(key::Enter);
    EXPECT_EQ(state(picked), "BX: [BX Export]");
  });
}

TEST_F(ComboList, StaysShutWhileDisabled) {
  shut.Connection(connection);
  show(form, [&] {
    shut.userOpened();
    EXPECT_FALSE(shut.isOpen());
    shut.EntryEnabled(true);
    shut.userOpened();
    EXPECT_TRUE(shut.isOpen());
    shut.Connection(nothing);
    EXPECT_FALSE(shut.isOpen());
  });
}

}  // namespace
}  // namespace zqn::testing
