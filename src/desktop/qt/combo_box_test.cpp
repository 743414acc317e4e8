// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QTest>
#include <QWheelEvent>

#include "testing/qt/entry_form.h"

namespace zqn::qt::testing {

namespace {

class DropDowns : public ::testing::Test {
 protected:
  DropDowns() {
    form.cbo.Click = [this] { ++clicks; };
    form.cmdCancel.Click = [this] { ++cancels; };
  }
  QComboBox& box() { return dynamic_cast<QComboBox&>(*person.desktop.widgetOf(form.cbo)); }
  QAbstractItemView& list() { return *box().view(); }
  /// A key on whatever window hears the keyboard, the open list included.
  void key(int code, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QWidget* const popup = QApplication::activePopupWidget();
    if (popup == nullptr) return person.key(code, held);
    QTest::keyClick(popup->focusWidget() != nullptr ? popup->focusWidget() : popup,
                    static_cast<Qt::Key>(code), held);
  }
  void clickEntry(int row) {
    const QPoint place = list().visualRect(box().model()->index(row, 0)).center();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place);
  }

  Person person;
  EntryForm form;
  int clicks = 0;
  int cancels = 0;
};

TEST_F(DropDowns, OpenByClickBelowTheFieldAndTakeTheEntryClicked) {
  person.at(form, {[&] { person.click(form.cbo); },
                   [&] {
                     EXPECT_TRUE(form.cbo.isOpen());
                     ASSERT_TRUE(list().isVisible());
                     const QPoint below = box().mapToGlobal(QPoint(0, box().height()));
                     EXPECT_GE(list().mapToGlobal(QPoint(0, 0)).y(), below.y() - 2);
                     clickEntry(2);
                   },
                   [&] {
                     EXPECT_EQ(form.cbo.ListIndex(), 2);
                     EXPECT_FALSE(list().isVisible());
                     EXPECT_EQ(box().currentText(), QStringLiteral("keine"));
                     EXPECT_EQ(QApplication::focusWidget(), &box());
                   }});
  EXPECT_EQ(clicks, 1);
}

TEST_F(DropDowns, OpenByF4AndAltDownAndMarkWithoutChoosing) {
  person.at(form, {[&] { form.cbo.SetFocus(); }, [&] { key(Qt::Key_F4); },
                   [&] {
                     ASSERT_TRUE(list().isVisible());
                     key(Qt::Key_Down);
                     key(Qt::Key_Down);
                   },
                   [&] {
                     EXPECT_EQ(list().currentIndex().row(), 1);
                     EXPECT_EQ(form.cbo.ListIndex(), -1);
                     key(Qt::Key_Return);
                   },
                   [&] {
                     EXPECT_FALSE(list().isVisible());
                     EXPECT_EQ(form.cbo.ListIndex(), 1);
                     key(Qt::Key_Down, Qt::AltModifier);
                   },
                   [&] { EXPECT_TRUE(list().isVisible()); }, [&] { key(Qt::Key_Escape); },
                   [&] {
                     EXPECT_FALSE(list().isVisible());
                     EXPECT_EQ(form.cbo.ListIndex(), 1);
                   }});
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(cancels, 0) << "Esc was the list's";
}

TEST_F(DropDowns, ChooseByArrowsAndLettersWhileShut) {
  person.at(form, {[&] { form.cbo.SetFocus(); },
                   [&] {
                     key(Qt::Key_Down);
                     key(Qt::Key_Down);
                     EXPECT_EQ(box().currentIndex(), 1);
                     person.type(u"k");
                   },
                   [&] {
                     EXPECT_EQ(box().currentText(), QStringLiteral("keine"));
                     key(Qt::Key_Escape);
                   }});
  EXPECT_EQ(clicks, 3);
  EXPECT_EQ(cancels, 1);
}

TEST_F(DropDowns, ShutWhenTheListGoesAwayByItself) {
  person.at(form, {[&] { person.click(form.cbo); }, [&] { list().window()->hide(); },
                   [&] {
                     EXPECT_FALSE(form.cbo.isOpen());
                     EXPECT_EQ(form.cbo.ListIndex(), -1);
                   }});
  EXPECT_EQ(clicks, 0);
}

TEST_F(DropDowns, FollowThePointerOverTheOpenList) {
  person.at(
      form,
      {[&] { person.click(form.cbo); },
       [&] { QTest::mouseMove(list().viewport(), list().visualRect(box().model()->index(1, 0)).center()); },
       [&] { EXPECT_EQ(form.cbo.markedEntry(), 1); }, [&] { form.txtKey.SetFocus(); },
       [&] { EXPECT_FALSE(list().isVisible()); }});
}

TEST_F(DropDowns, StayShutWhenValidateKeepsTheFocus) {
  form.txtKey.Validate = [](bool& Cancel) { Cancel = true; };
  person.at(form, {[&] { person.click(form.cbo); }, [&] { EXPECT_FALSE(list().isVisible()); }});
}

TEST_F(DropDowns, ShowWhatCodeMakesOfTheEntries) {
  person.at(form, {[&] {
                     form.cbo.ListIndex(1);
                     form.cbo.Clear();
                   },
                   [&] {
                     EXPECT_EQ(box().count(), 0);
                     form.cbo.AddItem(u"<b>neu</b>");
                     form.cbo.ListIndex(0);
                   },
                   [&] { EXPECT_EQ(box().currentText(), QStringLiteral("<b>neu</b>")); },
                   [&] { form.cbo.Enabled(false); }, [&] { EXPECT_FALSE(box().isEnabled()); }});
}

TEST_F(DropDowns, ChooseNothingByTheWheel) {
  form.cbo.ListIndex(0);
  person.at(form, {[&] { form.cbo.SetFocus(); },
                   [&] {
                     QWheelEvent turn(QPointF(5, 5), box().mapToGlobal(QPointF(5, 5)), {}, {0, -120},
                                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                     QCoreApplication::sendEvent(&box(), &turn);
                   },
                   [&] { EXPECT_EQ(form.cbo.ListIndex(), 0); }});
}

TEST_F(DropDowns, ChosenByAssistiveTechnologyTellTheModel) {
  person.at(form, {[&] { box().setCurrentIndex(2); }, [&] { EXPECT_EQ(form.cbo.ListIndex(), 2); }});
  EXPECT_EQ(clicks, 1);
}

TEST_F(DropDowns, TakenByAClickOnTheEntryThatStandsTellSo) {
  form.cbo.ListIndex(2);
  clicks = 0;
  person.at(form, {[&] { person.click(form.cbo); }, [&] { clickEntry(2); },
                   [&] {
                     EXPECT_EQ(form.cbo.ListIndex(), 2);
                     EXPECT_FALSE(form.cbo.isOpen());
                   }});
  EXPECT_EQ(clicks, 1);
}

TEST_F(DropDowns, SelectedInByAScreenReaderMarkTheEntryOfTheForm) {
  person.at(form, {[&] { person.click(form.cbo); },
                   [&] { QAccessible::queryAccessibleInterface(&list())->tableInterface()->selectRow(1); },
                   [&] {
                     EXPECT_EQ(form.cbo.markedEntry(), 1);
                     EXPECT_EQ(form.cbo.ListIndex(), -1);
                     key(Qt::Key_Return);
                   },
                   [&] { EXPECT_EQ(form.cbo.ListIndex(), 1); }});
  EXPECT_EQ(clicks, 1);
}

TEST_F(DropDowns, LeaveTheKeyboardToTheWindow) {
  form.txtKey.Text(u"abc");
  person.at(form,
            {[&] { person.click(form.cbo); }, [&] { clickEntry(1); }, [&] { person.click(form.txtKey); },
             [&] {
               EXPECT_EQ(QApplication::focusWidget(), person.desktop.widgetOf(form.txtKey));
               person.key(Qt::Key_End);
               person.key(Qt::Key_Left);
             },
             [&] { EXPECT_EQ(form.txtKey.SelStart(), 2); }});
}

TEST_F(DropDowns, RefuseAssistiveTechnologyWhatTheyRefuseAClick) {
  form.txtKey.Validate = [](bool& Cancel) { Cancel = true; };
  person.at(form, {[&] { box().setCurrentIndex(2); },
                   [&] {
                     EXPECT_EQ(form.cbo.ListIndex(), -1);
                     box().showPopup();
                   },
                   [&] { EXPECT_FALSE(form.cbo.isOpen()); }});
  EXPECT_EQ(clicks, 0);
}

TEST_F(DropDowns, AreOpenedByAssistiveTechnology) {
  person.at(form, {[&] { box().showPopup(); }, [&] { EXPECT_TRUE(form.cbo.isOpen()); },
                   [&] { box().hidePopup(); }, [&] { EXPECT_FALSE(form.cbo.isOpen()); }});
}

}  // namespace

}  // namespace zqn::qt::testing
