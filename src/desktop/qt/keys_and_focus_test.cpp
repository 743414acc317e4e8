// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include "forms/message_box.h"
#include "testing/qt/windows.h"

namespace zqn::qt::testing {

namespace {

using ::testing::ElementsAre;

TEST(Focus, StartsOnTheFirstControlAndTabFollowsTheRoster) {
  Person person;
  StatiForm form;
  std::vector<std::string> order;
  const auto note = [&] { order.push_back(toUtf8(form.ActiveControl()->Name())); };
  const auto tab = [&] {
    note();
    person.key(Qt::Key_Tab);
  };
  person.at(form, {tab, tab, tab, tab, tab, tab, note});
  // The disabled field is passed over.
  EXPECT_THAT(order, ElementsAre("TDBList1", "Schluessel", "Kurztext", "AutoOverwrite", "btnOK", "btnCancel",
                                 "TDBList1"));
}

TEST(Focus, IsWhereDoEventsFindsItForWhatWaits) {
  Person person;
  StatiForm form;
  form.Activate = [&] {
    form.Schluessel.SetFocus();
    QWidget* const field = person.desktop.widgetOf(form.Schluessel);
    QCoreApplication::postEvent(field, new QKeyEvent(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, "1"));
    person.desktop.sendKeys(u"2");
    person.desktop.doEvents();
    EXPECT_EQ(form.Schluessel.Text(), u"12");
    form.Kurztext.SetFocus();
  };
  person.at(form, {[&] { EXPECT_EQ(form.ActiveControl(), &form.Kurztext); }});
  EXPECT_EQ(form.Schluessel.Text(), u"12");
}

TEST(Focus, ShiftTabGoesBack) {
  Person person;
  StatiForm form;
  person.at(form, {[&] { person.key(Qt::Key_Backtab, Qt::ShiftModifier); },
                   [&] {
                     EXPECT_EQ(form.ActiveControl(), &form.btnCancel);
                     EXPECT_EQ(QApplication::focusWidget(), person.desktop.widgetOf(form.btnCancel));
                   }});
}

TEST(Focus, MovesByClickWhenTheFormAgrees) {
  Person person;
  StatiForm form;
  std::vector<std::string> events;
  form.TDBList1.LostFocus = [&] { events.push_back("list lost"); };
  form.Kurztext.GotFocus = [&] { events.push_back("text got"); };
  form.Kurztext.Click = [&] { events.push_back("text click"); };
  person.at(form, {[&] { person.click(form.Kurztext); },
                   [&] { EXPECT_EQ(QApplication::focusWidget(), person.desktop.widgetOf(form.Kurztext)); }});
  EXPECT_THAT(events, ElementsAre("list lost", "text got", "text click"));
}

TEST(Focus, StaysWhereValidateKeepsIt) {
  Person person;
  StatiForm form;
  bool saved = false;
  form.Schluessel.Validate = [&](bool& Cancel) { Cancel = form.Schluessel.Text().empty(); };
  form.btnOK.Click = [&] { saved = true; };
  person.at(form, {[&] { person.click(form.Schluessel); }, [&] { person.click(form.btnOK); },
                   [&] {
                     EXPECT_EQ(form.ActiveControl(), &form.Schluessel);
                     EXPECT_FALSE(saved);
                     person.key(Qt::Key_Tab);
                   },
                   [&] {
                     EXPECT_EQ(form.ActiveControl(), &form.Schluessel);
                     person.type(u"1");
                   },
                   [&] { person.click(form.btnOK); }, [&] { EXPECT_TRUE(saved); }});
}

TEST(Focus, MessageBoxInValidateSwallowsTheClick) {
  Person person;
  StatiForm form;
  int saved = 0;
  form.Schluessel.Validate = [&](bool&) { MsgBox(u"Bitte prüfen.", msgbox::Information, u"Stati"); };
  form.btnOK.Click = [&] { ++saved; };
  person.at(form, {[&] { person.click(form.Schluessel); }, [&] { person.click(form.btnOK); },
                   [&] { person.answer(MsgBoxResult::OK); },
                   [&] {
                     EXPECT_EQ(saved, 0);
                     EXPECT_EQ(form.ActiveControl(), &form.btnOK);
                     person.click(form.btnOK);
                   },
                   [&] { EXPECT_EQ(saved, 1); }});
}

TEST(Focus, ComesBackAfterAMessageBox) {
  Person person;
  StatiForm form;
  form.btnOK.Click = [&] {
    MsgBox(u"Gespeichert.", msgbox::Information, u"Stati");
    form.Kurztext.SetFocus();
  };
  person.at(form, {[&] { person.click(form.btnOK); }, [&] { person.answer(MsgBoxResult::OK); },
                   [&] {
                     EXPECT_EQ(QApplication::activeWindow(), person.desktop.windowOf(form));
                     EXPECT_EQ(QApplication::focusWidget(), person.desktop.widgetOf(form.Kurztext));
                     person.type(u"a");
                     EXPECT_EQ(form.Kurztext.Text(), u"a");
                   }});
}

TEST(Focus, LeavesAControlThatIsDisabledOrHidden) {
  Person person;
  StatiForm form;
  person.at(form, {[&] { person.click(form.Schluessel); }, [&] { form.Schluessel.Enabled(false); },
                   [&] {
                     EXPECT_EQ(form.ActiveControl(), &form.Kurztext);
                     form.Kurztext.Visible(false);
                   },
                   [&] { EXPECT_EQ(form.ActiveControl(), &form.AutoOverwrite); }});
}

TEST(Focus, ThatAScreenReaderMovesIsTheForms) {
  Person person;
  StatiForm form;
  bool validated = false;
  form.TDBList1.Validate = [&](bool&) { validated = true; };
  person.at(form, {[&] { person.desktop.widgetOf(form.Kurztext)->setFocus(); },
                   [&] {
                     EXPECT_EQ(form.ActiveControl(), &form.Kurztext);
                     EXPECT_TRUE(validated);
                   }});
}

TEST(Focus, DisabledControlsTakeNoClick) {
  Person person;
  StatiForm form;
  form.btnOK.Enabled(false);
  int clicks = 0;
  form.btnOK.Click = [&] { ++clicks; };
  form.Gesperrt.Click = [&] { ++clicks; };
  person.at(form, {[&] { person.click(form.Gesperrt); }, [&] { person.click(form.btnOK); },
                   [&] { EXPECT_EQ(form.ActiveControl(), &form.TDBList1); }});
  EXPECT_EQ(clicks, 0);
}

TEST(Keys, EscPressesTheCancelButton) {
  Person person;
  StatiForm form;
  person.at(form, {[&] { person.key(Qt::Key_Escape); }});
  EXPECT_FALSE(form.Visible());
}

TEST(Keys, EnterCanWalkOnByAQueuedTab) {
  Person person;
  StatiForm form;
  form.KeyPress = [&](int& KeyAscii) {
    if (KeyAscii != key::Enter) return;
    person.desktop.sendKeys(u"{Tab}");
    KeyAscii = 0;
  };
  person.at(form, {[&] { person.click(form.Schluessel); }, [&] { person.key(Qt::Key_Return); },
                   [&] {
                     EXPECT_EQ(form.ActiveControl(), &form.Kurztext);
                     person.key(Qt::Key_Enter, Qt::KeypadModifier);
                   },
                   [&] { EXPECT_EQ(form.ActiveControl(), &form.AutoOverwrite); }});
}

TEST(Keys, ReachTheFormBeforeTheControlWithTheirShiftState) {
  Person person;
  StatiForm form;
  std::vector<std::string> events;
  const auto note = [&](const char* what, int code, int held) {
    events.push_back(what + std::to_string(code) + "/" + std::to_string(held));
  };
  form.KeyDown = [&](int& KeyCode, int Shift) { note("form down ", KeyCode, Shift); };
  form.KeyPress = [&](int& KeyAscii) { note("form press ", KeyAscii, 0); };
  form.KeyUp = [&](int KeyCode, int Shift) { note("form up ", KeyCode, Shift); };
  form.Schluessel.KeyDown = [&](int& KeyCode, int Shift) { note("key down ", KeyCode, Shift); };
  form.Schluessel.KeyPress = [&](int& KeyAscii) { note("key press ", KeyAscii, 0); };
  form.Schluessel.Change = [&] { events.push_back("change"); };
  form.Schluessel.KeyUp = [&](int KeyCode, int Shift) { note("key up ", KeyCode, Shift); };
  person.at(form, {[&] { person.click(form.Schluessel); }, [&] { person.type(u"a"); }});
  EXPECT_THAT(events, ElementsAre("form down 65/0", "key down 65/0", "form press 97/0", "key press 97/0",
                                  "change", "form up 65/0", "key up 65/0"));
  events.clear();
  person.at(form, {[&] { person.click(form.Schluessel); },
                   [&] { person.key(Qt::Key_F9, Qt::ShiftModifier | Qt::ControlModifier); }});
  EXPECT_THAT(events, ElementsAre("form down 16/1", "key down 16/1", "form down 17/3", "key down 17/3",
                                  "form down 120/3", "key down 120/3", "form up 120/3", "key up 120/3",
                                  "form up 17/1", "key up 17/1", "form up 16/0", "key up 16/0"));
}

TEST(Keys, OfAHandlerThatFailsTellThePersonAndTheFormStays) {
  Person person;
  StatiForm form;
  form.KeyDown = [&](int& KeyCode, int) {
    if (KeyCode == key::F6) throw RuntimeError(3021);
  };
  person.at(form, {[&] { person.key(Qt::Key_F6); },
                   [&] {
                     ASSERT_NE(person.desktop.openBox(), nullptr);
                     EXPECT_EQ(person.desktop.openBox()->windowTitle(), QStringLiteral("TALVEX Software"));
                     EXPECT_EQ(person.desktop.openBox()->icon(), QMessageBox::Critical);
                     EXPECT_TRUE(person.desktop.openBox()->text().startsWith(
                         QStringLiteral("Laufzeitfehler '3021':\n\n")));
                     person.answer(MsgBoxResult::OK);
                   },
                   [&] { EXPECT_TRUE(form.Visible()); }});
}

TEST(Keys, AFaultOfTheProgramComesOutOfTheModalCall) {
  Person person;
  StatiForm form;
  form.btnOK.Click = [] { throw std::logic_error("a defect"); };
  EXPECT_THROW(person.at(form, {[&] { person.click(form.btnOK); }}), std::logic_error);
}

TEST(Buttons, TakeMouseSpaceAndEnter) {
  Person person;
  StatiForm form;
  int saved = 0;
  form.btnOK.Click = [&] { ++saved; };
  person.at(form, {[&] { person.click(form.btnOK); },
                   [&] {
                     EXPECT_EQ(saved, 1);
                     person.key(Qt::Key_Space);
                   },
                   [&] {
                     EXPECT_EQ(saved, 2);
                     person.key(Qt::Key_Return);
                   },
                   [&] { EXPECT_EQ(saved, 3); }});
}

TEST(Buttons, LetGoOutsideAreNotPressed) {
  Person person;
  StatiForm form;
  int saved = 0;
  form.btnOK.Click = [&] { ++saved; };
  const auto button = [&]() -> QPushButton& {
    return dynamic_cast<QPushButton&>(*person.desktop.widgetOf(form.btnOK));
  };
  person.at(form, {[&] { person.press(form.btnOK); },
                   [&] {
                     EXPECT_TRUE(button().isDown());
                     person.release(form.btnCancel);
                   },
                   [&] {
                     EXPECT_FALSE(button().isDown());
                     EXPECT_EQ(saved, 0);
                     EXPECT_EQ(form.ActiveControl(), &form.btnOK);
                   }});
}

TEST(Buttons, PressedByAssistiveTechnologyTakeTheFocusFirst) {
  Person person;
  StatiForm form;
  Control* active = nullptr;
  form.btnOK.Click = [&] { active = form.ActiveControl(); };
  person.at(form, {[&] { dynamic_cast<QPushButton&>(*person.desktop.widgetOf(form.btnOK)).click(); }});
  EXPECT_EQ(active, &form.btnOK);
}

TEST(CheckBoxes, SwitchByMouseAnywhereAndBySpace) {
  Person person;
  StatiForm form;
  form.AutoOverwrite.Value(2);
  person.at(form, {[&] {
                     const int right = person.desktop.widgetOf(form.AutoOverwrite)->width() - 2;
                     person.click(form.AutoOverwrite, QPoint(right, 4));
                   },
                   [&] {
                     EXPECT_EQ(form.AutoOverwrite.Value(), 0);
                     person.key(Qt::Key_Space);
                   },
                   [&] { EXPECT_EQ(form.AutoOverwrite.Value(), 1); }});
}

TEST(CheckBoxes, SwitchedByAssistiveTechnologyFollowTheModel) {
  Person person;
  StatiForm form;
  int clicks = 0;
  form.AutoOverwrite.Click = [&] { ++clicks; };
  const auto toggle = [&] {
    dynamic_cast<QAbstractButton&>(*person.desktop.widgetOf(form.AutoOverwrite)).toggle();
  };
  person.at(form, {toggle,
                   [&] {
                     EXPECT_EQ(form.AutoOverwrite.Value(), 1);
                     EXPECT_EQ(form.ActiveControl(), &form.AutoOverwrite);
                     EXPECT_EQ(clicks, 1);
                     form.TDBList1.SetFocus();
                     form.AutoOverwrite.Validate = nullptr;
                     form.TDBList1.Validate = [](bool& Cancel) { Cancel = true; };
                   },
                   toggle, [&] { EXPECT_EQ(form.AutoOverwrite.Value(), 1); }});
}

TEST(Windows, OfAFormThatRefusesItsCloseBoxStay) {
  Person person;
  StatiForm form;
  bool refuse = true;
  int mode = -1;
  form.QueryUnload = [&](int& Cancel, int UnloadMode) {
    Cancel = refuse;
    mode = UnloadMode;
  };
  person.at(form, {[&] { person.desktop.windowOf(form)->close(); },
                   [&] {
                     EXPECT_TRUE(person.desktop.windowOf(form)->isVisible());
                     EXPECT_EQ(mode, static_cast<int>(UnloadMode::CloseBox));
                     refuse = false;
                   }});
}

TEST(Windows, NestAndHandTheFocusBack) {
  Person person;
  StatiForm outer;
  StatiForm inner;
  outer.btnOK.Click = [&] { inner.Show(); };
  person.at(outer, {[&] { person.click(outer.btnOK); },
                    [&] {
                      EXPECT_EQ(person.desktop.activeForm(), &inner);
                      EXPECT_EQ(QApplication::activeWindow(), person.desktop.windowOf(inner));
                      person.key(Qt::Key_Escape);
                    },
                    [&] {
                      EXPECT_EQ(person.desktop.windowOf(inner), nullptr);
                      EXPECT_EQ(QApplication::activeWindow(), person.desktop.windowOf(outer));
                      EXPECT_EQ(QApplication::focusWidget(), person.desktop.widgetOf(outer.btnOK));
                    }});
}

TEST(Windows, FollowTheFormsCaptionAndSize) {
  Person person;
  StatiForm form;
  person.at(form, {[&] {
                     form.Caption(u"Größer");
                     form.Height(form.Height() + 1500);
                   },
                   [&] {
                     const QDialog& window = *person.desktop.windowOf(form);
                     EXPECT_EQ(window.windowTitle(), QStringLiteral("Größer"));
                     EXPECT_EQ(window.height(), qRound(6645 / person.desktop.TwipsPerPixelY()));
                   }});
}

TEST(Windows, ThatStandBelowAMessageBoxOfAClosedFormAreGone) {
  Person person;
  StatiForm form;
  bool shown = true;
  form.btnOK.Click = [&] {
    form.UnloadMe();
    MsgBox(u"Fertig.", msgbox::OKOnly, u"Stati");
  };
  const QDialog* window = nullptr;
  person.at(form, {[&] {
                     window = person.desktop.windowOf(form);
                     person.click(form.btnOK);
                   },
                   [&] {
                     shown = window->isVisible();
                     person.answer(MsgBoxResult::OK);
                   }});
  EXPECT_FALSE(shown);
}

}  // namespace

}  // namespace zqn::qt::testing
