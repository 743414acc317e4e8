// SPDX-License-Identifier: MIT
#include "frontend/constants.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "desktop/headless/headless_desktop.h"
#include "forms/image_list.h"
#include "frontend/images.h"
#include "testing/runtime.h"

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

/// In the order of their numbers.
constexpr const char16_t* imageNames[] = {u"zqImgInteressentenstamm",
                                          u"zqImgInteressentenAnsprechpartnerM",
                                          u"zqImgInteressentenAnsprechpartnerF",
                                          u"zqImgKundenstamm",
                                          u"zqImgKundenAnsprechpartnerM",
                                          u"zqImgKundenAnsprechpartnerF",
                                          u"zqImgLieferantenstamm",
                                          u"zqImgLieferantenAnsprechpartnerM",
                                          u"zqImgLieferantenAnsprechpartnerF",
                                          u"zqImgPrivatadresseM",
                                          u"zqImgPrivatadresseF",
                                          u"zqImgPersonalstammM",
                                          u"zqImgPersonalstammF",
                                          u"zqImgZusatzadressen",
                                          u"zqImgPhone",
                                          u"zqImgPhoneGrey",
                                          u"zqImgFax",
                                          u"zqImgFaxGrey",
                                          u"zqImgMobilePhone",
                                          u"zqImgMobilePhoneGrey",
                                          u"zqImgEMail",
                                          u"zqImgEMailGrey",
                                          u"zqImgHomepage",
                                          u"zqImgHomepageGrey",
                                          u"zqImgAddressbook",
                                          u"zqImgSearchContact",
                                          u"zqImgFavorites",
                                          u"zqImgHyperlinkCursor",
                                          u"zqImgInteressentenAnsprechpartnerMFavorite",
                                          u"zqImgInteressentenAnsprechpartnerFFavorite",
                                          u"zqImgKundenAnsprechpartnerMFavorite",
                                          u"zqImgKundenAnsprechpartnerFFavorite",
                                          u"zqImgLieferantenAnsprechpartnerMFavorite",
                                          u"zqImgLieferantenAnsprechpartnerFFavorite",
                                          u"zqImgBirthdaycake",
                                          u"zqImgBirthdaycakeGrey",
                                          u"zqImgHome",
                                          u"zqImgHomeGrey",
                                          u"zqImgArrowUp",
                                          u"zqImgArrowDown",
                                          u"zqImgDetails",
                                          u"zqImgContractFolder",
                                          u"zqImgContractNode1",
                                          u"zqImgContractNode2",
                                          u"zqImgSearch",
                                          u"zqImgSearchCategory",
                                          u"zqImgCategory"};

TEST(Constants, GiveEachImageTheNameOfItsNumber) {
  ASSERT_EQ(std::size(imageNames), 47u);
  for (int number = 1; number <= 47; ++number)
    EXPECT_EQ(StringView(Constants::GetImage(zqImageConstants(number)).name), imageNames[number - 1])
        << number;
}

TEST(Constants, KeepTheImagesInAFormThatIsNeverSeen) {
  EXPECT_EQ(Images::instance().Name(), u"Images");
  EXPECT_EQ(Images::instance().ImageList1.Count(), 47);
  EXPECT_EQ(&Images::instance().ImageList1.ListImages(zqImgPhone), &Constants::GetImage(zqImgPhone));
  EXPECT_FALSE(Images::instance().Visible());
}

TEST(Constants, FailWithTheListsErrorOutsideTheImages) {
  for (const int number : {0, -1, 48})
    EXPECT_EQ(errorNumberOf([&] { Constants::GetImage(zqImageConstants(number)); }), 35600) << number;
}

}  // namespace
}  // namespace zqn::testing
