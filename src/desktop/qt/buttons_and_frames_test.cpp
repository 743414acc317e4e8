// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QGroupBox>
#include <QPushButton>

#include "testing/qt/entry_form.h"

namespace zqn::qt::testing {

namespace {

class ToggleButtons : public ::testing::Test {
 protected:
  QPushButton& button() { return dynamic_cast<QPushButton&>(*person.desktop.widgetOf(form.tgl)); }

  Person person;
  EntryForm form;
};

class Frames : public ::testing::Test {
 protected:
  QWidget& widget(Control& control) { return *person.desktop.widgetOf(control); }

  Person person;
  EntryForm form;
};

TEST_F(ToggleButtons, SwitchByClickAndSpaceAndAreSeenToBeDown) {
  int changes = 0;
  form.tgl.Change = [&] { ++changes; };
  person.at(form, {[&] { person.click(form.tgl); },
                   [&] {
                     EXPECT_TRUE(form.tgl.Value());
                     EXPECT_TRUE(button().isChecked());
                     EXPECT_EQ(QApplication::focusWidget(), &button());
                     person.key(Qt::Key_Space);
                   },
                   [&] {
                     EXPECT_FALSE(form.tgl.Value());
                     EXPECT_FALSE(button().isChecked());
                     person.key(Qt::Key_Return);
                   },
                   [&] { form.tgl.Value(true); }, [&] { EXPECT_TRUE(button().isChecked()); }});
  EXPECT_EQ(changes, 3);
}

TEST_F(ToggleButtons, LookOtherwiseWhileDown) {
  QImage up, down;
  person.at(form, {[&] { up = button().grab().toImage(); }, [&] { form.tgl.Value(true); },
                   [&] { down = button().grab().toImage(); }});
  EXPECT_NE(up, down);
}

TEST_F(ToggleButtons, ReleasedOutsideStayAsTheyAre) {
  person.at(form, {[&] { person.press(form.tgl); }, [&] { person.release(form.txtKey); },
                   [&] { EXPECT_FALSE(form.tgl.Value()); }});
}

TEST_F(ToggleButtons, SwitchedByAssistiveTechnologyTellTheModel) {
  person.at(form, {[&] { button().setChecked(true); }, [&] { EXPECT_TRUE(form.tgl.Value()); }});
}

TEST_F(ToggleButtons, AreNamedByTheirCaption) {
  person.at(form, {[&] { EXPECT_EQ(button().accessibleName(), QStringLiteral("AN")); }});
}

TEST_F(Frames, HoldTheirControlsAtPlacesOfTheirOwn) {
  person.at(form, {[&] {
              EXPECT_EQ(widget(form.lblFra).parentWidget(), &widget(form.fra));
              EXPECT_EQ(widget(form.inner).x(), qRound(150 / person.desktop.TwipsPerPixelX()));
              EXPECT_EQ(widget(form.fra).accessibleName(), QStringLiteral("A & B"));
              EXPECT_EQ(widget(form.inner).accessibleName(), QStringLiteral("Im Rahmen"));
            }});
}

TEST_F(Frames, HiddenOrDisabledTakeTheirControlsAlong) {
  person.at(form, {[&] { person.click(form.inner); },
                   [&] {
                     EXPECT_EQ(QApplication::focusWidget(), &widget(form.inner));
                     form.fra.Enabled(false);
                   },
                   [&] {
                     EXPECT_FALSE(widget(form.inner).isEnabled());
                     EXPECT_EQ(form.ActiveControl(), &form.cmdCancel);
                     form.fra.Enabled(true);
                     form.fra.Visible(false);
                   },
                   [&] {
                     EXPECT_FALSE(widget(form.lblFra).isVisible());
                     form.fra.Visible(true);
                   },
                   [&] { EXPECT_TRUE(widget(form.lblFra).isVisible()); }});
}

TEST_F(Frames, AClickOnWhatStandsInThemIsNoneOnThem) {
  int labelClicks = 0;
  int frameClicks = 0;
  form.lblFra.Click = [&] { ++labelClicks; };
  form.fra.Click = [&] { ++frameClicks; };
  person.at(form, {[&] { person.click(form.lblFra); },
                   [&] { person.click(form.fra, QPoint(widget(form.fra).width() - 20, 40)); }});
  EXPECT_EQ(labelClicks, 1);
  EXPECT_EQ(frameClicks, 1);
}

}  // namespace

}  // namespace zqn::qt::testing
