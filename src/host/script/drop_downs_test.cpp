// SPDX-License-Identifier: MIT
#include "forms/combo_box.h"
#include "forms/zq_combo.h"
#include "testing/script/script_test.h"

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
  EXPECT_EQ(clicks, 3) << "the entry that stands is taken, too";
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

TEST_F(DropDown, TakingTheEntryThatStandsIsAChoiceToo) {
  cbo.ListIndex(1);
  clicks = 0;
  EXPECT_THAT(
      actsOnDropDowns(R"~({"select":"cbo(0)","index":1}
                                 {"get":["cbo(0).ListIndex"]}
                                 {"key":"F4"}
                                 {"key":"Enter"}
                                 {"get":["cbo(0).Text"]})~"),
      ElementsAre(R"~({"values":{"cbo(0).ListIndex":1}})~", R"~({"values":{"cbo(0).Text":"Vertrag"}})~"));
  EXPECT_EQ(clicks, 2);
}

TEST_F(DropDown, KeysOfATextFieldReachTheFormAfterOneWasUsed) {
  std::string heard;
  drops.Get<TextBox>(u"txtKey").KeyDown = [&](int& code, int) { heard += std::to_string(code) + " "; };
  for (const char* use :
       {R"~({"select":"cbo(0)","index":1})~", "{\"click\":\"cbo(0)\"}\n{\"key\":\"Escape\"}",
        "{\"click\":\"cbo(0)\"}\n{\"key\":\"Enter\"}"}) {
    heard.clear();
    drops.Get<TextBox>(u"txtKey").Text(u"abc");
    EXPECT_THAT(actsOnDropDowns(std::string(use) + "\n" + R"~({"focus":"txtKey"}
                                                              {"key":"End"}
                                                              {"key":"Left"}
                                                              {"get":["txtKey.SelStart"]}
                                                              {"key":"Home"}
                                                              {"get":["txtKey.SelStart"]})~"),
                ElementsAre(R"~({"values":{"txtKey.SelStart":2}})~", R"~({"values":{"txtKey.SelStart":0}})~"))
        << use;
    EXPECT_EQ(heard, "35 37 36 ") << use;
  }
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

// ---- over keys

constexpr ControlDesign keyRoster[] = {
    {u"txtKey", ControlKind::TextBox, u"", 120, 120, 855, 285},
    {u"VertriebsStatus",
     ControlKind::zqCombo,
     u"",
     120,
     540,
     3135,
     315,
     {.rowsourcetype = 2, .maxrows = 3, .allowedit = true}},
    {u"Herkunft", ControlKind::zqCombo, u"", 120, 960, 3135, 315, {.rowsourcetype = 4, .Enabled = false}},
};
constexpr FormDesign keyDesign{u"frmKeyCombos", u"Auswahl", 5400, 3300, keyRoster};

class KeyCombo : public ScriptTest {
 protected:
  KeyCombo() {
    connection->Execute(
        u"CREATE TABLE Vertriebsstati (Status VARCHAR(10) PRIMARY KEY, Bezeichnung VARCHAR(30))");
    connection->Execute(
        u"INSERT INTO Vertriebsstati VALUES ('05', 'Adresse'), ('10', 'Interesse'), ('20', 'Angebot'), "
        u"('30', NULL), ('40', 'Zusage')");
    faults.takeStatements();
    status.Connection(connection);
    status.Click = [this] { ++clicks; };
  }

  Lines actsOnCombos(const std::string& script) {
    Lines lines = run(script, [this] { combos.Show(); });
    return {lines.begin() + 1, lines.end() - 1};
  }

  Form combos{keyDesign};
  zqCombo& status = combos.Get<zqCombo>(u"VertriebsStatus");
  int clicks = 0;
};

TEST_F(KeyCombo, TakesAnEntryByItsKeyOrNumber) {
  EXPECT_THAT(actsOnCombos(R"~({"select":"VertriebsStatus","text":"20"}
                                {"get":["VertriebsStatus.Value","VertriebsStatus.Text","Form.ActiveControl"]}
                                {"select":"VertriebsStatus","index":4}
                                {"get":["VertriebsStatus.Value"]}
                                {"statements":true})~"),
              ElementsAre(R"~({"values":{"VertriebsStatus.Value":"20","VertriebsStatus.Text":"20 Angebot",)~"
                          R"~("Form.ActiveControl":"VertriebsStatus"}})~",
                          R"~({"values":{"VertriebsStatus.Value":"40"}})~", R"~({"statements":[]})~"));
  EXPECT_EQ(clicks, 2);
}

TEST_F(KeyCombo, RefusesKeysThatItLacks) {
  EXPECT_THAT(
      actsOnCombos(R"~({"select":"VertriebsStatus","text":"Angebot"}
                        {"select":"VertriebsStatus","index":5}
                        {"select":"Herkunft","text":"MESSE"}
                        {"get":["VertriebsStatus.Value"]})~"),
      ElementsAre(
          R"~({"refused":"VertriebsStatus has no entry \"Angebot\"","action":{"select":"VertriebsStatus",)~"
          R"~("text":"Angebot"}})~",
          R"~({"refused":"VertriebsStatus has no entry 5","action":{"select":"VertriebsStatus","index":5}})~",
          R"~({"refused":"Herkunft is disabled","action":{"select":"Herkunft","text":"MESSE"}})~",
          R"~({"values":{"VertriebsStatus.Value":null}})~"));
}

TEST_F(KeyCombo, EscPutsBackWhatStoodWhenTheListWasOpened) {
  EXPECT_THAT(actsOnCombos(R"~({"select":"VertriebsStatus","text":"20"}
                        {"key":"F4"}
                        {"type":"4"}
                        {"get":["VertriebsStatus.Value","VertriebsStatus.Text"]}
                        {"key":"Escape"}
                        {"get":["VertriebsStatus.Value","VertriebsStatus.Text","Form.ActiveControl"]})~"),
              ElementsAre(R"~({"values":{"VertriebsStatus.Value":"40","VertriebsStatus.Text":"40 Zusage"}})~",
                          R"~({"values":{"VertriebsStatus.Value":"20","VertriebsStatus.Text":"20 Angebot",)~"
                          R"~("Form.ActiveControl":"VertriebsStatus"}})~"));
}

TEST_F(KeyCombo, KeysOfATextFieldReachTheFormAfterOneWasUsed) {
  combos.Get<TextBox>(u"txtKey").Text(u"abc");
  EXPECT_THAT(actsOnCombos(R"~({"select":"VertriebsStatus","text":"20"}
                               {"focus":"txtKey"}
                               {"key":"End"}
                               {"key":"Left"}
                               {"get":["txtKey.SelStart"]})~"),
              ElementsAre(R"~({"values":{"txtKey.SelStart":2}})~"));
}

TEST_F(KeyCombo, IsListedByKeyAndTextAsSomebodyElseLeftThem) {
  EXPECT_THAT(
      actsOnCombos(R"~({"list":"VertriebsStatus"}
                        {"exec":"DELETE FROM Vertriebsstati WHERE Status<>'30'"}
                        {"select":"VertriebsStatus","text":"30"}
                        {"list":"VertriebsStatus"}
                        {"dump":true})~"),
      ElementsAre(R"~({"list":"VertriebsStatus","columns":[],"rows":[["05","Adresse"],["10","Interesse"],)~"
                  R"~(["20","Angebot"],["30",""],["40","Zusage"]],"row":-1})~",
                  R"~({"list":"VertriebsStatus","columns":[],"rows":[["30",""]],"row":0})~",
                  HasSubstr(R"~({"name":"VertriebsStatus","kind":"zqCombo","left":120,"top":540,)~"
                            R"~("width":3135,"height":315,"text":"30","enabled":true})~")));
}

TEST_F(KeyCombo, CompletesWhatIsTypedAndNeverTakesWhatWasFoundBefore) {
  EXPECT_THAT(
      actsOnCombos(R"~({"focus":"VertriebsStatus"}
                                {"type":"1"}
                                {"get":["VertriebsStatus.Value","VertriebsStatus.Text","VertriebsStatus.SelStart"]}
                                {"type":"x"}
                                {"get":["VertriebsStatus.Value","VertriebsStatus.Text"]}
                                {"key":"Tab"}
                                {"get":["VertriebsStatus.Value","VertriebsStatus.Text"]})~"),
      ElementsAre(R"~({"values":{"VertriebsStatus.Value":"10","VertriebsStatus.Text":"10 Interesse",)~"
                  R"~("VertriebsStatus.SelStart":1}})~",
                  R"~({"values":{"VertriebsStatus.Value":null,"VertriebsStatus.Text":"1x"}})~",
                  R"~({"values":{"VertriebsStatus.Value":null,"VertriebsStatus.Text":""}})~"));
}

TEST_F(KeyCombo, KeysAreTheOpenListsAndLettersTheFields) {
  EXPECT_THAT(actsOnCombos(R"~({"click":"VertriebsStatus"}
                                {"key":"F4"}
                                {"key":"Down"}
                                {"key":"Down"}
                                {"get":["VertriebsStatus.Value"]}
                                {"type":"ad"}
                                {"get":["VertriebsStatus.Value","VertriebsStatus.Text"]}
                                {"key":"Down"}
                                {"key":"Enter"}
                                {"get":["VertriebsStatus.Value","Form.ActiveControl"]})~"),
              ElementsAre(R"~({"values":{"VertriebsStatus.Value":null}})~",
                          R"~({"values":{"VertriebsStatus.Value":"05","VertriebsStatus.Text":"adresse"}})~",
                          R"~({"values":{"VertriebsStatus.Value":"10","Form.ActiveControl":)~"
                          R"~("VertriebsStatus"}})~"));
  EXPECT_EQ(clicks, 2);
}

TEST_F(KeyCombo, TakesNothingWhileValidateKeepsTheFocus) {
  combos.Get<TextBox>(u"txtKey").Validate = [](bool& cancel) { cancel = true; };
  EXPECT_THAT(actsOnCombos(R"~({"select":"VertriebsStatus","text":"20"}
                                {"get":["VertriebsStatus.Value","Form.ActiveControl"]})~"),
              ElementsAre(R"~({"values":{"VertriebsStatus.Value":null,"Form.ActiveControl":"txtKey"}})~"));
}

}  // namespace
}  // namespace zqn::script
