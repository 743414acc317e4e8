// SPDX-License-Identifier: MIT
//
// The catalogues of a key and one text, each by its own table.
#include "runtime/convert.h"
#include "testing/generic_form.h"

namespace zqn::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

struct Expected {
  std::int32_t kind;
  const char16_t *table, *key, *text;
  int textLength;
  const char16_t *caption, *keyCaption;
  bool reserved;
};

// clang-format off
constexpr Expected catalogues[] = {
    {13, u"Aufwandskontokennungen", u"AufwandskontoKennung", u"Langtext", 30, u"Aufwandskontokennungen bearbeiten", u"Aufw.kto-Kennung", false},
    {12, u"Erlöskontokennungen", u"ErlöskontoKennung", u"Langtext", 30, u"Erlöskontokennungen bearbeiten", u"Erlöskonto-Kennung", false},
    {11, u"ProvisionsgruppenArtikel", u"PRVGruppeArtikel", u"Bezeichnung", 30, u"Provisionsgruppen bearbeiten", u"Prov.gruppe", true},
    {7, u"ProvisionsgruppenKunde", u"PRVGruppeKunde", u"Bezeichnung", 30, u"Provisionsgruppen bearbeiten", u"Prov.gruppe", true},
    {14, u"Lieferantengruppen", u"Lieferantengruppe", u"Langtext", 50, u"Lieferantengruppen bearbeiten", u"Lief.gruppe", true},
    {19, u"Vertragsarten", u"Vertragsart", u"Kurztext", 30, u"Vertragsarten bearbeiten", u"Vertragsart", true},
    {22, u"Mitbewerber", u"Mitbewerber", u"Bezeichnung", 50, u"Mitbewerber bearbeiten", u"Schlüssel", true},
    {23, u"Adressherkunft", u"Herkunft", u"Bezeichnung", 50, u"Adressherkunft bearbeiten", u"Schlüssel", true},
    {37, u"KontaktGruende", u"GrundSchl", u"Text", 50, u"Kontaktgrund bearbeiten", u"Schlüssel", true},
};
// clang-format on

void PrintTo(const Expected& expected, std::ostream* out) { *out << "kind " << expected.kind; }

std::string nameOf(const ::testing::TestParamInfo<Expected>& info) {
  return "Kind" + std::to_string(info.param.kind);
}

class CodedCatalogues : public GenericFormTest, public ::testing::WithParamInterface<Expected> {
 protected:
  CodedCatalogues() {
    execute(u"CREATE TABLE " + table() + u" (" + key() +
            u" VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, " + of().text +
            u" VARCHAR(50) COLLATE ZQN_TEXT);" +                      //
            u"INSERT INTO " + table() + u" VALUES ('A', 'Erste');" +  //
            u"INSERT INTO " + table() + u" VALUES ('B', NULL)");
  }

  const Expected& of() const { return GetParam(); }
  String table() const { return of().table; }
  String key() const { return of().key; }
  /// All rows, "key|text".
  std::vector<String> all() { return rows(u"SELECT * FROM " + table() + u" ORDER BY 1"); }
  String rowStatement(StringView typed) const {
    return u"SELECT * FROM " + table() + u" WHERE " + key() + u" = '" + String(typed) + u"'";
  }
  std::vector<String> shownRows() { return listRows(u"tdblShow"); }
  Variant showThis(VariantArray param, const std::function<void()>& acts) {
    return show(of().kind, std::move(param), acts);
  }
};

TEST_P(CodedCatalogues, ShowsKeyAndTextOfItsTable) {
  showThis({u"A"}, [&] {
    EXPECT_EQ(form().Caption(), of().caption);
    EXPECT_EQ(form().Height(), 3360 + 345 + 600);
    EXPECT_THAT(shownControls(), ElementsAre(u"tdblShow", u"lblKey", u"txtKey", u"lblKeyText", u"txtKeyText",
                                             u"cmdOK", u"cmdCancel", u"cmdNew", u"cmdDelete"));
    EXPECT_EQ(get(u"tdblShow", u"Columns(0).Caption"), Variant(of().keyCaption));
    EXPECT_EQ(get(u"tdblShow", u"Columns(1).Caption"), Variant(u"Bezeichnung"));
    EXPECT_EQ(get(u"lblKey", u"Caption"), Variant(of().keyCaption));
    EXPECT_EQ(text(u"txtKey"), u"A");
    EXPECT_EQ(text(u"txtKeyText"), u"Erste");
    EXPECT_EQ(focus(), u"tdblShow");
  });
}

