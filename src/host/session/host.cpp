// SPDX-License-Identifier: MIT
#include "host/session/host.h"

#include "contract/object_factory.h"
#include "contract/ws_profile.h"
#include "host/database/database.h"
#include "host/database/messages.h"

namespace zqn::host {

namespace {

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
  session_->rightsUnreadable = [](const String& words) {
    tell("the settings that decide about rights cannot be read (" + toUtf8(words) +
         "); only administrators may change anything");
  };
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
