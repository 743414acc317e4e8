// SPDX-License-Identifier: MIT
//
// The host's session, as the dialogs see it.
#pragma once

#include <cstdint>

#include "runtime/ref.h"
#include "runtime/variant.h"

namespace zqn {

namespace ado {
class Connection;
}

/// Where a setting is read from.
enum zqnGetSettingConstants : std::int32_t {
  zqnGetUserSettingsOnly = 0,
  zqnGetGlobalSettingsOnly = 1,
  zqnGetUserSettingsFirst = 2,
  zqnGetGlobalSettingsFirst = 3,
  zqnGetDescription = -1,
};

/// Where a setting is written to.
enum zqnSaveSettingConstants : std::int32_t { zqnSaveAsUserSetting = 0, zqnSaveAsGlobalSetting = 1 };

/// What the dialogs ask of the host's session: settings, who the user is, and the open connection. A host
/// implements it over whatever it has; the dialogs call nothing else of it.
class Session {
 public:
  virtual ~Session() = default;

  /// The stored text of a setting, else `Default`. A stored empty text is a value. May raise a run-time
  /// error; the dialogs then go on as if the setting had not been asked for.
  virtual String GetSetting(StringView Section, StringView Key, StringView Default, std::int32_t Mode) = 0;
  /// Stores a text. `Description` is left out by all callers (Missing).
  virtual void SaveSetting(StringView Section, StringView Key, StringView Value, const Variant& Description,
                           std::int32_t Mode) = 0;
  /// The session's open connection. It belongs to the host: the dialogs neither open nor close it.
  virtual Ref<ado::Connection> SessionConnection() = 0;
  /// The session's user is an administrator.
  virtual bool UserIsAdmin() = 0;
};

}  // namespace zqn
