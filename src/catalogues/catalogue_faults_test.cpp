// SPDX-License-Identifier: MIT
//
// A database that fails at any one operation of a clerk's work, on every catalogue form: the host lives, no
// half row is stored, and only procedures without a handler tell of it.
#include <algorithm>
#include <functional>
#include <set>

#include "runtime/convert.h"
#include "testing/catalogue.h"

namespace zqn::testing {
namespace {

using ado::Operation;

class Work;

struct FormCase {
  const char* name;
  std::int32_t kind;
  VariantArray param;
  StringView table;
  /// Columns, and rows.
  StringView columns, rows;
  /// Statements for the tables that it reads beside its own.
  StringView others;
  /// What the clerk does: browse, change and save, add, delete, take.
  void (*act)(Work& clerk);
  /// The row that saving now would store, columns parted by "|".
  String (*shown)(const Work& clerk);
  /// What comes back when nothing fails, and what is stored then.
  Variant taken;
  std::set<String> after;
  /// Click of btnOK has no handler either.
  bool savingTells = true;
};

void PrintTo(const FormCase& form, std::ostream* out) { *out << form.name; }

class Work : public CatalogueTest, public ::testing::WithParamInterface<FormCase> {
 public:
  using CatalogueTest::click;
  using CatalogueTest::doubleClick;
  using CatalogueTest::get;
  using CatalogueTest::press;
  using CatalogueTest::select;
  using CatalogueTest::text;
  using CatalogueTest::type;

  void save() {
    saved.insert(GetParam().shown(*this));
    click(u"btnOK");
  }
  void saveByKey() {
    saved.insert(GetParam().shown(*this));
    press(key::F9);
  }
  void add(StringView key) {
    press(key::F6);
    type(key);
    press(key::Tab);
  }
  String textOrNull(StringView control) const {
    const String all = text(control);
    return all.empty() ? String(u"NULL") : all;
  }
  String value(StringView control, StringView property = u"Value") const {
    const Variant held = get(control, property);
    const String all = concatenate(held);
    return all.empty() ? String(u"NULL") : all;
  }

 protected:
  Work() {
    const FormCase& form = GetParam();
    execute(u"CREATE TABLE " + String(form.table) + u" (" + String(form.columns) + u")");
    execute(form.others);
    reset();
    before = stored();
  }

  void reset() {
    const String table(GetParam().table);
    execute(u"DELETE FROM " + table);
    execute(u"INSERT INTO " + table + u" VALUES " + String(GetParam().rows));
    saved.clear();
    reportedErrors.clear();
  }
  std::set<String> stored() {
    const auto all = rows(u"SELECT * FROM " + String(GetParam().table));
    return {all.begin(), all.end()};
  }
  Variant wholeSession() {
    return show(GetParam().kind, GetParam().param, [&] { GetParam().act(*this); });
  }
  bool isWhole(const String& row) const { return before.contains(row) || saved.contains(row); }
  /// Each column is that of a row of before, or of one as the form showed it, or Null: what a failed
  /// assignment of a single field may leave.
  bool hasKnownColumns(const String& row) const {
    std::set<String> known{u"NULL"};
    for (const auto& rows : {before, saved}) {
      for (const String& each : rows) {
        for (const String& column : Split(each, u"|")) known.insert(column);
      }
    }
    return std::ranges::all_of(Split(row, u"|"),
                               [&](const String& column) { return known.contains(column); });
  }

