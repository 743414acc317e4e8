// SPDX-License-Identifier: MIT
#include "host/desk/call_lines.h"

#include <gtest/gtest.h>

namespace zqn::host {
namespace {

TEST(CallLines, AreThoseOfAProgram) {
  EXPECT_EQ(cppLines({.kind = 21, .param = {u"10"}, .database = "sqlite:waren.sqlite"}),
            "zqn::ORBDialog dialog;\n"
            "dialog.Session(session);\n"
            "zqn::VariantArray param{u\"10\"};\n"
            "zqn::Variant key = dialog.Show(zqn::zqnCommonDialogVertriebsStati, param);\n");
}

TEST(CallLines, NameTheGenericFormAndSeveralPicks) {
  const std::string lines = cppLines(
      {.kind = 1, .param = {u"a\"b", u"c\\d"}, .database = "", .multiselect = true, .generic = true});
  EXPECT_NE(lines.find("dialog.Multiselect(true);\n"), std::string::npos);
  EXPECT_NE(lines.find(R"(param{u"a\"b", u"c\\d"};)"), std::string::npos);
  EXPECT_NE(lines.find("dialog.ShowGeneric(zqn::zqnCommonDialogZahlungsarten, param);"), std::string::npos);
}

TEST(CallLines, AreOneLineOfAShell) {
  EXPECT_EQ(shellLine({.kind = 21, .param = {u"10"}, .database = "sqlite:waren.sqlite"}),
            "zqn-dialog show 21 --db sqlite:waren.sqlite -- 10");
  EXPECT_EQ(
      shellLine({.kind = 35,
                 .param = {u"it's", u"", u"-x $HOME"},
                 .database = "sqlite:meine waren.db",
                 .multiselect = true,
                 .generic = true}),
      R"(zqn-dialog show 35 --db 'sqlite:meine waren.db' --multiselect --generic -- 'it'\''s' '' '-x $HOME')");
}

}  // namespace
}  // namespace zqn::host
