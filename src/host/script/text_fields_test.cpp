// SPDX-License-Identifier: MIT
//
// What a scripted user's keys and clicks make of a text: the same on each desktop.
#include "forms/combo_box.h"
#include "forms/date_input.h"
#include "forms/tdb_number.h"
#include "testing/script/script_test.h"

namespace zqn::script {
namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"txtOther", TextBox,   u"",     120,  120, 1455, 285},
    {u"txtText",  TextBox,   u"",     120,  540, 3000, 285},
    {u"txtFive",  TextBox,   u"",     120,  960,  855, 285, {.MaxLength = 5}},
    {u"txtLines", TextBox,   u"",     120, 1380, 4000, 885, {.MultiLine = true}},
    {u"days",     TDBNumber, u"",     120, 2400,  525, 285, {.Format = u"###0;;0;0"}},
    {u"day",      DateInput, u"",     760, 2400, 1500, 285},
    {u"cboText",  ComboBox,  u"",    2400, 2400, 1500, 315, {.allowedit = true}},
    {u"cboList",  ComboBox,  u"",    2400, 2820, 1500, 315},
};
// clang-format on
constexpr FormDesign design{u"frmTexts", u"Texte", 5400, 3300, roster};

}  // namespace plan

class ScriptedText : public ScriptTest {
 protected:
  ScriptedText() {
    for (const char16_t* entry : {u"eins", u"zwei", u"drei"}) {
      list.AddItem(entry);
      combo.AddItem(entry);
    }
  }
  Lines actsOnTexts(const std::string& script) {
    Lines lines = run(script, [this] { texts.Show(); });
    if (lines.size() < 2) return lines;
    return {lines.begin() + 1, lines.end() - 1};
  }
  /// "value|start|length" of the field that a script has acted on.
  std::string afterwards(const std::string& field, const std::string& script) {
    EXPECT_THAT(actsOnTexts(script), IsEmpty());
    EXPECT_FALSE(failed);
    const auto& entry = dynamic_cast<TextEntry&>(texts.control(fromUtf8(field)));
    return toUtf8(entry.Text()) + "|" + std::to_string(entry.SelStart()) + "|" +
           std::to_string(entry.SelLength());
  }

  Form texts{plan::design};
  TextBox& text = texts.Get<TextBox>(u"txtText");
  TextBox& lines = texts.Get<TextBox>(u"txtLines");
  TDBNumber& days = texts.Get<TDBNumber>(u"days");
  ComboBox& combo = texts.Get<ComboBox>(u"cboText");
  ComboBox& list = texts.Get<ComboBox>(u"cboList");
};

TEST_F(ScriptedText, AltWithALetterOrDigitTypesNothing) {
  text.Text(u"abc");
  std::string keys;
  texts.KeyDown = [&](int& code, int shift) {
    keys += std::to_string(code) + "/" + std::to_string(shift) + " ";
  };
  texts.KeyPress = [&](int& character) { keys += "!" + std::to_string(character) + " "; };
  EXPECT_EQ(afterwards("txtText", R"({"focus":"txtText"}
                                     {"key":"a","shift":2}
                                     {"key":"s","shift":4}
                                     {"key":"S","shift":5}
                                     {"key":"7","shift":4}
                                     {"key":"ü","shift":4}
                                     {"key":"q","shift":6}
                                     {"key":"é","shift":4})"),
            "abc|0|3");
  EXPECT_EQ(keys, "65/2 !1 83/4 83/5 55/4 186/4 81/6 231/4 ");
}

TEST_F(ScriptedText, AClickFallsBehindTheLastCharacter) {
  text.Text(u"abc");
  lines.Text(u"eins\nzwei\r\ndrei");
  combo.Text(u"frei");
  EXPECT_EQ(afterwards("txtText", R"({"focus":"txtText"})"), "abc|3|0");
  EXPECT_EQ(afterwards("txtLines", R"({"click":"txtLines"})"), "eins\nzwei\r\ndrei|15|0");
  EXPECT_EQ(afterwards("cboText", R"({"click":"cboText"})"), "frei|4|0");
  text.Text(String(200, u'x'));
  EXPECT_THAT(afterwards("txtText", R"({"focus":"txtText"})"), HasSubstr("|200|0"));
}

TEST_F(ScriptedText, ASecondClickTakesTheSelectionOff) {
  days.Value(Variant(14.0));
  EXPECT_EQ(afterwards("days", R"({"focus":"days"})"), "14|0|2");
  EXPECT_EQ(afterwards("days", R"({"focus":"days"}
                                  {"focus":"days"}
                                  {"type":"7"})"),
            "147|3|0");
}

TEST_F(ScriptedText, CaretKeysReachTheFormAfterADropDownWasUsed) {
  text.Text(u"ab cd");
  std::string keys;
  texts.KeyDown = [&](int& code, int) { keys += std::to_string(code) + " "; };
  EXPECT_EQ(afterwards("txtText", R"({"select":"cboList","index":1}
                                     {"select":"cboText","index":2}
                                     {"focus":"txtText"}
                                     {"key":"Left"}
                                     {"key":"Home"}
                                     {"key":"Right","shift":1}
                                     {"key":"End","shift":1})"),
            "ab cd|0|5");
  EXPECT_EQ(keys, "37 36 39 35 ");
}

