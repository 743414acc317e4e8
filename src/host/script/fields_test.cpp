// SPDX-License-Identifier: MIT
//
// Numbers, dates, toggle buttons, frames and fields of several lines under a scripted user.
#include "forms/frame.h"
#include "forms/tdb_date.h"
#include "forms/tdb_number.h"
#include "forms/toggle_button.h"
#include "runtime/locale.h"
#include "testing/script/script_test.h"

namespace zqn::script {
namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"txtKey",         TextBox,      u"",            120,  120,  855, 285},
    {u"tdbnSkTage(0)",  TDBNumber,    u"",            120,  540,  525, 285, {.Format = u"###0;;0;0"}},
    {u"tdbnPercent(0)", TDBNumber,    u"",            760,  540,  585, 285, {.Format = u"##0.00;(##0.00);0;0"}},
    {u"tdbdValidOf",    TDBDate,      u"Gültig von:", 120,  960, 2355, 285},
    {u"tglDruckAN",     ToggleButton, u"AN",         1500,  540,  405, 375, {.TabStop = false}},
    {u"tglDruckAB",     ToggleButton, u"AB",         1905,  540,  405, 375, {.Enabled = false}},
    {u"txtLangtext",    TextBox,      u"",            120, 1380, 4000, 885, {.MultiLine = true}},
    {u"fra",            Frame,        u"Vorschau",    120, 2400, 4000, 700},
    {u"lblFra",         Label,        u"Text",        150,  210, 1500, 255, {.Container = u"fra"}},
};
// clang-format on
constexpr FormDesign design{u"frmFields", u"Felder", 5400, 3300, roster};

}  // namespace plan

class Field : public ScriptTest {
 protected:
  Lines actsOnFields(const std::string& script) {
    Lines lines = run(script, [this] { fields.Show(); });
    if (lines.size() < 2) return lines;
    return {lines.begin() + 1, lines.end() - 1};
  }

  static Locale onTheFifthOfMarch() {
    Locale fixed = Locale::german();
    fixed.now = [] { return Date{46086.5}; };
    return fixed;
  }

  Locale::Scope today_{onTheFifthOfMarch()};
  Form fields{plan::design};
};

TEST_F(Field, ANumberIsTypedOverAndFormattedWhenLeft) {
  EXPECT_THAT(actsOnFields(R"~({"focus":"tdbnPercent(0)"}
                              {"get":["tdbnPercent(0).Value","tdbnPercent(0).Text"]}
                              {"type":"2.5x5"}
                              {"get":["tdbnPercent(0).Value","tdbnPercent(0).Text","tdbnPercent(0).SelStart"]}
                              {"key":"Backspace"}
                              {"key":"Tab"}
                              {"get":["tdbnPercent(0).Value","tdbnPercent(0).Text","Form.ActiveControl"]})~"),
              ElementsAre(R"~({"values":{"tdbnPercent(0).Value":null,"tdbnPercent(0).Text":""}})~",
                          R"~({"values":{"tdbnPercent(0).Value":2.55,"tdbnPercent(0).Text":"2,55",)~"
                          R"~("tdbnPercent(0).SelStart":4}})~",
                          R"~({"values":{"tdbnPercent(0).Value":2.5,"tdbnPercent(0).Text":"2,50",)~"
                          R"~("Form.ActiveControl":"tdbdValidOf"}})~"));
}

TEST_F(Field, ANumberTakesNoMoreThanItsFormat) {
  EXPECT_THAT(actsOnFields(R"~({"focus":"tdbnSkTage(0)"}
                              {"type":"-12,345"}
                              {"get":["tdbnSkTage(0).Value"]}
                              {"key":"a","shift":2}
                              {"key":"Delete"}
                              {"get":["tdbnSkTage(0).Value"]}
                              {"focus":"txtKey"}
                              {"get":["tdbnSkTage(0).Value","tdbnSkTage(0).Text"]})~"),
              ElementsAre(R"~({"values":{"tdbnSkTage(0).Value":1234}})~",
                          R"~({"values":{"tdbnSkTage(0).Value":null}})~",
                          R"~({"values":{"tdbnSkTage(0).Value":null,"tdbnSkTage(0).Text":"0"}})~"));
}

TEST_F(Field, ANumberSelectsAllWhenTheFocusComes) {
  fields.Get<TDBNumber>(u"tdbnPercent", 0).Value(Variant(-2.5));
  EXPECT_THAT(actsOnFields(R"~({"get":["tdbnPercent(0).Text"]}
                              {"focus":"tdbnPercent(0)"}
                              {"get":["tdbnPercent(0).Text","tdbnPercent(0).SelStart","tdbnPercent(0).SelLength"]}
                              {"type":"7"}
                              {"get":["tdbnPercent(0).Value"]})~"),
              ElementsAre(R"~({"values":{"tdbnPercent(0).Text":"(2,50)"}})~",
                          R"~({"values":{"tdbnPercent(0).Text":"-2,50","tdbnPercent(0).SelStart":0,)~"
                          R"~("tdbnPercent(0).SelLength":5}})~",
                          R"~({"values":{"tdbnPercent(0).Value":7}})~"));
}

