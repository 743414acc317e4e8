// SPDX-License-Identifier: MIT
#include "testing/script/script_test.h"

namespace zqn::script {
namespace {

class OutsideChanges : public ScriptTest {};

TEST_F(OutsideChanges, ExecIsAChangeBySomebodyElse) {
  bindList();
  EXPECT_THAT(acts(R"({"get":["TDBList1.Row"]}
                      {"exec":"UPDATE Stati SET Name='Neu' WHERE Status='20'"}
                      {"sql":"SELECT Name FROM Stati WHERE Status='20'"})"),
              ElementsAre(HasSubstr("values"), R"({"rows":[["Neu"]]})"));
}

TEST_F(OutsideChanges, LinesBeforeTheFirstActionTakeEffectBeforeShow) {
  std::vector<std::string> seen;
  form.Load = [&] {
    seen = stored(u"SELECT Status FROM Stati ORDER BY Status");
    seen.push_back(toUtf8(settings.at(0).value));
    seen.push_back(user->auskunft().missing ? "missing" : "offered");
    try {
      connection->Execute(u"UPDATE Stati SET Rang=0");
    } catch (const RuntimeError& failure) {
      seen.push_back(std::to_string(failure.number()));
    }
  };
  EXPECT_THAT(acts(R"(# die Welt
                      {"exec":"DELETE FROM Stati WHERE Status<>'10'"}
                      {"setting":{"section":"ZQNComDlg","key":"AdminsOnly","value":"1","scope":0}}

                      {"auskunft":null}
                      {"fail":{"operation":"Execute","match":"UPDATE","number":-2147217900}}
                      {"sql":"SELECT count(*) FROM Stati"}
                      {"exec":"DELETE FROM Stati"}
                      {"sql":"SELECT count(*) FROM Stati"})"),
              ElementsAre(R"({"rows":[[1]]})", R"({"rows":[[0]]})"));
  EXPECT_THAT(seen, ElementsAre("10", "1", "missing", "-2147217900"));
}

TEST_F(OutsideChanges, SettingIsSavedInItsScope) {
  acts(R"({"setting":{"section":"ZQNComDlg","key":"AdminsOnly","value":"1","scope":1}}
          {"setting":{"section":"Belegdruck","key":"OMRLayout","value":"","scope":0}}
          {"setting":{"section":"A","key":"B","value":"C"}})");
  ASSERT_EQ(settings.size(), 3U);
  EXPECT_EQ(settings[0].section, u"ZQNComDlg");
  EXPECT_EQ(settings[0].key, u"AdminsOnly");
  EXPECT_EQ(settings[0].value, u"1");
  EXPECT_EQ(settings[0].scope, 1);
  EXPECT_EQ(settings[1].value, u"");
  EXPECT_EQ(settings[1].scope, 0);
  EXPECT_EQ(settings[2].scope, 1);
}

TEST_F(OutsideChanges, ClipboardIsWhatAnotherProgramHasCopied) {
  EXPECT_THAT(
      acts(R"({"clipboard":"L-1 ß"}
                      {"focus":"txtName"}
                      {"key":"v","shift":2}
                      {"get":["txtName.Text"]}
                      {"clipboard":"zwei"}
                      {"key":"v","shift":2}
                      {"get":["txtName.Text"]})"),
      ElementsAre(R"({"values":{"txtName.Text":"L-1 ß"}})", R"({"values":{"txtName.Text":"L-1 ßzwei"}})"));
}

TEST_F(OutsideChanges, AuskunftAnswersWhatTheLastLineSaid) {
  std::vector<AuskunftAnswer> asked;
  form.btnOK.Click = [&] {
    user->writeAuskunft(u"AUSK_Kundenauskunft", u"Kundenauskunft");
    asked.push_back(user->auskunft());
  };
  EXPECT_THAT(acts(R"({"click":"btnOK"}
                      {"auskunft":{"result":1,"items":{"Kundennummer":"10001","Anzahl":2,"Leer":null}}}
                      {"click":"btnOK"}
                      {"click":"btnOK"}
                      {"auskunft":null}
                      {"click":"btnOK"}
                      {"auskunft":{}}
                      {"click":"btnOK"})"),
              ElementsAre(R"({"auskunft":{"name":"AUSK_Kundenauskunft","title":"Kundenauskunft"}})",
                          HasSubstr("AUSK_"), HasSubstr("AUSK_"), HasSubstr("AUSK_"), HasSubstr("AUSK_")));
  ASSERT_EQ(asked.size(), 5U);
  EXPECT_EQ(asked[0].result, 0);
  EXPECT_FALSE(asked[0].missing);
  EXPECT_EQ(asked[1].result, 1);
  ASSERT_EQ(asked[1].items.size(), 3U);
  EXPECT_EQ(asked[1].items[0].first, u"Kundennummer");
  EXPECT_EQ(asked[1].items[0].second, Variant(u"10001"));
  EXPECT_EQ(asked[1].items[1].second, Variant(2));
  EXPECT_TRUE(asked[1].items[2].second.isNull());
  EXPECT_EQ(asked[2].result, 1);
  EXPECT_TRUE(asked[3].missing);
  EXPECT_FALSE(asked[4].missing);
  EXPECT_EQ(asked[4].result, 0);
}

// ---- fail

class Failing : public ScriptTest {
 protected:
  Failing() {
    form.btnOK.Click = [this] {
      Ref<ado::Recordset> row = Ref<ado::Recordset>::make();
      row->Open(u"SELECT * FROM Stati WHERE Status='10'", connection, ado::adOpenKeyset,
                ado::adLockOptimistic);
      row->Find(u"Name='Erstkontakt'");
      row->Fields(u"Rang").Value(Variant(7));
      row->Update();
      row->AddNew();
      row->CancelUpdate();
      row->Requery();
      row->Close();
      connection->Execute(u"DELETE FROM Stati WHERE Status='30'");
      form.chkFlag.Value(1);
    };
  }

