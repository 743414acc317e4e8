// SPDX-License-Identifier: MIT
#include "host/database/system_tables.h"

#include <algorithm>

#include "host/database/rows.h"
#include "host/database/schema/generate.h"
#include "host/database/schema/sample.h"
#include "host/database/schema/schema.h"

namespace zqn::host {

std::int64_t makeTables(ado::Connection& connection, DatabaseProduct product,
                        const std::function<void(const Table&)>& made) {
  for (const String& statement : preparations(product)) connection.Execute(statement);
  std::int64_t count = 0;
  for (const Table& table : tables()) {
    bool stands = false;
    for (const String& statement : createStatements(table, product)) {
      connection.Execute(statement);
      if (!stands && made) made(table);
      stands = true;
    }
    ++count;
  }
  return count;
}

namespace {

/// Writes rows, over a network as many at once as every server takes.
class RowWriter {
 public:
  RowWriter(ado::Connection& connection, DatabaseProduct product)
      : connection_(connection), product_(product) {}

  void add(const Table& table, const Row& row) {
    if (table_ != &table) {
      flush();
      table_ = &table;
      full_.reset();
      rowsAtOnce_ =
          product_ == DatabaseProduct::Sqlite ? 1 : std::max<std::size_t>(MostParameters / table.width(), 1);
    }
    rows_.push_back(row);
    if (rows_.size() < rowsAtOnce_) return;
    if (!full_) full_ = prepare(rowsAtOnce_);
    write(*full_);
  }
  void flush() {
    if (!rows_.empty()) write(*prepare(rows_.size()));
  }
  std::int64_t written() const { return written_; }

 private:
  static constexpr std::size_t MostParameters = 2000;

  std::unique_ptr<ado::Statement> prepare(std::size_t rows) const {
    return connection_.provider().prepare(insertStatement(*table_, product_, rows), ado::Purpose::Plain);
  }
  void write(ado::Statement& insert) {
    std::vector<ado::Value> values;
    for (const Row& row : rows_) {
      const auto more = parameters(row);
      values.insert(values.end(), more.begin(), more.end());
    }
    insert.open(values);
    written_ += static_cast<std::int64_t>(rows_.size());
    rows_.clear();
  }

  ado::Connection& connection_;
  DatabaseProduct product_;
  const Table* table_ = nullptr;
  std::size_t rowsAtOnce_ = 1;
  std::unique_ptr<ado::Statement> full_;
  std::vector<Row> rows_;
  std::int64_t written_ = 0;
};

}  // namespace

std::int64_t fillTables(ado::Connection& connection, DatabaseProduct product, const Content& content) {
  RowWriter writer(connection, product);
  const RowSink sink = [&](const Table& table, const Row& row) { writer.add(table, row); };
  if (content.sample) sampleRows(sink);
  if (content.rows > 0) generateRows(content.rows, sink);
  writer.flush();
  return writer.written();
}

}  // namespace zqn::host
