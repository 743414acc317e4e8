// SPDX-License-Identifier: MIT
//
// Kind 35 as a clerk works with it: the keywords of one section.
#include "catalogues/keywords.h"

#include "contract/object_factory.h"
#include "testing/catalogue.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Keywords : public CatalogueTest {
 protected:
  Keywords() {
    execute(
        u"CREATE TABLE Keywords (Keyword VARCHAR(30) COLLATE ZQN_TEXT NOT NULL, Section VARCHAR(50) COLLATE "
        u"ZQN_TEXT NOT NULL, PRIMARY KEY (Section, Keyword));"
        u"INSERT INTO Keywords VALUES ('Messe', 'Kunden');"
        u"INSERT INTO Keywords VALUES ('Bonus', 'Kunden');"
        u"INSERT INTO Keywords VALUES ('Messe', 'Artikel');"
        u"INSERT INTO Keywords VALUES ('ohne', '')");
  }
  std::vector<String> stored() { return rows(u"SELECT Section, Keyword FROM Keywords ORDER BY 1, 2"); }
};

TEST_F(Keywords, ShowsTheKeywordsOfTheSection) {
  show(35, {u"Messe", u"Kunden"}, [&] {
    EXPECT_EQ(form().Caption(), u"Schlagworte Kunden");
    EXPECT_THAT(listRows(), ElementsAre(u"Bonus", u"Messe"));
    EXPECT_EQ(get(u"TDBList1", u"Columns(0).Caption"), Variant(u"Schlagwort"));
    EXPECT_EQ(number(u"TDBList1", u"Row"), 1);
    EXPECT_EQ(text(u"Schluessel"), u"Messe");
  });
}

TEST_F(Keywords, AnEmptySectionIsASection) {
  show(35, {u"", u""}, [&] {
    EXPECT_EQ(form().Caption(), u"Schlagworte ");
    EXPECT_THAT(listRows(), ElementsAre(u"ohne"));
  });
}

TEST_F(Keywords, AMissingSectionIsTheEmptyOne) {
  EXPECT_EQ(show(35, {u""},
                 [&] {
                   EXPECT_EQ(form().Caption(), u"Schlagworte ");
                   EXPECT_THAT(listRows(), ElementsAre(u"ohne"));
                   doubleClick(0);
                 }),
            Variant(u"ohne"));
  EXPECT_EQ(param.size(), 1u);
}

TEST_F(Keywords, WithoutAnyElementTheFormIsShownAllTheSame) {
  EXPECT_EQ(show(35, {}, [&] { doubleClick(0); }), Variant(u"ohne"));
  EXPECT_EQ(param.size(), 0u);
}

TEST_F(Keywords, TheSectionDoesNotComeBack) {
  show(35, {u"Bonus", u"Kunden", u"mehr"}, [&] { doubleClick(1); });
  EXPECT_THAT(param.elements(), ElementsAre(Variant(u"Messe"), Variant(u"Kunden"), Variant(u"mehr")));
}

TEST_F(Keywords, TheFirstKeywordOfASectionIsInsertedAndFound) {
  show(35, {u"", u"Neu"}, [&] {
    EXPECT_THAT(listRows(), IsEmpty());
    enter(u"Erstes");
    click(u"btnOK");
    EXPECT_THAT(listRows(), ElementsAre(u"Erstes"));
    EXPECT_EQ(number(u"TDBList1", u"Row"), 0);
    EXPECT_EQ(focus(), u"TDBList1");
  });
  EXPECT_THAT(rows(u"SELECT Keyword, Section FROM Keywords WHERE Section='Neu'"), ElementsAre(u"Erstes|Neu"));
}

TEST_F(Keywords, AFailedFirstSaveShowsThatTheSearchHasNowhereToStart) {
  fail(ado::Operation::Update, u"Keywords", error::IntegrityViolation);
  expectError(u"btnOK_Click", error::NoCurrentRecord);
  show(35, {u"", u"Neu"}, [&] {
    enter(u"Erstes");
    operations.clear();
    click(u"btnOK");
    EXPECT_EQ(operations.back().first, ado::Operation::Find) << "the search follows in any case";
  });
}