  /// What comes of a click while a fault is armed: the error line, or the check box.
  Lines clickWith(const std::string& fault) {
    form.chkFlag.Value(0);
    return acts(R"({"fail":)" + fault + "}\n" + R"({"click":"btnOK"}
                                                   {"get":["chkFlag.Value"]})");
  }
  static constexpr const char* wentWell = R"({"values":{"chkFlag.Value":1}})";
  static constexpr const char* endedEarly = R"({"values":{"chkFlag.Value":0}})";
};

TEST_F(Failing, MakesEachOperationFail) {
  for (const char* operation : {"Open", "Find", "Field", "Update", "AddNew", "Requery", "Close", "Execute"}) {
    EXPECT_THAT(
        clickWith(R"({"operation":")" + std::string(operation) +
                  R"(","match":"Stati","number":-2147217900,"description":"Geht nicht."})"),
        ElementsAre(R"({"error":{"in":"btnOK_Click","number":-2147217900,"description":"Geht nicht."}})",
                    endedEarly))
        << operation;
  }
}

TEST_F(Failing, LeavesOtherStatementsAndOtherSpellingsAlone) {
  EXPECT_THAT(clickWith(R"({"operation":"Update","match":"Kontaktgruppen","number":5})"),
              ElementsAre(wentWell));
  EXPECT_THAT(clickWith(R"({"operation":"Update","match":"stati","number":5})"), ElementsAre(wentWell));
}

TEST_F(Failing, OfFindLooksIntoTheCriterionToo) {
  EXPECT_THAT(clickWith(R"({"operation":"Find","match":"Name='Erst","number":3001})"),
              ElementsAre(HasSubstr(R"("number":3001)"), endedEarly));
  EXPECT_THAT(clickWith(R"({"operation":"Open","match":"Name='Erst","number":3001})"), ElementsAre(wentWell));
}

TEST_F(Failing, TakesTheWordsOfThePlatformWithoutADescription) {
  EXPECT_THAT(
      clickWith(R"({"operation":"Update","number":3021})"),
      ElementsAre(
          R"({"error":{"in":"btnOK_Click","number":3021,"description":"BOF oder EOF ist True, oder der )"
          R"(aktuelle Datensatz ist gelöscht. Der Vorgang braucht einen aktuellen Datensatz."}})",
          endedEarly));
}

TEST_F(Failing, CountsMatchesOnly) {
  EXPECT_THAT(acts(R"({"fail":{"operation":"Execute","match":"Status='30'","number":5,"times":2}}
                      {"fail":{"operation":"Execute","match":"Nirgends","number":5}}
                      {"click":"btnOK"}
                      {"click":"btnOK"}
                      {"click":"btnOK"}
                      {"get":["chkFlag.Value"]})"),
              ElementsAre(HasSubstr(R"("number":5)"), HasSubstr(R"("number":5)"), wentWell));
}

TEST_F(Failing, UsesFaultsUpInTheOrderOfTheLines) {
  EXPECT_THAT(acts(R"({"fail":{"operation":"Execute","number":5}}
                      {"fail":{"operation":"Execute","number":6}}
                      {"click":"btnOK"}
                      {"click":"btnOK"}
                      {"click":"btnOK"}
                      {"get":["chkFlag.Value"]})"),
              ElementsAre(HasSubstr(R"("number":5)"), HasSubstr(R"("number":6)"), wentWell));
}

TEST_F(Failing, OfUpdateLeavesTheStoredRow) {
  clickWith(R"({"operation":"Update","number":-2147217864})");
  EXPECT_THAT(stored(u"SELECT Rang FROM Stati WHERE Status='10'"), ElementsAre("1"));
  clickWith(R"({"operation":"Update","match":"Nirgends","number":5})");
  EXPECT_THAT(stored(u"SELECT Rang FROM Stati WHERE Status='10'"), ElementsAre("7"));
}

TEST_F(Failing, OfFieldIsNotTheDrawingOfAList) {
  bindList();
  form.btnOK.Click = [&] { rs->Fields(u"Name").Value(); };
  EXPECT_THAT(acts(R"({"fail":{"operation":"Field","number":5}}
                      {"list":"TDBList1"}
                      {"select":"TDBList1","row":1}
                      {"click":"btnOK"}
                      {"click":"btnOK"})"),
              ElementsAre(HasSubstr(R"(["10","Erstkontakt","1"])"), HasSubstr(R"("number":5)")));
}

}  // namespace
}  // namespace zqn::script
