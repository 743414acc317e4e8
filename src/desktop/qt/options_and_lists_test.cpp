// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCalendarWidget>
#include <QListWidget>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTest>

#include "desktop/qt/day_entry.h"
#include "forms/date_input.h"
#include "forms/list_box.h"
#include "forms/menu.h"
#include "forms/option_button.h"
#include "forms/timer.h"
#include "runtime/convert.h"
#include "testing/qt/windows.h"

namespace zqn::qt::testing {

namespace {

constexpr ControlDesign roster[] = {
    {u"lst", ControlKind::ListBox, u"", 120, 120, 2500, 1200},
    {u"fra", ControlKind::Frame, u"Belegarten", 60, 0, 2700, 1400, {.Overlaps = true}},
    {u"opt(0)", ControlKind::OptionButton, u"&Alle", 120, 1800, 1200, 285, {.Value = true}},
    {u"opt(1)", ControlKind::OptionButton, u"&Einer", 120, 2100, 1200, 285},
    {u"txtDatum", ControlKind::DateInput, u"", 3000, 120, 1185, 315},
    {u"txtName", ControlKind::TextBox, u"", 3000, 600, 1500, 285, {.Locked = true}},
    {u"btn", ControlKind::CommandButton, u"", 3000, 1000, 225, 285, {.ToolTipText = u"Auskunft"}},
    {u"Timer1", ControlKind::Timer, u"", 0, 0, 0, 0, {.Enabled = false, .Interval = 5}},
    {u"mnuPopup", ControlKind::Menu, u"Popup", 0, 0, 0, 0, {.Visible = false}},
    {u"mnuDelete", ControlKind::Menu, u"&Löschen", 0, 0, 0, 0, {.Container = u"mnuPopup"}},
};
constexpr FormDesign design{u"frmLists", u"Listen", 5400, 3300, roster};

class OptionsAndLists : public ::testing::Test {
 protected:
  OptionsAndLists() {
    for (const char16_t* text : {u"Angebot", u"Auftrag", u"Rechnung", u"Gutschrift"}) lst.AddItem(text);
  }
  QListWidget& list() { return dynamic_cast<QListWidget&>(*person.desktop.widgetOf(lst)); }
  void clickRow(int row, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QTest::mouseClick(list().viewport(), Qt::LeftButton, held,
                      list().visualItemRect(list().item(row)).center());
  }
  std::string selected() const {
    std::string rows;
    for (int i = 0; i < lst.ListCount(); ++i) rows += lst.Selected(i) ? std::to_string(i) : "";
    return rows;
  }

