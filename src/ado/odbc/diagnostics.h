// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: what a driver says when something failed.
#pragma once

#include <sql.h>
#include <sqlext.h>

#include <string>

#include "runtime/error.h"

namespace zqn::ado::odbc {

/// The first diagnostic record of a handle.
struct Diagnostic {
  /// Five characters; empty when the driver says nothing.
  std::string state;
  /// The server's own number.
  long native = 0;
  /// The server's words, without the names of driver manager and driver before them.
  String text;
};

Diagnostic diagnosticOf(SQLSMALLINT kind, SQLHANDLE handle);

/// The number of runtime/error.h for it.
std::int32_t errorNumber(const Diagnostic& diagnostic) noexcept;
/// The connection is gone: nothing can run on it any more.
bool isDrop(const Diagnostic& diagnostic) noexcept;
/// A table has other columns now than when the SELECT was prepared; prepared again, it runs.
bool isOutdated(const Diagnostic& diagnostic) noexcept;

/// The words in one line, without "[Vendor][Driver]" and "ERROR: " before them and what a driver appends.
String plainWords(StringView words);

}  // namespace zqn::ado::odbc
