// SPDX-License-Identifier: MIT
//
// Kind 26 as a clerk works with it: a catalogue of words, and what follows while a word is typed.
#include "catalogues/selektionskriterien_vertrag.h"

#include "testing/catalogue.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SelektionskriterienVertrag : public CatalogueTest {
 protected:
  SelektionskriterienVertrag() {
    execute(
        u"CREATE TABLE SelektionskriterienVertrag (Kriterium VARCHAR(30) COLLATE ZQN_TEXT NOT NULL PRIMARY "
        u"KEY);"
        u"INSERT INTO SelektionskriterienVertrag VALUES ('-');"
        u"INSERT INTO SelektionskriterienVertrag VALUES ('Altvertrag');"
        u"INSERT INTO SelektionskriterienVertrag VALUES ('Festpreis')");
  }
  std::vector<String> stored() { return rows(u"SELECT Kriterium FROM SelektionskriterienVertrag"); }
  std::string buttons() const {
    return std::string(enabled(u"btnOK") ? "save" : "-") + " " + (enabled(u"btnDelete") ? "delete" : "-");
  }
};

TEST_F(SelektionskriterienVertrag, ListsEveryWordTheOneThatOtherCataloguesReserveToo) {
  show(26, {u"altvertrag"}, [&] {
    EXPECT_EQ(form().Caption(), u"Selektionskriterien bearbeiten");
    EXPECT_THAT(listRows(), ElementsAre(u"-", u"Altvertrag", u"Festpreis"));
    EXPECT_EQ(number(u"TDBList1", u"Row"), 1);
    EXPECT_EQ(text(u"Schluessel"), u"Altvertrag") << "the text takes the stored form of the key";
  });
}

TEST_F(SelektionskriterienVertrag, AnEmptyTableLeavesTheButtonsDisabledUntilAWordIsTyped) {
  execute(u"DELETE FROM SelektionskriterienVertrag");
  show(26, {u""}, [&] {
    EXPECT_THAT(listRows(), IsEmpty());
    EXPECT_EQ(buttons(), "- -");
    click(u"Schluessel");
    type(u" ");
    EXPECT_EQ(buttons(), "- -");
    type(u"N");
    EXPECT_EQ(buttons(), "save -") << "Löschen keeps its state while a word is typed";
    press(key::Tab);
    EXPECT_EQ(buttons(), "save delete");
    click(u"btnOK");
    EXPECT_THAT(listRows(), ElementsAre(u" N"));
  });
  EXPECT_THAT(stored(), ElementsAre(u" N")) << "the key is stored as typed";
}

TEST_F(SelektionskriterienVertrag, SpeichernFollowsEachKeystroke) {
  show(26, {u"Festpreis"}, [&] {
    EXPECT_EQ(buttons(), "save delete");
    press(key::Tab);
    press(key::Delete);
    EXPECT_EQ(buttons(), "- delete");
    type(u"x");
    EXPECT_EQ(buttons(), "save delete");
    press(key::Backspace);
    press(key::Tab, shift::Shift);
    EXPECT_EQ(buttons(), "- -");
    press(key::F9);
  });
}

TEST_F(SelektionskriterienVertrag, DeletingTheLastRowEmptiesTheKeyAndGoesThere) {
  execute(u"DELETE FROM SelektionskriterienVertrag WHERE Kriterium<>'Festpreis'");
  show(26, {u"Festpreis"}, [&] {
    deleteRow();
    EXPECT_THAT(listRows(), IsEmpty());
    EXPECT_EQ(text(u"Schluessel"), u"");
    EXPECT_EQ(focus(), u"Schluessel");
    EXPECT_EQ(buttons(), "- delete") << "Speichern follows the text, no step renews Löschen";
    type(u"Festpreis");
    click(u"btnOK");
    EXPECT_THAT(listRows(), ElementsAre(u"Festpreis"));
  });
  EXPECT_THAT(stored(), ElementsAre(u"Festpreis"));
}

TEST_F(SelektionskriterienVertrag, ChangingTheTextAndSavingAddsARow) {
  show(26, {u"Festpreis"}, [&] {
    click(u"Schluessel");
    press(key::End);
    type(u" neu");
    click(u"btnOK");
    EXPECT_THAT(listRows(), ElementsAre(u"-", u"Altvertrag", u"Festpreis", u"Festpreis neu"));
    EXPECT_EQ(focus(), u"TDBList1");
  });
}

TEST_F(SelektionskriterienVertrag, SavingAKnownWordRewritesIt) {
  show(26, {u""}, [&] {
    enter(u"festpreis");
    EXPECT_EQ(text(u"Schluessel"), u"Festpreis");
    click(u"btnOK");
  });
  EXPECT_THAT(stored(), ElementsAre(u"-", u"Altvertrag", u"Festpreis"));
}

TEST_F(SelektionskriterienVertrag, HandsTheseStatementsToTheDatabase) {
  show(26, {u"Festpreis"}, [&] {
    EXPECT_THAT(statements(),
                ElementsAre(u"SELECT Kriterium FROM SelektionskriterienVertrag ORDER BY Kriterium",
                            u"SELECT * FROM SelektionskriterienVertrag WHERE Kriterium ='Festpreis'",
                            u"SELECT * FROM SelektionskriterienVertrag WHERE Kriterium ='Festpreis'"));
    click(u"btnOK");
    EXPECT_THAT(statements(),
                ElementsAre(u"SELECT * FROM SelektionskriterienVertrag WHERE Kriterium='Festpreis'",
                            u"SELECT * FROM SelektionskriterienVertrag WHERE Kriterium ='Festpreis'"));
    deleteRow();
    EXPECT_EQ(statements().front(), u"Delete FROM SelektionskriterienVertrag WHERE Kriterium ='Festpreis'");
  });
}

TEST_F(SelektionskriterienVertrag, ReportsPicksToTheHost) {
  heard();
  EXPECT_EQ(show(26, {u"-"},
                 [&] {
                   doubleClick(2);
                   doubleClick(1);
                 }),
            Variant(u"Altvertrag"));
  EXPECT_THAT(heard(), ElementsAre(Variant(u"Festpreis"), Variant(u"Altvertrag")));
}

TEST_F(SelektionskriterienVertrag, WithoutTheRightNothingChanges) {
  forbidChanges();
  expectBox(noRightToSave, u"TALVEX Software", msgbox::Information);
  expectBox(noRightToDelete, u"TALVEX Software", msgbox::Information);
  show(26, {u"Festpreis"}, [&] {
    click(u"btnOK");
    click(u"btnDelete");
  });
  EXPECT_EQ(stored().size(), 3u);
}

}  // namespace
}  // namespace zqn::testing
