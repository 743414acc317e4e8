// SPDX-License-Identifier: MIT
//
// The front controller as a host sees it: who may change what, what goes in and comes back, what fails and is
// skipped.
#include "frontend/orb_dialog.h"

#include "ado/sqlite/sqlite.h"
#include "frontend/basics/bas_basis.h"
#include "frontend/kinds.h"
#include "testing/dialog_test.h"

namespace zqn::testing {
namespace {

class Show : public DialogTest {
 protected:
  Show() {
    execute(
        u"CREATE TABLE Vertriebsstati (Status VARCHAR(10) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        u"Bezeichnung VARCHAR(30) COLLATE ZQN_TEXT, AutoOverwrite SMALLINT, Gewichtung DOUBLE);"
        u"INSERT INTO Vertriebsstati VALUES ('10', 'Interesse', 0, 10);"
        u"INSERT INTO Vertriebsstati VALUES ('20', 'Angebot', -1, 40)");
  }

  bool allowed(std::int32_t kind) {
    show(kind, {u"10"}, [this] {
      if (Control* button = headless::cancelButton(form())) desktop.click(*button);
    });
    return basBasis::bAllowChanges;
  }
  void setting(StringView key, StringView value, std::int32_t scope = zqnSaveAsGlobalSetting) {
    session->SaveSetting(u"ZQNComDlg", key, value, Missing, scope);
  }
};

// ---- who may change what

TEST_F(Show, WithoutSettingsEverybodyMayChange) {
  EXPECT_TRUE(allowed(21));
  setting(u"AdminsOnly", u"0");
  EXPECT_TRUE(allowed(21));
}

TEST_F(Show, AdminsOnlyLeavesTheDefaultKindToOthers) {
  setting(u"AdminsOnly", u"1");
  for (const KindInfo& kind : dialogKinds()) EXPECT_EQ(allowed(kind.number), kind.number == 7) << kind.number;
  for (const std::int32_t outside : {-1, 0, 38, 100000}) EXPECT_FALSE(allowed(outside));
}

TEST_F(Show, AdministratorsMayChangeEverything) {
  setting(u"AdminsOnly", u"1");
  session->admin = true;
  EXPECT_TRUE(allowed(21));
}

TEST_F(Show, AListWithoutASemicolonGrantsNothing) {
  setting(u"AdminsOnly", u"1");
  setting(u"AllowVPSave", u"7");
  EXPECT_FALSE(allowed(7));
  setting(u"AllowVPSave", u"");
  EXPECT_FALSE(allowed(7));
}

TEST_F(Show, PartsThatAreEmptyOrNoNumberAreSkipped) {
  setting(u"AdminsOnly", u"1");
  setting(u"AllowVPSave", u"7;abc;;21;");
  EXPECT_TRUE(allowed(7));
  EXPECT_TRUE(allowed(21));
  EXPECT_FALSE(allowed(3));
}

TEST_F(Show, APartBeyondSixteenBitsCountsAsAMatch) {
  setting(u"AdminsOnly", u"1");
  setting(u"AllowVPSave", u"3;99999;");
  EXPECT_TRUE(allowed(21));
}

TEST_F(Show, TheUsersListWinsOverTheGlobalOne) {
  setting(u"AdminsOnly", u"1");
  setting(u"AllowVPSave", u"21;");
  EXPECT_TRUE(allowed(21));
  setting(u"AllowVPSave", u"3;", zqnSaveAsUserSetting);
  EXPECT_FALSE(allowed(21));
}

TEST_F(Show, AdminsOnlyIsReadFromTheGlobalSettingsAlone) {
  setting(u"AdminsOnly", u"1", zqnSaveAsUserSetting);
  EXPECT_TRUE(allowed(21));
}

TEST_F(Show, ATextThatIsNoBooleanLeavesAdminsOnlyFalse) {
  setting(u"AdminsOnly", u"ja");
  EXPECT_TRUE(allowed(21));
  setting(u"AdminsOnly", u"Wahr");
  EXPECT_FALSE(allowed(21));
}

TEST_F(Show, WithoutASessionEverythingIsAllowed) {
  ORBDialog bare;
  bare.Connection(connection);
  basBasis::bAllowChanges = false;
  VariantArray none{u"10"};
  EXPECT_EQ(bare.Show(21, none), Variant(u"10"));
  EXPECT_TRUE(basBasis::bAllowChanges);
}

TEST_F(Show, ASessionThatFailsLeavesEverythingAllowed) {
  setting(u"AdminsOnly", u"1");
  session->fails = error::ObjectNotSet;
  EXPECT_TRUE(allowed(21));
}

TEST_F(Show, WhoCannotBeKnownForSureMayChangeEverything) {
  struct Unsure : TestSession {
    bool UserIsAdmin() override { throw RuntimeError(error::ObjectNotSet); }
  };
  setting(u"AdminsOnly", u"1");
  EXPECT_FALSE(allowed(21));
  session = std::make_shared<Unsure>();
  session->connection = connection;
  setting(u"AdminsOnly", u"1");
  dialog.Session(Ref<Session>(session));
  EXPECT_TRUE(allowed(21));
}

TEST_F(Show, TheLastShowOfAnyObjectCounts) {
  setting(u"AdminsOnly", u"1");
  EXPECT_FALSE(allowed(21));
  ORBDialog other;
  VariantArray none;
  other.Show(0, none);
  EXPECT_TRUE(basBasis::bAllowChanges);
}

// ---- what goes in and comes back

TEST_F(Show, AClosedDialogGivesTheKeyBackThatCameIn) {
  EXPECT_EQ(show(21, {u"10"}), Variant(u"10"));
  EXPECT_EQ(param.at(0), Variant(u"10"));
}

TEST_F(Show, APickComesBackInParamAndAsTheResult) {
  EXPECT_EQ(show(21, {u"10", u"untouched"}, [&] { doubleClick(1); }), Variant(u"20"));
  EXPECT_EQ(param.at(0), Variant(u"20"));
  EXPECT_EQ(param.at(1), Variant(u"untouched"));
  EXPECT_TRUE(dialog.Result().isEmpty());
}

TEST_F(Show, ParamWithoutElementsShowsTheFormAllTheSame) {
  EXPECT_EQ(show(21, {}, [&] { doubleClick(1); }), Variant(u"20"));
  EXPECT_EQ(param.size(), 0u);
}

TEST_F(Show, ParamWithTwoDimensionsShowsTheFormAllTheSame) {
  VariantArray square({u"a", u"b", u"c", u"d"}, 2);
  EXPECT_EQ(show(21, square, [&] { doubleClick(1); }), Variant(u"20"));
  EXPECT_EQ(param.elements()[0], Variant(u"a"));
}

TEST_F(Show, ANullKeyOpensTheEmptyKeyAndComesBackAsNull) {
  EXPECT_TRUE(show(21, {Null}, [&] { EXPECT_EQ(text(u"Schluessel"), u""); }).isNull());
  EXPECT_TRUE(param.at(0).isNull());
}

TEST_F(Show, NumbersWithoutACatalogueOpenTheEmptyWindow) {
  for (const std::int32_t kind : {-5, 0, 38, 32767}) {
    int shown = 0;
    EXPECT_TRUE(show(kind, {u"10"}, [&] {
                  ++shown;
                  EXPECT_EQ(form().Caption(), u"Form1");
                  for (const auto& control : form().controls()) EXPECT_FALSE(control->isShown());
                  press(key::Escape);
                }).isEmpty());
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(param.at(0), Variant(u"10"));
  }
}

// ---- reports of picks

TEST_F(Show, MultiselectReportsEachPickWhileTheFormStaysOpen) {
  std::vector<Variant> heard;
  dialog.Multiselect(true);
  dialog.DblClick = [&](const Variant& result) {
    heard.push_back(result);
    EXPECT_EQ(dialog.Result(), result);
  };
  const Variant returned = show(21, {u"10"}, [&] {
    doubleClick(1);
    doubleClick(0);
    doubleClick(1);
    EXPECT_TRUE(form().Visible());
  });
  EXPECT_THAT(heard, ::testing::ElementsAre(Variant(u"20"), Variant(u"10"), Variant(u"20")));
  EXPECT_EQ(returned, Variant(u"20"));
  EXPECT_EQ(dialog.Result(), Variant(u"20"));
}

TEST_F(Show, ResultStaysAcrossACallWithoutAPick) {
  dialog.Result(u"before");
  show(21, {u"10"}, [&] { doubleClick(1); });
  EXPECT_EQ(dialog.Result(), Variant(u"before"));
}

TEST_F(Show, AHostWhoseHandlerFailsDisturbsNobody) {
  dialog.Multiselect(true);
  dialog.DblClick = [](const Variant&) { throw RuntimeError(error::TypeMismatch); };
  EXPECT_EQ(show(21, {u"10"}, [&] { doubleClick(1); }), Variant(u"20"));
  EXPECT_EQ(dialog.Result(), Variant(u"20"));
}

TEST_F(Show, AHostMayOpenTheSameDialogAgainWhenItHearsOfAPick) {
  std::vector<Variant> heard;
  dialog.Multiselect(true);
  dialog.DblClick = [&](const Variant& result) {
    heard.push_back(result);
    VariantArray inner{u"10"};
    EXPECT_EQ(dialog.Show(21, inner), Variant(u"10"));
  };
  EXPECT_EQ(show(21, {u"10"},
                 [&] {
                   doubleClick(1);
                   doubleClick(1);
                 }),
            Variant(u"20"));
  EXPECT_THAT(heard, ::testing::ElementsAre(Variant(u"20"), Variant(u"20")));
}

// ---- session and connection

TEST_F(Show, TheSessionBringsItsConnection) {
  ORBDialog fresh;
  EXPECT_FALSE(fresh.Multiselect());
  EXPECT_TRUE(fresh.Result().isEmpty());
  EXPECT_TRUE(fresh.Session().isNothing());
  EXPECT_TRUE(fresh.Connection().isNothing());
  fresh.Connection(Ref<ado::Connection>());
  fresh.Session(Ref<Session>(session));
  EXPECT_EQ(fresh.Connection(), connection);
  fresh.Connection(nothing);
  EXPECT_TRUE(fresh.Connection().isNothing());
  EXPECT_FALSE(fresh.Session().isNothing());
}

TEST_F(Show, ASessionAfterAConnectionReplacesIt) {
  ORBDialog fresh;
  const Ref<ado::Connection> other = ado::openSqlite(":memory:");
  fresh.Connection(other);
  EXPECT_EQ(fresh.Connection(), other);
  fresh.Session(Ref<Session>(session));
  EXPECT_EQ(fresh.Connection(), connection);
  fresh.Connection(other);
  EXPECT_EQ(fresh.Connection(), other);
  other->Close();
}

TEST_F(Show, WithoutAConnectionTheFormStandsEmpty) {
  dialog.Connection(nothing);
  EXPECT_EQ(show(21, {u"10"},
                 [&] {
                   EXPECT_TRUE(listRows().empty());
                   EXPECT_EQ(text(u"Schluessel"), u"10");
                   EXPECT_EQ(text(u"Kurztext"), u"");
                 }),
            Variant(u"10"));
}

// ---- the kinds

TEST(Kinds, RunFromOneToThirtySevenWithoutAGap) {
  ASSERT_EQ(dialogKinds().size(), 37u);
  std::int32_t expected = 0;
  for (const KindInfo& kind : dialogKinds()) {
    EXPECT_EQ(kind.number, ++expected);
    EXPECT_EQ(findKind(expected), &kind);
    EXPECT_EQ(kind.server == KindServer::Generic, StringView(kind.form) == u"frmDialog");
    EXPECT_EQ(hasDefinition(kind.number), !StringView(kind.definition).empty()) << kind.number;
    if (kind.server == KindServer::Generic) {
      EXPECT_TRUE(hasDefinition(kind.number)) << kind.number;
    }
  }
  EXPECT_EQ(findKind(0), nullptr);
  EXPECT_EQ(findKind(38), nullptr);
}

TEST(Kinds, EveryOfferedKindHasItsFormUnderTheName) {
  int offered = 0;
  for (const KindInfo& kind : dialogKinds()) {
    if (!isOffered(kind.number)) continue;
    ++offered;
    EXPECT_EQ(makeForm(kind.number)->Name(), String(kind.form)) << kind.number;
  }
  EXPECT_EQ(offered, 37);
  EXPECT_FALSE(isOffered(0));
  EXPECT_FALSE(isOffered(38));
}

}  // namespace
}  // namespace zqn::testing
