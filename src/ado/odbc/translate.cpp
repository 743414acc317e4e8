// SPDX-License-Identifier: MIT
#include "ado/odbc/translate.h"

#include <algorithm>
#include <array>
#include <optional>

#include "ado/odbc/tables.h"
#include "ado/sql_tokens.h"
#include "runtime/ascii.h"
#include "runtime/collation.h"

namespace zqn::ado::odbc {

namespace {

using sql::Token;
using Kind = Token::Kind;

[[noreturn]] void refuse(String why, const Dialect& dialect) {
  throw RuntimeError(error::CommandText, std::move(why), String(dialect.product));
}

std::vector<Token> tokensOf(StringView statement, const Dialect& dialect) {
  if (statement.find(u'\0') != StringView::npos)
    refuse(u"Die Anweisung enthält ein Zeichen U+0000.", dialect);
  std::vector<Token> tokens;
  sql::Scanner scanner(statement);
  bool ended = false;
  for (Token token = scanner.next(); token.kind != Kind::End; token = scanner.next()) {
    if (token.kind == Kind::Unclosed)
      refuse(u"Offenes Anführungszeichen in der Anweisung: " + String(statement), dialect);
    const bool separator = token.isSymbol(u";");
    if (ended && !separator) {
      const auto rest = static_cast<std::size_t>(token.text.data() - statement.data());
      refuse(u"Auf die Anweisung folgt eine zweite: " + String(statement.substr(rest)), dialect);
    }
    ended = ended || separator;
    if (!separator) tokens.push_back(token);
  }
  if (tokens.empty()) refuse(u"Die Anweisung fehlt.", dialect);
  return tokens;
}

template <std::size_t N>
bool isOneOf(const Token& token, const std::array<StringView, N>& words) {
  return std::ranges::any_of(words, [&](StringView word) { return token.is(word); });
}

bool follow(const std::vector<Token>& tokens, StringView word, StringView next) {
  for (std::size_t i = 0; i + 1 < tokens.size(); ++i)
    if (tokens[i].is(word) && tokens[i + 1].is(next)) return true;
  return false;
}

/// What a COMMIT or ROLLBACK does: one that goes back to a savepoint, or begins the next transaction at once,
/// leaves the caller inside a transaction.
Effect ending(const std::vector<Token>& tokens, Effect effect) {
  const auto has = [&](StringView word) {
    return std::ranges::any_of(tokens, [&](const Token& token) { return token.is(word); });
  };
  return has(u"TO") || has(u"PREPARED") || follow(tokens, u"AND", u"CHAIN") ? Effect::None : effect;
}

Effect effectOf(const std::vector<Token>& tokens) {
  constexpr std::array<StringView, 4> schema = {u"CREATE", u"ALTER", u"DROP", u"RENAME"};
  const Token& first = tokens.front();
  const Token second = tokens.size() > 1 ? tokens[1] : Token();
  if (first.is(u"BEGIN") || (first.is(u"START") && second.is(u"TRANSACTION"))) return Effect::Begin;
  if (first.is(u"COMMIT") || first.is(u"END")) return ending(tokens, Effect::Commit);
  if (first.is(u"ROLLBACK") || first.is(u"ABORT")) return ending(tokens, Effect::Rollback);
  // Its fate is settled elsewhere from here on.
  if (first.is(u"PREPARE") && second.is(u"TRANSACTION")) return Effect::Commit;
  return isOneOf(first, schema) ? Effect::Schema : Effect::None;
}

bool isKeyword(const Token& token) {
  constexpr std::array<StringView, 36> words = {
      u"ALL",    u"AND",  u"AS",       u"ASC",    u"BETWEEN", u"BY",     u"CASE",  u"COLLATE", u"DEFAULT",
      u"DELETE", u"DESC", u"DISTINCT", u"ELSE",   u"END",     u"EXISTS", u"FALSE", u"FROM",    u"GROUP",
      u"HAVING", u"IN",   u"INSERT",   u"INTO",   u"IS",      u"JOIN",   u"LIKE",  u"NOT",     u"NULL",
      u"ON",     u"OR",   u"ORDER",    u"SELECT", u"SET",     u"THEN",   u"TRUE",  u"WHEN",    u"WHERE"};
  return isOneOf(token, words);
}

bool isName(const Token& token) { return token.kind == Kind::Word || token.kind == Kind::Name; }

bool isBeyondAscii(StringView text) {
  return std::ranges::any_of(text, [](char16_t unit) { return unit >= 0x80; });
}

class Translator {
 public:
  Translator(StringView statement, const Dialect& dialect, const TableLookup& lookup)
      : statement_(statement), dialect_(dialect), lookup_(lookup), tokens_(tokensOf(statement, dialect)) {}

