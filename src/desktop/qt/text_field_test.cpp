// SPDX-License-Identifier: MIT
//
// That the widgets of text fields draw what the model says, and hand it all that a person does.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QWindow>

#include "desktop/qt/text.h"
#include "forms/combo_box.h"
#include "forms/date_input.h"
#include "testing/qt/windows.h"

namespace zqn::qt::testing {

namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"txtOther", TextBox,   u"",  120,  120, 1455, 285},
    {u"txtText",  TextBox,   u"",  120,  540, 3000, 285},
    {u"txtLines", TextBox,   u"",  120, 1380, 1500, 885, {.MultiLine = true}},
    {u"day",      DateInput, u"", 1760, 2400, 1500, 285, {.ToolTipText = u"Ab wann"}},
    {u"cboList",  ComboBox,  u"",  120, 2820, 1500, 315},
};
// clang-format on
constexpr FormDesign design{u"frmTexts", u"Texte", 5400, 3300, roster};

}  // namespace plan

class TextFields : public ::testing::Test {
 protected:
  QLineEdit& field(Control& model) { return dynamic_cast<QLineEdit&>(*person.desktop.widgetOf(model)); }
  QPlainTextEdit& linesField() { return dynamic_cast<QPlainTextEdit&>(*person.desktop.widgetOf(lines)); }
  /// In front of a character of the field.
  QPoint placeOf(Control& model, int character) {
    QLineEdit& edit = field(model);
    int x = 0;
    while (x < edit.width() && edit.cursorPositionAt(QPoint(x, edit.height() / 2)) < character) ++x;
    return {x + 1, edit.height() / 2};
  }
  void mouse(void (*act)(QWindow*, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int), QPoint place) {
    const QWidget& edit = field(text);
    act(edit.window()->windowHandle(), Qt::LeftButton, {}, edit.mapTo(edit.window(), place), -1);
  }
  void compose(const QString& preedit, const QString& commit) {
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
  }
  QAccessibleInterface& accessible(Control& model) {
    return *QAccessible::queryAccessibleInterface(person.desktop.widgetOf(model));
  }

  Person person;
  Form form{plan::design};
  TextBox& other = form.Get<TextBox>(u"txtOther");
  TextBox& text = form.Get<TextBox>(u"txtText");
  TextBox& lines = form.Get<TextBox>(u"txtLines");
  DateInput& day = form.Get<DateInput>(u"day");
};

using RealKeyboards = TextFields;
using Pointers = TextFields;
using DrawnTexts = TextFields;
using InputMethods = TextFields;
using AssistiveTechnology = TextFields;
using InvalidDates = TextFields;
using DrawnLines = TextFields;

// ---- keys

TEST_F(RealKeyboards, AltWithALetterLeavesASelectedFieldAlone) {
  text.Text(u"Auftrag");
  std::string keys;
  form.KeyDown = [&](int& code, int shift) {
    if (code != 18) keys += std::to_string(code) + "/" + std::to_string(shift) + " ";
  };
  person.at(form, {[&] { text.SetFocus(); },
                   [&] {
                     person.key(Qt::Key_A, Qt::ControlModifier);
                     QKeyEvent alt(QEvent::KeyPress, Qt::Key_S, Qt::AltModifier, QStringLiteral("s"));
                     QCoreApplication::sendEvent(&field(text), &alt);
                     QKeyEvent digit(QEvent::KeyPress, Qt::Key_7, Qt::AltModifier, QStringLiteral("7"));
                     QCoreApplication::sendEvent(&field(text), &digit);
                   },
                   [&] { EXPECT_EQ(text.Text(), u"Auftrag"); }});
  EXPECT_THAT(keys, ::testing::HasSubstr("83/4 55/4"));
}

TEST_F(RealKeyboards, CaretKeysReachTheFormAfterADropDownWasUsed) {
  auto& list = form.Get<ComboBox>(u"cboList");
  list.AddItem(u"eins");
  list.AddItem(u"zwei");
  std::string keys;
  form.KeyDown = [&](int& code, int) { keys += std::to_string(code) + " "; };
  text.Text(u"abc");
  person.at(form, {[&] { person.click(list); }, [&] { person.key(Qt::Key_Down); },
                   [&] { person.key(Qt::Key_Return); }, [&] { person.click(text); },
                   [&] {
                     for (const int key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_End, Qt::Key_Left})
                       person.key(key);
                   },
                   [&] { EXPECT_EQ(text.SelStart(), 2); }});
  EXPECT_EQ(keys, "36 39 35 37 ");
}

