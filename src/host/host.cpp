// SPDX-License-Identifier: MIT
#include "host/host.h"

#include "host/database.h"
#include "host/rows.h"

namespace zqn::host {

namespace {

script::ScriptWorld::Rows query(ado::Connection& connection, StringView statement) {
  const ado::RowStore found = runStatement(connection, statement).rows;
  script::ScriptWorld::Rows rows;
  for (int row = 0; row < found.rows(); ++row) rows.push_back(rowValues(found, row));
  return rows;
}

}  // namespace

Host::Host(const HostOptions& options)
    : file_(options.database ? databaseFile(*options.database) : defaultDatabaseFile()),
      connection_(openDatabase(file_)),
      session_(std::make_shared<HostSession>(connection_, options.user.empty() ? loginName() : options.user,
                                             options.admin)),
      handsSessionOver_(options.session),
      multiselect_(options.multiselect) {
  for (const SettingForRun& setting : options.settings) {
    const String user = setting.ofUser ? session_->user() : String();
    session_->settings().setForRun({setting.section, setting.key, user}, setting.value);
  }
}

void Host::equip(ORBDialog& dialog) const {
  dialog.Connection(connection_);
  if (handsSessionOver_) dialog.Session(Ref<Session>(std::shared_ptr<Session>(session_)));
  dialog.Multiselect(multiselect_);
}

script::ScriptWorld Host::world() const {
  const Ref<ado::Connection> other = openDatabase(file_);
  return {.query = [other](StringView statement) { return query(*other, statement); },
          .execute = [other](StringView statement) { other->Execute(statement); },
          .saveSetting =
              [this](const script::Setting& setting) {
                session_->SaveSetting(setting.section, setting.key, setting.value, Missing, setting.scope);
              },
          .settings =
              [this](StringView section) { return session_->settings().section(section, session_->user()); }};
}

Locale localeOf(const HostOptions& options) {
  Locale locale = Locale::german();
  if (options.today) locale.now = [today = *options.today] { return today; };
  return locale;
}

}  // namespace zqn::host
