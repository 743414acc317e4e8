// SPDX-License-Identifier: MIT
//
// The session of the reference host: one user, one connection, and the settings of its store.
//
//     auto session = std::make_shared<HostSession>(connection, u"anna", false);
//     dialog.Session(Ref<Session>(session));
#pragma once

#include "contract/session.h"
#include "host/session/settings_store.h"

namespace zqn::host {

class HostSession : public Session {
 public:
  /// The settings are kept in the same database. `user` is not empty.
  HostSession(Ref<ado::Connection> connection, String user, bool admin);

  /// A stored setting wins over the default even when it is empty. `zqnGetDescription` gives the words that
  /// explain the setting, the user's before the global ones. Error 5 for a scope that is none of
  /// zqnGetSettingConstants.
  String GetSetting(StringView Section, StringView Key, StringView Default, std::int32_t Mode) override;
  /// A `Description` that is not missing is stored with the value. Error 5 for a scope that is neither user
  /// nor global.
  void SaveSetting(StringView Section, StringView Key, StringView Value, const Variant& Description,
                   std::int32_t Mode) override;
  Ref<ado::Connection> SessionConnection() override { return connection_; }
  bool UserIsAdmin() override { return admin_; }

  const String& user() const noexcept { return user_; }
  /// Not empty.
  void user(String user) { user_ = std::move(user); }
  void admin(bool admin) noexcept { admin_ = admin; }
  SettingsStore& settings() noexcept { return settings_; }

 private:
  Ref<ado::Connection> connection_;
  String user_;
  bool admin_;
  SettingsStore settings_;
};

/// Name of the person at the machine.
String loginName();

}  // namespace zqn::host
