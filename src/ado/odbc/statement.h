// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: a statement of the dialogs as the engine runs it.
#pragma once

#include "ado/odbc/query.h"
#include "ado/odbc/server.h"

namespace zqn::ado::odbc {

class OdbcStatement : public Statement {
 public:
  OdbcStatement(std::shared_ptr<Server> server, StringView text, Purpose purpose);

  void open(std::span<const Value> parameters) override;
  bool fetch(RowStore& rows, std::size_t atMost) override { return query_->fetch(rows, atMost); }
  void close() noexcept override { query_->close(); }
  std::shared_ptr<const Columns> columns() const override { return columns_; }
  std::int64_t rowsAffected() const override { return rowsAffected_; }

 private:
  /// The statement as it is sent; an Insert with what makes it return its key.
  std::unique_ptr<Query> made() const;
  void run(std::span<const Value> parameters);
  /// A table that was not there may be by now, under a name in another case, with a key.
  void renew();
  /// After the first run, and whenever the table has changed: what the columns are, with those of the key.
  void learnColumns(std::span<const Value> parameters);

  std::shared_ptr<Server> server_;
  String text_;
  Purpose purpose_;
  Translation translation_;
  std::unique_ptr<Query> query_;
  bool outdated_ = false;   // translated while a table was missing
  std::size_t hidden_ = 0;  // columns of the query that its text did not have
  int description_ = 0;     // of the query, that `columns_` are made from
  std::shared_ptr<const Columns> columns_ = std::make_shared<const Columns>();
  std::int64_t rowsAffected_ = 0;
};

}  // namespace zqn::ado::odbc
