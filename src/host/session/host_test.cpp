// SPDX-License-Identifier: MIT
#include "host/session/host.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "contract/object_factory.h"
#include "contract/ws_profile.h"
#include "host/database/database.h"
#include "runtime/convert.h"

namespace zqn::host {

namespace {

String appPath() { return ObjectFactory::current().create<WSProfile>(u"zqWSPro.WSProfile")->GetAppPath(); }

}  // namespace

TEST(TheApplicationFolder, IsTheOneOfTheOptions) {
  HostOptions options;
  for (const char* folder : {"/opt/waren", "/opt/waren/"}) {
    options.appPath = folder;
    offerCompanions(options);
    EXPECT_EQ(appPath(), u"/opt/waren");
  }
}

TEST(TheApplicationFolder, IsTheDataFolderUnlessNamed) {
  setenv("XDG_DATA_HOME", "/opt/daten", 1);
  offerCompanions({});
  EXPECT_EQ(appPath(), u"/opt/daten/zqn-dialog");
}

TEST(ThePresent, IsTheDayOfTheOptions) {
  HostOptions options;
  options.today = dateSerial(2026, 3, 5);
  const Locale::Scope scope(localeOf(options));
  EXPECT_EQ(civil(Now()),
            (CivilDate{.year = 2026, .month = 3, .day = 5, .hour = 0, .minute = 0, .second = 0}));
}

}  // namespace zqn::host
