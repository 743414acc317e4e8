// SPDX-License-Identifier: MIT
#include "ado/odbc/link.h"

#include <algorithm>
#include <array>
#include <limits>

#include "ado/odbc/connection_string.h"
#include "ado/odbc/wide.h"
#include "runtime/ascii.h"
#include "runtime/convert.h"
#include "runtime/digits.h"

#ifdef ZQN_SANITIZE
/// The driver of PostgreSQL keeps some memory for the life of the process.
extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  return "leak:psqlodbcw.so\n";
}
extern "C" const char* __lsan_default_options() {  // NOLINT(bugprone-reserved-identifier)
  return "print_suppressions=0";
}
#endif

namespace zqn::ado::odbc {

namespace {

/// What ODBC can be told.
constexpr std::size_t LongestConnectionString = std::numeric_limits<SQLSMALLINT>::max();

/// Empty when it is refused; the reason stands on the parent then.
Handle allocate(SQLSMALLINT kind, SQLHANDLE parent) {
  SQLHANDLE handle = SQL_NULL_HANDLE;
  if (!SQL_SUCCEEDED(SQLAllocHandle(kind, parent, &handle))) handle = nullptr;
  return Handle(handle, FreeHandle{kind});
}

/// The string with what the driver must be given besides.
String completed(StringView connectionString, const Dialect& dialect) {
  std::vector<ConnectionPair> pairs = connectionPairs(connectionString);
  for (const auto& [key, value] : dialect.connection) {
    const StringView name = key;
    const bool given =
        std::ranges::any_of(pairs, [&](const ConnectionPair& pair) { return ascii::same(pair.key, name); });
    if (!given) pairs.push_back({String(key), String(value)});
  }
  return odbc::connectionString(pairs);
}

}  // namespace

SQLHENV environment() {
  static const Handle handle = [] {
    Handle made = allocate(SQL_HANDLE_ENV, SQL_NULL_HANDLE);
    SQLSetEnvAttr(made.get(), SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    return made;
  }();
  return handle.get();
}

Link::Link(String connectionString, std::chrono::seconds loginTimeout)
    : connectionString_(std::move(connectionString)), loginTimeout_(loginTimeout) {
  connectOnce(connectionString_);
  product_ = told(SQL_DBMS_NAME);
  dialect_ = &dialectOf(product_);
  connectionString_ = completed(connectionString_, *dialect_);
  if (!dialect_->madeUpSize.empty())
    madeUpSize_ = static_cast<SQLULEN>(
        std::clamp(Val(connectionValue(connectionString_, dialect_->madeUpSize)), 0.0, 0x1p31));
  connect();
}

void Link::connectOnce(const String& connectionString) {
  connection_.reset();
  if (connectionString.size() > LongestConnectionString)
    throw RuntimeError(error::ProviderFailure,
                       u"Die Verbindungszeichenfolge ist zu lang: " + digits(connectionString.size()) +
                           u" Zeichen statt höchstens " + digits(LongestConnectionString) + u".",
                       product_);
  Handle connection = allocate(SQL_HANDLE_DBC, environment());
  SQLSetConnectAttrW(connection.get(), SQL_ATTR_LOGIN_TIMEOUT,
                     reinterpret_cast<SQLPOINTER>(static_cast<SQLULEN>(loginTimeout_.count())), 0);
  const SQLRETURN result = SQLDriverConnectW(connection.get(), nullptr, asWide(connectionString),
                                             static_cast<SQLSMALLINT>(connectionString.size()), nullptr, 0,
                                             nullptr, SQL_DRIVER_NOPROMPT);
  if (!SQL_SUCCEEDED(result)) throw failure(diagnosticOf(SQL_HANDLE_DBC, connection.get()));
  connection_ = std::move(connection);
}

String Link::told(SQLUSMALLINT what) {
  std::array<SQLWCHAR, 128> text = {};
  SQLSMALLINT bytes = 0;
  if (!SQL_SUCCEEDED(SQLGetInfoW(connection_.get(), what, text.data(), sizeof text, &bytes)))
    throw failure(diagnosticOf(SQL_HANDLE_DBC, connection_.get()));
  text.back() = 0;
  return asText(text.data());
}

void Link::connect() {
  connectOnce(connectionString_);
  ++generation_;
  dropped_ = false;
  try {
    for (const StringView statement : dialect_->start) run(statement);
  } catch (const RuntimeError&) {
    dropped_ = true;
    throw;
  }
}

Handle Link::statement() {
  if (dropped_) connect();
  Handle handle = allocate(SQL_HANDLE_STMT, connection_.get());
  handle.get_deleter().parent = connection_;
  if (!handle) throw failure(diagnosticOf(SQL_HANDLE_DBC, connection_.get()));
  SQLSetStmtAttrW(handle.get(), SQL_ATTR_NOSCAN, reinterpret_cast<SQLPOINTER>(SQL_NOSCAN_ON), 0);
  return handle;
}

void Link::run(StringView statement) {
  const Handle handle = this->statement();
  const SQLRETURN result =
      SQLExecDirectW(handle.get(), asWide(statement), static_cast<SQLINTEGER>(statement.size()));
  if (!SQL_SUCCEEDED(result) && result != SQL_NO_DATA) throw failure(handle);
}

RuntimeError Link::failure(const Handle& statement) {
  return failure(diagnosticOf(SQL_HANDLE_STMT, statement.get()));
}

RuntimeError Link::failure(const Diagnostic& diagnostic) {
  const std::int32_t number = errorNumber(diagnostic);
  dropped_ = dropped_ || isDrop(diagnostic) || (number == error::ProviderFailure && isDead());
  gaveUp_ = gaveUp_ || number == error::RowConflict;
  return RuntimeError(number, diagnostic.text, product_);
}

void Link::requireAlive() {
  if (!isDead()) return;
  dropped_ = true;
  throw RuntimeError(error::ProviderFailure, u"Die Verbindung zur Datenbank ist verloren gegangen.",
                     product_);
}

// A drop that a prepared statement meets has no state of its own in PostgreSQL's driver.
bool Link::isDead() const noexcept {
  if (!connection_) return false;
  SQLUINTEGER dead = SQL_CD_FALSE;
  return SQL_SUCCEEDED(SQLGetConnectAttrW(connection_.get(), SQL_ATTR_CONNECTION_DEAD, &dead, SQL_IS_UINTEGER,
                                          nullptr)) &&
         dead == SQL_CD_TRUE;
}

}  // namespace zqn::ado::odbc