TEST_F(RealKeyboards, AKeyThatTypesTwoUnitsTypesBoth) {
  person.at(form, {[&] { text.SetFocus(); },
                   [&] {
                     QKeyEvent event(QEvent::KeyPress, 0x1F600, {}, QStringLiteral("😀"));
                     QCoreApplication::sendEvent(&field(text), &event);
                   },
                   [&] { EXPECT_EQ(text.Text(), u"😀"); }});
}

// ---- mouse

TEST_F(Pointers, SetTheCaretSelectByDraggingAndAWordByADoubleClick) {
  text.Text(u"eins zwei drei");
  person.at(form, {[&] { text.SetFocus(); },
                   [&] {
                     mouse(QTest::mousePress, placeOf(text, 7));
                     EXPECT_EQ(text.SelStart(), 7);
                     const QPoint to = placeOf(text, 2);
                     QMouseEvent move(QEvent::MouseMove, to, field(text).mapToGlobal(to), Qt::NoButton,
                                      Qt::LeftButton, Qt::NoModifier);
                     QCoreApplication::sendEvent(&field(text), &move);
                     mouse(QTest::mouseRelease, to);
                   },
                   [&] {
                     EXPECT_EQ(field(text).selectedText(), QStringLiteral("ns zw"));
                     EXPECT_EQ(text.caret(), 2);
                     mouse(QTest::mouseDClick, placeOf(text, 6));
                   },
                   [&] { EXPECT_EQ(field(text).selectedText(), QStringLiteral("zwei ")); }});
}

// ---- what is drawn

TEST_F(DrawnTexts, ShowAStoredBreakAsOneSignAndKeepIt) {
  text.Text(u"a\r\nb\u0001c");
  person.at(form, {[&] { text.SetFocus(); },
                   [&] {
                     EXPECT_EQ(field(text).displayText(), QStringLiteral(u"a\u21B5b\u2401c"));
                     person.key(Qt::Key_Right);
                     person.key(Qt::Key_Right, Qt::ShiftModifier);
                   },
                   [&] {
                     EXPECT_EQ(field(text).selectedText(), QStringLiteral(u"\u21B5"));
                     EXPECT_EQ(text.SelLength(), 2);
                     person.key(Qt::Key_End);
                     person.type(u"!");
                   },
                   [&] { EXPECT_EQ(text.Text(), u"a\r\nb\u0001c!"); }});
}

TEST_F(DrawnTexts, OfSeveralLinesKeepHowEachBreakIsStored) {
  lines.Text(u"a\nb\rc\r\nd");
  person.at(form, {[&] { lines.SetFocus(); },
                   [&] {
                     EXPECT_EQ(linesField().document()->blockCount(), 4);
                     person.key(Qt::Key_End, Qt::ControlModifier);
                     person.type(u"e");
                   },
                   [&] { EXPECT_EQ(lines.Text(), u"a\nb\rc\r\nde"); }});
}

TEST_F(DrawnTexts, ShowNoSelectionWithoutTheFocus) {
  text.Text(u"abc");
  lines.Text(u"abc");
  person.at(form,
            {[&] { text.SetFocus(); }, [&] { text.SelLength(3); }, [&] { lines.SetFocus(); },
             [&] {
               EXPECT_FALSE(field(text).hasSelectedText());
               EXPECT_EQ(text.SelLength(), 3);
               lines.SelLength(3);
             },
             [&] { other.SetFocus(); }, [&] { EXPECT_FALSE(linesField().textCursor().hasSelection()); }});
}

TEST_F(DrawnTexts, OfAWidgetThatShowsAnotherCaretDiffer) {
  text.Text(u"abc");
  person.at(form, {[&] { text.SetFocus(); },
                   [&] {
                     const QSignalBlocker silently(field(text));
                     field(text).setCursorPosition(2);
                     EXPECT_THAT(person.desktop.differences(form).toStdString(),
                                 ::testing::HasSubstr("caret"));
                     field(text).setCursorPosition(0);
                   }});
}

