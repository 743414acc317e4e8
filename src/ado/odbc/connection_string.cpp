// SPDX-License-Identifier: MIT
#include "ado/odbc/connection_string.h"

#include <algorithm>
#include <optional>

#include "runtime/ascii.h"

namespace zqn::ado::odbc {

namespace {

/// Where a pair stands in the string: `valueStart` to `end` is the value as written, braces and blanks
/// included.
struct Piece {
  std::size_t start = 0, valueStart = 0, end = 0;
  ConnectionPair pair;
};

using ascii::isBlank;
using ascii::trimmed;

bool isPassword(StringView key) { return ascii::same(key, u"PWD") || ascii::same(key, u"Password"); }

/// Reads on behind an opening brace, up to the closing one, or to the end of a text that has none.
std::size_t readBraces(StringView text, std::size_t at, String& value) {
  for (; at < text.size(); ++at) {
    if (text[at] == u'}') {
      if (at + 1 == text.size() || text[at + 1] != u'}') return at + 1;
      ++at;
    }
    value += text[at];
  }
  return at;
}

std::optional<Piece> nextPiece(StringView text, std::size_t at) {
  while (at < text.size() && (text[at] == u';' || isBlank(text[at]))) ++at;
  if (at == text.size()) return std::nullopt;

  Piece piece{.start = at, .valueStart = at, .end = std::min(text.find(u';', at), text.size()), .pair = {}};
  if (const std::size_t equals = text.find(u'=', at); equals < piece.end) {
    piece.pair.key = trimmed(text.substr(at, equals - at));
    piece.valueStart = equals + 1;
  }
  std::size_t start = piece.valueStart;
  while (start < piece.end && isBlank(text[start])) ++start;
  std::size_t rest = start;
  if (piece.valueStart != piece.start && start < piece.end && text[start] == u'{')
    rest = readBraces(text, start + 1, piece.pair.value);
  piece.end = std::min(text.find(u';', rest), text.size());
  piece.pair.value += trimmed(text.substr(rest, piece.end - rest));
  return piece;
}

std::vector<Piece> pieces(StringView text) {
  std::vector<Piece> all;
  for (auto piece = nextPiece(text, 0); piece; piece = nextPiece(text, piece->end)) all.push_back(*piece);
  return all;
}

bool needsBraces(StringView value) {
  return value.find_first_of(u";{}") != StringView::npos || trimmed(value).size() != value.size();
}

String inBraces(StringView value) {
  String text = u"{";
  for (const char16_t unit : value) text.append(unit == u'}' ? 2 : 1, unit);
  return text + u"}";
}

}  // namespace

std::vector<ConnectionPair> connectionPairs(StringView connectionString) {
  std::vector<ConnectionPair> pairs;
  for (Piece& piece : pieces(connectionString)) pairs.push_back(std::move(piece.pair));
  return pairs;
}

String connectionString(const std::vector<ConnectionPair>& pairs) {
  String text;
  for (const ConnectionPair& pair : pairs) {
    if (!text.empty()) text += u';';
    if (!pair.key.empty()) text += pair.key + u"=";
    text += needsBraces(pair.value) ? inBraces(pair.value) : pair.value;
  }
  return text;
}

String connectionValue(StringView connectionString, StringView key) {
  for (const Piece& piece : pieces(connectionString))
    if (ascii::same(piece.pair.key, key)) return piece.pair.value;
  return {};
}

String withoutPassword(StringView connectionString) {
  String shown;
  std::size_t copied = 0;
  bool behindPassword = false;
  for (const Piece& piece : pieces(connectionString)) {
    // A password with a semicolon and without braces goes on in a piece that is no pair.
    behindPassword = isPassword(piece.pair.key) || (behindPassword && piece.pair.key.empty());
    if (!behindPassword) continue;
    shown += connectionString.substr(copied, piece.valueStart - copied);
    shown += u"***";
    copied = piece.end;
  }
  return shown += connectionString.substr(copied);
}

}  // namespace zqn::ado::odbc