TEST_F(Field, ADateIsTypedWithOrWithoutPoints) {
  EXPECT_THAT(
      actsOnFields(R"~({"get":["tdbdValidOf.Text","tdbdValidOf.Value","tdbdValidOf.Caption"]}
                              {"focus":"tdbdValidOf"}
                              {"type":"241225"}
                              {"get":["tdbdValidOf.Value"]}
                              {"key":"F3"}
                              {"type":"1.2.26"}
                              {"key":"Tab"}
                              {"get":["tdbdValidOf.Text"]}
                              {"focus":"tdbdValidOf"}
                              {"key":"F2"}
                              {"get":["tdbdValidOf.Value","tdbdValidOf.Text"]})~"),
      ElementsAre(R"~({"values":{"tdbdValidOf.Text":"__.__.____","tdbdValidOf.Value":null,)~"
                  R"~("tdbdValidOf.Caption":"Gültig von:"}})~",
                  R"~({"values":{"tdbdValidOf.Value":"24.12.2025"}})~",
                  R"~({"values":{"tdbdValidOf.Text":"01.02.2026"}})~",
                  R"~({"values":{"tdbdValidOf.Value":"05.03.2026","tdbdValidOf.Text":"05.03.2026"}})~"));
}

TEST_F(Field, AToggleButtonSwitchesByClickAndSpace) {
  EXPECT_THAT(
      actsOnFields(R"~({"click":"tglDruckAN"}
                      {"get":["tglDruckAN.Value","Form.ActiveControl"]}
                      {"key":"Space"}
                      {"get":["tglDruckAN.Value"]}
                      {"click":"tglDruckAB"}
                      {"focus":"tglDruckAN"})~"),
      ElementsAre(
          R"~({"values":{"tglDruckAN.Value":true,"Form.ActiveControl":"tglDruckAN"}})~",
          R"~({"values":{"tglDruckAN.Value":false}})~",
          R"~({"refused":"tglDruckAB is disabled","action":{"click":"tglDruckAB"}})~",
          R"~({"refused":"tglDruckAN is a ToggleButton, which is no entry control","action":{"focus":"tglDruckAN"}})~"));
}

TEST_F(Field, LinesArePartedByCrLf) {
  EXPECT_THAT(actsOnFields(R"~({"focus":"txtLangtext"}
                              {"type":"eins\nzwei"}
                              {"key":"Up"}
                              {"key":"Home"}
                              {"type":"x"}
                              {"get":["txtLangtext.Text","txtLangtext.SelStart"]}
                              {"key":"End"}
                              {"key":"Delete"}
                              {"get":["txtLangtext.Text"]})~"),
              ElementsAre(R"~({"values":{"txtLangtext.Text":"xeins\r\nzwei","txtLangtext.SelStart":1}})~",
                          R"~({"values":{"txtLangtext.Text":"xeinszwei"}})~"));
}

TEST_F(Field, WhatStandsInAHiddenFrameIsHidden) {
  fields.Get<TextBox>(u"txtKey").Change = [this] { fields.Get<Frame>(u"fra").Visible(false); };
  EXPECT_THAT(actsOnFields(R"~({"click":"lblFra"}
                              {"type":"x"}
                              {"click":"lblFra"}
                              {"get":["lblFra.Visible","fra.Visible"]})~"),
              ElementsAre(R"~({"refused":"lblFra is invisible","action":{"click":"lblFra"}})~",
                          R"~({"values":{"lblFra.Visible":true,"fra.Visible":false}})~"));
}

TEST_F(Field, OfAnArrayIsNamedWithItsIndexWhenItHasTheFocus) {
  EXPECT_THAT(actsOnFields(R"~({"focus":"tdbnSkTage(0)"}
                              {"get":["Form.ActiveControl"]})~"),
              ElementsAre(R"~({"values":{"Form.ActiveControl":"tdbnSkTage(0)"}})~"));
}

TEST_F(Field, DumpTellsThemByCaptionOrText) {
  const Json dump = Json::parse(actsOnFields(R"({"dump":true})").at(0))["dump"];
  std::vector<std::string> words;
  for (const Json& each : dump) {
    const char* const member = each.contains("caption") ? "caption" : "text";
    words.push_back(each["kind"].get<std::string>() + " " + member + " " + each[member].get<std::string>());
  }
  EXPECT_THAT(words,
              ElementsAre("TextBox text ", "TDBNumber text 0", "TDBNumber text 0", "TDBDate text __.__.____",
                          "ToggleButton caption AN", "ToggleButton caption AB", "TextBox text ",
                          "Frame caption Vorschau", "Label caption Text"));
}

}  // namespace
}  // namespace zqn::script
