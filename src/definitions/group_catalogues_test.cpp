// SPDX-License-Identifier: MIT
//
// The group catalogues, each by its own table: two texts that fill each other.
#include "testing/generic_form.h"

namespace zqn::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

struct Expected {
  std::int32_t kind;
  const char16_t *table, *key, *caption, *keyCaption;
  bool reserved;
  const char16_t* listStatement;
};

// clang-format off
constexpr Expected groups[] = {
    {8, u"Artikelgruppen", u"Artikelgruppe", u"Artikelgruppen bearbeiten", u"Artikelgruppe", true, u"SELECT * FROM Artikelgruppen WHERE Artikelgruppe<>'-' ORDER BY Artikelgruppe"},
    {10, u"Einkaufsgruppen", u"Einkaufsgruppe", u"Einkaufsgruppen bearbeiten", u"Einkaufsgruppe", true, u"SELECT * FROM Einkaufsgruppen WHERE Einkaufsgruppe<>'-' ORDER BY Einkaufsgruppe"},
    {5, u"Kundengruppen", u"Kundengruppe", u"Kundengruppen bearbeiten", u"Kundengruppe", true, u"SELECT * FROM Kundengruppen WHERE Kundengruppe<>'-' ORDER BY Kundengruppe"},
    {6, u"KundengruppenShop", u"Kundengruppe", u"Kundengruppen Shop bearbeiten", u"Kundengruppe", false, u"SELECT * FROM KundengruppenShop ORDER BY Kundengruppe"},
    {9, u"Verkaufsgruppen", u"Verkaufsgruppe", u"Verkaufsgruppen bearbeiten", u"Verkaufsgruppe", true, u"SELECT * FROM Verkaufsgruppen WHERE Verkaufsgruppe<>'-' ORDER BY Verkaufsgruppe"},
    {20, u"VerkaufsgruppenShop", u"Verkaufsgruppe", u"Verkaufsgruppen Shop bearbeiten", u"Verkaufsgruppe Shop", true, u"SELECT Verkaufsgruppe, Langtext, Kurztext FROM VerkaufsgruppenShop WHERE Verkaufsgruppe<>'-' ORDER BY Verkaufsgruppe"},
};
// clang-format on

void PrintTo(const Expected& expected, std::ostream* out) { *out << "kind " << expected.kind; }

std::string nameOf(const ::testing::TestParamInfo<Expected>& info) {
  return "Kind" + std::to_string(info.param.kind);
}

class GroupCatalogues : public GenericFormTest, public ::testing::WithParamInterface<Expected> {
 protected:
  GroupCatalogues() {
    execute(u"CREATE TABLE " + table() + u" (" + key() +
            u" VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, Langtext VARCHAR(50) COLLATE ZQN_TEXT, "
            u"Kurztext "
            u"VARCHAR(50) COLLATE ZQN_TEXT);"
            u"INSERT INTO " +
            table() + u" VALUES ('A', 'Armaturen für Gas', 'Armaturen');" + u"INSERT INTO " + table() +
            u" VALUES ('W', 'Ware', NULL);" + u"INSERT INTO " + table() + u" VALUES ('X', NULL, NULL)");
  }

  const Expected& of() const { return GetParam(); }
  String table() const { return of().table; }
  String key() const { return of().key; }
  /// All rows, "key|long text|short text".
  std::vector<String> all() { return rows(u"SELECT * FROM " + table() + u" ORDER BY 1"); }
  Variant showThis(VariantArray param, const std::function<void()>& acts) {
    return show(of().kind, std::move(param), acts);
  }
};

TEST_P(GroupCatalogues, ShowsKeyShortTextAndLongText) {
  showThis({u"A"}, [&] {
    EXPECT_EQ(form().Caption(), of().caption);
    EXPECT_EQ(form().Height(), 4060 + 345 + 600);
    EXPECT_THAT(shownControls(),
                ElementsAre(u"tdblShow", u"lblKey", u"txtKey", u"lblKeyText", u"txtKeyText", u"lblLangtext",
                            u"txtLangtext", u"cmdOK", u"cmdCancel", u"cmdNew", u"cmdDelete"));
    EXPECT_EQ(get(u"lblKey", u"Caption"), Variant(of().keyCaption));
    EXPECT_EQ(get(u"lblKeyText", u"Caption"), Variant(u"Kurztext"));
    EXPECT_EQ(get(u"lblLangtext", u"Caption"), Variant(u"Bezeichnung"));
    EXPECT_EQ(get(u"lblLangtext", u"Width"), get(u"txtLangtext", u"Width"));
    EXPECT_EQ(get(u"txtKey", u"MaxLength"), Variant(std::int32_t{15}));
    EXPECT_EQ(get(u"txtKeyText", u"MaxLength"), Variant(std::int32_t{50}));
    EXPECT_EQ(get(u"txtLangtext", u"MaxLength"), Variant(std::int32_t{50}));
    EXPECT_EQ(text(u"txtKeyText"), u"Armaturen");
    EXPECT_EQ(text(u"txtLangtext"), u"Armaturen für Gas");
  });
  EXPECT_THAT(statements(ado::Operation::Open).front(), of().listStatement);
}

