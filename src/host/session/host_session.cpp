// SPDX-License-Identifier: MIT
#include "host/session/host_session.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

#include "runtime/convert.h"
#include "runtime/digits.h"

namespace zqn::host {

HostSession::HostSession(Ref<ado::Connection> connection, String user, bool admin)
    : connection_(std::move(connection)), user_(std::move(user)), admin_(admin), settings_(connection_) {}

String HostSession::GetSetting(StringView Section, StringView Key, StringView Default, std::int32_t Mode) {
  const SettingName own{String(Section), String(Key), user_};
  const SettingName global{String(Section), String(Key), String()};
  const auto firstOf = [&](const SettingName& first, const SettingName& second) {
    const auto value = settings_.read(first);
    return value ? value : settings_.read(second);
  };
  std::optional<String> value;
  switch (Mode) {
    case zqnGetUserSettingsOnly:
      value = settings_.read(own);
      break;
    case zqnGetGlobalSettingsOnly:
      value = settings_.read(global);
      break;
    case zqnGetUserSettingsFirst:
      value = firstOf(own, global);
      break;
    case zqnGetGlobalSettingsFirst:
      value = firstOf(global, own);
      break;
    case zqnGetDescription:
      for (const SettingName& name : {own, global})
        if (String words = settings_.description(name); !words.empty()) return words;
      break;
    default:
      throw RuntimeError(error::InvalidProcedureCall);
  }
  return value.value_or(String(Default));
}

void HostSession::SaveSetting(StringView Section, StringView Key, StringView Value,
                              const Variant& Description, std::int32_t Mode) {
  if (Mode != zqnSaveAsUserSetting && Mode != zqnSaveAsGlobalSetting)
    throw RuntimeError(error::InvalidProcedureCall);
  const SettingName name{String(Section), String(Key), Mode == zqnSaveAsUserSetting ? user_ : String()};
  settings_.write(name, Value);
  if (!Description.isMissing()) settings_.describe(name, concatenate(Description));
}

String loginName() {
  for (const char* variable : {"LOGNAME", "USER"})
    if (const char* name = std::getenv(variable); name && *name) return fromUtf8(name);
  if (const passwd* entry = getpwuid(geteuid())) return fromUtf8(entry->pw_name);
  return digits(geteuid());
}

}  // namespace zqn::host
