// SPDX-License-Identifier: MIT
//
// A list over a table of a real database, for tests. Not part of the library.
#pragma once

#include "ado/recordset.h"
#include "ado/sqlite/sqlite.h"
#include "forms/tdb_list.h"
#include "runtime/digits.h"
#include "testing/forms.h"

namespace zqn::testing {

inline constexpr ControlDesign listRoster[] = {
    // Ten rows below the headings.
    {u"List", ControlKind::TDBList, u"", 0, 0, 4000, TDBList::headerHeight + 10 * TDBList::rowHeight},
    {u"btn", ControlKind::CommandButton, u"OK", 0, 3000, 1000, 285},
};

class ListTest : public FormTest {
 protected:
  ListTest() {
    execute(
        u"CREATE TABLE Stati (Status VARCHAR(10) COLLATE ZQN_TEXT PRIMARY KEY, "
        u"Bezeichnung VARCHAR(30) COLLATE ZQN_TEXT, Gewichtung DOUBLE)");
    list.RowColChange = [this] { note("RowColChange:" + toUtf8(list.Text())); };
  }

  void execute(StringView statement) { connection->Execute(ado::sql::Text(statement)); }
  void insert(std::initializer_list<StringView> keys) {
    for (const StringView key : keys)
      execute(u"INSERT INTO Stati VALUES ('" + String(key) + u"', 'Text " + String(key) + u"', NULL)");
  }
  /// Rows "00001" to `count`, in one statement.
  void insertMany(int count) {
    execute(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + digits(count) +
            u") INSERT INTO Stati SELECT printf('%05d', i), 'Text', NULL FROM n");
  }
  Ref<ado::Recordset> open(StringView statement = u"SELECT * FROM Stati ORDER BY Status") {
    auto rs = Ref<ado::Recordset>::make();
    rs->Open(ado::sql::Text(statement), connection, ado::adOpenKeyset, ado::adLockReadOnly);
    return rs;
  }
  /// Opens and binds.
  Ref<ado::Recordset> bind(StringView statement = u"SELECT * FROM Stati ORDER BY Status") {
    auto rs = open(statement);
    list.DataSource(rs);
    return rs;
  }
  void mark(ado::Recordset& rs, int row) { list.Bookmark(rs.bookmarkOf(row)); }

  Ref<ado::Connection> connection = ado::openSqlite(":memory:");
  SampleForm form{listRoster};
  TDBList& list = form.Get<TDBList>(u"List");
};

}  // namespace zqn::testing
