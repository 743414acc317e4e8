// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: the driver manager's wide characters are UTF-16 units under another name.
#pragma once

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include "runtime/string.h"

namespace zqn::ado::odbc {

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t),
              "the driver manager must be built with 2-byte characters");

inline const char16_t* asText(const SQLWCHAR* text) { return reinterpret_cast<const char16_t*>(text); }
/// For a call that reads the text only; ODBC knows no const.
inline SQLWCHAR* asWide(const char16_t* text) {
  return reinterpret_cast<SQLWCHAR*>(const_cast<char16_t*>(text));
}
inline SQLWCHAR* asWide(StringView text) { return asWide(text.data()); }

/// The text as a server can take it: a surrogate without its partner becomes U+FFFD.
inline String wellFormed(StringView text) {
  for (const char16_t unit : text)
    if (unit >= 0xD800 && unit <= 0xDFFF) return fromUtf8(toUtf8(text));
  return String(text);
}

}  // namespace zqn::ado::odbc
