// SPDX-License-Identifier: MIT
#include "parity/call.h"

#include <array>

#include "frontend/kinds.h"
#include "host/database/schema/schema.h"
#include "host/script/json_values.h"
#include "parity/texts.h"

namespace zqn::parity {

namespace {

using script::Json;

/// The value of a column in some row of the sample; the empty text without rows.
Json stored(Random& chance, const Stage& stage, const std::string& table, StringView column) {
  const auto& rows = stage.rows(table);
  if (rows.empty()) return "";
  return script::jsonValue(chance.oneOf(rows)[host::table(fromUtf8(table)).position(column)]);
}

Json someKey(Random& chance, int kind, const Stage& stage) {
  const std::vector<std::string> tables = tablesOf(kind);
  if (tables.empty()) return "";
  const String catalogue = fromUtf8(tables.front());
  return stored(chance, stage, tables.front(), host::table(catalogue).primaryKey.back());
}

/// A split text of a few rows, mostly well formed.
std::string anySplit(Random& chance) {
  static constexpr std::array batches{"L-1", "L-4711", "", "Ch 2 & (3)", "Größe"};
  static constexpr std::array days{"", "20260630000000", "20261231000000", "202606", "99991231000000"};
  static constexpr std::array serials{"", "S-001", "A|1", "7"};
  static constexpr std::array quantities{"1", "2", "3", "0", "1,5", "10"};
  std::string text;
  for (int rows = chance.between(0, chance.percent(20) ? 20 : 4); rows > 0; --rows) {
    text += chance.oneOf(quantities);
    text += R"(|"Stk")";
    const auto quotes = [&](const std::string& field) { text += "|\"" + field + '"'; };
    quotes(chance.oneOf(batches));
    quotes(chance.oneOf(days));
    quotes(chance.oneOf(serials));
    if (chance.percent(5)) text += "|zu viel";
    if (rows > 1) text += "\r\n";
  }
  return text;
}

/// Param as it should be.
Json fittingParam(Random& chance, int kind, const Stage& stage) {
  static constexpr std::array documents{"rg", "BS", "ls", "AB", "an", "egal"};
  static constexpr std::array<double, 6> targets{0, 1, 2, 5, 10, 2.5};
  switch (kind) {
    case 27:
      return Json::array({stored(chance, stage, "Nummernkreis_Buchungskreise", u"Herkunft")});
    case 28: {
      const auto& rows = stage.rows("SelectionListValues");
      const host::Row& row = chance.oneOf(rows);
      return Json::array(
          {script::jsonValue(row[2]), script::jsonValue(row[0]), script::jsonValue(row[1]), "Werkstoff"});
    }
    case 30:
      return Json::array({stored(chance, stage, "Angebotskopf", u"Angebotsnummer")});
    case 31:
      return Json::array({chance.oneOf(documents)});
    case 34: {
      const std::string split = anySplit(chance);
      const double target = chance.oneOf(targets);
      const int way = chance.between(1, 3);
      return Json::array({split, target, "Stk", way, chance.percent(50)});
    }
    case 35: {
      const auto& rows = stage.rows("Keywords");
      const host::Row& row = chance.oneOf(rows);
      return Json::array({script::jsonValue(row[0]), script::jsonValue(row[1])});
    }
    default:
      return Json::array({someKey(chance, kind, stage)});
  }
}

Json anyParam(Random& chance, int kind, const Stage& stage) {
  Json param = fittingParam(chance, kind, stage);
  if (chance.percent(78)) return param;
  switch (chance.between(0, 6)) {
    case 0:
      return Json::array();
    case 1:
      param[0] = nullptr;
      break;
    case 2:
      param[0] = chance.between(-2, 30);
      break;
    case 3:
      param[chance.below(param.size())] = anyText(chance);
      break;
    case 4:
      if (param.size() > 1) param.erase(param.size() - 1);
      break;
    case 5:
      param[chance.below(param.size())] = anyNumber(chance);
      break;
    default:
      param[0] = "";
  }
  return param;
}

}  // namespace

std::vector<std::string> tablesOf(int kind) {
  std::vector<std::string> names;
  const KindInfo* const info = findKind(kind);
  StringView rest = info != nullptr ? StringView(info->tables) : StringView();
  while (!rest.empty()) {
    const auto comma = rest.find(u',');
    names.push_back(toUtf8(rest.substr(0, comma)));
    rest.remove_prefix(comma == StringView::npos ? rest.size() : comma + 1);
  }
  return names;
}

std::vector<std::string> anyCall(Random& chance, int kind, const Stage& stage) {
  std::vector<std::string> arguments{"show", std::to_string(kind), "--params",
                                     anyParam(chance, kind, stage).dump()};
  const auto add = [&](std::initializer_list<const char*> options) {
    arguments.insert(arguments.end(), options.begin(), options.end());
  };
  add({"--user", "anna", "--today", "2026-11-21"});
  if (chance.percent(15)) add({"--admin"});
  if (chance.percent(15)) add({"--multiselect"});
  if (chance.percent(4)) add({"--no-session"});
  if (chance.percent(8)) add({"--set", "ZQNComDlg/AdminsOnly=1"});
  if (chance.percent(4)) add({"--set-user", "ZQNComDlg/AllowVPSave=7;11;21;"});
  if (chance.percent(kind == 1 || kind == 2 ? 40 : 1)) add({"--generic"});
  return arguments;
}

}  // namespace zqn::parity