  Translation run() {
    const Effect effect = effectOf(tokens_);
    if (effect == Effect::Begin && tokens_.size() == 1) return {String(dialect_.begin), effect};
    findNames();
    conditions_ = !tokens_.front().is(u"UPDATE");
    for (std::size_t i = 0; i < tokens_.size(); ++i) {
      const Token& token = tokens_[i];
      if (i < next_) continue;
      if (token.is(u"WHERE")) conditions_ = true;
      if (token.is(u"ORDER") && token.depth == 0) sorting_ = true;
      if (token.is(u"VALUES") && tokens_.front().is(u"INSERT")) {
        values(i);
      } else if (!truth(i)) {
        plain(i);
      }
    }
    text_.append(statement_, copied_, endOf(tokens_.back()) - copied_);
    return {std::move(text_), effect};
  }

 private:
  std::size_t beginOf(const Token& token) const {
    return static_cast<std::size_t>(token.text.data() - statement_.data());
  }
  std::size_t endOf(const Token& token) const { return beginOf(token) + token.text.size(); }
  /// Tokens `from` to `to`, the last one included, are `text` now.
  void replace(std::size_t from, std::size_t to, StringView text) {
    const std::size_t begin = beginOf(tokens_[from]);
    text_.append(statement_, copied_, begin - copied_).append(text);
    copied_ = endOf(tokens_[to]);
  }
  const Token& at(std::size_t i) const {
    static const Token none;
    return i < tokens_.size() ? tokens_[i] : none;
  }

  void findNames() {
    constexpr std::array<StringView, 4> before = {u"FROM", u"JOIN", u"INTO", u"UPDATE"};
    constexpr std::array<StringView, 2> behind = {u"AS", u"SELECT"};
    const bool creates = tokens_.front().is(u"CREATE");
    const bool index = creates && (at(1).is(u"INDEX") || at(2).is(u"INDEX"));
    for (std::size_t i = 0; i + 1 < tokens_.size(); ++i) {
      const bool changed = !creates && tokens_[i].is(u"TABLE") && !tokens_[i + 1].is(u"IF");
      if (changed || (index && tokens_[i].is(u"ON"))) tables_.push_back(i + 1);
      if (isOneOf(tokens_[i], before) && isName(tokens_[i + 1]) && !isOneOf(tokens_[i + 1], behind))
        tables_.push_back(i + 1);
      // Inside parentheses it may be the type of a CAST.
      if (tokens_[i].is(u"AS") && tokens_[i].depth == 0 && isName(tokens_[i + 1]))
        aliases_.push_back(tokens_[i + 1].unquoted());
    }
  }

  const TableInfo::Column* column(const Token& token) {
    if (!isName(token)) return nullptr;
    const String name = token.unquoted();
    for (const std::size_t table : tables_) {
      const TableInfo* info = lookup_(tokens_[table].unquoted());
      if (!info) continue;
      if (const TableInfo::Column* found = info->column(name)) return found;
    }
    return nullptr;
  }

