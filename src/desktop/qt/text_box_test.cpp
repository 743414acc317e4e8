// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>

#include "desktop/qt/text.h"
#include "testing/qt/windows.h"

namespace zqn::qt::testing {

namespace {

QLineEdit& fieldOf(const Person& person, TextBox& model) {
  return dynamic_cast<QLineEdit&>(*person.desktop.widgetOf(model));
}

TEST(TextBoxes, TakeNoMoreThanMaxLength) {
  Person person;
  StatiForm form;
  person.at(form, {[&] { person.click(form.Schluessel); }, [&] { person.type(u"12345"); },
                   [&] { EXPECT_EQ(form.Schluessel.Text(), u"123"); }});
}

TEST(TextBoxes, KeepATextThatIsLongerThanALaterMaxLength) {
  Person person;
  StatiForm form;
  form.Kurztext.Text(u"lang genug");
  person.at(form, {[&] { form.Kurztext.MaxLength(3); }, [&] { person.click(form.Kurztext); },
                   [&] {
                     person.key(Qt::Key_End);
                     person.type(u"x");
                     EXPECT_EQ(form.Kurztext.Text(), u"lang genug");
                     person.key(Qt::Key_Backspace);
                     person.type(u"x");
                   },
                   [&] { EXPECT_EQ(form.Kurztext.Text(), u"lang genu"); }});
}

TEST(TextBoxes, TakeEveryCharacterOfTheLanguage) {
  Person person;
  StatiForm form;
  person.at(form, {[&] { person.click(form.Kurztext); }, [&] { person.type(u"Äöüß ÿ € – é"); },
                   [&] { EXPECT_EQ(form.Kurztext.Text(), u"Äöüß ÿ € – é"); }});
}

TEST(TextBoxes, KeepWhatGotFocusSelectedAfterTheClickThatGaveTheFocus) {
  Person person;
  StatiForm form;
  form.Kurztext.Text(u"Auftrag");
  form.Kurztext.GotFocus = [&] {
    form.Kurztext.SelStart(0);
    form.Kurztext.SelLength(7);
  };
  person.at(form, {[&] { person.click(form.Kurztext, QPoint(12, 8)); },
                   [&] {
                     EXPECT_EQ(fieldOf(person, form.Kurztext).selectedText(), QStringLiteral("Auftrag"));
                     person.wait(QApplication::doubleClickInterval() + 10);
                     person.click(form.Kurztext, QPoint(12, 8));
                   },
                   [&] {
                     EXPECT_EQ(form.Kurztext.SelLength(), 0);
                     EXPECT_GT(form.Kurztext.SelStart(), 0);
                     EXPECT_LT(form.Kurztext.SelStart(), 7);
                   }});
}

TEST(TextBoxes, ReportCaretAndSelection) {
  Person person;
  StatiForm form;
  form.Kurztext.Text(u"Auftrag");
  person.at(form,
            {[&] { form.Kurztext.SetFocus(); },
             [&] {
               person.key(Qt::Key_Right);
               person.key(Qt::Key_Right, Qt::ShiftModifier);
               person.key(Qt::Key_Right, Qt::ShiftModifier);
             },
             [&] {
               EXPECT_EQ(form.Kurztext.SelStart(), 1);
               EXPECT_EQ(form.Kurztext.SelLength(), 2);
               form.Kurztext.SelStart(3);
               form.Kurztext.SelLength(4);
             },
             [&] { EXPECT_EQ(fieldOf(person, form.Kurztext).selectedText(), QStringLiteral("trag")); }});
}

TEST(TextBoxes, ShowTheSelectionAgainWhenTheFocusComesBack) {
  Person person;
  StatiForm form;
  form.Kurztext.Text(u"Auftrag");
  form.Kurztext.SelLength(4);
  person.at(form,
            {[&] { form.Kurztext.SetFocus(); }, [&] { form.TDBList1.SetFocus(); },
             [&] {
               EXPECT_EQ(form.Kurztext.SelLength(), 4);
               form.Kurztext.SetFocus();
             },
             [&] { EXPECT_EQ(fieldOf(person, form.Kurztext).selectedText(), QStringLiteral("Auft")); }});
}

TEST(TextBoxes, UndoByCtrlZ) {
  Person person;
  StatiForm form;
  person.at(form, {[&] { person.click(form.Kurztext); }, [&] { person.type(u"ab"); },
                   [&] { person.key(Qt::Key_Z, Qt::ControlModifier); },
                   [&] { EXPECT_EQ(form.Kurztext.Text(), u""); }});
}

TEST(TextBoxes, PasteWhatFitsOnOneLine) {
  Person person;
  StatiForm form;
  QGuiApplication::clipboard()->setText(QStringLiteral("a\r\nb\nc"));
  const auto paste = [&] { person.key(Qt::Key_V, Qt::ControlModifier); };
  person.at(form, {[&] { person.click(form.Kurztext); }, paste,
                   [&] {
                     EXPECT_EQ(form.Kurztext.Text(), u"a b c");
                     EXPECT_EQ(form.Kurztext.SelStart(), 5);
                     person.click(form.Schluessel);
                   },
                   paste, [&] { EXPECT_EQ(form.Schluessel.Text(), u"a b"); }});
}

TEST(TextBoxes, CopyAndCut) {
  Person person;
  StatiForm form;
  form.Kurztext.Text(u"Müller");
  person.at(form, {[&] { form.Kurztext.SetFocus(); },
                   [&] {
                     person.key(Qt::Key_A, Qt::ControlModifier);
                     person.key(Qt::Key_C, Qt::ControlModifier);
                     EXPECT_EQ(person.desktop.clipboardText(), u"Müller");
                     QGuiApplication::clipboard()->clear();
                     person.key(Qt::Key_X, Qt::ControlModifier);
                   },
                   [&] {
                     EXPECT_EQ(person.desktop.clipboardText(), u"Müller");
                     EXPECT_EQ(form.Kurztext.Text(), u"");
                   }});
}

TEST(TextBoxes, TypeWhatKeyPressMadeOfTheKey) {
  Person person;
  StatiForm form;
  form.Kurztext.KeyPress = [&](int& KeyAscii) {
    if (KeyAscii == 'a') KeyAscii = 'A';
    if (KeyAscii == 'x') KeyAscii = 0;
  };
  person.at(form, {[&] { person.click(form.Kurztext); }, [&] { person.type(u"axb"); },
                   [&] { EXPECT_EQ(form.Kurztext.Text(), u"Ab"); }});
}

TEST(TextBoxes, LoseAKeyThatKeyDownTookAway) {
  Person person;
  StatiForm form;
  form.Kurztext.Text(u"ab");
  form.Kurztext.KeyDown = [](int& KeyCode, int) {
    if (KeyCode == key::Delete) KeyCode = 0;
  };
  person.at(form, {[&] { form.Kurztext.SetFocus(); }, [&] { person.key(Qt::Key_Delete); },
                   [&] { EXPECT_EQ(form.Kurztext.Text(), u"ab"); }});
}

TEST(TextBoxes, ShowWhatChangeMadeOfTheTyping) {
  Person person;
  StatiForm form;
  form.Kurztext.Change = [&] {
    if (form.Kurztext.Text() == u"q") form.Kurztext.Text(u"Qualität");
  };
  person.at(form, {[&] { person.click(form.Kurztext); }, [&] { person.type(u"q"); },
                   [&] { EXPECT_EQ(fieldOf(person, form.Kurztext).text(), QStringLiteral("Qualität")); }});
}

TEST(TextBoxes, PassWhatAnInputMethodCommitsAsKeyPresses) {
  Person person;
  StatiForm form;
  std::u16string pressed;
  form.KeyPress = [&](int& KeyAscii) {
    pressed += static_cast<char16_t>(KeyAscii);
    if (KeyAscii == u'ñ') KeyAscii = 0;
  };
  const auto commit = [&](const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
  };
  person.at(form, {[&] { person.click(form.Kurztext); }, [&] { commit(QStringLiteral("â")); },
                   [&] { commit(QStringLiteral("ñ")); }, [&] { commit(QStringLiteral("東京")); },
                   [&] { EXPECT_EQ(form.Kurztext.Text(), u"â東京"); }});
  EXPECT_EQ(pressed, u"âñ東京");
}

TEST(TextBoxes, EditedByAssistiveTechnologyTellTheModel) {
  Person person;
  StatiForm form;
  int changes = 0;
  form.Kurztext.Change = [&] { ++changes; };
  person.at(form, {[&] { fieldOf(person, form.Kurztext).setText(QStringLiteral("gesprochen")); },
                   [&] { EXPECT_EQ(form.Kurztext.Text(), u"gesprochen"); }});
  EXPECT_EQ(changes, 1);
}

TEST(TextBoxes, HaveAContextMenuInGerman) {
  Person person;
  StatiForm form;
  form.Kurztext.Text(u"abc");
  form.Kurztext.SelLength(3);
  person.at(
      form,
      {[&] { form.Kurztext.SetFocus(); },
       [&] {
         QLineEdit& field = fieldOf(person, form.Kurztext);
         QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(3, 3), field.mapToGlobal(QPoint(3, 3)));
         QCoreApplication::sendEvent(&field, &event);
         auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
         ASSERT_NE(menu, nullptr);
         QStringList words;
         for (const QAction* action : menu->actions()) {
           if (!action->isSeparator()) words += action->text();
         }
         EXPECT_EQ(words.join(QLatin1Char(' ')).toStdString(),
                   "Rückgängig Wiederherstellen Ausschneiden Kopieren Einfügen Löschen Alles auswählen");
         menu->actions().at(6)->trigger();  // Löschen
         menu->close();
       },
       [&] { EXPECT_EQ(form.Kurztext.Text(), u""); }});
}

TEST(TextBoxes, FollowColourAlignmentAndPlace) {
  Person person;
  StatiForm form;
  person.at(form, {[&] {
                     form.Kurztext.BackColor(0x0000FFFF);
                     form.Kurztext.Alignment(Alignment::Right);
                     form.Kurztext.Left(2000);
                     form.Kurztext.ToolTipText(u"<b>neu</b>");
                   },
                   [&] {
                     const QLineEdit& field = fieldOf(person, form.Kurztext);
                     EXPECT_EQ(field.palette().color(QPalette::Base), QColor(255, 255, 0));
                     EXPECT_EQ(field.x(), qRound(2000 / person.desktop.TwipsPerPixelX()));
                     EXPECT_EQ(field.accessibleDescription(), QStringLiteral("<b>neu</b>"));
                     EXPECT_TRUE(field.toolTip().contains(QStringLiteral("&lt;b&gt;")));
                     form.Kurztext.BackColor(colour::WindowBackground);
                   },
                   [&] {
                     EXPECT_EQ(fieldOf(person, form.Kurztext).palette().color(QPalette::Base),
                               QApplication::palette().color(QPalette::Base));
                   }});
}

}  // namespace

}  // namespace zqn::qt::testing
