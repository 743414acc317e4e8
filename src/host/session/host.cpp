// SPDX-License-Identifier: MIT
#include "host/session/host.h"

#include "contract/object_factory.h"
#include "contract/ws_profile.h"
#include "host/database/database.h"
#include "host/database/rows.h"

namespace zqn::host {

namespace {

script::OutsideAccess::Rows query(ado::Connection& connection, StringView statement) {
  const ado::RowStore found = runStatement(connection, statement).rows;
  script::OutsideAccess::Rows rows;
  for (int row = 0; row < found.rows(); ++row) rows.push_back(rowValues(found, row));
  return rows;
}

class Profile : public WSProfile {
 public:
  explicit Profile(String folder) : folder_(std::move(folder)) {}
  String GetAppPath() override { return folder_; }

 private:
  String folder_;
};

}  // namespace

Host::Host(const HostOptions& options)
    : address_(options.database ? DatabaseAddress::read(*options.database)
                                : DatabaseAddress::ofFile(defaultDatabaseFile())),
      connection_(openDatabase(address_)),
      session_(std::make_shared<HostSession>(connection_, options.user.empty() ? loginName() : options.user,
                                             options.admin)),
      handsSessionOver_(options.session),
      multiselect_(options.multiselect) {
  tellFindings(*connection_, address_);
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

script::OutsideAccess Host::outside() const {
  const Ref<ado::Connection> other = openDatabase(address_);
  return {.query = [other](StringView statement) { return query(*other, statement); },
          .execute = [other](StringView statement) { other->Execute(statement); },
          .saveSetting =
              [this](const script::Setting& setting) {
                session_->SaveSetting(setting.section, setting.key, setting.value, Missing, setting.scope);
              },
          .settings =
              [this](StringView section) { return session_->settings().section(section, session_->user()); }};
}

void offerCompanions(const HostOptions& options) {
  const auto folder = options.appPath.empty() ? dataFolder() : std::filesystem::absolute(options.appPath);
  // A trailing separator would leave an empty file name.
  const auto plain = folder.has_filename() ? folder : folder.parent_path();
  ObjectFactory::current().offer(u"zqWSPro.WSProfile",
                                 [text = plain.u16string()] { return std::make_shared<Profile>(text); });
}

Locale localeOf(const HostOptions& options) {
  Locale locale = Locale::german();
  if (options.today) locale.now = [today = *options.today] { return today; };
  return locale;
}

}  // namespace zqn::host