  /// "Column = -1", "Column <> True": yes and no as this column knows it. True when it has been written.
  bool truth(std::size_t i) {
    constexpr std::array<StringView, 4> comparisons = {u"=", u"<>", u"!=", u"=="};
    if (!isName(at(i)) || at(i + 1).kind != Kind::Symbol ||
        std::ranges::find(comparisons, at(i + 1).text) == comparisons.end())
      return false;
    std::size_t last = i + 2;
    if (at(last).isSymbol(u"-") || at(last).isSymbol(u"+")) ++last;
    const std::optional<bool> value = truthOf(at(last));
    const bool word = value && at(last).kind == Kind::Word;
    if (!value || !(word || dialect_.strictBooleans)) return false;
    const TableInfo::Column* known = column(at(i));
    const bool strict = dialect_.strictBooleans && known && known->boolean;
    if (strict == word) return false;

    plain(i);
    const bool equal = at(i + 1).text == u"=" || at(i + 1).text == u"==";
    if (strict) {
      replace(i + 2, last, *value ? u"true" : u"false");
    } else if (conditions_) {
      replace(i + 1, last, equal == *value ? u"<>0" : u"=0");
    } else {
      replace(i + 2, last, *value ? u"1" : u"0");
    }
    next_ = last + 1;
    return true;
  }
  std::optional<bool> truthOf(const Token& token) const {
    if (token.is(u"TRUE")) return true;
    if (token.is(u"FALSE")) return false;
    if (token.kind != Kind::Number) return {};
    return std::ranges::any_of(token.text, [](char16_t unit) { return unit >= u'1' && unit <= u'9'; });
  }

  /// INSERT INTO T (a, b) VALUES (1, 0), (...): numbers for columns of yes and no.
  void values(std::size_t& i) {
    if (!dialect_.strictBooleans || tables_.empty()) return;
    const TableInfo* table = lookup_(tokens_[tables_.front()].unquoted());
    if (!table) return;
    std::vector<const TableInfo::Column*> targets;
    for (std::size_t name = tables_.front() + 1; name < i; ++name) {
      if (isName(at(name))) targets.push_back(table->column(at(name).unquoted()));
    }
    if (targets.empty())
      for (const TableInfo::Column& one : table->columns) targets.push_back(&one);

    std::size_t target = 0;
    for (++i; i < tokens_.size(); ++i) {
      const Token& token = at(i);
      if (token.depth == 0) target = 0;
      if (token.depth == 1 && token.isSymbol(u",")) ++target;
      const bool whole = at(i + 1).isSymbol(u",") || at(i + 1).isSymbol(u")");
      const bool strict = target < targets.size() && targets[target] && targets[target]->boolean;
      if (strict && token.kind == Kind::Number && token.depth == 1 && whole) {
        const std::size_t sign = at(i - 1).isSymbol(u"-") ? i - 1 : i;
        replace(sign, i, *truthOf(token) ? u"true" : u"false");
      } else {
        plain(i);
      }
    }
  }

  /// A token by itself.
  void plain(std::size_t i) {
    const Token& token = tokens_[i];
    // The name of a collation is no column, though one may be called the same.
    if (i > 0 && tokens_[i - 1].is(u"COLLATE")) return;
    const bool table = isTable(i);
    const bool exactTable = table && (dialect_.exactTableNames || dialect_.lowerCaseNames);
    if (token.kind == Kind::Name) {
      replace(i, i, sql::quoted(stored(i, exactTable).value_or(token.unquoted())));
    } else if (exactTable && !dialect_.lowerCaseNames) {
      if (const auto name = stored(i, true)) replace(i, i, sql::quoted(*name));
    } else if (token.isPlainLiteral() && dialect_.nationalLiterals && isBeyondAscii(token.text)) {
      // Behind a word, or the sign of a parameter, it would become part of that.
      const std::size_t begin = beginOf(token);
      const bool touches = begin > 0 && !ascii::isBlank(statement_[begin - 1]) &&
                           StringView(u"(,=<>+").find(statement_[begin - 1]) == StringView::npos;
      replace(i, i, (touches ? u" N" : u"N") + String(token.text));
    } else if (token.is(u"LIKE") && !dialect_.like.empty()) {
      like(i);
    } else if (token.is(u"DEFAULT") && at(i + 1).is(u"VALUES")) {
      replace(i, i + 1, dialect_.defaultValues);
      next_ = i + 2;
    } else if (dialect_.noTruthWords && (token.is(u"TRUE") || token.is(u"FALSE"))) {
      replace(i, i, token.is(u"TRUE") ? u"1" : u"0");
    } else if (dialect_.lowerCaseNames && token.kind == Kind::Word && !isKeyword(token) &&
               (table || !at(i + 1).isSymbol(u"("))) {
      const auto name = stored(i, table);
      if (name && *name != ascii::lower(token.text)) replace(i, i, sql::quoted(*name));
    }
  }

