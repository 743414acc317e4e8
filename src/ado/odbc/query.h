// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: one statement handle, prepared once and run again, its rows read in blocks. The
// statement is in the server's words already.
//
//     Query query(server, server.link(), u"SELECT status FROM vertriebsstati WHERE status=?");
//     query.open(key);
//     while (query.fetch(rows, 100)) ...
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "ado/odbc/link.h"
#include "ado/provider.h"

namespace zqn::ado::odbc {

class Server;

class Query {
 public:
  /// Where its rows come from: the statement, or another one that follows it in the same batch.
  enum class Rows { OfStatement, BehindStatement };

  Query(Server& server, Link& link, StringView text, Rows from = Rows::OfStatement);
  // The driver writes to places inside.
  Query(const Query&) = delete;
  Query& operator=(const Query&) = delete;

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
  bool isSelect() const;
  void prepare();
  void bind(std::span<const Value> values);
  void execute(bool prepared);
  void readDescription();
  void bindColumns();
  bool advance();
  void deliver(RowStore& rows, std::size_t row);
  void readPieces(RowStore& rows, std::size_t column);
  /// The bytes of a text that SQLGetData gives for the row that it stands on; no value for Null.
  std::optional<std::vector<char>> pieces(std::size_t column);
  /// A text that the driver has cut to the buffer: all of it. Error -2147467259 where the driver cannot do that;
  /// the next run reads such texts piece by piece.
  void readOn(RowStore& rows, std::size_t column, std::size_t row);
  std::size_t endSize() const noexcept;
  /// Characters that a text of this column can have at most; 0 where nobody says so.
  int declaredSize(SQLULEN told) const;
  void addText(RowStore& rows, const char* bytes, std::size_t length) const;
  Source sourceOf(SQLSMALLINT type, SQLULEN size, bool stored) const;
  void goToRows();
  [[noreturn]] void fail();

  Server& server_;
  Link& link_;
  String text_;
  Rows from_;
  bool inPieces_ = false;  // a text has been longer than its column's size
  Handle handle_;
  int generation_ = 0;
  bool prepared_ = false;
  bool described_ = false;
  int descriptions_ = 0;
  Columns columns_;
  std::vector<Source> sources_;
  std::size_t block_ = 1;  // rows that one fetch brings at most
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
