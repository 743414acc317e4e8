// SPDX-License-Identifier: MIT
//
// The settings of the host: texts by section, key and user in the table `Einstellungen`; the empty user
// stands for everybody. Section, key and user compare without case. A setting that is given for this run
// alone hides the stored one until it is saved.
//
//     store.setForRun({u"ZQNComDlg", u"AdminsOnly", u""}, u"1");
//     std::optional<String> value = store.read({u"ZQNComDlg", u"AdminsOnly", u""});   // "1"
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "ado/connection.h"
#include "runtime/ref.h"

namespace zqn::host {

struct SettingName {
  String section, key;
  /// Empty: the global setting.
  String user;
};

class SettingsStore {
 public:
  explicit SettingsStore(Ref<ado::Connection> connection) : connection_(std::move(connection)) {}

  /// No value when there is none; a stored empty text is a value. A database without the table has no
  /// settings. The provider's errors.
  std::optional<String> read(const SettingName& name) const;
  /// Stores the text; a value for this run ends with it. The provider's errors, -2147217865 without the
  /// table.
  void write(const SettingName& name, StringView value);
  /// The words that explain a stored setting; empty when there are none.
  String description(const SettingName& name) const;
  /// Explains a stored setting. Without effect on one that is not stored.
  void describe(const SettingName& name, StringView description);
  /// The setting reads so until write, and is not stored.
  void setForRun(const SettingName& name, StringView value);

  /// Takes a setting away, stored or for this run. The provider's errors.
  void erase(const SettingName& name);

  struct Setting {
    SettingName name;
    String value;
  };
  /// All settings that read by a value, global ones and the user's, by section and key.
  std::vector<Setting> all(StringView user) const;
  /// Key and value of all settings of a section by key, the user's before the global one of the same key.
  std::vector<std::pair<String, String>> section(StringView section, StringView user) const;

 private:
  void forget(const SettingName& name);

  Ref<ado::Connection> connection_;
  std::vector<Setting> forRun_;
};

}  // namespace zqn::host
