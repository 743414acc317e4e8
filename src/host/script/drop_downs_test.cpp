// SPDX-License-Identifier: MIT
#include "forms/combo_box.h"
#include "host/script/script_test.h"

namespace zqn::script {
namespace {

constexpr ControlDesign roster[] = {
    {u"txtKey", ControlKind::TextBox, u"", 120, 120, 855, 285},
    {u"cbo(0)", ControlKind::ComboBox, u"", 120, 540, 2500, 315},
    {u"cbo(1)", ControlKind::ComboBox, u"", 120, 960, 2500, 315, {.Enabled = false}},
};
constexpr FormDesign design{u"frmDropDowns", u"Auswahl", 5400, 3300, roster};

class DropDown : public ScriptTest {
 protected:
  DropDown() {
    for (const char16_t* entry : {u"Kunde", u"Vertrag", u"Kunde"}) cbo.AddItem(entry);
    cbo.Click = [this] { ++clicks; };
  }

  Lines actsOnDropDowns(const std::string& script) {
    Lines lines = run(script, [this] { drops.Show(); });
    return {lines.begin() + 1, lines.end() - 1};
  }

  Form drops{design};
  ComboBox& cbo = drops.Get<ComboBox>(u"cbo", 0);
  int clicks = 0;
};

TEST_F(DropDown, TakesAnEntryByNumberOrText) {
  EXPECT_THAT(actsOnDropDowns(R"~({"select":"cbo(0)","index":1}
                                 {"get":["cbo(0).Text","Form.ActiveControl"]}
                                 {"select":"cbo(0)","text":"Kunde"}
                                 {"get":["cbo(0).ListIndex"]}
                                 {"select":"cbo(0)","index":0})~"),
              ElementsAre(R"~({"values":{"cbo(0).Text":"Vertrag","Form.ActiveControl":"cbo(0)"}})~",
                          R"~({"values":{"cbo(0).ListIndex":0}})~"));
  EXPECT_EQ(clicks, 2);
}

TEST_F(DropDown, RefusesEntriesThatItLacks) {
  EXPECT_THAT(
      actsOnDropDowns(R"~({"select":"cbo(0)","index":3}
                         {"select":"cbo(0)","text":"kunde"}
                         {"select":"cbo(0)","index":-1}
                         {"select":"cbo(0)","row":0}
                         {"select":"cbo(1)","index":0}
                         {"get":["cbo(0).ListIndex","Form.ActiveControl"]})~"),
      ElementsAre(
          R"~({"refused":"cbo(0) has no entry 3","action":{"select":"cbo(0)","index":3}})~",
          R"~({"refused":"cbo(0) has no entry \"kunde\"","action":{"select":"cbo(0)","text":"kunde"}})~",
          R"~({"refused":"cbo(0) has no entry -1","action":{"select":"cbo(0)","index":-1}})~",
          R"~({"refused":"cbo(0) is a ComboBox and has no rows to click on","action":{"select":"cbo(0)","row":0}})~",
          R"~({"refused":"cbo(1) is disabled","action":{"select":"cbo(1)","index":0}})~",
          R"~({"values":{"cbo(0).ListIndex":-1,"Form.ActiveControl":"txtKey"}})~"));
}

TEST_F(DropDown, ClickOpensTheListAndKeysAreTheLists) {
  std::string heard;
  drops.KeyDown = [&](int& code, int) { heard += std::to_string(code) + " "; };
  EXPECT_THAT(actsOnDropDowns(R"~({"click":"cbo(0)"}
                                 {"key":"Down"}
                                 {"key":"Down"}
                                 {"get":["cbo(0).ListIndex"]}
                                 {"key":"Escape"}
                                 {"key":"F4"}
                                 {"key":"v"}
                                 {"key":"Enter"}
                                 {"get":["cbo(0).ListIndex","Form.ActiveControl"]}
                                 {"key":"Down"}
                                 {"get":["cbo(0).ListIndex"]})~"),
              ElementsAre(R"~({"values":{"cbo(0).ListIndex":-1}})~",
                          R"~({"values":{"cbo(0).ListIndex":1,"Form.ActiveControl":"cbo(0)"}})~",
                          R"~({"values":{"cbo(0).ListIndex":2}})~"));
  EXPECT_EQ(heard, "115 40 ") << "F4 and the arrow over the closed list";
  EXPECT_EQ(clicks, 2);
}

TEST_F(DropDown, SelectTakesAnEntryOfTheOpenListToo) {
  EXPECT_THAT(actsOnDropDowns(R"~({"click":"cbo(0)"}
                                 {"select":"cbo(0)","index":2}
                                 {"get":["cbo(0).ListIndex","cbo(0).List(1)","cbo(0).ListCount"]})~"),
              ElementsAre(R"~({"values":{"cbo(0).ListIndex":2,"cbo(0).List(1)":"Vertrag",)~"
                          R"~("cbo(0).ListCount":3}})~"));
}

TEST_F(DropDown, FocusLeavesTheListShut) {
  EXPECT_THAT(actsOnDropDowns(R"~({"focus":"cbo(0)"}
                                 {"key":"Down"}
                                 {"get":["cbo(0).ListIndex","Form.ActiveControl"]})~"),
              ElementsAre(R"~({"values":{"cbo(0).ListIndex":0,"Form.ActiveControl":"cbo(0)"}})~"));
}

TEST_F(DropDown, TakesNothingWhileValidateKeepsTheFocus) {
  drops.Get<TextBox>(u"txtKey").Validate = [](bool& cancel) { cancel = true; };
  EXPECT_THAT(actsOnDropDowns(R"~({"select":"cbo(0)","index":1}
                                 {"get":["cbo(0).ListIndex"]})~"),
              ElementsAre(R"~({"values":{"cbo(0).ListIndex":-1}})~"));
}

TEST_F(DropDown, IsListedWithoutColumns) {
  cbo.ListIndex(1);
  EXPECT_THAT(
      actsOnDropDowns(R"~({"list":"cbo(0)"}
                                 {"list":"cbo(1)"}
                                 {"dump":true})~"),
      ElementsAre(R"~({"list":"cbo(0)","columns":[],"rows":[["Kunde"],["Vertrag"],["Kunde"]],"row":1})~",
                  R"~({"list":"cbo(1)","columns":[],"rows":[],"row":-1})~",
                  HasSubstr(R"~({"name":"cbo(0)","kind":"ComboBox","left":120,"top":540,"width":2500,)~"
                            R"~("height":315,"text":"Vertrag","enabled":true})~")));
}

}  // namespace
}  // namespace zqn::script