  std::set<String> before;
  std::set<String> saved;
};

TEST_P(Work, LeavesTheHostAliveAndWholeRowsWhereverTheDatabaseFails) {
  tolerateEverything();
  EXPECT_EQ(wholeSession(), GetParam().taken);
  EXPECT_TRUE(reportedErrors.empty());
  EXPECT_EQ(stored(), GetParam().after);
  const std::size_t count = operations.size();
  std::set<Operation> kinds;
  for (const auto& [operation, statement] : operations) kinds.insert(operation);
  ASSERT_EQ(kinds.size(), 8u) << "the session must meet every kind of operation";

  std::set<String> mayTell{u"TDBList1_RowColChange", u"TDBList1_DblClick", u"btnDelete_Click"};
  if (GetParam().savingTells) mayTell.insert(u"btnOK_Click");
  std::set<String> told;
  for (std::size_t position = 1; position <= count; ++position) {
    reset();
    failAt(position);
    const Variant taken = wholeSession();
    failAt(0);
    ASSERT_GE(operations.size(), position);
    const auto& [operation, statement] = operations[position - 1];
    SCOPED_TRACE("operation " + std::to_string(position) + " of kind " +
                 std::to_string(static_cast<int>(operation)) + " on " + toUtf8(statement));
    EXPECT_EQ(desktop.activeForm(), nullptr);
    EXPECT_FALSE(taken.isEmpty());
    EXPECT_LE(connection->openRecordsets(), operation == Operation::Close ? 1u : 0u);
    for (const String& row : stored())
      EXPECT_TRUE(operation == Operation::Field ? hasKnownColumns(row) : isWhole(row)) << toUtf8(row);
    for (const String& procedure : reportedErrors) {
      EXPECT_TRUE(mayTell.contains(procedure)) << toUtf8(procedure);
      told.insert(procedure);
    }
  }
  EXPECT_EQ(told, mayTell) << "each of them has told of one at least";
}

TEST_P(Work, GoesOnWithTheNextStatementWhereWritingARowFails) {
  tolerateEverything();
  const auto isOf = [this](std::size_t position, Operation kind) {
    return operations[position].first == kind;
  };
  std::size_t count = 0;
  for (std::size_t failing = 0; failing <= count; ++failing) {
    reset();
    operations.clear();
    show(GetParam().kind, GetParam().param, [&] {
      press(key::Down);
      const std::size_t start = operations.size();
      if (failing > 0) failAt(start + failing);
      click(u"btnOK");
      failAt(0);
      std::size_t end = start;
      while (!isOf(end, Operation::Requery)) ++end;
      EXPECT_TRUE(reportedErrors.empty()) << "statement " << failing;
      EXPECT_EQ(focus(), u"TDBList1");
      if (failing == 0) count = end - start;
      const bool fieldFailed = failing > 0 && isOf(start + failing - 1, Operation::Field);
      if (!fieldFailed) return;
      EXPECT_TRUE(isOf(end - 2, Operation::Update) && isOf(end - 1, Operation::Close))
          << "statement " << failing;
      EXPECT_EQ(end - start, count) << "the other columns are assigned all the same";
    });
  }
  EXPECT_GT(count, 3u);
}

/// What a clerk does with records that have a name beside their key.
struct NamedWork {
  StringView name, newKey;
  int deleted;
  std::function<void()> change = [] {};
  std::function<void()> add = [] {};

