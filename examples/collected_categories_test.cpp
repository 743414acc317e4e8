// SPDX-License-Identifier: MIT
//
// What a host collects while a person picks.
#include "collected_categories.h"

#include "testing/dialog_test.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CollectedCategories : public DialogTest {
 protected:
  CollectedCategories() {
    execute(
        u"CREATE TABLE Kontaktgruppen (Kontaktgruppe VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        u"Bezeichnung VARCHAR(30), Historie SMALLINT, HelpDesk SMALLINT, VertriebsStatus VARCHAR(10), "
        u"Adressherkunft VARCHAR(15), AktLetzterKontakt SMALLINT, AktLetzterBesuch SMALLINT);"
        u"INSERT INTO Kontaktgruppen (Kontaktgruppe) VALUES ('ANRUF'), ('BESUCH'), ('MESSE')");
  }
  std::vector<String> collect(const std::function<void()>& acts) {
    std::vector<String> categories;
    during([&] { categories = collectedCategories(dialog); }, acts);
    return categories;
  }
};

TEST_F(CollectedCategories, StandInTheOrderOfThePicksEachOnce) {
  EXPECT_THAT(collect([&] {
                doubleClick(2);
                doubleClick(0);
                doubleClick(2);
                EXPECT_TRUE(form().Visible());
              }),
              ElementsAre(u"MESSE", u"ANRUF"));
}

TEST_F(CollectedCategories, AreNoneWhenThePersonOnlyLooked) {
  EXPECT_THAT(collect([&] { select(1); }), IsEmpty());
}

}  // namespace
}  // namespace zqn::testing
