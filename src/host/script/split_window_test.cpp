// SPDX-License-Identifier: MIT
//
// The quantity split in its window: what a person reads with the pointer on it or by assistive technology.
#include <QAccessible>
#include <QString>
#include <QWidget>

#include "desktop/qt/qt_desktop.h"
#include "split/frm_aufteilung_snch.h"
#include "testing/script/script_test.h"

namespace zqn::script {
namespace {

class SplitWindow : public ScriptTest {
 protected:
  SplitWindow() {
    split.Aufteilung = u"2|\"Stk\"|\"L-1\"|\"\"|\"\"\r\n3|\"Stk\"|\"L-2\"|\"\"|\"\"";
    split.Gmenge = 9.0;
    split.ME = u"Stk";
    split.Aufteilungsart = std::int32_t{1};
  }
  /// Runs a script; `look` runs when F2 comes up.
  void run(const std::string& script, const std::function<void()>& look) {
    split.control(u"txtEdit").KeyUp = [&](int code, int) {
      if (code == key::F2) look();
    };
    ScriptTest::run(script, [this] { split.ShowData(); });
    EXPECT_FALSE(failed);
  }
  QWidget& widget(StringView control) {
    return *dynamic_cast<qt::QtDesktop&>(scriptDesktop->desktop()).widgetOf(split.control(control));
  }
  QAccessibleInterface& told(StringView control) {
    return *QAccessible::queryAccessibleInterface(&widget(control));
  }

  frmAufteilungSNCH split;
};

TEST_F(SplitWindow, TheEditorSaysWhereItStands) {
  QString name;
  run(R"({"mouse":"MSHFlexGrid1","row":1,"col":3}
         {"key":"Down"}
         {"wait":5}
         {"key":"F2"})",
      [&] { name = told(u"txtEdit").text(QAccessible::Name); });
  EXPECT_EQ(name, QStringLiteral("Chargen-Nr., Zeile 2"));
}

TEST_F(SplitWindow, TheTotalSaysWhatIsLeft) {
  const QString left = QStringLiteral("noch 4 von 9 zu verteilen");
  run(R"({"key":"F2"})", [&] {
    EXPECT_EQ(told(u"lblGmenge").text(QAccessible::Description), left);
    EXPECT_EQ(widget(u"lblGmenge").toolTip(), left);
  });
}

TEST_F(SplitWindow, MarksAreNamedInWordsAndCellsByTheirPlace) {
  std::vector<std::string> marks;
  std::string place;
  run(R"({"mouse":"MSHFlexGrid1","row":1,"col":3}
         {"type":"x"}
         {"wait":5}
         {"key":"F2"})",
      [&] {
        QAccessibleTableInterface* const cells = told(u"MSHFlexGrid1").tableInterface();
        for (int row = 1; row < cells->rowCount(); ++row)
          marks.push_back(cells->cellAt(row, 0)->text(QAccessible::Name).toStdString());
        place = cells->cellAt(2, 4)->text(QAccessible::Description).toStdString();
      });
  EXPECT_THAT(marks, ElementsAre("geänderte Zeile", "", "neue Zeile"));
  EXPECT_EQ(place, "Verfalldatum, Zeile 2");
}

}  // namespace
}  // namespace zqn::script
