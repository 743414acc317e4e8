// SPDX-License-Identifier: MIT
//
// The statements on a real SQLite, with the collation that the connection brings.
#include "host/database/schema/statements.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "host/database/schema/generate.h"
#include "host/database/schema/sample.h"
#include "host/database/schema/schema.h"
#include "runtime/locale.h"

namespace zqn::host {
namespace {

int collate(void*, int leftSize, const void* left, int rightSize, const void* right) {
  return compareCollated(
      std::string_view(static_cast<const char*>(left), static_cast<std::size_t>(leftSize)),
      std::string_view(static_cast<const char*>(right), static_cast<std::size_t>(rightSize)));
}

class Database {
 public:
  Database() {
    check(sqlite3_open(":memory:", &handle_));
    check(sqlite3_create_collation(handle_, "ZQN_TEXT", SQLITE_UTF8, nullptr, collate));
    for (const Table& table : tables())
      for (const String& statement : createStatements(table, DatabaseProduct::Sqlite)) run(statement);
  }
  ~Database() {
    for (auto& [name, insert] : inserts_) sqlite3_finalize(insert);
    sqlite3_close(handle_);
  }
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  void run(StringView statement) {
    check(sqlite3_exec(handle_, toUtf8(statement).c_str(), nullptr, nullptr, nullptr));
  }

  void insert(const Table& table, const Row& row) {
    sqlite3_stmt*& statement = inserts_[table.name];
    if (!statement)
      check(sqlite3_prepare_v2(handle_, toUtf8(insertStatement(table, DatabaseProduct::Sqlite)).c_str(), -1,
                               &statement, nullptr));
    ASSERT_EQ(sqlite3_bind_parameter_count(statement), static_cast<int>(row.size())) << toUtf8(table.name);
    for (std::size_t position = 0; position < row.size(); ++position)
      bind(statement, static_cast<int>(position) + 1, row[position]);
    EXPECT_EQ(sqlite3_step(statement), SQLITE_DONE) << toUtf8(table.name) << ": " << sqlite3_errmsg(handle_);
    sqlite3_reset(statement);
  }

  /// The first column of all rows, each as text.
  std::vector<std::string> read(StringView query) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(handle_, toUtf8(query).c_str(), -1, &statement, nullptr));
    std::vector<std::string> values;
    while (sqlite3_step(statement) == SQLITE_ROW) {
      const unsigned char* text = sqlite3_column_text(statement, 0);
      values.emplace_back(text ? reinterpret_cast<const char*>(text) : "(Null)");
    }
    sqlite3_finalize(statement);
    return values;
  }

 private:
  void check(int result) { ASSERT_EQ(result, SQLITE_OK) << sqlite3_errmsg(handle_); }

