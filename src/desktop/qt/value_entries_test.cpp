// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include "desktop/qt/day_entry.h"
#include "runtime/convert.h"
#include "testing/qt/entry_form.h"

namespace zqn::qt::testing {

namespace {

class ValueEntries : public ::testing::Test {
 protected:
  QLineEdit& field(Control& model) { return dynamic_cast<QLineEdit&>(*person.desktop.widgetOf(model)); }
  std::string shown(Control& model) { return field(model).text().toStdString(); }
  QCalendarWidget* calendar() {
    return dynamic_cast<qt::DayEntry&>(*person.desktop.widgetOf(form.date)).calendar();
  }
  void paste(const char* text) {
    QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
    person.key(Qt::Key_V, Qt::ControlModifier);
  }
  static Variant day(int year, int month, int ofMonth) { return Variant(dateSerial(year, month, ofMonth)); }

  Person person;
  EntryForm form;
};

using Numbers = ValueEntries;
using Dates = ValueEntries;

// ---- numbers

TEST_F(Numbers, AreFormattedAtTheRightAndSelectedWhenTheFocusComes) {
  form.percent.Value(Variant(2.5));
  person.at(form, {[&] {
                     EXPECT_EQ(shown(form.percent), "2,50");
                     EXPECT_TRUE(field(form.percent).alignment() & Qt::AlignRight);
                     person.click(form.percent);
                   },
                   [&] { EXPECT_EQ(field(form.percent).selectedText(), QStringLiteral("2,50")); },
                   [&] { person.type(u"3.5"); },
                   [&] {
                     EXPECT_EQ(shown(form.percent), "3,5");
                     EXPECT_EQ(form.percent.Value(), Variant(3.5));
                     person.key(Qt::Key_Tab);
                   },
                   [&] { EXPECT_EQ(shown(form.percent), "3,50"); }});
}

TEST_F(Numbers, RefuseWhatIsNoNumberOfTheFormat) {
  int changes = 0;
  form.days.Change = [&] { ++changes; };
  person.at(form, {[&] { person.click(form.days); }, [&] { person.type(u"1x2-,3.45"); },
                   [&] {
                     EXPECT_EQ(shown(form.days), "1234");
                     EXPECT_EQ(changes, 4);
                     paste("abc");
                     paste("12");
                   },
                   [&] { EXPECT_EQ(shown(form.days), "1234"); },
                   [&] {
                     person.key(Qt::Key_A, Qt::ControlModifier);
                     paste(" 90\r\n");
                   },
                   [&] { EXPECT_EQ(form.days.Value(), Variant(90.0)); }});
}

TEST_F(Numbers, TheKeypadsSignIsTheDecimalSign) {
  person.at(form, {[&] { person.click(form.percent); },
                   [&] {
                     person.type(u"1");
                     QKeyEvent point(QEvent::KeyPress, Qt::Key_Period, Qt::KeypadModifier,
                                     QStringLiteral("."));
                     QCoreApplication::sendEvent(&field(form.percent), &point);
                     person.type(u"5");
                   },
                   [&] { EXPECT_EQ(form.percent.Value(), Variant(1.5)); }});
}

TEST_F(Numbers, KeysThatDoNotEditChangeNothing) {
  form.days.Value(Variant(14.0));
  int changes = 0;
  form.days.Change = [&] { ++changes; };
  form.days.ValueChange = [&] { ++changes; };
  person.at(form, {[&] { form.days.SetFocus(); },
                   [&] {
                     for (const int key : {Qt::Key_F4, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End})
                       person.key(key);
                   },
                   [&] { EXPECT_EQ(shown(form.days), "14"); }});
  EXPECT_EQ(changes, 0);
}

TEST_F(Numbers, EmptiedShowZeroWhenLeftAndAreNull) {
  form.days.Value(Variant(14.0));
  person.at(form, {[&] { person.click(form.days); }, [&] { person.key(Qt::Key_Delete); },
                   [&] {
                     EXPECT_EQ(shown(form.days), "");
                     person.key(Qt::Key_Tab);
                   },
                   [&] {
                     EXPECT_EQ(shown(form.days), "0");
                     EXPECT_TRUE(form.days.Value().isNull());
                   }});
}

TEST_F(Numbers, UndoByCtrlZ) {
  person.at(form, {[&] { person.click(form.days); }, [&] { person.type(u"7"); },
                   [&] { person.key(Qt::Key_Z, Qt::ControlModifier); },
                   [&] { EXPECT_TRUE(form.days.Value().isNull()); }});
}

TEST_F(Numbers, WhatAssistiveTechnologyWritesIsHeldAgainstTheFormat) {
  person.at(form, {[&] { field(form.days).setText(QStringLiteral("vierzehn")); },
                   [&] {
                     EXPECT_EQ(shown(form.days), "0");
                     field(form.days).setText(QStringLiteral("14"));
                   },
                   [&] { EXPECT_EQ(form.days.Value(), Variant(14.0)); }});
}

TEST_F(Numbers, AreNamedByTheWordsOfTheirLine) {
  person.at(form, {[&] {
              EXPECT_EQ(field(form.days).accessibleName(), QStringLiteral("1: Tage"));
              EXPECT_EQ(field(form.percent).accessibleName(), QStringLiteral("1: %"));
            }});
}

// ---- dates

TEST_F(Dates, StandBehindTheirCaptionWithAMaskWhileEmpty) {
  person.at(form, {[&] {
                     EXPECT_EQ(shown(form.date), "__.__.____");
                     EXPECT_EQ(field(form.date).accessibleName(), QStringLiteral("Gültig von:"));
                     const int caption =
                         field(form.date).fontMetrics().horizontalAdvance(QStringLiteral("Gültig von:"));
                     form.date.SetFocus();
                     EXPECT_GT(field(form.date).inputMethodQuery(Qt::ImCursorRectangle).toRect().x(),
                               caption);
                   },
                   [&] { EXPECT_EQ(shown(form.date), ""); }, [&] { person.type(u"240126"); },
                   [&] {
                     EXPECT_EQ(form.date.Value(), day(2026, 1, 24));
                     person.key(Qt::Key_Tab);
                   },
                   [&] { EXPECT_EQ(shown(form.date), "24.01.2026"); }});
}

TEST_F(Dates, TakeTodayByF2AndEmptyByF3) {
  person.at(form, {[&] { person.click(form.date, QPoint(field(form.date).width() / 2, 8)); },
                   [&] { person.key(Qt::Key_F2); },
                   [&] {
                     EXPECT_EQ(form.date.Value(), Variant(Today()));
                     person.key(Qt::Key_F3);
                   },
                   [&] { EXPECT_EQ(shown(form.date), ""); }});
}

TEST_F(Dates, GiveWayToTheFormerValueWhenTheTextIsNoDay) {
  form.date.Value(day(2026, 1, 24));
  person.at(form, {[&] { form.date.SetFocus(); }, [&] { person.type(u"99"); },
                   [&] { person.key(Qt::Key_Tab); }, [&] { EXPECT_EQ(shown(form.date), "24.01.2026"); }});
}

TEST_F(Dates, AreTakenFromACalendarThatF4Opens) {
  form.date.Value(day(2026, 1, 24));
  person.at(form, {[&] { form.date.SetFocus(); }, [&] { person.key(Qt::Key_F4); },
                   [&] {
                     ASSERT_NE(calendar(), nullptr);
                     EXPECT_EQ(calendar()->selectedDate(), QDate(2026, 1, 24));
                     QWidget& days = *calendar()->focusWidget();
                     QTest::keyClick(&days, Qt::Key_Right);
                     QTest::keyClick(&days, Qt::Key_Return);
                   },
                   [&] {
                     EXPECT_EQ(calendar(), nullptr);
                     EXPECT_EQ(form.date.Value(), day(2026, 1, 25));
                     EXPECT_EQ(QApplication::focusWidget(), &field(form.date));
                   }});
}

TEST_F(Dates, KeepTheirValueWhenTheCalendarIsLeftByEscape) {
  bool closed = false;
  form.cmdCancel.Click = [&] { closed = true; };
  person.at(form, {[&] { form.date.SetFocus(); }, [&] { person.key(Qt::Key_F4); },
                   [&] { QTest::keyClick(calendar()->focusWidget(), Qt::Key_Escape); },
                   [&] {
                     EXPECT_EQ(calendar(), nullptr);
                     EXPECT_TRUE(form.date.Value().isNull());
                   }});
  EXPECT_FALSE(closed);
}

TEST_F(Dates, OpenTheCalendarByTheirButtonWhenValidateAgrees) {
  bool refuse = true;
  form.txtKey.Validate = [&](bool& Cancel) { Cancel = refuse; };
  const auto press = [&] { QTest::mouseClick(field(form.date).findChild<QToolButton*>(), Qt::LeftButton); };
  person.at(form, {press,
                   [&] {
                     EXPECT_EQ(calendar(), nullptr);
                     refuse = false;
                     press();
                   },
                   [&] {
                     ASSERT_NE(calendar(), nullptr);
                     EXPECT_EQ(form.ActiveControl(), &form.date);
                     calendar()->hide();
                   }});
}

}  // namespace

}  // namespace zqn::qt::testing
