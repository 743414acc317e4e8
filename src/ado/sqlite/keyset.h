// SPDX-License-Identifier: MIT
//
// Inside the SQLite provider: a SELECT by its row handles. They are read through a connection of their own,
// so that a list that is not read to its end does not hold back what the clerk writes; where that connection
// could not see the same rows, all handles are read at once.
#pragma once

#include "ado/select_text.h"
#include "ado/sqlite/select.h"

namespace zqn::ado::sqlite {

class SqliteKeyset;

/// The connections to one file.
struct OpenFile {
  std::shared_ptr<Database> database;
  /// Path for a second connection; empty when a second one would not see the same rows (in memory, or without
  /// a write-ahead log).
  std::string path;
  int busyMilliseconds = 0;
  /// Opened when the first keyset needs it.
  std::shared_ptr<Database> reader;
  /// The keyset that reads through `reader`; one at a time, as all share its view of the file.
  SqliteKeyset* reading = nullptr;
};

class SqliteKeyset : public Keyset {
 public:
  /// nullptr where the statement has no handles.
  static std::unique_ptr<SqliteKeyset> make(std::shared_ptr<OpenFile> file, StringView text);
  ~SqliteKeyset() override;

  std::shared_ptr<const Columns> columns() const override { return columns_; }
  bool fetchKeys(std::vector<RowHandle>& keys, std::size_t atMost) override;
  RowHandle handleOf(const RowView& row) override;
  std::optional<RowHandle> inserted(const std::vector<Variant>&, const RowView&) override {
    return sqlite3_last_insert_rowid(file_->database->get());
  }
  void written(RowHandle, const std::vector<Variant>&) override {}
  bool readRow(RowHandle row, RowStore& rows) override;
  std::optional<std::vector<RowHandle>> rowsWhere(std::span<const ColumnEquals> comparisons) override;

 private:
  SqliteKeyset(std::shared_ptr<OpenFile> file, const SelectWithHandle& keyed);
  void begin();
  bool beginThroughReader();
  void advance();
  void readAll();
  void end() noexcept;

  std::shared_ptr<OpenFile> file_;
  std::shared_ptr<const Columns> columns_;
  sql::KeysOnly keysOnly_;
  String from_, rowId_;
  StatementHandle rowStatement_;
  StatementHandle whereStatement_;
  std::vector<int> whereColumns_;  // that the statement compares

  bool begun_ = false;
  std::shared_ptr<Database> keyDatabase_;
  StatementHandle keyStatement_;
  bool onKey_ = false;  // it stands on a handle that was not delivered yet
  /// Handles read ahead, delivered up to `delivered_`; the statement has ended then.
  std::vector<RowHandle> readAhead_;
  std::size_t delivered_ = 0;
  std::optional<RuntimeError> failure_;  // why there are no further handles
};

}  // namespace zqn::ado::sqlite
