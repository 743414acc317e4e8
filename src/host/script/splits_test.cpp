// SPDX-License-Identifier: MIT
//
// The quantity split under the scripted user: what a press, a paste, a key out of sight come to on each desktop.
#include "split/frm_aufteilung_snch.h"
#include "testing/script/script_test.h"

namespace zqn::script {
namespace {

class SplitScript : public ScriptTest {
 protected:
  /// The lines without `shown` and `closed`.
  Lines on(const std::string& script) {
    Lines lines = run(script, [this] { split.ShowData(); });
    EXPECT_FALSE(failed) << lines.back();
    return {lines.begin() + 1, lines.end() - 1};
  }
  void copied(StringView text) { scriptDesktop->desktop().copyToClipboard(text); }
  void fill(int rows) {
    String text;
    for (int i = 0; i < rows; ++i) text += u"1|\"Stk\"|\"L\"|\"\"|\"\"\r\n";
    split.Aufteilung = text;
    split.Gmenge = double(rows);
    split.ME = u"Stk";
    split.Aufteilungsart = std::int32_t{1};
  }

  frmAufteilungSNCH split;
};

TEST_F(SplitScript, ADoubleClickOnAReadOnlyCellLeavesTheKeyboardToTheEditor) {
  for (const char* button : {"1", "2"}) {
    fill(2);
    EXPECT_THAT(
        on(R"({"mouse":"MSHFlexGrid1","row":1,"col":3}
                      {"mouse":"MSHFlexGrid1","row":2,"col":2,"event":"dblclick","button":)" +
           std::string(button) + R"(}
                      {"type":"neu"}
                      {"get":["Form.ActiveControl","txtEdit.Text","MSHFlexGrid1.Row"]})"),
        ElementsAre(
            R"({"values":{"Form.ActiveControl":"txtEdit","txtEdit.Text":"neu","MSHFlexGrid1.Row":1}})"))
        << button;
  }
}

TEST_F(SplitScript, APastedColumnStaysAColumnWithItsSigns) {
  fill(0);
  copied(u"A&1\r\nB(2\r\nC");
  EXPECT_THAT(
      on(R"({"key":"V","shift":2}
            {"key":"Tab"}
            {"list":"MSHFlexGrid1"})"),
      ElementsAre(
          R"({"list":"MSHFlexGrid1","columns":["","Menge","ME","Chargen-Nr.","Verfalldatum"],"rows":[)"
          R"(["","0,000","Stk","A&1",""],["","0,000","Stk","B(2",""],["","0,000","Stk","C",""],["","0,000","Stk","",""]],"row":3})"));
}

TEST_F(SplitScript, AltWithALetterTypesNothingAndAddsNoRow) {
  fill(0);
  EXPECT_THAT(on(R"({"key":"S","shift":4}
                    {"key":"7","shift":4}
                    {"get":["txtEdit.Text","MSHFlexGrid1.Rows","MSHFlexGrid1.Row"]})"),
              ElementsAre(R"({"values":{"txtEdit.Text":"","MSHFlexGrid1.Rows":2,"MSHFlexGrid1.Row":1}})"));
}

TEST_F(SplitScript, AKeyTypedOutOfSightBringsTheCellBackFirst) {
  fill(100);
  // No line of a script turns a wheel: F2 does.
  split.control(u"txtEdit").KeyUp = [this](int code, int) {
    if (code == key::F2) split.Get<MSHFlexGrid>(u"MSHFlexGrid1").userTurnedWheel(-2400, 0);
  };
  EXPECT_THAT(
      on(R"({"mouse":"MSHFlexGrid1","row":2,"col":3}
            {"key":"End"}
            {"key":"F2"}
            {"get":["txtEdit.Visible","Form.ActiveControl","MSHFlexGrid1.TopRow"]}
            {"type":"7"}
            {"get":["txtEdit.Visible","txtEdit.Text","Form.ActiveControl","MSHFlexGrid1.TopRow"]})"),
      ElementsAre(
          R"({"values":{"txtEdit.Visible":false,"Form.ActiveControl":null,"MSHFlexGrid1.TopRow":62}})",
          R"({"values":{"txtEdit.Visible":true,"txtEdit.Text":"L7","Form.ActiveControl":"txtEdit","MSHFlexGrid1.TopRow":2}})"));
}

}  // namespace
}  // namespace zqn::script
