// SPDX-License-Identifier: MIT
//
// What of the settings of printed documents is read and kept, when, and under which names.
#include "runtime/convert.h"
#include "testing/omr_code.h"

namespace zqn::testing {
namespace {

/// Writes down what it is asked for and what it is to keep.
class WatchedSession : public TestSession {
 public:
  String GetSetting(StringView Section, StringView Key, StringView Default, std::int32_t Mode) override {
    asked.push_back(line(Section, Key, Default, Mode));
    return TestSession::GetSetting(Section, Key, Default, Mode);
  }
  void SaveSetting(StringView Section, StringView Key, StringView Value, const Variant& Description,
                   std::int32_t Mode) override {
    saved.push_back(line(Section, Key, Value, Mode) + (Description.isMissing() ? u"" : u" described"));
    if (saving) saving();
    TestSession::SaveSetting(Section, Key, Value, Description, Mode);
  }

  std::vector<String> asked, saved;
  std::function<void()> saving;

 private:
  static String line(StringView section, StringView key, StringView value, std::int32_t mode) {
    return String(section) + u"/" + String(key) + u"=" + String(value) + u" " + CStr(mode);
  }
};

class WatchedOmrSettings : public OmrSettings {
 protected:
  WatchedOmrSettings() {
    watched->connection = connection;
    dialog.Session(Ref<Session>(watched));
  }

  std::shared_ptr<WatchedSession> watched = std::make_shared<WatchedSession>();
};

/// The keys of one kind of documents, each with its value.
std::vector<String> linesOf(StringView kind, StringView layout, StringView flag) {
  std::vector<String> lines{u"Belegdruck/OMRLayout" + String(kind) + u"=" + String(layout) + u" 0"};
  for (const StringView option : {u"0", u"1", u"2", u"3", u"4"}) {
    const String front = u"Belegdruck/OMROption" + String(option);
    lines.push_back(front + String(kind) + u"=" + String(flag) + u" 0");
    lines.push_back(front + u"Page" + String(kind) + u"= 0");
  }
  return lines;
}

std::vector<String> linesOfAll(StringView layout, StringView flag) {
  std::vector<String> lines;
  for (const StringView kind : {u"AN", u"AB", u"LS", u"RG", u"VR", u"GS", u"VG", u"BS"}) {
    const std::vector<String> its = linesOf(kind, layout, flag);
    lines.insert(lines.end(), its.begin(), its.end());
  }
  return lines;
}

TEST_F(WatchedOmrSettings, AreReadForTheUserKindByKindWithTheirDefaults) {
  show(31, {u""}, [&] {
    // The access flag has asked before.
    std::erase_if(watched->asked, [](const String& line) { return line.starts_with(u"ZQNComDlg/"); });
    EXPECT_EQ(watched->asked, linesOfAll(u"Default", u"0"));
  });
}

TEST_F(WatchedOmrSettings, AreSavedForTheUserKindByKind) {
  show(31, {u""}, [&] {
    EXPECT_TRUE(watched->saved.empty());
    click(u"btnSave");
    EXPECT_EQ(watched->saved, linesOfAll(u"Default", u"0"));
  });
}

TEST_F(WatchedOmrSettings, AreSavedUnderTheHourglassAfterTheWindowHasClosed) {
  bool open = true;
  bool hourglass = false;
  watched->saving = [&] {
    open = desktop.activeForm() != nullptr && form().Visible();
    hourglass = desktop.isHourglass();
  };
  show(31, {u"RG"}, [&] {
    click(u"btnSave");
    EXPECT_TRUE(open) << "taking over leaves the window";
    EXPECT_TRUE(hourglass);
    EXPECT_FALSE(desktop.isHourglass());
    click(u"btnOK");
  });
  EXPECT_FALSE(open);
  EXPECT_EQ(watched->saved.size(), 2u * 8 * 11);
}

TEST_F(OmrSettings, AnEmptyABlankAndANamedNoneAreNone) {
  keep(u"OMRLayoutAN", u"");
  keep(u"OMRLayoutAB", u"   ");
  keep(u"OMRLayoutLS", u"None");
  show(31, {u"AN"}, [&] {
    for (const int kind : {0, 1, 2}) {
      selectDocuments({kind});
      EXPECT_EQ(layoutRow(), 0) << kind;
    }
    click(u"btnOK");
  });
  for (const StringView kind : {u"AN", u"AB", u"LS"}) EXPECT_EQ(kept(u"OMRLayout" + String(kind)), u"");
}

TEST_F(OmrSettings, NoneIsStoredAsTheEmptyText) {
  keep(u"OMRLayoutRG", u"Default");
  show(31, {u"RG"}, [&] {
    choose(u"cboLayout", 0);
    click(u"btnOK");
  });
  EXPECT_EQ(kept(u"OMRLayoutRG"), u"");
  EXPECT_EQ(kept(u"OMRLayoutAN"), u"Default") << "all eight kinds are written";
  EXPECT_EQ(kept(u"OMROption4PageBS"), u"");
}

TEST_F(OmrSettings, CancelKeepsNothingAndSaysSo) {
  twoLayouts();
  EXPECT_EQ(show(31, {u"RG"},
                 [&] {
                   choose(u"cboLayout", 2);
                   click(u"btnCancel");
                 }),
            Variant(false));
  EXPECT_EQ(kept(u"OMRLayoutRG"), u"(fehlt)");
  EXPECT_EQ(param.at(0), Variant(u"RG")) << "the parameter stays";
}

TEST_F(OmrSettings, CancelAfterSaveKeepsWhatWasTakenOver) {
  twoLayouts();
  EXPECT_EQ(show(31, {u"RG"},
                 [&] {
                   choose(u"cboLayout", 2);
                   click(u"btnSave");
                   choose(u"cboLayout", 3);
                   click(u"btnCancel");
                 }),
            Variant(true));
  EXPECT_EQ(kept(u"OMRLayoutRG"), u"Blau");
}

TEST_F(OmrSettings, EscDoesNothing) {
  show(31, {u"RG"}, [&] {
    press(key::Escape);
    EXPECT_TRUE(form().Visible());
  });
}

TEST_F(OmrSettings, WhatCannotBeStoredIsPassedOver) {
  EXPECT_EQ(show(31, {u"RG"},
                 [&] {
                   session->fails = error::ProviderFailure;
                   click(u"btnOK");
                 }),
            Variant(true));
  EXPECT_FALSE(desktop.isHourglass());
  EXPECT_EQ(passedOver.size(), 8u * 11) << "the window is closed, and the failures are told all the same";
  EXPECT_EQ(passedOver.front(), "SaveAll:-2147467259");
}

}  // namespace
}  // namespace zqn::testing
