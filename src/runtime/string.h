// SPDX-License-Identifier: MIT
//
// Text of the dialogs: UTF-16, because every length, position and limit of a form counts UTF-16 units, and
// toolkits and databases speak it. UTF-8 exists at the edges only (files, JSON, console, SQLite) and is
// converted there:
//
//     String key = fromUtf8("Müller");
//     std::cout << toUtf8(key);
#pragma once

#include <string>
#include <string_view>

namespace zqn {

using String = std::u16string;           ///< A text, by UTF-16 units.
using StringView = std::u16string_view;  ///< A text that somebody else holds.

/// UTF-8 to UTF-16. Bytes that are no UTF-8 become U+FFFD, one for each byte that starts nothing valid.
String fromUtf8(std::string_view utf8);

/// UTF-16 to UTF-8. A surrogate without its partner becomes U+FFFD.
std::string toUtf8(StringView text);

/// Appends `utf8`, converted, to `out`: for readers that fill one large buffer.
void appendUtf8(String& out, std::string_view utf8);

}  // namespace zqn