  static void bind(sqlite3_stmt* statement, int parameter, const Variant& value) {
    if (const String* text = value.as<String>()) {
      const std::string utf8 = toUtf8(*text);
      sqlite3_bind_text(statement, parameter, utf8.data(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
    } else if (const std::int32_t* whole = value.as<std::int32_t>()) {
      sqlite3_bind_int(statement, parameter, *whole);
    } else if (const double* number = value.as<double>()) {
      sqlite3_bind_double(statement, parameter, *number);
    } else if (const bool* flag = value.as<bool>()) {
      sqlite3_bind_int(statement, parameter, *flag ? 1 : 0);
    } else {
      sqlite3_bind_null(statement, parameter);
    }
  }

  sqlite3* handle_ = nullptr;
  std::map<StringView, sqlite3_stmt*> inserts_;
};

std::map<String, std::int64_t> fill(Database& database, const std::function<void(const RowSink&)>& rows) {
  std::map<String, std::int64_t> counts;
  database.run(u"BEGIN");
  rows([&](const Table& table, const Row& row) {
    database.insert(table, row);
    ++counts[String(table.name)];
  });
  database.run(u"COMMIT");
  return counts;
}

void expectCounts(Database& database, const std::map<String, std::int64_t>& counts) {
  for (const Table& table : tables())
    EXPECT_EQ(database.read(u"SELECT COUNT(*) FROM " + String(table.name)).at(0),
              std::to_string(counts.at(String(table.name))));
}

TEST(Statements, TheSampleGoesIntoASqliteDatabase) {
  Database database;
  expectCounts(database, fill(database, sampleRows));
}

TEST(Statements, AThousandGeneratedRowsGoIntoASqliteDatabase) {
  Database database;
  expectCounts(database, fill(database, [](const RowSink& sink) { generateRows(1000, sink); }));
}

TEST(Statements, ColumnsComeInTheOrderOfTheSchema) {
  Database database;
  for (const Table& table : tables()) {
    std::vector<std::string> names;
    for (const Column& column : table.columns) names.push_back(toUtf8(column.name));
    EXPECT_EQ(
        database.read(u"SELECT name FROM pragma_table_info('" + String(table.name) + u"') ORDER BY cid"),
        names);
  }
}

TEST(Statements, TheKeyOfTheDatabaseIsThatOfTheSchema) {
  Database database;
  for (const Table& table : tables()) {
    std::vector<std::string> names;
    for (const StringView column : table.primaryKey) names.push_back(toUtf8(column));
    EXPECT_EQ(database.read(u"SELECT name FROM pragma_table_info('" + String(table.name) +
                            u"') WHERE pk > 0 ORDER BY pk"),
              names);
  }
}

TEST(Statements, EachTextColumnComparesWithoutRegardToCaseAndTrailingBlanks) {
  Database database;
  fill(database, sampleRows);
  EXPECT_EQ(database.read(u"SELECT Bezeichnung FROM Vertriebsstati WHERE Bezeichnung = 'INTERESSE GEWECKT '")
                .size(),
            1u);
  EXPECT_EQ(database.read(u"SELECT Kennung FROM Laendernamen WHERE Kennung = 'ch'").size(), 1u);
  EXPECT_EQ(database.read(u"SELECT Langtext FROM Artikelgruppen WHERE Artikelgruppe = 'wälzlager'").size(),
            1u);
  EXPECT_TRUE(
      database.read(u"SELECT Langtext FROM Artikelgruppen WHERE Artikelgruppe = 'walzlager'").empty());
  for (const Table& table : tables())
    for (const Column& column : table.columns) {
      const bool isText = column.kind == ColumnKind::Text || column.kind == ColumnKind::LongText ||
                          column.kind == ColumnKind::Date14;
      const String statement = createStatements(table, DatabaseProduct::Sqlite).front();
      const std::size_t start = statement.find(u" " + String(column.name) + u" ") != String::npos
                                    ? statement.find(u" " + String(column.name) + u" ")
                                    : statement.find(u"(" + String(column.name) + u" ");
      ASSERT_NE(start, String::npos) << toUtf8(column.name);
      const String definition = statement.substr(start, statement.find(u",", start) - start);
      EXPECT_EQ(definition.find(u"COLLATE ZQN_TEXT") != String::npos, isText) << toUtf8(definition);
    }
}

TEST(Statements, APriceLineNeedsItsPriceListOnly) {
  Database database;
  database.run(u"INSERT INTO Staffelpreise (Preisliste) VALUES ('HW')");
  database.run(u"INSERT INTO Staffelpreise (Preisliste) VALUES ('HW')");
  EXPECT_EQ(database.read(u"SELECT ID FROM Staffelpreise ORDER BY ID"), (std::vector<std::string>{"1", "2"}));
}

TEST(Statements, OffersThatAreTemplatesAreListedByName) {
  Database database;
  fill(database, sampleRows);
  const std::vector<std::string> names =
      database.read(u"Select Vorlage From Angebotskopf Where Vorlage>'' Order by Vorlage");
  ASSERT_EQ(names.size(), 8u);
  EXPECT_EQ(names.front(), "   ");
  EXPECT_EQ(names[1], "Baustelle Grundausstattung");
}

TEST(Statements, LayoutsOfBothKindsStartWithTheReservedRow) {
  Database database;
  fill(database, sampleRows);
  for (const StringView type : {u"F", u"E"}) {
    const auto layouts = database.read(u"SELECT Layout FROM Versandformulare WHERE Typ ='" + String(type) +
                                       u"' OR TYP ='-' ORDER BY Layout ASC");
    EXPECT_EQ(layouts.size(), 8u);
    EXPECT_EQ(layouts.front(), "-");
  }
}

TEST(Statements, ADatabaseWithoutTheReservedLayoutIsMadeByOneStatement) {
  Database database;
  fill(database, sampleRows);
  database.run(u"DELETE FROM Versandformulare WHERE Layout='-'");
  EXPECT_EQ(database.read(u"SELECT Layout FROM Versandformulare WHERE Typ ='E' OR TYP ='-'").size(), 7u);
}

TEST(Statements, AShippingFormWithoutATypeServesBothCombos) {
  Database database;
  database.run(u"INSERT INTO Versandformulare (Layout, Langtext) VALUES ('X', 'Blatt')");
  EXPECT_EQ(database.read(u"SELECT Typ FROM Versandformulare"), std::vector<std::string>{"-"});
}

}  // namespace
}  // namespace zqn::host