TEST_F(ScriptedText, CaretKeysLeaveASelectionAtTheirEnd) {
  text.Text(u"abcd");
  EXPECT_EQ(afterwards("txtText", R"({"focus":"txtText"}
                                     {"key":"a","shift":2}
                                     {"key":"Left"})"),
            "abcd|0|0");
  EXPECT_EQ(afterwards("txtText", R"({"focus":"txtText"}
                                     {"key":"Home","shift":1}
                                     {"key":"Right"}
                                     {"key":"Left","shift":1})"),
            "abcd|3|1");
}

TEST_F(ScriptedText, CtrlGoesAndDeletesByWords) {
  text.Text(u"eins zwei  drei, vier");
  EXPECT_EQ(afterwards("txtText", R"({"focus":"txtText"}
                                     {"key":"Left","shift":2}
                                     {"key":"Left","shift":2}
                                     {"key":"Left","shift":3})"),
            "eins zwei  drei, vier|11|4");
  EXPECT_EQ(afterwards("txtText", R"({"focus":"txtText"}
                                     {"key":"Home","shift":2}
                                     {"key":"Right","shift":2}
                                     {"key":"Delete","shift":2}
                                     {"key":"End","shift":2}
                                     {"key":"Backspace","shift":2})"),
            "eins drei, |11|0");
}

TEST_F(ScriptedText, InsertAndDeleteWorkTheClipboard) {
  text.Text(u"abcd");
  EXPECT_EQ(afterwards("txtText", R"({"focus":"txtText"}
                                     {"key":"Left","shift":1}
                                     {"key":"Left","shift":1}
                                     {"key":"Delete","shift":1}
                                     {"key":"Delete","shift":1}
                                     {"key":"Home"}
                                     {"key":"Insert","shift":1}
                                     {"key":"Home","shift":1}
                                     {"key":"Insert","shift":2}
                                     {"key":"End"}
                                     {"key":"v","shift":2})"),
            "cdabcd|6|0");
}

TEST_F(ScriptedText, UndoTakesBackRunsOfTyping) {
  EXPECT_EQ(afterwards("txtText", R"({"focus":"txtText"}
                                     {"type":"abc"}
                                     {"key":"Home"}
                                     {"type":"xy"}
                                     {"key":"z","shift":2}
                                     {"key":"z","shift":2}
                                     {"key":"y","shift":2})"),
            "abc|3|0");
}

TEST_F(ScriptedText, StoredBreaksStayBesideWhatIsEdited) {
  lines.Text(u"a\nb\rc\r\nd");
  EXPECT_EQ(afterwards("txtLines", R"({"focus":"txtLines"}
                                      {"type":"e"}
                                      {"key":"Up"}
                                      {"key":"Up"}
                                      {"type":"f"})"),
            "a\nbf\rc\r\nde|4|0");
  text.Text(u"x\r\ny\u0001\u2029z");
  EXPECT_EQ(afterwards("txtText", R"({"focus":"txtText"}
                                     {"type":"!"}
                                     {"key":"Left"}
                                     {"key":"Left"}
                                     {"key":"Left"}
                                     {"key":"Backspace"})"),
            toUtf8(u"x\r\ny\u2029z!|4|0"));
}

TEST_F(ScriptedText, RareCharactersAreTypedAsTheyAre) {
  EXPECT_EQ(afterwards("txtText", "{\"focus\":\"txtText\"}\n{\"type\":\"a\xEF\xBB\xBF\xE2\x80\xA9z\"}"),
            toUtf8(u"a\uFEFF\u2029z|4|0"));
  EXPECT_EQ(afterwards("txtLines", "{\"focus\":\"txtLines\"}\n{\"type\":\"a\xEF\xBB\xBF\xE2\x80\xA9z\"}"),
            toUtf8(u"a\uFEFF\u2029z|4|0"));
}

TEST_F(ScriptedText, MaxLengthCutsNoCharacter) {
  EXPECT_EQ(afterwards("txtFive", R"({"focus":"txtFive"}
                                     {"type":"1234😀"}
                                     {"key":"Backspace"}
                                     {"type":"😀"})"),
            "123😀|5|0");
  EXPECT_EQ(afterwards("txtFive", R"({"focus":"txtFive"}
                                     {"key":"Left"}
                                     {"key":"Delete"}
                                     {"type":"4"})"),
            "1234|4|0");
}

TEST_F(ScriptedText, AKeyOfTwoUnitsIsPressedOnceForEach) {
  std::string keys;
  texts.KeyPress = [&](int& character) { keys += std::to_string(character) + " "; };
  EXPECT_EQ(afterwards("txtText", R"({"focus":"txtText"}
                                     {"type":"😀"})"),
            "😀|2|0");
  EXPECT_EQ(keys, "55357 56832 ");
}

TEST_F(ScriptedText, ATextThatIsNoDayIsToldUntilItGoes) {
  EXPECT_THAT(actsOnTexts(R"({"focus":"day"}
                             {"type":"99"}
                             {"get":["day.Value","day.Text"]}
                             {"key":"Tab"}
                             {"get":["day.Value","day.Text"]})"),
              ElementsAre(R"({"values":{"day.Value":null,"day.Text":"99"}})",
                          R"({"values":{"day.Value":null,"day.Text":""}})"));
  EXPECT_FALSE(failed);
}

}  // namespace
}  // namespace zqn::script