TEST_F(Keywords, TheSameKeywordInTwoSectionsIsTwoRows) {
  show(35, {u"", u"Artikel"}, [&] {
    enter(u"Bonus");
    click(u"btnOK");
  });
  EXPECT_THAT(stored(),
              ElementsAre(u"|ohne", u"Artikel|Bonus", u"Artikel|Messe", u"Kunden|Bonus", u"Kunden|Messe"));
  show(35, {u"Bonus", u"Artikel"}, [&] { deleteRow(); });
  EXPECT_THAT(stored(), ElementsAre(u"|ohne", u"Artikel|Messe", u"Kunden|Bonus", u"Kunden|Messe"));
}

TEST_F(Keywords, DeletingTheLastOneEmptiesTheKeyAndGoesThere) {
  show(35, {u"Messe", u"Artikel"}, [&] {
    deleteRow();
    EXPECT_EQ(text(u"Schluessel"), u"");
    EXPECT_EQ(focus(), u"Schluessel");
    EXPECT_FALSE(enabled(u"btnOK"));
  });
  EXPECT_THAT(rows(u"SELECT * FROM Keywords WHERE Section='Kunden'").size(), 2);
}

TEST_F(Keywords, ChangingTheTextAndSavingAddsARow) {
  show(35, {u"Messe", u"Artikel"}, [&] {
    click(u"Schluessel");
    type(u"Messe 2026");
    EXPECT_TRUE(enabled(u"btnOK"));
    click(u"btnOK");
    EXPECT_THAT(listRows(), ElementsAre(u"Messe", u"Messe 2026"));
  });
}

TEST_F(Keywords, HandsTheseStatementsToTheDatabase) {
  show(35, {u"Bonus", u"Kunden"}, [&] {
    EXPECT_THAT(
        statements(),
        ElementsAre(u"SELECT Keyword AS Schlagwort FROM Keywords WHERE Section='Kunden' ORDER BY Keyword",
                    u"SELECT * FROM Keywords WHERE Keyword='Bonus' AND Section='Kunden'",
                    u"SELECT * FROM Keywords WHERE Keyword='Bonus' AND Section='Kunden'"));
    click(u"btnOK");
    EXPECT_EQ(statements().front(), u"SELECT * FROM Keywords WHERE Keyword='Bonus' AND Section='Kunden'");
    deleteRow();
    EXPECT_EQ(statements().front(), u"Delete FROM Keywords WHERE Keyword ='Bonus' AND Section='Kunden'");
  });
}

TEST_F(Keywords, NobodyHearsOfPicks) {
  heard();
  EXPECT_EQ(show(35, {u"Bonus", u"Kunden"},
                 [&] {
                   doubleClick(1);
                   EXPECT_TRUE(form().Visible());
                 }),
            Variant(u"Messe"));
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_TRUE(dialog.Result().isEmpty());
}

TEST_F(Keywords, WithoutTheRightNothingChanges) {
  forbidChanges();
  expectBox(noRightToSave, u"TALVEX Software", msgbox::Information);
  expectBox(noRightToDelete, u"TALVEX Software", msgbox::Information);
  show(35, {u"Bonus", u"Kunden"}, [&] {
    click(u"btnOK");
    click(u"btnDelete");
  });
  EXPECT_EQ(stored().size(), 4u);
}

TEST_F(Keywords, EnterSendsTabByTheCompanionsSecondOperation) {
  struct Recording final : ZQSendKeys {
    explicit Recording(std::vector<String>& said) : said_(said) {}
    void SendKeys(String&, Variant&) override { said_.emplace_back(u"SendKeys"); }
    void SendKeys2(StringView keys) override { said_.emplace_back(keys); }
    std::vector<String>& said_;
  };
  std::vector<String> said;
  constexpr StringView name = u"ZQBSendKeys.ZQSendKeys";
  const std::shared_ptr<Object> usual = ObjectFactory::current().CreateObject(name);
  ObjectFactory::current().offer(name, [&] { return std::make_shared<Recording>(said); });
  show(35, {u"Bonus", u"Kunden"}, [&] {
    press(key::Tab);
    press(key::Enter);
  });
  ObjectFactory::current().offer(name, [usual] { return usual; });
  EXPECT_THAT(said, ElementsAre(u"{Tab}"));
}

}  // namespace
}  // namespace zqn::testing
