// SPDX-License-Identifier: MIT
//
// A clerk at the settings of printed documents, with an application folder for layout files. Not part of the
// library.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>

#include "contract/object_factory.h"
#include "contract/ws_profile.h"
#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "testing/dialog_test.h"

namespace zqn::testing {

/// The application's folder, as the workstation knows it.
class Profile : public WSProfile {
 public:
  explicit Profile(String folder) : folder_(std::move(folder)) {}
  String GetAppPath() override { return folder_; }

 private:
  String folder_;
};

class OmrSettings : public DialogTest {
 protected:
  OmrSettings() {
    std::filesystem::create_directories(folder);
    ObjectFactory::current().offer(u"zqWSPro.WSProfile",
                                   [this] { return std::make_shared<Profile>(folder.u16string()); });
  }
  ~OmrSettings() override {
    ObjectFactory::current().withdraw(u"zqWSPro.WSProfile");
    std::filesystem::remove_all(folder);
  }

  void layout(const std::string& name, const std::string& lines) {
    std::ofstream(folder / name, std::ios::binary) << "[Common]\r\n" << lines;
  }
  /// Blau: three pages for option 0, one for option 1. Gelb: option 0 alone.
  void twoLayouts() {
    layout("Blau.omr",
           "Description=Blaues Papier\r\nOptionName0=Kopie\r\nOptionPage0=1,2,EOC\r\n"
           "OptionName1=Heftung\r\n");
    layout("Gelb.omr", "Description=Gelbes Papier\r\nOptionName0=Beileger\r\nOptionPage0=ALL,BOC\r\n");
  }
  void keep(StringView key, StringView value) {
    session->SaveSetting(u"Belegdruck", key, value, Missing, zqnSaveAsUserSetting);
  }
  String kept(StringView key) const {
    return session->GetSetting(u"Belegdruck", key, u"(fehlt)", zqnGetUserSettingsOnly);
  }

  ListBox& documents() const { return form().Get<ListBox>(u"lstBelegarten"); }
  /// A click on one row, and clicks with Ctrl on the others.
  void selectDocuments(std::initializer_list<int> rows) {
    for (const int row : rows) {
      ASSERT_TRUE(form().mousePressed(documents()));
      documents().userPressed(row, row == *rows.begin() ? shift::None : shift::Ctrl);
      form().mouseReleased(documents());
    }
  }
  void choose(StringView combo, int index) {
    form()
        .Get<ComboBox>(combo.substr(0, combo.find(u'(')),
                       combo.ends_with(u')') ? combo[combo.size() - 2] - u'0' : -1)
        .userChose(index);
  }
  int number(StringView control, StringView property) const {
    return *get(control, property).as<std::int32_t>();
  }
  int layoutRow() const { return number(u"cboLayout", u"ListIndex"); }
  /// "value caption [page|page]chosen page", "-" in front when the box is disabled.
  std::string option(int index) const {
    const String element = u"(" + String(1, static_cast<char16_t>(u'0' + index)) + u")";
    const auto& pages = form().Get<ComboBox>(u"cboOption", index);
    std::string all = enabled(u"chkOption" + element) ? "" : "-";
    all += std::to_string(number(u"chkOption" + element, u"Value")) + " " +
           toUtf8(*get(u"chkOption" + element, u"Caption").as<String>()) + " [";
    for (int i = 0; i < pages.ListCount(); ++i) all += (i > 0 ? "|" : "") + toUtf8(pages.List(i));
    return all + "]" + toUtf8(pages.Text()) + (pages.Enabled() ? "" : "-");
  }

  std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("zqn-omr-" + std::to_string(std::random_device()()));
};

}  // namespace zqn::testing