  Person person;
  Form form{design};
  ListBox& lst = form.Get<ListBox>(u"lst");
  OptionButton& first = form.Get<OptionButton>(u"opt", 0);
  OptionButton& second = form.Get<OptionButton>(u"opt", 1);
  DateInput& date = form.Get<DateInput>(u"txtDatum");
  TextBox& name = form.Get<TextBox>(u"txtName");
};

TEST_F(OptionsAndLists, RowsAreSelectedByMouseOverTheFrameBehindThem) {
  person.at(form, {[&] { clickRow(1); }, [&] { clickRow(3, Qt::ControlModifier); },
                   [&] { EXPECT_EQ(selected(), "13"); }, [&] { clickRow(0, Qt::ShiftModifier); },
                   [&] {
                     EXPECT_EQ(selected(), "0123");
                     EXPECT_TRUE(list().item(2)->isSelected());
                   },
                   [&] { person.key(Qt::Key_End); }, [&] { EXPECT_EQ(selected(), "3"); }});
}

TEST_F(OptionsAndLists, AScreenReaderSelectsByTheModelsRules) {
  int clicks = 0;
  lst.Click = [&] { ++clicks; };
  person.at(form, {[&] { list().item(2)->setSelected(true); },
                   [&] {
                     EXPECT_EQ(selected(), "2");
                     EXPECT_EQ(clicks, 1);
                     dynamic_cast<QRadioButton&>(*person.desktop.widgetOf(second)).setChecked(true);
                   },
                   [&] {
                     EXPECT_TRUE(second.Value());
                     EXPECT_FALSE(first.Value());
                   }});
}

TEST_F(OptionsAndLists, ASelectionThatTheFormDoesNotHaveIsADifference) {
  person.at(form, {[&] {
              {
                const QSignalBlocker silently(list());
                list().item(2)->setSelected(true);
              }
              const QString differences = person.desktop.differences(form);
              EXPECT_TRUE(differences.contains(QLatin1String("Selected is \"1\", not \"0\"")));
              EXPECT_TRUE(differences.contains(QLatin1String("cell 2,0 marked is \"1\", not \"0\"")));
              const QSignalBlocker silently(list());
              list().item(2)->setSelected(false);
            }});
}

TEST_F(OptionsAndLists, OptionsFollowMouseArrowsAndAccessKeys) {
  person.at(form, {[&] { person.click(second); }, [&] { EXPECT_TRUE(second.Value()); },
                   [&] { person.key(Qt::Key_Up); }, [&] { EXPECT_TRUE(first.Value()); },
                   [&] { person.key(Qt::Key_E, Qt::AltModifier); },
                   [&] {
                     EXPECT_TRUE(second.Value());
                     EXPECT_EQ(form.ActiveControl(), &second);
                   }});
}

TEST_F(OptionsAndLists, ADateHasACalendar) {
  date.Value(u"20260305000000");
  QCalendarWidget* calendar = nullptr;
  person.at(form, {[&] { date.SetFocus(); }, [&] { person.key(Qt::Key_F4); },
                   [&] {
                     calendar = dynamic_cast<DayEntry&>(*person.desktop.widgetOf(date)).calendar();
                     ASSERT_NE(calendar, nullptr);
                     EXPECT_EQ(calendar->selectedDate(), QDate(2026, 3, 5));
                     emit calendar->clicked(QDate(2026, 4, 1));
                   },
                   [&] { EXPECT_EQ(date.Value(), Variant(u"20260401000000")); }});
}

TEST_F(OptionsAndLists, ALockedFieldIsNotEdited) {
  name.Text(u"Werft");
  person.at(form, {[&] { name.SetFocus(); },
                   [&] {
                     person.type(u"abc");
                     person.key(Qt::Key_Delete);
                   },
                   [&] { EXPECT_EQ(name.Text(), u"Werft"); }});
}

TEST_F(OptionsAndLists, AButtonWithAPictureHasItsTipAsItsName) {
  person.at(form, {[&] {
              const QAccessibleInterface* button =
                  QAccessible::queryAccessibleInterface(person.desktop.widgetOf(form.control(u"btn")));
              EXPECT_EQ(button->text(QAccessible::Name), QStringLiteral("Auskunft"));
            }});
}

TEST_F(OptionsAndLists, TimersWakeAWaitingWindow) {
  Timer& timer = form.Get<Timer>(u"Timer1");
  int ticks = 0;
  timer.Tick = [&] {
    if (++ticks == 3) form.UnloadMe();
  };
  timer.Enabled(true);
  person.desktop.whenIdle({});
  form.Show();
  EXPECT_EQ(ticks, 3);
}

TEST_F(OptionsAndLists, AMenuIsTakenByKeysAndLeftByEsc) {
  Menu& popup = form.Get<Menu>(u"mnuPopup");
  int taken = 0;
  form.Get<Menu>(u"mnuDelete").Click = [&] { ++taken; };
  form.KeyDown = [&](int& code, int) {
    if (code == key::F9) form.PopupMenu(popup);
  };
  const auto keyInMenu = [&](Qt::Key code) { QTest::keyClick(person.desktop.openMenu(), code); };
  person.at(form, {[&] { person.key(Qt::Key_F9); },
                   [&] {
                     ASSERT_NE(person.desktop.openMenu(), nullptr);
                     keyInMenu(Qt::Key_Down);
                     keyInMenu(Qt::Key_Return);
                   },
                   [&] {
                     EXPECT_EQ(taken, 1);
                     EXPECT_EQ(person.desktop.openMenu(), nullptr);
                     person.key(Qt::Key_F9);
                   },
                   [&] { keyInMenu(Qt::Key_Escape); },
                   [&] {
                     EXPECT_EQ(taken, 1);
                     EXPECT_EQ(person.desktop.openMenu(), nullptr);
                   }});
}

}  // namespace

}  // namespace zqn::qt::testing