TEST_P(GroupCatalogues, TheListShowsKeyAndLongTextAndHidesTheShortOne) {
  showThis({u"A"}, [&] {
    EXPECT_EQ(get(u"tdblShow", u"Columns(0).Caption"), Variant(of().keyCaption));
    EXPECT_EQ(get(u"tdblShow", u"Columns(1).Caption"), Variant(u"Bezeichnung"));
    EXPECT_EQ(get(u"tdblShow", u"Columns(2).Caption"), Variant(u"Kurztext"));
    EXPECT_EQ(get(u"tdblShow", u"Columns(1).Visible"), Variant(true));
    EXPECT_EQ(get(u"tdblShow", u"Columns(2).Visible"), Variant(false));
    EXPECT_THAT(listRows(u"tdblShow"), ElementsAre(u"A|Armaturen für Gas|Armaturen", u"W|Ware|", u"X||"));
  });
}

TEST_P(GroupCatalogues, ALongTextAloneShowsAsTheShortOneAndIsSavedInBoth) {
  showThis({u"W"}, [&] {
    EXPECT_EQ(text(u"txtKeyText"), u"Ware");
    EXPECT_EQ(text(u"txtLangtext"), u"Ware");
    click(u"cmdOK");
  });
  EXPECT_THAT(all(), Contains(u"W|Ware|Ware"));
}

TEST_P(GroupCatalogues, AShortTextAloneIsSavedAsTheLongOneToo) {
  showThis({u""}, [&] {
    enter(u"K");
    type(u"Kurz");
    press(key::F9);
    EXPECT_EQ(text(u"txtLangtext"), u"Kurz");
  });
  EXPECT_THAT(all(), Contains(u"K|Kurz|Kurz"));
}

TEST_P(GroupCatalogues, ALongTextOfBlanksCountsAsEmpty) {
  showThis({u"A"}, [&] {
    put(u"txtLangtext", u"   ");
    press(key::F9);
  });
  EXPECT_THAT(all(), Contains(u"A|Armaturen|Armaturen"));
}

TEST_P(GroupCatalogues, AShortTextOfBlanksIsKept) {
  showThis({u"W"}, [&] {
    put(u"txtKeyText", u" ");
    press(key::F9);
  });
  EXPECT_THAT(all(), Contains(u"W|Ware| "));
}

TEST_P(GroupCatalogues, BothTextsEmptyAreStoredAsNull) {
  showThis({u"A"}, [&] {
    EXPECT_EQ(text(u"txtKey"), u"A");
    click(u"txtKeyText");
    press(key::Delete);
    click(u"txtLangtext");
    press(key::Delete);
    press(key::F9);
    enter(u"Z");
    press(key::F9);
  });
  EXPECT_THAT(all(), ElementsAre(u"A|NULL|NULL", u"W|Ware|NULL", u"X|NULL|NULL", u"Z|NULL|NULL"));
}

TEST_P(GroupCatalogues, AHyphenIsRefusedWithoutAWordWhereItIsReserved) {
  showThis({u"A"}, [&] {
    enter(u"-");
    type(u"Nichts");
    click(u"cmdOK");
    EXPECT_EQ(listRows(u"tdblShow").size(), of().reserved ? 3u : 4u);
  });
  EXPECT_EQ(all().size(), of().reserved ? 3u : 4u);
}

TEST_P(GroupCatalogues, AStoredHyphenIsHiddenAndKeptWhereItIsReserved) {
  somebodyElse(u"INSERT INTO " + table() + u" VALUES ('-', 'lang', 'kurz')");
  showThis({u""}, [&] {
    EXPECT_EQ(listRows(u"tdblShow").size(), of().reserved ? 3u : 4u);
    enter(u"-");
    type(u"neu");
    press(key::F9);
  });
  EXPECT_THAT(all(), Contains(of().reserved ? u"-|lang|kurz" : u"-|lang|neu"));
}

TEST_P(GroupCatalogues, AHyphenAndABlankAreAKeyAsAnyOther) {
  showThis({u""}, [&] {
    enter(u"- ");
    press(key::F9);
  });
  EXPECT_THAT(all(), Contains(u"- |NULL|NULL"));
}

