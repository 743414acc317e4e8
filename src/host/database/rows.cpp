// SPDX-License-Identifier: MIT
#include "host/database/rows.h"

#include <stdexcept>
#include <utility>

namespace zqn::host {

namespace {

ado::Value parameter(const Variant& value) {
  if (const auto* text = value.as<String>()) return ado::Value::of(StringView(*text));
  if (const auto* whole = value.as<std::int32_t>()) return ado::Value::of(std::int64_t{*whole});
  if (const auto* number = value.as<double>()) return ado::Value::of(*number);
  if (const auto* flag = value.as<bool>()) return ado::Value::of(std::int64_t{*flag ? 1 : 0});
  if (value.isNull()) return {};
  throw std::logic_error("a value that no column holds");
}

Variant cellValue(const ado::Value& value) {
  switch (value.kind) {
    case ado::Value::Kind::Null:
      return Null;
    case ado::Value::Kind::Integer:
      if (std::in_range<std::int32_t>(value.integer)) return static_cast<std::int32_t>(value.integer);
      return static_cast<double>(value.integer);
    case ado::Value::Kind::Real:
      return value.real;
    case ado::Value::Kind::Text:
      return value.text;
  }
  return Null;
}

}  // namespace

std::vector<ado::Value> parameters(const std::vector<Variant>& values) {
  std::vector<ado::Value> all;
  all.reserve(values.size());
  for (const Variant& value : values) all.push_back(parameter(value));
  return all;
}

RowSet runStatement(ado::Connection& connection, StringView text, const std::vector<Variant>& values) {
  constexpr std::size_t block = 1000;
  // One with parameters comes again: every dialog asks for settings. A server then prepares it once.
  const auto once = values.empty() ? connection.provider().prepare(text, ado::Purpose::Plain) : nullptr;
  const ado::RunningStatement run(once ? *once : connection.statement(text, ado::Purpose::Plain),
                                  parameters(values));
  RowSet result{.rows = ado::RowStore(static_cast<int>(run->columns()->size()))};
  if (result.rows.columns() > 0)
    while (run->fetch(result.rows, block)) continue;
  result.changed = run->rowsAffected();
  return result;
}

std::vector<Variant> rowValues(const ado::RowStore& rows, int row) {
  std::vector<Variant> values;
  for (int column = 0; column < rows.columns(); ++column) values.push_back(cellValue(rows.at(row, column)));
  return values;
}

}  // namespace zqn::host