TEST_P(CodedCatalogues, AsksItsTableAndNothingElse) {
  showThis({u"A"}, [&] {});
  EXPECT_THAT(
      statements(ado::Operation::Open),
      ElementsAre(u"SELECT * FROM " + table() + (of().reserved ? u" WHERE " + key() + u"<>'-'" : String()) +
                      u" ORDER BY " + key(),
                  rowStatement(u"A"), rowStatement(u"A")));
}

TEST_P(CodedCatalogues, FieldsTakeAsMuchAsTheTableHolds) {
  showThis({u""}, [&] {
    enter(String(40, u'k'));
    type(String(60, u't'));
    EXPECT_EQ(text(u"txtKey").size(), 15u);
    EXPECT_EQ(text(u"txtKeyText").size(), static_cast<std::size_t>(of().textLength));
  });
}

TEST_P(CodedCatalogues, ANewRowIsStoredAndMarked) {
  EXPECT_EQ(showThis({u"A"},
                     [&] {
                       enter(u"NEU");
                       type(u"Größe 3 Ω");
                       press(key::F9);
                       EXPECT_THAT(shownRows(), ElementsAre(u"A|Erste", u"B|", u"NEU|Größe 3 Ω"));
                       EXPECT_EQ(get(u"tdblShow", u"Text"), Variant(u"NEU"));
                     }),
            Variant(u"NEU"));
  EXPECT_THAT(all(), ElementsAre(u"A|Erste", u"B|NULL", u"NEU|Größe 3 Ω"));
}

TEST_P(CodedCatalogues, AnEmptyTextIsStoredAsNullAndNullIsShownEmpty) {
  showThis({u"B"}, [&] {
    EXPECT_EQ(text(u"txtKeyText"), u"");
    enter(u"A");
    press(key::Delete);
    EXPECT_EQ(text(u"txtKeyText"), u"");
    press(key::F9);
    EXPECT_THAT(shownRows(), ElementsAre(u"A|", u"B|"));
  });
  EXPECT_THAT(all(), ElementsAre(u"A|NULL", u"B|NULL"));
}

TEST_P(CodedCatalogues, AHyphenIsRefusedWithoutAWordWhereItIsReserved) {
  showThis({u"A"}, [&] {
    enter(u"-");
    type(u"Nichts");
    press(key::F9);
    EXPECT_EQ(shownRows().size(), of().reserved ? 2u : 3u);
  });
  std::vector<String> expected{u"A|Erste", u"B|NULL"};
  if (!of().reserved) expected.insert(expected.begin(), u"-|Nichts");
  EXPECT_EQ(all(), expected);
}

TEST_P(CodedCatalogues, AStoredHyphenIsHiddenAndKeptWhereItIsReserved) {
  somebodyElse(u"INSERT INTO " + table() + u" VALUES ('-', 'System')");
  showThis({u"-"}, [&] {
    EXPECT_EQ(text(u"txtKeyText"), u"System") << "it can be looked at by its key";
    EXPECT_EQ(enabled(u"cmdDelete"), !of().reserved);
    EXPECT_EQ(shownRows().size(), of().reserved ? 2u : 3u);
    put(u"txtKeyText", u"Anders");
    press(key::F9);
  });
  EXPECT_THAT(all(), Contains(of().reserved ? u"-|System" : u"-|Anders"));
}

TEST_P(CodedCatalogues, AHyphenAndMoreIsAKeyAsAnyOther) {
  showThis({u""}, [&] {
    for (const StringView typed : {u"--", u"- "}) {
      enter(typed);
      press(key::F9);
    }
  });
  EXPECT_THAT(all(), ::testing::IsSupersetOf({u"--|NULL", u"- |NULL"}));
}

