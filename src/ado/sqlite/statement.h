// SPDX-License-Identifier: MIT
//
// Inside the SQLite provider: a prepared statement as the engine runs it.
#pragma once

#include "ado/sqlite/database.h"

namespace zqn::ado::sqlite {

class SqliteStatement : public Statement {
 public:
  SqliteStatement(std::shared_ptr<Database> database, StringView text, Purpose purpose);

  void open(std::span<const Value> parameters) override;
  bool fetch(RowStore& rows, std::size_t atMost) override;
  void close() noexcept override;
  std::shared_ptr<const Columns> columns() const override { return columns_; }
  std::int64_t rowsAffected() const override { return rowsAffected_; }

 private:
  void prepare();
  void start(std::span<const Value> parameters);

  std::shared_ptr<Database> database_;
  String text_;
  Purpose purpose_;
  StatementHandle statement_;
  std::shared_ptr<const Columns> columns_;
  bool onRow_ = false;  // stands on a row that was not delivered yet
  std::int64_t rowsAffected_ = 0;
};

}  // namespace zqn::ado::sqlite
