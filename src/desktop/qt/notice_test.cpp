// SPDX-License-Identifier: MIT
//
// The quiet line that says what a writing procedure has passed over.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>

#include "forms/writing_procedure.h"
#include "testing/qt/windows.h"

namespace zqn::qt::testing {

namespace {

class Notice : public ::testing::Test {
 protected:
  Notice() {
    form.btnOK.Click = [this] {
      const WritingProcedure writing(form, u"WriteRecord");
      ResumeNext step;
      step([] { throw RuntimeError(error::RowConflict); });
    };
  }
  QWidget& window() { return *person.desktop.widgetOf(form.btnOK)->window(); }
  QLabel& line() { return *window().findChild<QLabel*>(QStringLiteral("notice")); }

  Person person;
  StatiForm form;
};

TEST_F(Notice, StandsBelowAllControlsTakesNoFocusAndGoesWithTheNextKey) {
  QSize before;
  person.at(form, {[&] {
                     before = window().size();
                     EXPECT_FALSE(line().isVisible());
                     person.click(form.btnOK);
                   },
                   [&] {
                     EXPECT_TRUE(line().isVisible());
                     EXPECT_TRUE(line().text().startsWith("Fehler -2147217864: "))
                         << line().text().toStdString();
                     EXPECT_GE(line().geometry().top(), before.height());
                     EXPECT_LE(line().geometry().bottom(), window().height());
                     EXPECT_EQ(window().width(), before.width());
                     EXPECT_EQ(line().focusPolicy(), Qt::NoFocus);
                     EXPECT_EQ(QApplication::focusWidget(), person.desktop.widgetOf(form.btnOK));
                     EXPECT_EQ(person.desktop.openMessageBox(), nullptr);
                     person.key(Qt::Key_Tab);
                   },
                   [&] {
                     EXPECT_FALSE(line().isVisible());
                     EXPECT_EQ(window().size(), before);
                   }});
}

}  // namespace
}  // namespace zqn::qt::testing