TEST_P(GroupCatalogues, AKnownKeyIsUpdatedAndNeverRewritten) {
  showThis({u"X"}, [&] {
    click(u"cmdNew");
    type(u"a");
    press(key::Tab);
    type(u"Neu");
    press(key::F9);
    EXPECT_THAT(all(), Contains(u"A|Armaturen für Gas|Neu"));
    put(u"txtKey", u"w");
    press(key::F9);
  });
  EXPECT_THAT(all(), Contains(u"W|Armaturen für Gas|Neu")) << "F9 saves what the fields show";
}

TEST_P(GroupCatalogues, TheListKeepsItsColumnsWhenARowIsSavedOrDeleted) {
  showThis({u"A"}, [&] {
    const auto expectColumns = [&](const char* after) {
      EXPECT_EQ(get(u"tdblShow", u"Columns(0).Width"), Variant(std::int32_t{1800})) << after;
      EXPECT_EQ(get(u"tdblShow", u"Columns(1).Caption"), Variant(u"Bezeichnung")) << after;
      EXPECT_EQ(get(u"tdblShow", u"Columns(2).Visible"), Variant(false)) << after;
    };
    click(u"cmdOK");
    expectColumns("saving");
    deleteMarked();
    expectColumns("deleting");
  });
}

TEST_P(GroupCatalogues, DeletesTheMarkedRowWhateverTheKeySays) {
  showThis({u"W"}, [&] {
    click(u"cmdNew");
    type(u"A");
    form().control(u"tdblShow").SetFocus();
    operations.clear();
    expectDeleteQuestion(MsgBoxResult::Yes);
    press(key::Delete);
    EXPECT_THAT(statements(ado::Operation::Execute),
                ElementsAre(u"Delete From " + table() + u" WHERE " + key() + u" = 'W'"));
    EXPECT_EQ(text(u"txtKey"), u"A") << "the first row";
  });
  EXPECT_EQ(all().size(), 2u);
}

TEST_P(GroupCatalogues, AFailingDatabaseIsSilent) {
  fail(ado::Operation::Execute, u"Delete From", error::IntegrityViolation);
  fail(ado::Operation::Update, table(), error::IntegrityViolation);
  showThis({u"A"}, [&] {
    deleteMarked();
    put(u"txtKeyText", u"anders");
    press(key::F9);
    EXPECT_EQ(focus(), u"tdblShow");
  });
  EXPECT_THAT(all(), Contains(u"A|Armaturen für Gas|Armaturen"));
}

TEST_P(GroupCatalogues, KeysWithSignsBlanksAndForeignLettersAreSafe) {
  showThis({u""}, [&] {
    for (const StringView typed : {u"a'b", u"ЖЩЮ", u"a b", u"\"x\"", u"日本語", u"' OR ''='"}) {
      enter(typed);
      press(key::F9);
    }
  });
  EXPECT_THAT(rows(u"SELECT " + key() + u" FROM " + table()),
              ::testing::UnorderedElementsAre(u"A", u"W", u"X", u"ЖЩЮ", u"a b", u"\"x\"", u"日本語"));
}

TEST_P(GroupCatalogues, TheOrderOfTheTablesColumnsDecidesWhatTheListShows) {
  execute(u"DROP TABLE " + table() + u";CREATE TABLE " + table() + u" (" + key() +
          u" VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, Kurztext VARCHAR(50), Langtext "
          u"VARCHAR(50));INSERT "
          u"INTO " +
          table() + u" VALUES ('A', 'kurz', 'lang')");
  showThis({u"A"}, [&] {
    const bool named = of().kind == 20;
    EXPECT_THAT(listRows(u"tdblShow"), ElementsAre(named ? u"A|lang|kurz" : u"A|kurz|lang"));
    EXPECT_EQ(text(u"txtKeyText"), u"kurz");
  });
}

TEST_P(GroupCatalogues, AMissingTableLeavesTheFormUp) {
  execute(u"DROP TABLE " + table());
  EXPECT_EQ(showThis({u"A"},
                     [&] {
                       EXPECT_EQ(text(u"txtKey"), u"A");
                       press(key::F9);
                       press(key::F10);
                     }),
            Variant(u"A"));
}

TEST_P(GroupCatalogues, AnyOperationMayFail) {
  failEachOperation([&] { showThis({u"A"}, [&] { workThrough(u"NEU"); }); });
}

INSTANTIATE_TEST_SUITE_P(All, GroupCatalogues, ::testing::ValuesIn(groups), nameOf);

}  // namespace
}  // namespace zqn::testing
