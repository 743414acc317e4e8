// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: the driver manager's wide characters are UTF-16 units under another name.
#pragma once

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include "runtime/string.h"

namespace zqn::ado::odbc {

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t), "the driver manager must be built with 2-byte characters");

inline const char16_t* asText(const SQLWCHAR* text) { return reinterpret_cast<const char16_t*>(text); }
/// For a call that reads the text only; ODBC knows no const.
inline SQLWCHAR* asWide(const char16_t* text) { return reinterpret_cast<SQLWCHAR*>(const_cast<char16_t*>(text)); }
inline SQLWCHAR* asWide(StringView text) { return asWide(text.data()); }

}  // namespace zqn::ado::odbc
