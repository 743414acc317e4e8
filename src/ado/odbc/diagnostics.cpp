// SPDX-License-Identifier: MIT
#include "ado/odbc/diagnostics.h"

#include <algorithm>
#include <array>

#include "ado/odbc/wide.h"
#include "runtime/ascii.h"

namespace zqn::ado::odbc {

namespace {

// Numbers of MariaDB and MySQL, whose SQLSTATEs say less.
constexpr std::array<long, 5> AccessDenied = {1044, 1142, 1143, 1227, 1370};
constexpr std::array<long, 1> AmbiguousColumn = {1052};
constexpr std::array<long, 1> ForeignCharacters = {1267};
constexpr std::array<long, 1> NoDefault = {1364};
constexpr std::array<long, 6> ServerGone = {1053, 1927, 2002, 2006, 2013, 4031};

template <std::size_t N>
bool isOneOf(long number, const std::array<long, N>& numbers) {
  return std::ranges::find(numbers, number) != numbers.end();
}

void skipPrefix(StringView& words, StringView prefix) {
  if (words.starts_with(prefix)) words.remove_prefix(prefix.size());
}

}  // namespace

String plainWords(StringView words) {
  while (words.starts_with(u'[')) {
    const std::size_t end = words.find(u']');
    // A server may name an object in brackets: that belongs to its words.
    if (end == StringView::npos || end + 1 >= words.size()) break;
    words.remove_prefix(end + 1);
  }
  String line;
  for (const char16_t unit : words) {
    const bool blank = ascii::isBlank(unit);
    if (!blank) line += unit;
    if (blank && !line.empty() && line.back() != u' ') line += u' ';
  }
  StringView plain = line;
  skipPrefix(plain, u"ERROR: ");
  plain = plain.substr(0, plain.find(u"; Error while"));
  if (plain.ends_with(u' ')) plain.remove_suffix(1);
  return String(plain);
}

Diagnostic diagnosticOf(SQLSMALLINT kind, SQLHANDLE handle) {
  std::array<SQLWCHAR, 6> state = {};
  std::array<SQLWCHAR, 2048> words = {};
  SQLINTEGER native = 0;
  SQLSMALLINT length = 0;
  const SQLRETURN result = SQLGetDiagRecW(kind, handle, 1, state.data(), &native, words.data(),
                                          static_cast<SQLSMALLINT>(words.size()), &length);
  if (!SQL_SUCCEEDED(result)) return {{}, 0, u"Der Treiber nennt keinen Grund."};
  const auto units = std::min<std::size_t>(static_cast<std::size_t>(length), words.size() - 1);
  Diagnostic diagnostic{{}, native, plainWords(StringView(asText(words.data()), units))};
  for (std::size_t i = 0; i < 5; ++i) diagnostic.state += static_cast<char>(state[i]);
  return diagnostic;
}

std::int32_t errorNumber(const Diagnostic& diagnostic) noexcept {
  const std::string& state = diagnostic.state;
  if (isOneOf(diagnostic.native, AccessDenied) || state == "42501" || state == "25006")
    return error::PermissionDenied;
  if (isOneOf(diagnostic.native, AmbiguousColumn)) return error::CommandText;
  if (isOneOf(diagnostic.native, ForeignCharacters)) return error::ConversionFailed;
  if (isOneOf(diagnostic.native, NoDefault)) return error::IntegrityViolation;
  if (state == "42S02" || state == "42P01" || state == "S0002") return error::TableNotFound;
  if (state == "22001" || state == "22003") return error::ProviderDataOverflow;
  // The row was changed by somebody else at the same time, and the server has given up this statement.
  if (state.starts_with("40")) return error::RowConflict;
  if (state.starts_with("23")) return error::IntegrityViolation;
  if (state.starts_with("22")) return error::ConversionFailed;
  if (state.starts_with("42") || state == "37000" || state == "07002") return error::CommandText;
  return error::ProviderFailure;
}

bool isDrop(const Diagnostic& diagnostic) noexcept {
  return diagnostic.state.starts_with("08") || diagnostic.state.starts_with("57P") ||
         isOneOf(diagnostic.native, ServerGone);
}

bool isOutdated(const Diagnostic& diagnostic) noexcept {
  return (diagnostic.state == "0A000" && diagnostic.text.find(u"cached plan") != String::npos) ||
         diagnostic.text.find(u"differs from number of columns") != String::npos;
}

}  // namespace zqn::ado::odbc