TEST_P(CodedCatalogues, AKnownKeyIsUpdatedAndNeverRewritten) {
  showThis({u"B"}, [&] {
    click(u"cmdNew");
    type(u"a");
    press(key::Tab);
    EXPECT_EQ(text(u"txtKey"), u"A") << "the key takes its stored form";
    type(u"Zweite");
    press(key::F9);
    put(u"txtKey", u"b");
    press(key::F9);
  });
  EXPECT_THAT(all(), ElementsAre(u"A|Zweite", u"B|Zweite")) << "F9 saves what the fields show";
}

TEST_P(CodedCatalogues, DeletesTheMarkedRowWhateverTheKeySays) {
  showThis({u"A"}, [&] {
    click(u"cmdNew");
    type(u"B");
    form().control(u"tdblShow").SetFocus();  // by the program: the key field is not left by a person
    operations.clear();
    expectDeleteQuestion(MsgBoxResult::Yes);
    press(key::Delete);
    EXPECT_THAT(statements(ado::Operation::Execute),
                ElementsAre(u"Delete From " + table() + u" WHERE " + key() + u" = 'A'"));
  });
  EXPECT_THAT(all(), ElementsAre(u"B|NULL"));
}

TEST_P(CodedCatalogues, AFailingDatabaseIsSilent) {
  fail(ado::Operation::Execute, u"Delete From", error::IntegrityViolation);
  fail(ado::Operation::Update, table(), error::IntegrityViolation);
  showThis({u"A"}, [&] {
    deleteMarked();
    enter(u"NEU");
    press(key::F9);
    EXPECT_EQ(text(u"txtKey"), u"NEU");
  });
  EXPECT_THAT(all(), ElementsAre(u"A|Erste", u"B|NULL"));
}

TEST_P(CodedCatalogues, ARowWhoseKeyCannotBeWrittenIsNotStored) {
  showThis({u"A"}, [&] {
    enter(u"NEU");
    type(u"Text");
    fail(ado::Operation::Field, table(), error::ProviderFailure, 1);
    press(key::F9);
  });
  EXPECT_THAT(all(), ElementsAre(u"A|Erste", u"B|NULL"));
}

TEST_P(CodedCatalogues, AColumnThatCannotBeWrittenKeepsItsValue) {
  showThis({u"A"}, [&] {
    put(u"txtKeyText", u"Anders");
    fail(ado::Operation::Field, table(), error::ProviderFailure, 1);
    press(key::F9);
    EXPECT_EQ(text(u"txtKeyText"), u"Erste") << "as stored";
  });
  EXPECT_THAT(all(), ElementsAre(u"A|Erste", u"B|NULL"));
}

TEST_P(CodedCatalogues, KeysWithSignsBlanksAndForeignLettersAreSafe) {
  showThis({u""}, [&] {
    for (const StringView typed :
         {u"a'b", u"';--", u"ЖЩЮ", u"ßẞé", u"%_*", u"a b", u"\"x\"", u"日本語", u"' OR ''='"}) {
      enter(typed);
      press(key::F9);
    }
  });
  EXPECT_THAT(rows(u"SELECT " + key() + u" FROM " + table()),
              UnorderedElementsAre(u"A", u"B", u"ЖЩЮ", u"ßẞé", u"%_*", u"a b", u"\"x\"", u"日本語"));
}

TEST_P(CodedCatalogues, ExtraColumnsAndAMissingTableDoNoHarm) {
  execute(u"ALTER TABLE " + table() + u" ADD COLUMN Weiteres INTEGER");
  showThis({u"A"}, [&] {
    enter(u"C");
    press(key::F9);
  });
  EXPECT_THAT(all(), ElementsAre(u"A|Erste|NULL", u"B|NULL|NULL", u"C|NULL|NULL"));
  execute(u"DROP TABLE " + table());
  EXPECT_EQ(showThis({u"A"},
                     [&] {
                       EXPECT_EQ(text(u"txtKey"), u"A");
                       press(key::F9);
                       press(key::F10);
                     }),
            Variant(u"A"));
}

TEST_P(CodedCatalogues, AnyOperationMayFail) {
  failEachOperation([&] { showThis({u"A"}, [&] { workThrough(u"NEU"); }); });
}

INSTANTIATE_TEST_SUITE_P(All, CodedCatalogues, ::testing::ValuesIn(catalogues), nameOf);

}  // namespace
}  // namespace zqn::testing