  /// It stands where a table is named, or in front of the point of "Table.Column".
  bool isTable(std::size_t i) const {
    const bool qualifies = isName(tokens_[i]) && at(i + 1).isSymbol(u".");
    return std::ranges::any_of(tables_, [&](std::size_t table) {
      return table == i || (qualifies && sameName(tokens_[table].unquoted(), tokens_[i].unquoted()));
    });
  }

  /// A name that the statement itself gives: where it is given, where a column is taken from what bears it,
  /// and behind ORDER BY. Everywhere else the same word is a column.
  const String* alias(std::size_t i) const {
    const bool meant = sorting_ || (i > 0 && at(i - 1).is(u"AS")) || at(i + 1).isSymbol(u".");
    if (!meant) return nullptr;
    const String name = tokens_[i].unquoted();
    const auto found = std::ranges::find_if(aliases_, [&](const String& one) { return sameName(one, name); });
    return found == aliases_.end() ? nullptr : &*found;
  }

  /// The name as the server stores it, or as the statement itself gives it; no value for a name that neither
  /// knows.
  std::optional<String> stored(std::size_t i, bool isTable) {
    if (isTable) {
      const TableInfo* info = lookup_(tokens_[i].unquoted());
      return info ? std::optional(info->name) : std::nullopt;
    }
    if (!dialect_.lowerCaseNames) return std::nullopt;
    if (const String* given = alias(i)) return *given;
    const TableInfo::Column* known = column(tokens_[i]);
    return known ? std::optional(known->name) : std::nullopt;
  }

  void like(std::size_t i) {
    // A collation stands before NOT, and so before what has been copied already.
    const bool negated = i > 0 && at(i - 1).is(u"NOT");
    const std::size_t operand = i - (negated ? 2 : 1);
    const TableInfo::Column* compared = operand < i ? column(tokens_[operand]) : nullptr;
    const String cast(compared && compared->number ? dialect_.asText : StringView());
    const StringView words = dialect_.like;
    if (!negated) return replace(i, i, cast + String(words));
    const std::size_t last = words.rfind(u' ');
    replace(i - 1, i - 1, cast + String(words.substr(0, last)) + u" NOT");
    replace(i, i, words.substr(last + 1));
  }

  StringView statement_;
  const Dialect& dialect_;
  const TableLookup& lookup_;
  std::vector<Token> tokens_;
  std::vector<std::size_t> tables_;  // tokens that name one
  std::vector<String> aliases_;
  String text_;
  std::size_t copied_ = 0;
  std::size_t next_ = 0;     // the first token that is not written yet
  bool sorting_ = false;     // behind the ORDER BY of the statement itself
  bool conditions_ = false;  // "=" compares; in front of an UPDATE's WHERE it assigns
};

}  // namespace

Translation translate(StringView statement, const Dialect& dialect, const TableLookup& lookup) {
  return Translator(statement, dialect, lookup).run();
}

}  // namespace zqn::ado::odbc
