// SPDX-License-Identifier: MIT
#include "bare.h"

#include <algorithm>
#include <array>

#include "ado/odbc/wide.h"
#include "runtime/digits.h"

namespace zqn::load {

using ado::Value;
using ado::odbc::asWide;

namespace {

constexpr SQLULEN BlockRows = 100;
constexpr std::size_t Width = 260;

}  // namespace

Bare::Bare(const String& connectionString) : link_(connectionString, std::chrono::seconds(5)) {
  direct_.handle = link_.statement();
}

std::int64_t Bare::run(const Recording& recording) {
  std::int64_t changed = 0;
  for (const Run& one : recording) changed += run(one);
  return changed;
}

void Bare::check(const Prepared& statement, SQLRETURN result) {
  if (!SQL_SUCCEEDED(result) && result != SQL_NO_DATA) throw link_.failure(statement.handle);
}

Bare::Prepared& Bare::prepared(const String& text) {
  const auto [known, isNew] = prepared_.try_emplace(text);
  Prepared& statement = known->second;
  if (isNew) {
    statement.handle = link_.statement();
    check(statement, SQLPrepareW(statement.handle.get(), asWide(text), static_cast<SQLINTEGER>(text.size())));
  }
  return statement;
}

void Bare::bind(Prepared& statement, const std::vector<Argument>& arguments) {
  texts_.resize(arguments.size());
  sizes_.resize(arguments.size());
  const bool asTexts = link_.dialect().untypedParameters;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const Argument& argument = arguments[i];
    const auto bindAs = [&](SQLSMALLINT from, SQLSMALLINT to, SQLULEN size, const void* value) {
      check(statement, SQLBindParameter(statement.handle.get(), static_cast<SQLUSMALLINT>(i + 1),
                                        SQL_PARAM_INPUT, from, to, size, 0, const_cast<void*>(value),
                                        std::max<SQLLEN>(sizes_[i], 0), &sizes_[i]));
    };
    sizes_[i] = argument.kind == Value::Kind::Null ? SQL_NULL_DATA : 0;
    const bool isNumber = argument.kind == Value::Kind::Integer || argument.kind == Value::Kind::Real;
    if (isNumber && !asTexts) {
      if (argument.kind == Value::Kind::Integer) {
        bindAs(SQL_C_SBIGINT, SQL_BIGINT, 0, &argument.integer);
      } else {
        bindAs(SQL_C_DOUBLE, SQL_DOUBLE, 0, &argument.real);
      }
      continue;
    }
    if (argument.kind == Value::Kind::Integer) texts_[i] = digits(argument.integer);
    if (argument.kind == Value::Kind::Real) texts_[i] = digits(argument.real);
    if (argument.kind == Value::Kind::Text) texts_[i] = argument.text;
    if (argument.kind != Value::Kind::Null)
      sizes_[i] = static_cast<SQLLEN>(texts_[i].size() * sizeof(char16_t));
    bindAs(SQL_C_WCHAR, SQL_WVARCHAR, std::max<SQLULEN>(texts_[i].size(), 1), texts_[i].data());
  }
}

void Bare::bindColumns(Prepared& statement) {
  const auto columns = static_cast<std::size_t>(statement.columns);
  SQLFreeStmt(statement.handle.get(), SQL_UNBIND);
  SQLSetStmtAttrW(statement.handle.get(), SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(BlockRows),
                  0);
  statement.buffer.resize(columns * BlockRows * Width);
  statement.lengths.resize(columns * BlockRows);
  for (std::size_t i = 0; i < columns; ++i)
    check(statement, SQLBindCol(statement.handle.get(), static_cast<SQLUSMALLINT>(i + 1), SQL_C_CHAR,
                                statement.buffer.data() + i * BlockRows * Width, Width,
                                statement.lengths.data() + i * BlockRows));
}

std::int64_t Bare::run(const Run& one) {
  const bool isPrepared = !one.arguments.empty();
  Prepared& statement = isPrepared ? prepared(one.statement) : direct_;
  SQLHANDLE handle = statement.handle.get();
  if (isPrepared) {
    bind(statement, one.arguments);
    check(statement, SQLExecute(handle));
  } else {
    check(statement,
          SQLExecDirectW(handle, asWide(one.statement), static_cast<SQLINTEGER>(one.statement.size())));
  }
  if (!isPrepared || !statement.described) {
    SQLSMALLINT columns = 0;
    check(statement, SQLNumResultCols(handle, &columns));
    const bool same = columns == statement.columns;
    statement.columns = columns;
    statement.described = true;
    if (!same && columns > 0) bindColumns(statement);
  }
  if (statement.columns == 0) {
    SQLLEN rows = 0;
    SQLRowCount(handle, &rows);
    SQLFreeStmt(handle, SQL_CLOSE);
    return std::max<SQLLEN>(rows, 0);
  }
  SQLRETURN result = SQL_SUCCESS;
  while (SQL_SUCCEEDED(result)) result = SQLFetch(handle);
  check(statement, result);
  SQLFreeStmt(handle, SQL_CLOSE);
  return 0;
}

}  // namespace zqn::load
