// SPDX-License-Identifier: MIT
//
// The drop-downs that a person can type into, in their window: typed into, opened, clicked.
#include "desktop/qt/list_field.h"

#include <gtest/gtest.h>

#include <QSignalBlocker>
#include <QTest>

#include "ado/sqlite/sqlite.h"
#include "testing/qt/windows.h"

namespace zqn::qt::testing {

namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"txtKey",     TextBox,       u"",           120,  120, 1395, 285},
    {u"lblTyped",   Label,         u"Status",     120,  510,  900, 255},
    {u"Typed",      zqCombo,       u"",          1080,  480, 3135, 315, {.rowsourcetype = 2, .maxrows = 5, .allowedit = true}},
    {u"Picked",     zqCombo,       u"",          1080,  900, 3135, 315, {.rowsourcetype = 4, .maxrows = 4}},
    {u"lblFibu",    Label,         u"Fibu",       120, 1350,  900, 255},
    {u"Fibu",       ComboBox,      u"",          1080, 1320,  705, 315, {.allowedit = true}},
    {u"btnCancel",  CommandButton, u"Schließen", 3000, 1800, 1215, 315, {.Cancel = true}},
};
// clang-format on

constexpr FormDesign form{u"frmCombos", u"Auswahl", 5400, 2400, roster};

}  // namespace plan

class KeyCombos : public ::testing::Test {
 protected:
  KeyCombos() {
    execute(u"CREATE TABLE Vertriebsstati (Status VARCHAR(10) PRIMARY KEY, Bezeichnung VARCHAR(30))");
    for (int i = 10; i < 22; ++i)
      execute(u"INSERT INTO Vertriebsstati VALUES ('" + fromUtf8(std::to_string(i)) + u"', 'Stufe')");
    execute(u"CREATE TABLE Adressherkunft (Herkunft VARCHAR(15) PRIMARY KEY, Bezeichnung VARCHAR(50))");
    execute(u"INSERT INTO Adressherkunft VALUES ('MESSE', 'Messe'), ('NETZ', 'Internet')");
    typed.Connection(connection);
    picked.Connection(connection);
    for (zqn::zqCombo* each : {&typed, &picked}) each->Click = [this] { ++clicks; };
    form.Get<CommandButton>(u"btnCancel").Click = [this] { ++cancels; };
  }
  void execute(const String& statement) { connection->Execute(ado::sql::Text(statement)); }
  zqCombo& widget(zqn::zqCombo& combo) { return dynamic_cast<zqCombo&>(*person.desktop.widgetOf(combo)); }
  /// A key on whatever window hears the keyboard, the open list included.
  void key(int code, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QWidget* const popup = QApplication::activePopupWidget();
    if (popup == nullptr) return person.key(code, held);
    QTest::keyClick(popup, static_cast<Qt::Key>(code), held);
  }
  void type(char letter) {
    QWidget* const popup = QApplication::activePopupWidget();
    QTest::keyClick(popup != nullptr ? popup : QApplication::focusWidget(), letter);
  }
  static void press(QWidget& target, QPoint place) { QTest::mouseClick(&target, Qt::LeftButton, {}, place); }
  static QPoint entry(ListField& combo, int row) {
    return combo.list().visualRect(combo.list().model()->index(row, 0)).center();
  }

  Person person;
  Ref<ado::Connection> connection = ado::openSqlite(":memory:");
  Form form{plan::form};
  zqn::zqCombo& typed = form.Get<zqn::zqCombo>(u"Typed");
  zqn::zqCombo& picked = form.Get<zqn::zqCombo>(u"Picked");
  int clicks = 0;
  int cancels = 0;
};

TEST_F(KeyCombos, OpenByTheirButtonBelowTheFieldAndTakeTheEntryClicked) {
  person.at(form, {[&] { person.click(widget(typed).button()); },
                   [&] {
                     ASSERT_TRUE(widget(typed).list().isVisible());
                     const QPoint below = widget(typed).mapToGlobal(QPoint(0, widget(typed).height()));
                     EXPECT_GE(widget(typed).list().mapToGlobal(QPoint(0, 0)).y(), below.y() - 2);
                     EXPECT_GE(widget(typed).list().window()->width(), widget(typed).width());
                     press(*widget(typed).list().viewport(), entry(widget(typed), 2));
                   },
                   [&] {
                     EXPECT_EQ(typed.Value(), Variant(u"12"));
                     EXPECT_FALSE(widget(typed).list().isVisible());
                     EXPECT_EQ(widget(typed).text(), QStringLiteral("12 Stufe"));
                     EXPECT_EQ(QApplication::focusWidget(), &widget(typed));
                   }});
  EXPECT_EQ(clicks, 1);
}