TEST_F(DrawnLines, LeadUpAndDown) {
  lines.Text(u"Donaudampfschifffahrt Gesellschaft Kapitän Witwe");
  person.at(form, {[&] { lines.SetFocus(); },
                   [&] {
                     person.key(Qt::Key_Down);
                     const int second = lines.SelStart();
                     EXPECT_GT(second, 0) << "a line that is drawn, not one that is stored";
                     EXPECT_LT(second, 40);
                     person.key(Qt::Key_Down, Qt::ShiftModifier);
                     EXPECT_EQ(lines.SelStart(), second);
                     EXPECT_GT(lines.SelLength(), 0);
                     person.key(Qt::Key_PageUp);
                   },
                   [&] { EXPECT_EQ(lines.SelStart(), 0); }});
}

// ---- input methods

TEST_F(InputMethods, ShowWhatIsComposedAndTypeWhatIsCommitted) {
  text.Text(u"ab");
  person.at(form, {[&] { text.SetFocus(); }, [&] { person.key(Qt::Key_A, Qt::ControlModifier); },
                   [&] { compose(QStringLiteral("とう"), {}); },
                   [&] {
                     EXPECT_EQ(text.Text(), u"") << "it takes the place of the selection";
                     compose({}, QStringLiteral("東京"));
                   },
                   [&] {
                     EXPECT_EQ(text.Text(), u"東京");
                     EXPECT_EQ(field(text).displayText(), QStringLiteral("東京"));
                     person.key(Qt::Key_Z, Qt::ControlModifier);
                   },
                   [&] { EXPECT_EQ(text.Text(), u""); }});
}

// ---- assistive technology

TEST_F(AssistiveTechnology, EditsAndSelectsAsAPerson) {
  text.Text(u"a\r\nc");
  int changes = 0;
  text.Change = [&] { ++changes; };
  person.at(form, {[&] { text.SetFocus(); },
                   [&] { accessible(text).editableTextInterface()->insertText(2, QStringLiteral("b")); },
                   [&] {
                     EXPECT_EQ(text.Text(), u"a\r\nbc") << "the break stays";
                     EXPECT_EQ(changes, 1);
                     accessible(text).textInterface()->setSelection(0, 1, 3);
                   },
                   [&] {
                     EXPECT_EQ(text.SelStart(), 1);
                     EXPECT_EQ(text.SelLength(), 3);
                     EXPECT_EQ(accessible(text).textInterface()->cursorPosition(), 3);
                     accessible(text).setText(QAccessible::Value, QStringLiteral("neu"));
                   },
                   [&] {
                     EXPECT_EQ(text.Text(), u"neu");
                     person.key(Qt::Key_Z, Qt::ControlModifier);
                   },
                   [&] { EXPECT_EQ(text.Text(), u"a\r\nbc"); }});
}

TEST_F(AssistiveTechnology, WritesIntoNoFieldThatAPersonCannotUse) {
  text.Text(u"fest");
  text.Enabled(false);
  person.at(form, {[&] { accessible(text).setText(QAccessible::Value, QStringLiteral("neu")); },
                   [&] {
                     EXPECT_EQ(text.Text(), u"fest");
                     EXPECT_EQ(field(text).text(), QStringLiteral("fest"));
                   }});
}

// ---- dates

TEST_F(InvalidDates, AreDrawnInTheErrorColourAndTold) {
  const auto colour = [&] { return field(day).palette().color(QPalette::Active, QPalette::Text); };
  const auto told = [&] { return accessible(day).text(QAccessible::Description); };
  person.at(form, {[&] { day.SetFocus(); }, [&] { person.type(u"31.2"); },
                   [&] {
                     EXPECT_EQ(colour(), QColor(0xB0, 0, 0x20));
                     EXPECT_EQ(told(), QStringLiteral("Ungültige Eingabe. Ab wann"));
                     person.key(Qt::Key_Tab);
                   },
                   [&] {
                     EXPECT_EQ(colour(), QApplication::palette().color(QPalette::Text));
                     EXPECT_EQ(told(), QStringLiteral("Ab wann"));
                     EXPECT_EQ(field(day).text(), QString());
                   }});
}

}  // namespace

}  // namespace zqn::qt::testing
