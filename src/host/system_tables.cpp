// SPDX-License-Identifier: MIT
#include "host/system_tables.h"

#include "host/rows.h"
#include "host/schema/generate.h"
#include "host/schema/sample.h"
#include "host/schema/schema.h"

namespace zqn::host {

Transaction::Transaction(ado::Connection& connection, StringView begin) : connection_(connection) {
  connection_.Execute(String(begin));
}

Transaction::~Transaction() {
  if (committed_) return;
  try {
    connection_.Execute(u"ROLLBACK");
  } catch (const RuntimeError&) {
    // The database has already rolled back by itself, after a full disk or a lost connection for instance.
  }
}

void Transaction::commit() {
  connection_.Execute(u"COMMIT");
  committed_ = true;
}

std::int64_t makeTables(ado::Connection& connection, Dialect dialect,
                        const std::function<void(const Table&)>& made) {
  for (const String& statement : preparations(dialect)) connection.Execute(statement);
  std::int64_t count = 0;
  for (const Table& table : tables()) {
    bool stands = false;
    for (const String& statement : createStatements(table, dialect)) {
      connection.Execute(statement);
      if (!stands && made) made(table);
      stands = true;
    }
    ++count;
  }
  return count;
}

std::int64_t fillTables(ado::Connection& connection, Dialect dialect, const Content& content) {
  std::int64_t count = 0;
  const Table* current = nullptr;
  std::unique_ptr<ado::Statement> insert;
  const RowSink sink = [&](const Table& table, const Row& row) {
    if (current != &table) {
      insert = connection.provider().prepare(insertStatement(table, dialect), ado::Purpose::Plain);
      current = &table;
    }
    insert->open(parameters(row));
    ++count;
  };
  if (content.sample) sampleRows(sink);
  if (content.rows > 0) generateRows(content.rows, sink);
  return count;
}

}  // namespace zqn::host
