// SPDX-License-Identifier: MIT
#include "forms/list_box.h"
#include "forms/menu.h"
#include "forms/option_button.h"
#include "forms/timer.h"
#include "testing/script/script_test.h"

namespace zqn::script {
namespace {

constexpr ControlDesign roster[] = {
    {u"lst", ControlKind::ListBox, u"", 120, 120, 2500, 1200},
    {u"txtDatum", ControlKind::DateInput, u"", 120, 1400, 1185, 315},
    {u"opt(0)", ControlKind::OptionButton, u"Alle", 120, 1800, 1200, 285, {.Value = true}},
    {u"opt(1)", ControlKind::OptionButton, u"Einer", 120, 2100, 1200, 285},
    {u"btn", ControlKind::CommandButton, u"Menü", 3000, 120, 1200, 315},
    {u"Shape1", ControlKind::Shape, u"", 3000, 600, 435, 30},
    {u"Timer1", ControlKind::Timer, u"", 0, 0, 0, 0, {.Interval = 10}},
    {u"mnuPopup", ControlKind::Menu, u"Popup", 0, 0, 0, 0, {.Visible = false}},
    {u"mnuOpen", ControlKind::Menu, u"Öff&nen", 0, 0, 0, 0, {.Enabled = false, .Container = u"mnuPopup"}},
    {u"mnuDelete", ControlKind::Menu, u"&Löschen", 0, 0, 0, 0, {.Container = u"mnuPopup"}},
};
constexpr FormDesign design{u"frmLists", u"Listen", 5400, 3300, roster};

class ListsAndMenus : public ScriptTest {
 protected:
  ListsAndMenus() {
    for (const char16_t* text : {u"Angebot", u"Auftrag", u"Rechnung", u"Gutschrift"}) lst.AddItem(text);
    lst.Click = [this] { ++clicks; };
    lists.Get<CommandButton>(u"btn").Click = [this] {
      lists.PopupMenu(lists.Get<Menu>(u"mnuPopup"));
      lists.Caption(lists.Caption() + u"!");
    };
    lists.Get<Menu>(u"mnuDelete").Click = [this] { lists.Caption(u"Gelöscht"); };
    Timer& timer = lists.Get<Timer>(u"Timer1");
    timer.Tick = [this] { ++ticks; };
  }
  Lines actsOnLists(const std::string& script) {
    Lines lines = run(script, [this] { lists.Show(); });
    return {lines.begin() + 1, lines.end() - 1};
  }

