// SPDX-License-Identifier: MIT
#include "host/database/database_address.h"

#include <gmock/gmock.h>

#include "host/database/failure.h"

namespace zqn::host {

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

/// What the address is refused with; empty when it is taken.
std::string refusal(const std::string& url) {
  try {
    DatabaseAddress::read(url);
    return "";
  } catch (const CommandFailure& failure) {
    EXPECT_EQ(failure.status(), ExitStatus::WrongUsage);
    return failure.what();
  }
}

}  // namespace

TEST(AnAddress, OfAFileIsMadeAbsolute) {
  const auto address = DatabaseAddress::read("sqlite:waren.db");
  EXPECT_FALSE(address.isServer());
  EXPECT_EQ(address.file(), std::filesystem::current_path() / "waren.db");
  EXPECT_EQ(address.shown(), address.file().string());
  EXPECT_EQ(address.shownUrl(), "sqlite:" + address.file().string());
  EXPECT_TRUE(address.connectionString().empty());
}

TEST(AnAddress, OfAServerIsKeptAsWritten) {
  const auto address = DatabaseAddress::read("odbc:Driver={PostgreSQL Unicode};UID=ännchen;PWD={a;b}");
  EXPECT_TRUE(address.isServer());
  EXPECT_EQ(address.connectionString(), u"Driver={PostgreSQL Unicode};UID=ännchen;PWD={a;b}");
  EXPECT_TRUE(address.file().empty());
}

TEST(AnAddress, IsShownWithoutThePassword) {
  const auto address = DatabaseAddress::read("odbc:Driver={FreeTDS};PWD={a;b};Server=db");
  EXPECT_EQ(address.shown(), "Driver={FreeTDS};PWD=***;Server=db");
  EXPECT_EQ(address.shownUrl(), "odbc:Driver={FreeTDS};PWD=***;Server=db");
}

TEST(AnAddress, OfNoKnownKindIsRefused) {
  for (const char* url : {"", "waren.db", "sqlite:", "odbc:", "odbc:;", "odbc: ; ", "ODBC:DSN=waren"})
    EXPECT_THAT(refusal(url), HasSubstr("write sqlite:FILE or odbc:CONNECTION-STRING")) << url;
}

TEST(AnAddress, ThatForgetsHowToBeginDoesNotGiveThePasswordAway) {
  EXPECT_THAT(refusal("Driver={FreeTDS};UID=anna;PWD=geheim"), Not(HasSubstr("geheim")));
  EXPECT_THAT(refusal("odbc"), HasSubstr("'odbc'"));
}

}  // namespace zqn::host
