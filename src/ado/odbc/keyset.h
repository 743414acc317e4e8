// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: a SELECT by the primary keys of its rows. A short list's keys are read at once; a
// longer one's in growing pages over a connection of their own, which stands in a transaction that shows the
// database as it was when the list was opened. Where that is not possible, all keys are read at once.
#pragma once

#include "ado/odbc/key_table.h"
#include "ado/odbc/keyed_select.h"

namespace zqn::ado::odbc {

class OdbcKeyset : public Keyset {
 public:
  /// nullptr where the statement's rows have no key.
  static std::unique_ptr<OdbcKeyset> make(std::shared_ptr<Server> server, StringView text,
                                          std::shared_ptr<const Columns> known);
  ~OdbcKeyset() override;

  std::shared_ptr<const Columns> columns() const override { return columns_; }
  bool fetchKeys(std::vector<RowHandle>& keys, std::size_t atMost) override;
  RowHandle handleOf(const RowView& row) override;
  std::optional<RowHandle> inserted(const std::vector<Variant>& values, const RowView& returned) override;
  void written(RowHandle row, const std::vector<Variant>& values) override;
  bool readRow(RowHandle row, RowStore& rows) override;
  std::optional<std::vector<RowHandle>> rowsWhere(std::span<const ColumnEquals> comparisons) override;

 private:
  OdbcKeyset(std::shared_ptr<Server> server, KeyedSelect select, std::shared_ptr<const Columns> columns);

  /// Adds the number that the last INSERT has counted, where the server tells it.
  void askForNumber(RowStore& counted);
  void begin();
  /// Takes the second connection; false where it cannot be had.
  bool beginSnapshot();
  /// Reads keys behind those that are there, `count` at most; 0 for all.
  void readPage(Link& link, std::size_t count);
  void nextPage();
  void readAll();
  void end() noexcept;

  std::shared_ptr<Server> server_;
  KeyedSelect select_;
  std::shared_ptr<const Columns> columns_;
  std::vector<int> keyColumns_;  // where each column of the key stands among them
  String rowText_;               // made when a row is first read
  KeyTable keys_;

  bool begun_ = false;
  bool reading_ = false;  // in pages, and not at the end
  sql::KeysOnly keysOnly_;
  std::vector<RowHandle> read_;  // in the order of the list
  std::size_t delivered_ = 0;
  std::size_t pageSize_ = 0;
  std::optional<RuntimeError> failure_;  // why there are no further keys
};

}  // namespace zqn::ado::odbc
