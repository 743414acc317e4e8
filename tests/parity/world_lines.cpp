// SPDX-License-Identifier: MIT
#include "parity/world_lines.h"

#include <array>

#include "host/database/schema/schema.h"
#include "parity/texts.h"
#include "runtime/error.h"

namespace zqn::parity {

namespace {

using script::Json;

std::string literal(const std::string& text) {
  std::string quoted = "'";
  for (const char character : text) quoted += character == '\'' ? "''" : std::string(1, character);
  return quoted + "'";
}

/// A value as a statement writes it. A statement is a text of its own: no zero, no line break.
std::string literal(const Variant& value) {
  const Json json = script::jsonValue(value);
  if (json.is_string()) return literal(json.get<std::string>());
  if (json.is_boolean()) return json.get<bool>() ? "1" : "0";
  if (json.is_number()) return json.dump();
  return "NULL";
}

std::string anyValue(Random& chance, const host::Column& column) {
  if (column.nullable && chance.percent(20)) return "NULL";
  switch (column.kind) {
    case host::ColumnKind::Whole:
    case host::ColumnKind::Number:
      return std::to_string(chance.between(-1, 120));
    case host::ColumnKind::Flag:
      return chance.percent(50) ? "1" : "0";
    case host::ColumnKind::Date14:
      return chance.percent(50) ? "'20260101000000'" : "'20271231000000'";
    default:
      return literal(anyText(chance));
  }
}

std::string keyCondition(const host::Table& table, const host::Row& row) {
  std::string condition;
  for (const StringView column : table.primaryKey) {
    if (!condition.empty()) condition += " AND ";
    const std::size_t position = table.position(column);
    condition += toUtf8(column) + "=" + (position < row.size() ? literal(row[position]) : "1");
  }
  return condition;
}

/// Never fails, whatever the rows are by then.
std::string anyChange(Random& chance, const std::string& name, const Stage& stage) {
  const host::Table& table = host::table(fromUtf8(name));
  const auto& rows = stage.rows(name);
  const int what = chance.between(0, 99);
  if (what < 4) return "DELETE FROM " + name;
  if (rows.empty() || what < 30) {
    std::string columns, values;
    for (const host::Column& column : table.columns) {
      if (column.kind == host::ColumnKind::Serial) continue;
      columns += (columns.empty() ? "" : ", ") + toUtf8(column.name);
      values += (values.empty() ? "" : ", ") + anyValue(chance, column);
    }
    return "INSERT OR IGNORE INTO " + name + " (" + columns + ") VALUES (" + values + ")";
  }
  const std::string condition = keyCondition(table, chance.oneOf(rows));
  if (what < 60) return "DELETE FROM " + name + " WHERE " + condition;
  const host::Column& column = chance.oneOf(table.columns);
  if (column.kind == host::ColumnKind::Serial) return "DELETE FROM " + name + " WHERE " + condition;
  const std::string where = what < 95 ? " WHERE " + condition : "";
  return "UPDATE OR IGNORE " + name + " SET " + toUtf8(column.name) + "=" + anyValue(chance, column) + where;
}

Json anyFault(Random& chance, const std::vector<std::string>& tables) {
  static constexpr std::array operations{"Open",    "Execute", "Update", "AddNew",
                                         "Requery", "Find",    "Close",  "Field"};
  static constexpr std::array<std::int32_t, 5> numbers{error::CommandText, -2147217911, -2147467259, 3021,
                                                       3704};
  Json fault{{"operation", chance.oneOf(operations)}};
  if (!tables.empty() && chance.percent(70)) fault["match"] = chance.oneOf(tables);
  fault["number"] = chance.oneOf(numbers);
  fault["description"] = "Das ging nicht.";
  if (chance.percent(30)) fault["times"] = chance.between(2, 4);
  return {{"fail", fault}};
}

Json anyAuskunft(Random& chance, const Stage& stage) {
  if (chance.percent(15)) return {{"auskunft", nullptr}};
  Json items = Json::object();
  const auto& customers = stage.rows("Kundenstamm");
  if (!customers.empty() && chance.percent(80))
    items["Kundennummer"] = script::jsonValue(chance.oneOf(customers).front());
  const auto& offers = stage.rows("Angebotskopf");
  if (!offers.empty() && chance.percent(60))
    items["Belegnummer"] = script::jsonValue(chance.oneOf(offers).front());
  return {{"auskunft", {{"result", chance.between(0, 1)}, {"items", items}}}};
}

Json anySetting(Random& chance) {
  static constexpr std::array<std::array<const char*, 3>, 4> settings{
      {{"ZQNComDlg", "AdminsOnly", "1"},
       {"ZQNComDlg", "AllowVPSave", "7;21;"},
       {"Belegdruck", "OMR_Layout_RG", "x"},
       {"Allgemein", "Landeswährung", "CHF"}}};
  const auto& [section, key, value] = chance.oneOf(settings);
  const Json setting{{"section", section}, {"key", key}, {"value", value}, {"scope", chance.between(0, 1)}};
  return {{"setting", setting}};
}

}  // namespace

Json anyWorldLine(Random& chance, const std::vector<std::string>& tables, const Stage& stage) {
  const int what = chance.between(0, 99);
  if (what < 45 && !tables.empty()) return {{"exec", anyChange(chance, chance.oneOf(tables), stage)}};
  if (what < 75) return anyFault(chance, tables);
  if (what < 85) return {{"clipboard", chance.percent(60) ? anyTable(chance) : anyText(chance)}};
  if (what < 95) return anyAuskunft(chance, stage);
  return anySetting(chance);
}

std::string readingStatement(const std::string& table) {
  std::string order;
  for (const StringView column : host::table(fromUtf8(table)).primaryKey)
    order += (order.empty() ? "" : ", ") + toUtf8(column);
  return "SELECT * FROM " + table + " ORDER BY " + order;
}

}  // namespace zqn::parity