TEST_F(KeyCombos, ShowAsManyRowsAsTheDesignSays) {
  person.at(form, {[&] { person.click(widget(typed).button()); },
                   [&] {
                     const QAbstractItemView& list = widget(typed).list();
                     EXPECT_EQ(list.viewport()->height(), 5 * list.sizeHintForRow(0));
                     EXPECT_EQ(list.model()->rowCount(), 12);
                     const QAbstractItemModel& rows = *list.model();
                     EXPECT_EQ(rows.index(11, 0).data().toString(), QStringLiteral("21"));
                     EXPECT_EQ(rows.index(11, 1).data().toString(), QStringLiteral("Stufe"));
                     EXPECT_FALSE(rows.index(11, 1).data(Qt::DecorationRole).isValid());
                   }});
}

TEST_F(KeyCombos, CompleteWhatIsTyped) {
  person.at(form, {[&] { person.click(typed); },
                   [&] {
                     EXPECT_FALSE(widget(typed).list().isVisible()) << "a click into the text opens nothing";
                     type('1');
                   },
                   [&] {
                     EXPECT_EQ(widget(typed).text(), QStringLiteral("10 Stufe"));
                     EXPECT_EQ(widget(typed).selectedText(), QStringLiteral("0 Stufe"));
                     type('5');
                   },
                   [&] {
                     EXPECT_EQ(typed.Value(), Variant(u"15"));
                     key(Qt::Key_Backspace);
                     EXPECT_EQ(widget(typed).text(), QStringLiteral("15"));
                     EXPECT_EQ(typed.Value(), Variant(u"15"));
                     key(Qt::Key_Backspace);
                     EXPECT_EQ(widget(typed).text(), QStringLiteral("1"));
                     EXPECT_TRUE(typed.Value().isNull());
                     key(Qt::Key_Tab);
                   },
                   [&] { EXPECT_EQ(widget(typed).text(), QString()); }});
}

TEST_F(KeyCombos, TakeATextWithBlanksByTyping) {
  execute(u"INSERT INTO Vertriebsstati VALUES ('A B', 'Zwei Worte')");
  person.at(form, {[&] { person.click(typed); },
                   [&] {
                     for (const char letter : {'z', 'w', 'e', 'i', ' '}) type(letter);
                     EXPECT_EQ(widget(typed).text(), QStringLiteral("zwei Worte"));
                     EXPECT_EQ(widget(typed).selectedText(), QStringLiteral("Worte"));
                     EXPECT_EQ(typed.Value(), Variant(u"A B"));
                   }});
}

TEST_F(KeyCombos, TypingBesideTheOpenListMovesItsMark) {
  person.at(form, {[&] { person.click(typed); }, [&] { key(Qt::Key_F4); },
                   [&] {
                     ASSERT_TRUE(widget(typed).list().isVisible());
                     type('1');
                     type('3');
                   },
                   [&] {
                     EXPECT_EQ(widget(typed).list().currentIndex().row(), 3);
                     EXPECT_EQ(widget(typed).text(), QStringLiteral("13 Stufe"));
                     key(Qt::Key_Down);
                     EXPECT_EQ(widget(typed).list().currentIndex().row(), 4);
                     EXPECT_EQ(typed.Value(), Variant(u"13"));
                     key(Qt::Key_Return);
                   },
                   [&] {
                     EXPECT_EQ(typed.Value(), Variant(u"14"));
                     EXPECT_FALSE(widget(typed).list().isVisible());
                     key(Qt::Key_Down, Qt::AltModifier);
                   },
                   [&] {
                     ASSERT_TRUE(widget(typed).list().isVisible());
                     key(Qt::Key_Escape);
                   },
                   [&] { EXPECT_FALSE(typed.isOpen()); }});
  EXPECT_EQ(cancels, 0) << "Esc was the list's";
}

