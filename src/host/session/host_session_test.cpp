// SPDX-License-Identifier: MIT
#include "host/session/host_session.h"

#include <gmock/gmock.h>

#include "ado/sqlite/sqlite.h"
#include "host/database/schema/schema.h"
#include "host/database/schema/statements.h"

namespace zqn::host {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Pair;

Ref<ado::Connection> emptyDatabase() { return ado::openSqlite(":memory:"); }

Ref<ado::Connection> databaseWithSettings() {
  const auto connection = emptyDatabase();
  for (const String& statement : createStatements(table(u"Einstellungen"), DatabaseProduct::Sqlite))
    connection->Execute(statement);
  return connection;
}

class Settings : public ::testing::Test {
 protected:
  void save(StringView key, StringView value, std::int32_t scope) {
    session.SaveSetting(u"Belegdruck", key, value, Missing, scope);
  }
  String read(StringView key, std::int32_t scope) {
    return session.GetSetting(u"Belegdruck", key, u"Vorgabe", scope);
  }

  Ref<ado::Connection> connection = databaseWithSettings();
  HostSession session{connection, u"anna", false};
};

}  // namespace

TEST_F(Settings, OfAScopeAreReadFromIt) {
  save(u"beide", u"Anna", zqnSaveAsUserSetting);
  save(u"beide", u"alle", zqnSaveAsGlobalSetting);
  EXPECT_EQ(read(u"beide", zqnGetUserSettingsOnly), u"Anna");
  EXPECT_EQ(read(u"beide", zqnGetGlobalSettingsOnly), u"alle");
  EXPECT_EQ(read(u"beide", zqnGetUserSettingsFirst), u"Anna");
  EXPECT_EQ(read(u"beide", zqnGetGlobalSettingsFirst), u"alle");
}

TEST_F(Settings, FallBackOnTheOtherScopeOnlyWhereBothAreAskedFor) {
  save(u"nur Anna", u"Anna", zqnSaveAsUserSetting);
  save(u"nur alle", u"alle", zqnSaveAsGlobalSetting);
  EXPECT_EQ(read(u"nur alle", zqnGetUserSettingsOnly), u"Vorgabe");
  EXPECT_EQ(read(u"nur Anna", zqnGetGlobalSettingsOnly), u"Vorgabe");
  EXPECT_EQ(read(u"nur alle", zqnGetUserSettingsFirst), u"alle");
  EXPECT_EQ(read(u"nur Anna", zqnGetGlobalSettingsFirst), u"Anna");
  EXPECT_EQ(read(u"keine", zqnGetUserSettingsFirst), u"Vorgabe");
}

TEST_F(Settings, ThatAreEmptyWinOverTheDefault) {
  save(u"leer", u"", zqnSaveAsUserSetting);
  save(u"leer", u"alle", zqnSaveAsGlobalSetting);
  EXPECT_EQ(read(u"leer", zqnGetUserSettingsOnly), u"");
  EXPECT_EQ(read(u"leer", zqnGetUserSettingsFirst), u"");
}

TEST_F(Settings, AreOneUsersAndNoOthers) {
  save(u"Layout", u"Anna", zqnSaveAsUserSetting);
  HostSession other(connection, u"berta", false);
  EXPECT_EQ(other.GetSetting(u"Belegdruck", u"Layout", u"", zqnGetUserSettingsFirst), u"");
  session.user(u"berta");
  EXPECT_EQ(read(u"Layout", zqnGetUserSettingsOnly), u"Vorgabe");
}

TEST_F(Settings, HaveOneSpellingWhateverTheCase) {
  save(u"Layout", u"1", zqnSaveAsGlobalSetting);
  session.SaveSetting(u"BELEGDRUCK", u"LAYOUT", u"2", Missing, zqnSaveAsGlobalSetting);
  EXPECT_EQ(read(u"layout", zqnGetGlobalSettingsOnly), u"2");
  EXPECT_THAT(session.settings().section(u"belegdruck", u"anna"), ElementsAre(Pair(u"Layout", u"2")));
}

TEST_F(Settings, HoldAnyText) {
  save(u"Satz", u"Müller's \"Größe\" ; -- %", zqnSaveAsUserSetting);
  EXPECT_EQ(read(u"Satz", zqnGetUserSettingsOnly), u"Müller's \"Größe\" ; -- %");
}

TEST_F(Settings, AreDescribedByWhoeverSavedThemLast) {
  EXPECT_EQ(read(u"Layout", zqnGetDescription), u"Vorgabe");
  session.SaveSetting(u"Belegdruck", u"Layout", u"1", u"Layout der Belege", zqnSaveAsGlobalSetting);
  EXPECT_EQ(read(u"Layout", zqnGetDescription), u"Layout der Belege");
  save(u"Layout", u"2", zqnSaveAsGlobalSetting);
  EXPECT_EQ(read(u"Layout", zqnGetDescription), u"Layout der Belege");
  session.SaveSetting(u"Belegdruck", u"Layout", u"3", u"Annas Layout", zqnSaveAsUserSetting);
  EXPECT_EQ(read(u"Layout", zqnGetDescription), u"Annas Layout");
}

TEST_F(Settings, KnowNoOtherScopes) {
  EXPECT_THROW(read(u"Layout", 4), RuntimeError);
  EXPECT_THROW(read(u"Layout", -2), RuntimeError);
  EXPECT_THROW(save(u"Layout", u"1", 2), RuntimeError);
  EXPECT_THROW(save(u"Layout", u"1", -1), RuntimeError);
}