  void on(Work& clerk) const {
    clerk.press(key::Down);
    clerk.click(name);
    clerk.type(u"geändert");
    change();
    clerk.save();
    clerk.add(newKey);
    clerk.type(u"neu");
    add();
    clerk.saveByKey();
    clerk.select(deleted);
    clerk.click(u"btnDelete");
    clerk.doubleClick(1);
  }
};

void workOnStatuses(Work& clerk) {
  NamedWork{u"Kurztext", u"40", 2, [&] { clerk.click(u"AutoOverwrite"); }}.on(clerk);
}

String status(const Work& clerk) {
  return clerk.text(u"Schluessel") + u"|" + clerk.textOrNull(u"Kurztext") + u"|" +
         clerk.value(u"AutoOverwrite") + u"|" + clerk.text(u"Gewichtung");
}

void workOnCategories(Work& clerk) {
  const auto chooseAStatus = [&] {
    clerk.click(u"HelpDesk");
    clerk.click(u"Status");
    clerk.press(key::Tab);
    clerk.type(u"10");
  };
  NamedWork{u"Kurztext", u"NEU", 0, [&] { clerk.click(u"Status"); }, chooseAStatus}.on(clerk);
}

String category(const Work& clerk) {
  return clerk.text(u"Schluessel") + u"|" + clerk.textOrNull(u"Kurztext") + u"|" + clerk.value(u"Historie") +
         u"|" + clerk.value(u"HelpDesk") + u"|" + clerk.value(u"VertriebsStatus") + u"|" +
         clerk.value(u"Adressherkunft") + u"|" + clerk.value(u"AktLetzterKontakt") + u"|" +
         clerk.value(u"AktLetzterBesuch");
}

void workOnReasons(Work& clerk) { NamedWork{u"Text", u"NEU", 0}.on(clerk); }

String reason(const Work& clerk) {
  const int entry = *clerk.get(u"Anzeigetyp", u"ListIndex").as<std::int32_t>();
  return clerk.text(u"Schluessel") + u"|" + clerk.textOrNull(u"Text") + u"|" +
         CStr(static_cast<std::int32_t>(entry + 1));
}

void workOnKeys(Work& clerk) {
  clerk.press(key::Down);
  clerk.press(key::Tab);
  clerk.save();
  clerk.add(u"neu");
  clerk.press(key::Tab, shift::Shift);
  clerk.saveByKey();
  clerk.select(0);
  clerk.click(u"btnDelete");
  clerk.doubleClick(1);
}

String criterion(const Work& clerk) { return clerk.text(u"Schluessel"); }
String keyword(const Work& clerk) { return clerk.text(u"Schluessel") + u"|S"; }
String listValue(const Work& clerk) {
  const String value = clerk.text(u"Schluessel");
  return u"R|1|" + (Trim(value).empty() ? String(u"-") : value);
}

INSTANTIATE_TEST_SUITE_P(
    Catalogues, Work,
    ::testing::Values(
        FormCase{"frmVertriebsstati",
                 21,
                 {u"10"},
                 u"Vertriebsstati",
                 u"Status VARCHAR(10) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, Bezeichnung VARCHAR(30) COLLATE "
                 u"ZQN_TEXT, AutoOverwrite SMALLINT, Gewichtung DOUBLE",
                 u"('10', 'Interesse', 0, 10), ('20', 'Angebot', -1, 40), ('30', 'Auftrag', 0, 90)",
                 u"",
                 workOnStatuses,
                 status,
                 u"20",
                 {u"10|Interesse|0|10", u"20|geändert|0|40", u"40|neu|0|0"}},
        FormCase{"frmCRMKategorien",
                 25,
                 {u"A"},
                 u"Kontaktgruppen",
                 u"Kontaktgruppe VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, Bezeichnung VARCHAR(30), "
                 u"Historie SMALLINT, HelpDesk SMALLINT, VertriebsStatus VARCHAR(10), Adressherkunft "
                 u"VARCHAR(15), AktLetzterKontakt SMALLINT, AktLetzterBesuch SMALLINT",
                 u"('A', 'eins', 1, 0, '10', NULL, 1, 0), ('B', 'zwei', 1, 1, '20', NULL, 0, 1), "
                 u"('C', 'drei', 0, 0, NULL, 'M', 0, 0)",
                 u"CREATE TABLE Vertriebsstati (Status VARCHAR(10) PRIMARY KEY, Bezeichnung VARCHAR(30));"
                 u"INSERT INTO Vertriebsstati VALUES ('10', 'Interesse'), ('20', 'Angebot');"
                 u"CREATE TABLE Adressherkunft (Herkunft VARCHAR(15) PRIMARY KEY, Bezeichnung VARCHAR(50))",
                 workOnCategories,
                 category,
                 u"C",
                 {u"B|geändert|1|1|NULL|NULL|0|1", u"C|drei|0|0|NULL|M|0|0", u"NEU|neu|1|1|10|NULL|0|0"}},
        FormCase{"frmSelektionskriterienVertrag",
                 26,
                 {u"A"},
                 u"SelektionskriterienVertrag",
                 u"Kriterium VARCHAR(30) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY",
                 u"('A'), ('B'), ('C')",
                 u"",
                 workOnKeys,
                 criterion,
                 u"C",
                 {u"B", u"C", u"neu"}},
        FormCase{"frmSelectionListValues",
                 28,
                 {u"A", u"R", std::int32_t{1}, u""},
                 u"SelectionListValues",
                 u"ReferenceType VARCHAR(50) COLLATE ZQN_TEXT NOT NULL, FieldID INTEGER NOT NULL, ListValue "
                 u"VARCHAR(255) COLLATE ZQN_TEXT NOT NULL, PRIMARY KEY (ReferenceType, FieldID, ListValue)",
                 u"('R', 1, 'A'), ('R', 1, 'B'), ('R', 1, 'C')",
                 u"",
                 workOnKeys,
                 listValue,
                 u"C",
                 {u"R|1|B", u"R|1|C", u"R|1|neu"},
                 false},
        FormCase{"frmKuendigungsgruende",
                 32,
                 {u"A"},
                 u"Kuendigungsgruende",
                 u"GrundVerlorenSchl VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, Text VARCHAR(50), "
                 u"Anzeigetyp INTEGER",
                 u"('A', 'eins', 3), ('B', 'zwei', 2), ('C', 'drei', 1)",
                 u"",
                 workOnReasons,
                 reason,
                 u"C",
                 {u"B|geändert|2", u"C|drei|1", u"NEU|neu|3"}},
        FormCase{"frmKeywords",
                 35,
                 {u"A", u"S"},
                 u"Keywords",
                 u"Keyword VARCHAR(30) COLLATE ZQN_TEXT NOT NULL, Section VARCHAR(50) COLLATE ZQN_TEXT NOT "
                 u"NULL, PRIMARY KEY (Section, Keyword)",
                 u"('A', 'S'), ('B', 'S'), ('C', 'S')",
                 u"",
                 workOnKeys,
                 keyword,
                 u"C",
                 {u"B|S", u"C|S", u"neu|S"}}),
    [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace zqn::testing