TEST_F(KeyCombos, WithoutAnEditorOpenByAClickAndChooseByLetters) {
  person.at(form, {[&] { person.click(picked); },
                   [&] {
                     EXPECT_TRUE(widget(picked).list().isVisible());
                     key(Qt::Key_Escape);
                   },
                   [&] {
                     type('n');
                     EXPECT_EQ(widget(picked).text(), QStringLiteral("NETZ Internet"));
                     key(Qt::Key_Backspace);
                     EXPECT_EQ(widget(picked).text(), QStringLiteral("NETZ Internet"));
                   }});
  EXPECT_EQ(clicks, 1);
}

TEST_F(KeyCombos, FollowThePointerAndShutWhenTheFocusLeaves) {
  person.at(form, {[&] { person.click(picked); },
                   [&] {
                     QTest::mouseMove(widget(picked).list().viewport(), entry(widget(picked), 1));
                     EXPECT_EQ(picked.markedEntry(), 1);
                     press(*widget(picked).list().viewport(), QPoint(5, 500));
                     EXPECT_TRUE(picked.isOpen()) << "no entry stands there";
                     form.control(u"txtKey").SetFocus();
                   },
                   [&] { EXPECT_FALSE(widget(picked).list().isVisible()); }});
}

TEST_F(KeyCombos, ShutWhenTheListGoesAwayByItself) {
  person.at(form, {[&] { person.click(picked); }, [&] { widget(picked).list().window()->hide(); },
                   [&] {
                     EXPECT_FALSE(picked.isOpen());
                     EXPECT_TRUE(picked.Value().isNull());
                   }});
}

TEST_F(KeyCombos, AreUsedWhileTheyMayBe) {
  typed.Enabled(false);
  person.at(form, {[&] { EXPECT_FALSE(widget(typed).isEnabled()); }, [&] { typed.EntryEnabled(true); },
                   [&] { EXPECT_TRUE(widget(typed).isEnabled()); }});
}

TEST_F(KeyCombos, ThatHaveNotPaintedWhatTheyHoldDifferFromTheForm) {
  person.at(form,
            {[&] { person.click(widget(typed).button()); },
             [&] {
               ASSERT_TRUE(typed.isOpen());
               {
                 const QSignalBlocker silently(widget(typed).list().selectionModel());
                 widget(typed).list().setCurrentIndex(widget(typed).list().model()->index(1, 0));
               }
               EXPECT_TRUE(person.desktop.differences(form).contains(QLatin1String("Typed: marked entry")));
               widget(typed).sync();
             },
             [&] { key(Qt::Key_Escape); }});
}

TEST_F(KeyCombos, AreNamedByTheirLabel) {
  person.at(form, {[&] {
              EXPECT_EQ(widget(typed).accessibleName(), QStringLiteral("Status"));
              EXPECT_EQ(widget(typed).button().accessibleName(), QStringLiteral("Liste"));
            }});
}

TEST_F(KeyCombos, AFieldForAnyTextTakesWhatIsTypedAndWhatIsChosen) {
  auto& fibu = form.Get<zqn::ComboBox>(u"Fibu");
  fibu.AddItem(u"E");
  fibu.AddItem(u"Bank");
  const auto field = [&]() -> ComboField& {
    return dynamic_cast<ComboField&>(*person.desktop.widgetOf(fibu));
  };
  person.at(form, {[&] { person.click(fibu); },
                   [&] {
                     EXPECT_FALSE(field().list().isVisible()) << "a click into the text opens nothing";
                     type('x');
                     type('y');
                   },
                   [&] {
                     EXPECT_EQ(fibu.Text(), u"xy");
                     EXPECT_EQ(fibu.ListIndex(), -1);
                     person.click(field().button());
                   },
                   [&] {
                     ASSERT_TRUE(field().list().isVisible());
                     EXPECT_EQ(field().list().model()->columnCount(), 1);
                     press(*field().list().viewport(), entry(field(), 1));
                   },
                   [&] {
                     EXPECT_EQ(fibu.Text(), u"Bank");
                     EXPECT_EQ(field().text(), QStringLiteral("Bank"));
                     key(Qt::Key_Z, Qt::ControlModifier);
                   },
                   [&] { EXPECT_EQ(person.desktop.differences(form), QString()); }});
}

}  // namespace

}  // namespace zqn::qt::testing
