// SPDX-License-Identifier: MIT
#include "ado/select_text.h"

#include <algorithm>

#include "runtime/collation.h"

namespace zqn::ado::sql {

namespace {

/// The ORDER BY refers to the list, by a number or by a name that the list gives.
bool sortsByList(const PlainSelect& select, const Columns& columns) {
  Scanner scanner(select.rest);
  bool sorting = false;
  Token before;
  for (Token token = scanner.next(); token.kind != Token::Kind::End; token = scanner.next()) {
    sorting = sorting || (token.depth == 0 && token.is(u"ORDER"));
    const bool byNumber = token.kind == Token::Kind::Number && (before.is(u"BY") || before.isSymbol(u","));
    if (sorting && byNumber) return true;
    before = token;
    if (token.kind != Token::Kind::Word && token.kind != Token::Kind::Name) continue;
    const bool given = std::ranges::any_of(columns, [&](const Column& column) {
      return sameName(column.name, token.unquoted()) && !sameName(column.name, column.baseColumn);
    });
    if (given) return true;
  }
  return false;
}

}  // namespace

String selectText(const PlainSelect& select, const std::vector<String>& hidden, StringView rest) {
  String text = u"SELECT " + String(select.list);
  for (const String& column : hidden) text += u"\n," + column;
  text += u"\nFROM " + String(select.from);
  return (text += u"\n").append(rest);
}

KeysOnly keysOnly(const PlainSelect& select, const Columns& columns, const std::vector<String>& key,
                  StringView tail) {
  const String rest = String(select.rest) + String(tail);
  if (sortsByList(select, columns)) {
    const auto own = std::ranges::count(columns, false, &Column::hidden);
    return {selectText(select, key, rest), static_cast<int>(own)};
  }
  PlainSelect keys = select;
  String list;
  for (const String& column : key) list += (list.empty() ? u"" : u", ") + column;
  keys.list = list;
  return {selectText(keys, {}, rest), 0};
}

}  // namespace zqn::ado::sql
