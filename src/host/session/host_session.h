// SPDX-License-Identifier: MIT
//
// The session of the reference host: one user, one connection, and the settings of its store.
//
//     auto session = std::make_shared<HostSession>(connection, u"anna", false);
//     dialog.Session(Ref<Session>(session));
#pragma once

#include <functional>
#include <optional>

#include "contract/session.h"
#include "host/session/settings_store.h"
#include "runtime/error.h"

namespace zqn::host {

class HostSession : public Session {
 public:
  /// The settings are kept in the same database. `user` is not empty.
  HostSession(Ref<ado::Connection> connection, String user, bool admin);

  /// A stored setting wins over the default even when it is empty. `zqnGetDescription` gives the words that
  /// explain the setting, the user's before the global ones. Error 5 for a scope that is none of
  /// zqnGetSettingConstants; the provider's errors, but for the settings that decide about rights
  /// (`ZQNComDlg`: `AdminsOnly`, `AllowVPSave`), which then leave them to administrators.
  String GetSetting(StringView Section, StringView Key, StringView Default, std::int32_t Mode) override;
  /// A `Description` that is not missing is stored with the value. Error 5 for a scope that is neither user
  /// nor global.
  void SaveSetting(StringView Section, StringView Key, StringView Value, const Variant& Description,
                   std::int32_t Mode) override;
  Ref<ado::Connection> SessionConnection() override { return connection_; }
  bool UserIsAdmin() override { return admin_; }

  /// Why the settings that decide about rights could not be read when they were last asked for, in the
  /// provider's words; empty when they could. They read as "administrators only" then.
  const String& rightsFailure() const noexcept { return rightsFailure_; }
  /// Told of such a failure, once for as long as it stays the same. May be left empty.
  std::function<void(const String& words)> rightsUnreadable;

  const String& user() const noexcept { return user_; }
  /// Not empty.
  void user(String user) { user_ = std::move(user); }
  void admin(bool admin) noexcept { admin_ = admin; }
  SettingsStore& settings() noexcept { return settings_; }

 private:
  std::optional<String> stored(StringView section, StringView key, std::int32_t mode) const;
  String withoutRights(StringView key, const RuntimeError& failure);

  Ref<ado::Connection> connection_;
  String user_;
  bool admin_;
  SettingsStore settings_;
  String rightsFailure_;
};

/// Name of the person at the machine.
String loginName();

}  // namespace zqn::host
