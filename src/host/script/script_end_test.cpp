// SPDX-License-Identifier: MIT
#include <sstream>

#include "forms/desktop.h"
#include "testing/script/script_test.h"

namespace zqn::script {
namespace {

class ScriptEnd : public ScriptTest {};

TEST_F(ScriptEnd, ClosesTheFormByItsCloseBox) {
  int mode = -1;
  form.QueryUnload = [&](int&, int unloadMode) { mode = unloadMode; };
  EXPECT_THAT(acts(""), IsEmpty());
  EXPECT_EQ(mode, static_cast<int>(UnloadMode::CloseBox));
}

TEST_F(ScriptEnd, AnswersBoxesWithTheirDefault) {
  std::vector<MsgBoxResult> answers;
  form.btnOK.Click = [&] {
    answers.push_back(MsgBox(u"1", msgbox::YesNo, u""));
    answers.push_back(MsgBox(u"2", msgbox::YesNo | msgbox::DefaultButton2, u""));
    answers.push_back(MsgBox(u"3", msgbox::OKOnly, u""));
  };
  form.Unload = [&](int&) { answers.push_back(MsgBox(u"4", msgbox::OKCancel, u"")); };
  run(R"({"click":"btnOK"})");
  EXPECT_THAT(answers, ElementsAre(MsgBoxResult::Yes, MsgBoxResult::No, MsgBoxResult::OK, MsgBoxResult::OK));
}

TEST_F(ScriptEnd, ClosesNestedFormsFromTheTop) {
  frmSample second;
  second.Caption(u"Zweite");
  form.btnOK.Click = [&] { second.Show(); };
  EXPECT_THAT(acts(R"({"click":"btnOK"})"),
              ElementsAre(R"({"shown":"frmSample","caption":"Zweite"})", R"({"closed":"frmSample"})"));
}

TEST_F(ScriptEnd, PressesTheCancelButtonOfAFormThatRefusesItsCloseBox) {
  bool decided = false;
  form.Unload = [&](int& cancel) {
    if (decided) return;
    cancel = 1;
    MsgBox(u"Geben Sie, bitte einen Grund des Wechsels ein.", msgbox::Critical, u"TALVEX Software");
  };
  form.btnCancel.Click = [&] {
    decided = true;
    form.UnloadMe();
  };
  EXPECT_THAT(acts(""), ElementsAre(HasSubstr("Grund des Wechsels")));
  EXPECT_TRUE(decided);
  EXPECT_FALSE(failed);
}

TEST_F(ScriptEnd, IsAnErrorWhenAFormCannotBeClosedAtAll) {
  form.QueryUnload = [](int& cancel, int) { cancel = 1; };
  EXPECT_THAT(run(R"({"get":[]})"), ElementsAre(HasSubstr("shown"), HasSubstr("values"),
                                                R"({"scriptError":"line 1: frmSample refuses to close"})"));
  EXPECT_TRUE(failed);
  EXPECT_FALSE(form.Visible());
}

TEST_F(ScriptEnd, WritesTheResultLast) {
  std::istringstream script;
  std::ostringstream transcript;
  ScriptedUser person(scriptDesktop->desktop(), scriptDesktop->input(), {}, faults, script, transcript);
  person.writeEvent(u"DblClick", Variant(u"10"));
  person.writeResult(
      {.returned = Variant(u"10"),
       .param = VariantArray{Variant(u"10"), Variant(2), Variant(0.5), Variant(true), Null, Variant()},
       .allowChanges = false,
       .dialogResult = Variant()});
  EXPECT_EQ(transcript.str(),
            "{\"event\":\"DblClick\",\"result\":\"10\"}\n"
            "{\"result\":{\"return\":\"10\",\"param\":[\"10\",2,0.5,true,null,{\"empty\":true}],"
            "\"allowChanges\":false,\"dialogResult\":{\"empty\":true}}}\n");
}

TEST_F(ScriptEnd, OfATranscriptThatCannotBeWrittenEndsTheScript) {
  std::istringstream script(R"({"click":"btnOK"})");
  std::ostringstream transcript;
  transcript.setstate(std::ios::badbit);
  int clicks = 0;
  form.btnOK.Click = [&] { ++clicks; };
  ScriptedUser person(scriptDesktop->desktop(), scriptDesktop->input(), {}, faults, script, transcript);
  person.prepare();
  form.Show();
  EXPECT_TRUE(person.failed());
  EXPECT_EQ(clicks, 0);
}

// ---- errors of the script

class ScriptErrors : public ScriptTest {
 protected:
  /// The error that ends a script of this one line.
  std::string errorOf(const std::string& line) {
    const Lines lines = run("\n" + line + "\n{\"click\":\"btnOK\"}\n");
    EXPECT_TRUE(failed) << line;
    EXPECT_FALSE(form.Visible()) << line;
    const Json last = Json::parse(lines.back());
    return last.contains("scriptError") ? last["scriptError"].get<std::string>() : lines.back();
  }
};

TEST_F(ScriptErrors, EndTheScriptAndNothingFurtherActs) {
  int clicks = 0;
  form.btnOK.Click = [&] { ++clicks; };
  form.Unload = [&](int& cancel) { cancel = 1; };
  EXPECT_THAT(
      run(R"({"click":"btnOK"}
{"clik":"btnOK"}
{"click":"btnOK"}
{"exec":"DELETE FROM Stati"})"),
      ElementsAre(HasSubstr("shown"),
                  HasSubstr("\"scriptError\":\"line 2: unknown action \\\"clik\\\"; there is click,")));
  EXPECT_TRUE(failed);
  EXPECT_EQ(clicks, 1);
  EXPECT_FALSE(form.Visible());
  EXPECT_THAT(stored(u"SELECT count(*) FROM Stati"), ElementsAre("3"));
}

TEST_F(ScriptErrors, BeforeShowLeaveTheFormClosed) {
  EXPECT_THAT(run("no JSON"), ElementsAre(HasSubstr("line 1: this is no JSON")));
  EXPECT_TRUE(failed);
  EXPECT_FALSE(form.isLoaded());
}

TEST_F(ScriptErrors, AnswerAnOpenQuestionInTheNegative) {
  form.btnOK.Click = [&] {
    if (MsgBox(u"Löschen?", msgbox::YesNo, u"Abfrage") == MsgBoxResult::Yes)
      connection->Execute(u"DELETE FROM Stati");
  };
  EXPECT_THAT(
      run(R"({"click":"btnOK"}
                     {"answer":"maybe"})"),
      ElementsAre(
          HasSubstr("shown"), HasSubstr("Löschen?"),
          R"({"scriptError":"line 2: unknown answer \"maybe\"; there is ok, yes, no, cancel, default"})"));
  EXPECT_THAT(stored(u"SELECT count(*) FROM Stati"), ElementsAre("3"));
}

TEST_F(ScriptErrors, InsideNestedFormsCloseAllOfThem) {
  frmSample second;
  form.btnOK.Click = [&] { second.Show(); };
  run(R"({"click":"btnOK"}
         {"click":"nirgends"})");
  EXPECT_TRUE(failed);
  EXPECT_FALSE(second.Visible());
  EXPECT_FALSE(form.Visible());
}

TEST_F(ScriptErrors, NameTheLineAndWhatWouldBeRight) {
  const std::string names =
      "TDBList1, lblKey, txtKey, Label1(0), txtName, Label1(1), chkFlag, btnOK, btnCancel, btnHidden, btnOff";
  EXPECT_EQ(errorOf("{"),
            R"(line 2: this is no JSON in UTF-8 (byte 2); a line is one action, such as {"click":"btnOK"})");
  EXPECT_EQ(errorOf("[1]"), R"(line 2: a line is one JSON object, such as {"click":"btnOK"})");
  EXPECT_EQ(
      errorOf("{}"),
      "line 2: unknown action; there is click, focus, type, key, select, dblclick, mouse, drag, menu, close, "
      "answer, wait, get, list, dump, sql, settings, statements, passedOver, screenshot, exec, setting, "
      "auskunft, fail, clipboard");
  EXPECT_EQ(errorOf(R"({"click":"btnOk2"})"), "line 2: frmSample has no control \"btnOk2\"; it has " + names);
  EXPECT_EQ(errorOf(R"({"list":"Label1"})"), "line 2: frmSample has no control \"Label1\"; it has " + names);
  EXPECT_EQ(errorOf(R"({"mouse":"MSHFlexGrid1","row":1,"col":1})"),
            "line 2: frmSample has no control \"MSHFlexGrid1\"; it has " + names);
  EXPECT_EQ(errorOf(R"({"click":7})"), R"(line 2: "click" must be a text)");
  EXPECT_EQ(errorOf(R"({"click":"btnOK","type":"x"})"), R"(line 2: unknown member "type"; there is "click")");
  EXPECT_EQ(errorOf(R"({"select":"TDBList1"})"),
            R"(line 2: "select" needs "row", "rows", "index" or "text")");
  EXPECT_EQ(errorOf(R"({"select":"TDBList1","row":"0"})"),
            R"(line 2: "row" must be a whole number from -2147483648 to 2147483647)");
  for (const char* rows : {"1", "[0.5]", R"(["0"])", "[4294967296]"}) {
    EXPECT_EQ(errorOf(R"({"select":"TDBList1","rows":)" + std::string(rows) + "}"),
              R"(line 2: "rows" must be an array of whole numbers)")
        << rows;
  }
  EXPECT_EQ(errorOf(R"({"key":"F13"})").substr(0, 61),
            R"(line 2: unknown key "F13"; there is one character, F1, F2, F3)");
  EXPECT_EQ(errorOf(R"({"key":""})").substr(0, 26), R"(line 2: unknown key ""; th)");
  EXPECT_EQ(errorOf(R"({"key":"F9","shift":8})"), R"(line 2: "shift" must be a whole number from 0 to 7)");
  EXPECT_EQ(errorOf(R"({"close":false})"), R"(line 2: "close" must be true)");
  EXPECT_EQ(errorOf(R"({"wait":-1})"), R"(line 2: "wait" must be a whole number from 0 to 3600000)");
  EXPECT_EQ(errorOf(R"({"get":"txtKey.Text"})"), R"(line 2: "get" must be an array of "control.property")");
  EXPECT_EQ(errorOf(R"({"get":["txtKey"]})"),
            R"(line 2: "txtKey" names no property; write "control.property")");
  EXPECT_EQ(errorOf(R"({"get":["txtKey.Txt"]})"), R"(line 2: a TextBox has no property "Txt")");
  EXPECT_EQ(errorOf(R"({"get":["Form.Txt"]})"), R"(line 2: a form has no property "Txt")");
  EXPECT_EQ(errorOf(R"({"get":["nirgends.Text"]})"),
            "line 2: frmSample has no control \"nirgends\"; it has " + names);
  EXPECT_EQ(errorOf(R"({"list":"txtKey"})"), "line 2: txtKey is a TextBox and has no rows");
  EXPECT_EQ(errorOf(R"({"dump":1})"), R"(line 2: "dump" must be true)");
  EXPECT_EQ(errorOf(R"({"fail":{"operation":"Delete","number":5}})"),
            "line 2: unknown operation \"Delete\"; there is Open, Execute, Update, AddNew, Requery, Find, "
            "Close, Field");
  EXPECT_EQ(errorOf(R"({"fail":{"operation":"Open"}})"), R"(line 2: of "fail": "number" must be given)");
  EXPECT_EQ(
      errorOf(R"({"fail":{"operation":"Open","number":5,"time":2}})"),
      R"(line 2: of "fail": unknown member "time"; there is "operation", "match", "number", "description", "times")");
  EXPECT_EQ(errorOf(R"({"fail":{"operation":"Open","number":5,"times":0}})"),
            R"(line 2: of "fail": "times" must be a whole number from 1 to 2147483647)");
  EXPECT_EQ(errorOf(R"({"fail":[]})"), R"(line 2: "fail" must be an object)");
  EXPECT_EQ(errorOf(R"({"setting":{"section":"a","key":"b"}})"),
            R"(line 2: of "setting": "value" must be given)");
  EXPECT_EQ(errorOf(R"({"setting":{"section":"a","key":"b","value":"c","scope":2}})"),
            R"(line 2: of "setting": "scope" must be a whole number from 0 to 1)");
  EXPECT_EQ(errorOf(R"({"auskunft":{"items":[1]}})"), R"(line 2: of "auskunft": "items" must be an object)");
  EXPECT_EQ(errorOf(R"({"auskunft":{"items":{"a":[]}}})"), R"(line 2: of "auskunft": "a" must be a value)");
}

TEST_F(ScriptErrors, TellWhatTheDatabaseSaid) {
  EXPECT_THAT(errorOf(R"({"sql":"SELECT * FROM Nirgends"})"),
              HasSubstr("line 2: the statement failed: -2147217865"));
  EXPECT_THAT(errorOf(R"({"exec":"DELETE FROM"})"), HasSubstr("line 2: the statement failed: -2147217900"));
}

TEST_F(ScriptErrors, AreAsManyAsOne) {
  EXPECT_THAT(run(R"({"get":[]}
                     {"x":1}
                     {"y":1})"),
              ElementsAre(HasSubstr("shown"), HasSubstr("values"), HasSubstr("scriptError")));
}

// ---- how a script is written

class ScriptText : public ScriptTest {};

TEST_F(ScriptText, MayHaveAByteOrderMarkAndWindowsLineEnds) {
  EXPECT_THAT(acts("\xEF\xBB\xBF{\"type\":\"x\"}\r\n\r\n  \r\n# Kommentar\r\n{\"focus\":\"txtName\"}\r\n"
                   "{\"type\":\"ü\"}\r\n{\"get\":[\"txtName.Text\"]}\r\n"),
              ElementsAre(R"({"values":{"txtName.Text":"ü"}})"));
}

TEST_F(ScriptText, MayEndWithoutALineEnd) {
  EXPECT_THAT(acts(R"({"get":[]})"), ElementsAre(R"({"values":{}})"));
}

TEST_F(ScriptText, MayHaveEscapedCharacters) {
  EXPECT_THAT(acts(R"({"focus":"txtName"}
                      {"type":"\u00e4\ud83d\ude00"}
                      {"get":["txtName.Text"]})"),
              ElementsAre(R"({"values":{"txtName.Text":"ä😀"}})"));
}

TEST_F(ScriptText, MustBeUtf8) {
  for (const char* line : {"{\"type\":\"\xE4\"}", "{\"type\":\"\xC0\xAF\"}", "{\"type\":\"\xED\xA0\x80\"}",
                           "{\"type\":\"\\ud83d\"}", "\xFF\xFE{"}) {
    const Lines lines = run(std::string("{\"get\":[]}\n") + line);
    EXPECT_THAT(lines.back(), HasSubstr("line 2: this is no JSON in UTF-8")) << line;
  }
}

TEST_F(ScriptText, MayHaveHugeLines) {
  const std::string text(200'000, 'x');
  form.txtName.MaxLength(10);
  EXPECT_THAT(acts("{\"sql\":\"SELECT length('" + text + "')\"}"), ElementsAre(R"({"rows":[[200000]]})"));
  EXPECT_THAT(run("{\"click\":\"" + text + "\"}").back(), HasSubstr("has no control \\\"xxx"));
}

TEST_F(ScriptText, IsReadOnlyAsFarAsItIsNeeded) {
  std::istringstream script("{\"get\":[]}\n{\"click\":\"btnOK\"}\nrest\n");
  std::ostringstream transcript;
  std::streamoff position = 0;
  form.btnOK.Click = [&] { position = script.tellg(); };
  ScriptedUser person(scriptDesktop->desktop(), scriptDesktop->input(), {}, faults, script, transcript);
  person.prepare();
  form.Show();
  EXPECT_EQ(position, 29);
  EXPECT_TRUE(person.failed());
}

}  // namespace
}  // namespace zqn::script
