// SPDX-License-Identifier: MIT
#include "frontend/constants.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "desktop/headless/headless_desktop.h"
#include "forms/image_list.h"
#include "runtime/testing.h"

namespace zqn::testing {
namespace {

class FineScreen : public headless::HeadlessDesktop {
 public:
  double TwipsPerPixelX() const override { return twips; }
  double TwipsPerPixelY() const override { return twips / 2; }
  double twips = 7.5;
};

TEST(Constants, FollowTheScreenOfTheMoment) {
  FineScreen screen;
  const Desktop::Scope scope(screen);
  EXPECT_EQ(Constants::zqnTwipsPerPixelX(), 7.5);
  screen.twips = 10;
  EXPECT_EQ(Constants::zqnTwipsPerPixelX(), 10);
  EXPECT_EQ(Constants::zqnTwipsPerPixelY(), 5);
}

TEST(Constants, NameTheCompanyAndTheApplication) {
  EXPECT_EQ(Constants::zqCompanyName(), u"TALVEX");
  EXPECT_EQ(Constants::zqAppName(), u"TALVEX Kavelin");
}

TEST(Constants, HaveAnImageOfSixteenBySixteenForEachNumber) {
  std::set<std::string> different;
  for (int number = 1; number <= 47; ++number) {
    const Picture& image = Constants::GetImage(zqImageConstants(number));
    const std::string gif(image.gif.begin(), image.gif.end());
    EXPECT_EQ(gif.substr(0, 6), "GIF89a") << number;
    EXPECT_EQ(gif.substr(6, 4), std::string("\x10\0\x10\0", 4)) << number;
    EXPECT_EQ(image.width, 16);
    EXPECT_EQ(image.height, 16);
    EXPECT_TRUE(different.insert(gif).second) << number << " looks like another one";
  }
}

TEST(Constants, GiveEachImageItsName) {
  EXPECT_EQ(StringView(Constants::GetImage(zqImgInteressentenstamm).name), u"zqImgInteressentenstamm");
  EXPECT_EQ(StringView(Constants::GetImage(zqImgPhone).name), u"zqImgPhone");
  EXPECT_EQ(StringView(Constants::GetImage(zqImgFavorites).name), u"zqImgFavorites");
  EXPECT_EQ(StringView(Constants::GetImage(zqImgArrowDown).name), u"zqImgArrowDown");
  EXPECT_EQ(StringView(Constants::GetImage(zqImgCategory).name), u"zqImgCategory");
}

TEST(Constants, FailWithTheListsErrorOutsideTheImages) {
  for (const int number : {0, -1, 48})
    EXPECT_EQ(errorNumberOf([&] { Constants::GetImage(zqImageConstants(number)); }), 35600) << number;
}

}  // namespace
}  // namespace zqn::testing
