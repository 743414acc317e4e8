// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPlainTextEdit>

#include "testing/qt/entry_form.h"

namespace zqn::qt::testing {

namespace {

class SeveralLines : public ::testing::Test {
 protected:
  QPlainTextEdit& field() { return dynamic_cast<QPlainTextEdit&>(*person.desktop.widgetOf(form.lines)); }

  Person person;
  EntryForm form;
};

TEST_F(SeveralLines, AreTypedWithCrLfInTheText) {
  int changes = 0;
  form.lines.Change = [&] { ++changes; };
  person.at(form, {[&] { person.click(form.lines); }, [&] { person.type(u"ab"); },
                   [&] { person.key(Qt::Key_Return); }, [&] { person.type(u"c"); },
                   [&] {
                     EXPECT_EQ(form.lines.Text(), u"ab\r\nc");
                     EXPECT_EQ(form.lines.SelStart(), 5);
                     EXPECT_EQ(changes, 4);
                     person.key(Qt::Key_Return, Qt::ShiftModifier);
                     person.key(Qt::Key_Return, Qt::ControlModifier);
                   },
                   [&] { EXPECT_EQ(form.lines.Text(), u"ab\r\nc\r\n\r\n"); }});
}

TEST_F(SeveralLines, EnterThatAHandlerTakesBeginsNone) {
  form.KeyPress = [](int& KeyAscii) {
    if (KeyAscii == key::Enter) KeyAscii = 0;
  };
  person.at(form, {[&] { person.click(form.lines); }, [&] { person.type(u"ab"); },
                   [&] { person.key(Qt::Key_Return); }, [&] { EXPECT_EQ(form.lines.Text(), u"ab"); }});
}

TEST_F(SeveralLines, SelectionCountsTheUnitsOfALineBreak) {
  form.lines.Text(u"eins\r\nzwei\ndrei");
  person.at(form, {[&] { form.lines.SetFocus(); },
                   [&] {
                     form.lines.SelStart(6);
                     form.lines.SelLength(4);
                   },
                   [&] {
                     EXPECT_EQ(field().textCursor().selectedText(), QStringLiteral("zwei"));
                     person.key(Qt::Key_Right);
                     person.key(Qt::Key_Right, Qt::ShiftModifier);
                     person.key(Qt::Key_Right, Qt::ShiftModifier);
                   },
                   [&] {
                     EXPECT_EQ(form.lines.SelStart(), 10);
                     EXPECT_EQ(form.lines.SelLength(), 2);
                     EXPECT_EQ(form.lines.Text(), u"eins\r\nzwei\ndrei") << "moving is no edit";
                   }});
}

TEST_F(SeveralLines, KeepWhatGotFocusSelectedAfterTheClick) {
  form.lines.Text(u"eins\r\nzwei");
  form.lines.GotFocus = [&] {
    form.lines.SelStart(0);
    form.lines.SelLength(10);
  };
  person.at(form, {[&] { person.click(form.lines); }, [&] { EXPECT_EQ(form.lines.SelLength(), 10); },
                   [&] { person.type(u"x"); }, [&] { EXPECT_EQ(form.lines.Text(), u"x"); }});
}

TEST_F(SeveralLines, ArePastedUpToMaxLength) {
  form.lines.MaxLength(8);
  QGuiApplication::clipboard()->setText(QStringLiteral("eins\nzwei"));
  person.at(form, {[&] { person.click(form.lines); }, [&] { person.key(Qt::Key_V, Qt::ControlModifier); },
                   [&] {
                     EXPECT_EQ(form.lines.Text(), u"eins\r\nzw");
                     person.type(u"x");
                     person.key(Qt::Key_Return);
                   },
                   [&] {
                     EXPECT_EQ(form.lines.Text(), u"eins\r\nzw");
                     person.key(Qt::Key_Backspace);
                     person.key(Qt::Key_Return);
                     person.type(u"y");
                   },
                   [&] { EXPECT_EQ(form.lines.Text(), u"eins\r\nzy"); }});
}

TEST_F(SeveralLines, KeepProtectedBlanksAndUndo) {
  form.lines.Text(u"10\u00A0%");
  person.at(form,
            {[&] { form.lines.SetFocus(); }, [&] { person.key(Qt::Key_End); }, [&] { person.type(u"!"); },
             [&] {
               EXPECT_EQ(form.lines.Text(), u"10\u00A0%!");
               person.key(Qt::Key_Z, Qt::ControlModifier);
             },
             [&] { EXPECT_EQ(form.lines.Text(), u"10\u00A0%"); }});
}

TEST_F(SeveralLines, ScrollWhereMoreThanOneLineFits) {
  person.at(form, {[&] { EXPECT_EQ(field().verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded); },
                   [&] { form.lines.Height(285); },
                   [&] { EXPECT_EQ(field().verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff); }});
}

TEST_F(SeveralLines, HaveAContextMenuInGerman) {
  form.lines.Text(u"abc");
  form.lines.SelLength(3);
  person.at(form, {[&] { form.lines.SetFocus(); },
                   [&] {
                     QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(3, 3),
                                             field().mapToGlobal(QPoint(3, 3)));
                     QCoreApplication::sendEvent(&field(), &event);
                     auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                     ASSERT_NE(menu, nullptr);
                     EXPECT_EQ(menu->actions().constFirst()->text(), QStringLiteral("Rückgängig"));
                     menu->actions().at(6)->trigger();  // Löschen
                     menu->close();
                   },
                   [&] { EXPECT_EQ(form.lines.Text(), u""); }});
}

}  // namespace

}  // namespace zqn::qt::testing
