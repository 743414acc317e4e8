// SPDX-License-Identifier: MIT
#include "host/session/host_session.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

#include "runtime/collation.h"
#include "runtime/convert.h"
#include "runtime/digits.h"

namespace zqn::host {

namespace {

constexpr StringView rights = u"ZQNComDlg", adminsOnly = u"AdminsOnly", everybodysKinds = u"AllowVPSave";

bool isName(StringView given, StringView name) { return compareCollated(given, name) == 0; }

}  // namespace

HostSession::HostSession(Ref<ado::Connection> connection, String user, bool admin)
    : connection_(std::move(connection)), user_(std::move(user)), admin_(admin), settings_(connection_) {}

std::optional<String> HostSession::stored(StringView section, StringView key, std::int32_t mode) const {
  const SettingName own{String(section), String(key), user_};
  const SettingName global{String(section), String(key), String()};
  const auto firstOf = [&](const SettingName& first, const SettingName& second) {
    const auto value = settings_.read(first);
    return value ? value : settings_.read(second);
  };
  switch (mode) {
    case zqnGetUserSettingsOnly:
      return settings_.read(own);
    case zqnGetGlobalSettingsOnly:
      return settings_.read(global);
    case zqnGetUserSettingsFirst:
      return firstOf(own, global);
    case zqnGetGlobalSettingsFirst:
      return firstOf(global, own);
    default:
      for (const SettingName& name : {own, global})
        if (String words = settings_.description(name); !words.empty()) return words;
      return std::nullopt;
  }
}

String HostSession::GetSetting(StringView Section, StringView Key, StringView Default, std::int32_t Mode) {
  if (Mode < zqnGetDescription || Mode > zqnGetGlobalSettingsFirst)
    throw RuntimeError(error::InvalidProcedureCall);
  const bool ofRights = isName(Section, rights) && (isName(Key, adminsOnly) || isName(Key, everybodysKinds));
  try {
    const std::optional<String> value = stored(Section, Key, Mode);
    // It is the first that a dialog asks for.
    if (ofRights && isName(Key, adminsOnly)) rightsFailure_.clear();
    return value.value_or(String(Default));
  } catch (const RuntimeError& failure) {
    if (!ofRights) throw;
    return withoutRights(Key, failure);
  }
}

/// What the setting says where nobody but administrators may change anything.
String HostSession::withoutRights(StringView key, const RuntimeError& failure) {
  if (rightsFailure_ != failure.description()) {
    rightsFailure_ = failure.description();
    if (rightsUnreadable) rightsUnreadable(rightsFailure_);
  }
  return isName(key, adminsOnly) ? u"1" : u"";
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