  Form lists{design};
  ListBox& lst = lists.Get<ListBox>(u"lst");
  int clicks = 0;
  int ticks = 0;
};

TEST_F(ListsAndMenus, LeavesExactlyTheseRowsSelected) {
  lst.Selected(3, true);
  clicks = 0;
  EXPECT_THAT(
      actsOnLists(R"~({"select":"lst","rows":[0,2]}
                              {"get":["lst.Selected(0)","lst.Selected(1)","lst.Selected(2)","lst.SelCount","lst.ListIndex"]}
                              {"select":"lst","row":1}
                              {"get":["lst.Selected(1)","lst.SelCount"]}
                              {"select":"lst","rows":[]}
                              {"get":["lst.SelCount","Form.ActiveControl"]}
                              {"list":"lst"})~"),
      ElementsAre(
          R"~({"values":{"lst.Selected(0)":true,"lst.Selected(1)":false,"lst.Selected(2)":true,)~"
          R"~("lst.SelCount":2,"lst.ListIndex":2}})~",
          R"~({"values":{"lst.Selected(1)":true,"lst.SelCount":1}})~",
          R"~({"values":{"lst.SelCount":0,"Form.ActiveControl":"lst"}})~",
          R"~({"list":"lst","columns":[],"rows":[["Angebot"],["Auftrag"],["Rechnung"],["Gutschrift"]],)~"
          R"~("row":0})~"));
  EXPECT_EQ(clicks, 5) << "two for two rows, one for one, two for none";
}

TEST_F(ListsAndMenus, KeysSelectInTheList) {
  EXPECT_THAT(actsOnLists(R"~({"focus":"lst"}
                              {"key":"Home"}
                              {"key":"Down","shift":1}
                              {"type":"g"}
                              {"key":"Space","shift":2}
                              {"get":["lst.SelCount","lst.ListIndex"]})~"),
              ElementsAre(R"~({"values":{"lst.SelCount":0,"lst.ListIndex":3}})~"));
}

TEST_F(ListsAndMenus, RefusesRowsThatTheListLacks) {
  EXPECT_THAT(actsOnLists(R"~({"select":"lst","rows":[1,4]}
                              {"select":"btn","rows":[0]}
                              {"get":["lst.SelCount"]})~"),
              ElementsAre(R"~({"refused":"lst has no row 4","action":{"select":"lst","rows":[1,4]}})~",
                          R"~({"refused":"btn is a CommandButton, which takes no several rows",)~"
                          R"~("action":{"select":"btn","rows":[0]}})~",
                          R"~({"values":{"lst.SelCount":0}})~"));
}

TEST_F(ListsAndMenus, TakesAnItemOfThePopupMenu) {
  EXPECT_THAT(
      actsOnLists(R"~({"click":"btn"}
                              {"click":"btn"}
                              {"menu":"mnuOpen"}
                              {"menu":"mnuElse"}
                              {"menu":"mnuDelete"}
                              {"get":["Form.Caption"]}
                              {"menu":"mnuDelete"})~"),
      ElementsAre(R"~({"popup":"mnuPopup","items":[{"name":"mnuOpen","caption":"Öff&nen","enabled":false},)~"
                  R"~({"name":"mnuDelete","caption":"&Löschen","enabled":true}]})~",
                  R"~({"refused":"a popup menu is open","action":{"click":"btn"}})~",
                  R"~({"refused":"mnuOpen is disabled","action":{"menu":"mnuOpen"}})~",
                  R"~({"refused":"the popup menu has no item \"mnuElse\"","action":{"menu":"mnuElse"}})~",
                  R"~({"values":{"Form.Caption":"Gelöscht!"}})~",
                  R"~({"refused":"no popup menu is open","action":{"menu":"mnuDelete"}})~"));
}

TEST_F(ListsAndMenus, EscAndTheEndOfTheScriptCloseAMenu) {
  const Lines lines = actsOnLists(R"~({"click":"btn"}
                                      {"key":"Escape"}
                                      {"get":["Form.Caption"]}
                                      {"click":"btn"})~");
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[1], R"~({"values":{"Form.Caption":"Listen!"}})~");
  EXPECT_FALSE(failed);
}

TEST_F(ListsAndMenus, TimersTickWhileTheUserWaitsAndNeverOtherwise) {
  EXPECT_THAT(
      actsOnLists(R"~({"get":["Timer1.Enabled"]}
                              {"wait":9}
                              {"get":["Timer1.Interval"]}
                              {"wait":22})~"),
      ElementsAre(R"~({"values":{"Timer1.Enabled":true}})~", R"~({"values":{"Timer1.Interval":10}})~"));
  EXPECT_EQ(ticks, 3);
}

TEST_F(ListsAndMenus, ADumpShowsWhatIsDrawn) {
  const Lines lines = actsOnLists(R"~({"dump":true})~");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_THAT(lines[0], HasSubstr(R"~({"name":"Shape1","kind":"Shape","left":3000,"top":600,"width":435,)~"
                                  R"~("height":30,"enabled":true}]})~"));
  EXPECT_THAT(lines[0], HasSubstr(R"~("kind":"OptionButton")~"));
  EXPECT_THAT(lines[0], HasSubstr(R"~({"name":"txtDatum","kind":"DateInput",)~"));
}

TEST_F(ListsAndMenus, OptionsAndDatesAreUsedLikeOtherControls) {
  EXPECT_THAT(
      actsOnLists(R"~({"click":"opt(1)"}
                              {"focus":"txtDatum"}
                              {"type":"05.03.2026"}
                              {"get":["opt(0).Value","opt(1).Value","txtDatum.Value"]}
                              {"key":"Tab"}
                              {"key":"Up"}
                              {"get":["opt(0).Value","Form.ActiveControl"]})~"),
      ElementsAre(
          R"~({"values":{"opt(0).Value":false,"opt(1).Value":true,"txtDatum.Value":"20260305000000"}})~",
          R"~({"values":{"opt(0).Value":true,"Form.ActiveControl":"opt(0)"}})~"));
}

}  // namespace
}  // namespace zqn::script
