// SPDX-License-Identifier: MIT
//
// The dialogs look customers and offers up in the host's own window.
#include "own_auskunft.h"

#include "testing/dialog_test.h"

namespace zqn::testing {
namespace {

class OwnInformation : public DialogTest {
 protected:
  OwnInformation() {
    execute(
        u"CREATE TABLE Preislistenkopf (Preisliste VARCHAR(5) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        u"Langtext "
        u"VARCHAR(30), GlobalePreisliste BOOLEAN, GültigVon VARCHAR(14), GültigBis VARCHAR(14), "
        u"FuerPreisliste "
        u"VARCHAR(5), FuerKunde VARCHAR(10), Währung VARCHAR(10));"
        u"INSERT INTO Preislistenkopf VALUES ('A', 'Aktion', 1, NULL, NULL, NULL, NULL, 'EUR');"
        u"CREATE TABLE Kundenstamm (Kundennummer VARCHAR(10) NOT NULL PRIMARY KEY, Bez1 VARCHAR(50));"
        u"INSERT INTO Kundenstamm VALUES ('10001', 'Werft Nordhafen');"
        u"CREATE TABLE Angebotskopf (Angebotsnummer INTEGER NOT NULL PRIMARY KEY, Vorlage VARCHAR(50))");
    offerOwnAuskunft([this](const String& title) {
      titles.push_back(title);
      return answer;
    });
  }
  ~OwnInformation() override { ObjectFactory::current().withdraw(u"Kalmera.AuskunftObject"); }

  std::vector<String> titles;
  std::optional<String> answer;
};

TEST_F(OwnInformation, GivesTheCustomerThatWasTaken) {
  show(16, {u"A"}, [&] {
    click(u"btnKundenauskunft");
    EXPECT_EQ(text(u"txtKundennummer"), u"") << "nothing was taken";
    answer = u"10001";
    click(u"btnKundenauskunft");
    EXPECT_EQ(text(u"txtKundennummer"), u"10001");
    EXPECT_EQ(text(u"txtKunBez"), u"Werft Nordhafen");
  });
  EXPECT_THAT(titles, ::testing::ElementsAre(u"Kundenauskunft", u"Kundenauskunft"));
}

TEST_F(OwnInformation, GivesTheOfferThatWasTaken) {
  answer = u"100";
  show(29, {u""}, [&] {
    click(u"btnAngebotsAuskunft");
    EXPECT_EQ(text(u"Angebotsnummer"), u"100");
  });
  EXPECT_THAT(titles, ::testing::ElementsAre(u"Angebotsauskunft"));
}

TEST_F(OwnInformation, KnowsTheNumberByItsOwnNameAlone) {
  answer = u"100";
  const auto auskunft = ObjectFactory::current().create<AuskunftObject>(u"Kalmera.AuskunftObject");
  EXPECT_EQ(errorNumberOf([&] { return auskunft->ResultDataItems(u"Kundennummer"); }), error::ItemNotFound);
  auskunft->Show(nothing, u"AUSK_Kundenauskunft", u"Kunden");
  EXPECT_EQ(auskunft->Result(), 1);
  EXPECT_EQ(auskunft->ResultDataItems(u"Kundennummer"), Variant(u"100"));
  EXPECT_EQ(errorNumberOf([&] { return auskunft->ResultDataItems(u"Belegnummer"); }), error::ItemNotFound);
}

}  // namespace
}  // namespace zqn::testing
