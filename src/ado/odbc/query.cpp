// SPDX-License-Identifier: MIT
#include "ado/odbc/query.h"

#include <algorithm>
#include <array>
#include <climits>

#include "ado/enums.h"
#include "ado/odbc/server.h"
#include "ado/odbc/wide.h"
#include "ado/sql_tokens.h"
#include "runtime/digits.h"

namespace zqn::ado::odbc {

namespace {

/// Longest text that is read in blocks, in characters; a longer one, or one without a limit, comes alone.
constexpr SQLULEN LongestInBlock = 1000;
/// Room in a block for a text of a column without a declared size, in characters.
constexpr SQLULEN UsualText = 100;
constexpr std::size_t BlockBytes = std::size_t{8} * 1024;
constexpr std::size_t LargestBlock = 1000;
/// A text beyond it is sent as a long one.
constexpr std::size_t LongestParameter = 4000;

bool isText(SQLSMALLINT type) {
  constexpr std::array<SQLSMALLINT, 4> types = {SQL_CHAR, SQL_VARCHAR, SQL_WCHAR, SQL_WVARCHAR};
  return std::ranges::find(types, type) != types.end();
}

int typeOf(SQLSMALLINT type, const Dialect& dialect) {
  switch (type) {
    case SQL_BIT:
      return adBoolean;
    case SQL_TINYINT:
      return dialect.tinyIsBoolean ? adBoolean : adSmallInt;
    case SQL_SMALLINT:
      return adSmallInt;
    case SQL_INTEGER:
      return adInteger;
    case SQL_BIGINT:
      return adBigInt;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
      return adDouble;
    case SQL_NUMERIC:
    case SQL_DECIMAL:
      return adNumeric;
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIME:
    case SQL_TYPE_TIMESTAMP:
      return adDBTimeStamp;
    case SQL_LONGVARCHAR:
    case SQL_WLONGVARCHAR:
      return adLongVarWChar;
    default:
      return isText(type) ? adVarWChar : adVariant;
  }
}

}  // namespace

Query::Query(Server& server, Link& link, StringView text, Rows from)
    : server_(server), link_(link), text_(wellFormed(text)), from_(from) {}

void Query::fail() {
  const RuntimeError error = link_.failure(handle_);
  close();
  throw RuntimeError(error);
}

void Query::makeHandle() {
  if (handle_ && generation_ == link_.generation() && !link_.dropped()) return;
  handle_ = link_.statement();
  generation_ = link_.generation();
  prepared_ = described_ = false;
}

bool Query::isSelect() const { return sql::Scanner(text_).next().is(u"SELECT"); }

void Query::prepare() {
  if (prepared_) return;
  server_.tell(text_);
  const SQLRETURN result = SQLPrepareW(handle_.get(), asWide(text_), static_cast<SQLINTEGER>(text_.size()));
  if (!SQL_SUCCEEDED(result)) fail();
  prepared_ = true;
}

void Query::describe() {
  makeHandle();
  prepare();
  if (!described_) readDescription();
}

void Query::open(std::span<const Value> parameters) {
  close();
  makeHandle();
  const bool prepared = prepared_ || !parameters.empty() || (link_.dialect().preparesAlways && isSelect());
  if (prepared) {
    prepare();
    SQLSMALLINT asked = 0;
    if (!SQL_SUCCEEDED(SQLNumParams(handle_.get(), &asked))) fail();
    if (static_cast<std::size_t>(asked) != parameters.size())
      throw RuntimeError(error::NoValueForParameter, error::description(error::NoValueForParameter),
                         link_.product());
    bind(parameters);
  }
  server_.tellRun(text_, parameters);
  execute(prepared);
  if (!described_) readDescription();
  open_ = !columns_.empty();
  if (!open_) close();
}

void Query::bind(std::span<const Value> values) {
  parameters_.resize(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    Parameter& parameter = parameters_[i];
    const auto bound = [&](SQLSMALLINT from, SQLSMALLINT type, SQLULEN size, SQLPOINTER data, SQLLEN length) {
      parameter.length = length;
      const SQLRETURN result =
          SQLBindParameter(handle_.get(), static_cast<SQLUSMALLINT>(i + 1), SQL_PARAM_INPUT, from, type, size,
                           0, data, std::max<SQLLEN>(length, 0), &parameter.length);
      if (!SQL_SUCCEEDED(result)) fail();
    };
    const auto boundText = [&](String text) {
      parameter.text = std::move(text);
      const std::size_t size = parameter.text.size();
      bound(SQL_C_WCHAR, size > LongestParameter ? SQL_WLONGVARCHAR : SQL_WVARCHAR,
            std::max<SQLULEN>(size, 1), parameter.text.data(), static_cast<SQLLEN>(size * sizeof(char16_t)));
    };
    const Value& value = values[i];
    const bool untyped = link_.dialect().untypedParameters;
    switch (value.kind) {
      case Value::Kind::Null:
        bound(SQL_C_WCHAR, SQL_WVARCHAR, 1, nullptr, SQL_NULL_DATA);
        break;
      case Value::Kind::Integer:
        parameter.integer = value.integer;
        if (untyped) {
          boundText(digits(value.integer));
        } else {
          bound(SQL_C_SBIGINT, SQL_BIGINT, 0, &parameter.integer, 0);
        }
        break;
      case Value::Kind::Real:
        parameter.real = value.real;
        if (untyped) {
          boundText(digits(value.real));
        } else {
          bound(SQL_C_DOUBLE, SQL_DOUBLE, 0, &parameter.real, 0);
        }
        break;
      case Value::Kind::Text:
        boundText(wellFormed(value.text));
        break;
    }
  }
}

void Query::execute(bool prepared) {
  if (!prepared) server_.tell(text_);
  const auto run = [&] {
    return prepared ? SQLExecute(handle_.get())
                    : SQLExecDirectW(handle_.get(), asWide(text_), static_cast<SQLINTEGER>(text_.size()));
  };
  SQLRETURN result = run();
  if (result == SQL_ERROR && prepared) {
    const Diagnostic diagnostic = diagnosticOf(SQL_HANDLE_STMT, handle_.get());
    if (!isOutdated(diagnostic)) {
      const RuntimeError error = link_.failure(diagnostic);
      close();
      throw RuntimeError(error);
    }
    close();
    prepared_ = described_ = false;
    prepare();
    result = run();
  }
  if (!SQL_SUCCEEDED(result) && result != SQL_NO_DATA) fail();
  SQLLEN rows = 0;
  SQLRowCount(handle_.get(), &rows);
  rowsAffected_ = result == SQL_NO_DATA ? 0 : rows;
  if (from_ == Rows::BehindStatement) goToRows();
}

void Query::goToRows() {
  for (SQLSMALLINT count = 0;;) {
    if (!SQL_SUCCEEDED(SQLNumResultCols(handle_.get(), &count))) fail();
    if (count > 0) return;
    const SQLRETURN result = SQLMoreResults(handle_.get());
    if (result == SQL_NO_DATA) return;
    if (!SQL_SUCCEEDED(result)) fail();
  }
}

void Query::readDescription() {
  SQLSMALLINT count = 0;
  if (!SQL_SUCCEEDED(SQLNumResultCols(handle_.get(), &count))) fail();
  columns_.clear();
  sources_.clear();
  for (SQLUSMALLINT number = 1; number <= count; ++number) {
    const auto attribute = [&](SQLUSMALLINT field) {
      std::array<SQLWCHAR, 260> buffer = {};
      SQLSMALLINT bytes = 0;
      SQLLEN ignored = 0;
      SQLColAttributeW(handle_.get(), number, field, buffer.data(), sizeof buffer, &bytes, &ignored);
      return String(asText(buffer.data()));
    };
    std::array<SQLWCHAR, 260> name = {};
    SQLSMALLINT length = 0, type = 0, decimals = 0, nullable = 0;
    SQLULEN size = 0;
    if (!SQL_SUCCEEDED(SQLDescribeColW(handle_.get(), number, name.data(),
                                       static_cast<SQLSMALLINT>(name.size()), &length, &type, &size,
                                       &decimals, &nullable)))
      fail();
    Column column;
    column.name = asText(name.data());
    column.baseTable = attribute(SQL_DESC_BASE_TABLE_NAME);
    // Some drivers give an expression's label as its base column: the table tells.
    if (!column.baseTable.empty()) column.baseColumn = attribute(SQL_DESC_BASE_COLUMN_NAME);
    const bool stored = !column.baseColumn.empty();
    column.type = stored ? typeOf(type, link_.dialect()) : adVariant;
    SQLULEN room = size;
    if (column.type == adVarWChar) {
      column.definedSize = declaredSize(size);
      const bool guessed = column.definedSize == 0;
      if (guessed) column.type = adLongVarWChar;
      // Most texts are short; the driver reads on where one is not.
      if (guessed && link_.dialect().readsOnInBlocks) room = UsualText;
    }
    sources_.push_back(sourceOf(type, room, stored));
    columns_.push_back(std::move(column));
  }
  // Some drivers ask the server for tables and columns on the way, and give nothing when that fails.
  link_.requireAlive();
  if (count > 0) bindColumns();
  described_ = true;
  ++descriptions_;
}

int Query::declaredSize(SQLULEN told) const {
  const bool declared = told != link_.madeUpSize() && told < static_cast<SQLULEN>(INT_MAX);
  return declared ? static_cast<int>(told) : 0;
}

Query::Source Query::sourceOf(SQLSMALLINT type, SQLULEN size, bool stored) const {
  switch (typeOf(type, link_.dialect())) {
    case adBoolean:
    case adSmallInt:
    case adInteger:
    case adBigInt:
      return {SQL_C_SBIGINT, sizeof(std::int64_t), {}, {}};
    case adDouble:
    case adNumeric:
      return {SQL_C_DOUBLE, sizeof(double), {}, {}};
    default:
      break;
  }
  const bool utf8 = link_.dialect().utf8Texts;
  // The size that a driver names for an expression is a guess.
  const bool block = isText(type) && stored && size > 0 && size <= LongestInBlock && !inPieces_;
  const std::size_t width = utf8 ? size * 4 + 1 : (size * 2 + 1) * sizeof(char16_t);
  return {static_cast<SQLSMALLINT>(utf8 ? SQL_C_CHAR : SQL_C_WCHAR), block ? width : 0, {}, {}};
}

void Query::bindColumns() {
  bound_ = 0;
  std::size_t width = 0;
  for (; bound_ < sources_.size() && sources_[bound_].width > 0; ++bound_) width += sources_[bound_].width;
  const bool inBlocks = bound_ == sources_.size();
  const std::size_t rows = inBlocks ? std::clamp<std::size_t>(BlockBytes / width, 1, LargestBlock) : 1;
  block_ = rows;
  SQLFreeStmt(handle_.get(), SQL_UNBIND);
  SQLSetStmtAttrW(handle_.get(), SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(rows), 0);
  SQLSetStmtAttrW(handle_.get(), SQL_ATTR_ROWS_FETCHED_PTR, &blockRows_, 0);
  for (std::size_t i = 0; i < bound_; ++i) {
    Source& source = sources_[i];
    source.values.resize(source.width * rows);
    source.lengths.resize(rows);
    const SQLRETURN result =
        SQLBindCol(handle_.get(), static_cast<SQLUSMALLINT>(i + 1), source.type, source.values.data(),
                   static_cast<SQLLEN>(source.width), source.lengths.data());
    if (!SQL_SUCCEEDED(result)) fail();
  }
}

bool Query::advance() {
  if (delivered_ < blockRows_) return true;
  delivered_ = 0;
  const SQLRETURN result = SQLFetch(handle_.get());
  if (result == SQL_NO_DATA) {
    close();
    return false;
  }
  if (!SQL_SUCCEEDED(result)) fail();
  return true;
}

bool Query::fetch(RowStore& rows, std::size_t atMost) {
  for (; open_ && atMost > 0; --atMost) {
    if (!advance()) return false;
    deliver(rows, delivered_++);
  }
  return open_ && advance();
}

void Query::deliver(RowStore& rows, std::size_t row) {
  for (std::size_t i = 0; i < sources_.size(); ++i) {
    const Source& source = sources_[i];
    if (i >= bound_) {
      readPieces(rows, i);
      continue;
    }
    const char* value = source.values.data() + row * source.width;
    const SQLLEN length = source.lengths[row];
    if (length == SQL_NULL_DATA) {
      rows.addNull();
    } else if (source.type == SQL_C_SBIGINT) {
      rows.addInteger(*reinterpret_cast<const std::int64_t*>(value));
    } else if (source.type == SQL_C_DOUBLE) {
      rows.addReal(*reinterpret_cast<const double*>(value));
    } else if (length >= 0 && static_cast<std::size_t>(length) <= source.width - endSize()) {
      addText(rows, value, static_cast<std::size_t>(length));
    } else {
      readOn(rows, i, row);
    }
  }
}

std::size_t Query::endSize() const noexcept { return link_.dialect().utf8Texts ? 1 : sizeof(char16_t); }

void Query::readOn(RowStore& rows, std::size_t column, std::size_t row) {
  const Source& source = sources_[column];
  const SQLLEN length = source.lengths[row];
  const bool placed =
      block_ == 1 || (link_.dialect().readsOnInBlocks &&
                      SQL_SUCCEEDED(SQLSetPos(handle_.get(), static_cast<SQLSETPOSIROW>(row + 1),
                                              SQL_POSITION, SQL_LOCK_NO_CHANGE)));
  const auto text = placed ? pieces(column) : std::nullopt;
  const bool whole = text && (length < 0 || text->size() == static_cast<std::size_t>(length));
  if (whole) return addText(rows, text->data(), text->size());
  const String name = columns_[column].name;
  inPieces_ = true;
  close();
  handle_.reset();
  throw RuntimeError(error::ProviderFailure,
                     u"Ein Text der Spalte \"" + name +
                         u"\" ist länger, als sie beim letzten Mal fasste. Bitte noch einmal lesen.",
                     link_.product());
}

void Query::addText(RowStore& rows, const char* bytes, std::size_t length) const {
  if (link_.dialect().utf8Texts) {
    rows.addText(std::string_view(bytes, length));
  } else {
    rows.addText(StringView(reinterpret_cast<const char16_t*>(bytes), length / sizeof(char16_t)));
  }
}

void Query::readPieces(RowStore& rows, std::size_t column) {
  const Source& source = sources_[column];
  const auto number = static_cast<SQLUSMALLINT>(column + 1);
  SQLLEN length = 0;
  if (source.type == SQL_C_SBIGINT || source.type == SQL_C_DOUBLE) {
    Value value;
    const bool whole = source.type == SQL_C_SBIGINT;
    void* target = whole ? static_cast<void*>(&value.integer) : static_cast<void*>(&value.real);
    if (!SQL_SUCCEEDED(SQLGetData(handle_.get(), number, source.type, target, 0, &length))) fail();
    if (length != SQL_NULL_DATA) value.kind = whole ? Value::Kind::Integer : Value::Kind::Real;
    return rows.add(value);
  }
  const auto text = pieces(column);
  if (!text) return rows.addNull();
  addText(rows, text->data(), text->size());
}

std::optional<std::vector<char>> Query::pieces(std::size_t column) {
  const Source& source = sources_[column];
  const auto number = static_cast<SQLUSMALLINT>(column + 1);
  SQLLEN length = 0;
  const std::size_t end = endSize();
  std::vector<char> text;
  std::vector<char> piece(BlockBytes);
  for (;;) {
    const SQLRETURN result = SQLGetData(handle_.get(), number, source.type, piece.data(),
                                        static_cast<SQLLEN>(piece.size()), &length);
    if (result == SQL_NO_DATA) break;
    if (!SQL_SUCCEEDED(result)) fail();
    if (length == SQL_NULL_DATA) return std::nullopt;
    const std::size_t room = piece.size() - end;
    const bool more = length < 0 || static_cast<std::size_t>(length) > room;
    text.insert(text.end(), piece.begin(),
                piece.begin() + static_cast<std::ptrdiff_t>(more ? room : static_cast<std::size_t>(length)));
    if (!more) break;
  }
  return text;
}

void Query::close() noexcept {
  open_ = false;
  blockRows_ = 0;
  delivered_ = 0;
  if (handle_) SQLFreeStmt(handle_.get(), SQL_CLOSE);
}

}  // namespace zqn::ado::odbc
