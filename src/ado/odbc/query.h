// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: one statement handle, prepared once and run again, its rows read in blocks. The
// statement is in the server's words already.
//
//     Query query(server, server.link(), u"SELECT status FROM vertriebsstati WHERE status=?");
//     query.open(key);
//     while (query.fetch(rows, 100)) ...
#pragma once

#include <span>
#include <vector>

#include "ado/odbc/link.h"
#include "ado/provider.h"

namespace zqn::ado::odbc {

class Server;

class Query {
 public:
  Query(Server& server, Link& link, StringView text);

  /// Prepares it without running it: the server says what columns there will be.
  void describe();
  /// Runs it. One with parameters is prepared for the next time. Never run twice for one call, whatever
  /// fails.
  void open(std::span<const Value> parameters = {});
  /// Adds rows, `atMost` of them; false when these were the last.
  bool fetch(RowStore& rows, std::size_t atMost);
  void close() noexcept;

  /// As the driver describes them; none is key or hidden. Empty for a statement without rows.
  const Columns& columns() const noexcept { return columns_; }
  /// Counts how often the server has described them.
  int descriptions() const noexcept { return descriptions_; }
  std::int64_t rowsAffected() const noexcept { return rowsAffected_; }

 private:
  /// How a column's values come from the driver.
  struct Source {
    SQLSMALLINT type = SQL_C_WCHAR;
    std::size_t width = 0;  // bytes of a value; 0 for one that is read piece by piece
    std::vector<char> values;
    std::vector<SQLLEN> lengths;
  };

  void makeHandle();
  void prepare();
  void bind(std::span<const Value> values);
  void execute(bool prepared);
  void readDescription();
  void bindColumns();
  bool advance();
  void deliver(RowStore& rows, std::size_t row);
  void readPieces(RowStore& rows, std::size_t column);
  void addText(RowStore& rows, const char* bytes, std::size_t length) const;
  Source sourceOf(SQLSMALLINT type, SQLULEN size, bool stored) const;
  [[noreturn]] void fail();

  Server& server_;
  Link& link_;
  String text_;
  Handle handle_;
  int generation_ = 0;
  bool prepared_ = false;
  bool described_ = false;
  int descriptions_ = 0;
  Columns columns_;
  std::vector<Source> sources_;
  std::size_t bound_ = 0;  // columns in front that the driver writes by itself
  std::int64_t rowsAffected_ = 0;

  struct Parameter {
    std::int64_t integer = 0;
    double real = 0;
    String text;
    SQLLEN length = 0;
  };
  std::vector<Parameter> parameters_;

  bool open_ = false;
  SQLULEN blockRows_ = 0;  // rows that the last fetch brought
  std::size_t delivered_ = 0;
};

}  // namespace zqn::ado::odbc