TEST_F(Settings, ForTheRunHideTheStoredOnesUntilTheyAreSaved) {
  save(u"Layout", u"gespeichert", zqnSaveAsGlobalSetting);
  session.settings().setForRun({u"Belegdruck", u"Layout", u""}, u"");
  EXPECT_EQ(read(u"Layout", zqnGetGlobalSettingsOnly), u"");
  EXPECT_EQ(HostSession(connection, u"anna", false)
                .GetSetting(u"Belegdruck", u"Layout", u"", zqnGetGlobalSettingsOnly),
            u"gespeichert");
  save(u"LAYOUT", u"neu", zqnSaveAsGlobalSetting);
  EXPECT_EQ(read(u"Layout", zqnGetGlobalSettingsOnly), u"neu");
}

TEST_F(Settings, OfASectionComeByKeyWithTheUsersFirst) {
  save(u"b", u"alle", zqnSaveAsGlobalSetting);
  save(u"b", u"Anna", zqnSaveAsUserSetting);
  save(u"a", u"alle", zqnSaveAsGlobalSetting);
  session.settings().setForRun({u"Belegdruck", u"c", u"anna"}, u"Lauf");
  session.SaveSetting(u"Allgemein", u"a", u"anderswo", Missing, zqnSaveAsGlobalSetting);
  EXPECT_THAT(session.settings().section(u"Belegdruck", u"anna"),
              ElementsAre(Pair(u"a", u"alle"), Pair(u"b", u"Anna"), Pair(u"c", u"Lauf")));
}

TEST_F(Settings, CanBeTakenAway) {
  save(u"Layout", u"Anna", zqnSaveAsUserSetting);
  session.settings().erase({u"Belegdruck", u"Layout", u"anna"});
  EXPECT_EQ(read(u"Layout", zqnGetUserSettingsOnly), u"Vorgabe");
}

TEST_F(Settings, OfRightsThatCannotBeReadLeaveEverythingToAdministrators) {
  std::vector<std::string> told;
  session.rightsUnreadable = [&](const String& words) { told.push_back(toUtf8(words)); };
  const auto adminsOnly = [&] {
    return session.GetSetting(u"ZQNComDlg", u"AdminsOnly", u"0", zqnGetGlobalSettingsOnly);
  };
  const auto everybodysKinds = [&] {
    return session.GetSetting(u"ZQNComDlg", u"AllowVPSave", u"7;", zqnGetUserSettingsFirst);
  };
  connection->Execute(u"ALTER TABLE Einstellungen RENAME COLUMN Wert TO Inhalt");
  EXPECT_EQ(adminsOnly(), u"1");
  EXPECT_EQ(everybodysKinds(), u"");
  EXPECT_EQ(adminsOnly(), u"1");
  EXPECT_THAT(told, ElementsAre(HasSubstr("Wert")));
  EXPECT_NE(session.rightsFailure(), u"");
  EXPECT_THROW(read(u"Layout", zqnGetUserSettingsOnly), RuntimeError);
  EXPECT_THROW(session.GetSetting(u"ZQNComDlg", u"AdminsOnly", u"0", 7), RuntimeError);

  session.settings().setForRun({u"ZQNComDlg", u"AdminsOnly", u""}, u"0");
  EXPECT_EQ(adminsOnly(), u"0");

  connection->Execute(u"ALTER TABLE Einstellungen RENAME COLUMN Inhalt TO Wert");
  EXPECT_EQ(everybodysKinds(), u"7;");
  EXPECT_EQ(adminsOnly(), u"0");
  EXPECT_EQ(session.rightsFailure(), u"");
}

TEST(SettingsOfADatabaseWithoutTheirTable, AreNotThereAndCannotBeSaved) {
  HostSession session(emptyDatabase(), u"anna", false);
  EXPECT_EQ(session.GetSetting(u"ZQNComDlg", u"AdminsOnly", u"0", zqnGetGlobalSettingsOnly), u"0");
  EXPECT_THAT(session.settings().section(u"ZQNComDlg", u"anna"), ElementsAre());
  try {
    session.SaveSetting(u"ZQNComDlg", u"AdminsOnly", u"1", Missing, zqnSaveAsGlobalSetting);
    FAIL() << "saved without a table";
  } catch (const RuntimeError& failure) {
    EXPECT_EQ(failure.number(), error::TableNotFound);
  }
}

TEST(SettingsOfADatabaseWithoutTheirTable, MayStillBeGivenForTheRun) {
  HostSession session(emptyDatabase(), u"anna", false);
  session.settings().setForRun({u"ZQNComDlg", u"AdminsOnly", u""}, u"1");
  EXPECT_EQ(session.GetSetting(u"ZQNComDlg", u"AdminsOnly", u"0", zqnGetGlobalSettingsOnly), u"1");
}

TEST(TheSession, HandsOverItsConnectionAndItsRight) {
  const auto connection = emptyDatabase();
  HostSession session(connection, u"anna", true);
  EXPECT_EQ(session.SessionConnection(), connection);
  EXPECT_TRUE(session.UserIsAdmin());
  session.admin(false);
  EXPECT_FALSE(session.UserIsAdmin());
}

}  // namespace zqn::host
