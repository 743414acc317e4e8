// SPDX-License-Identifier: MIT
#include "host/command/kinds_command.h"

#include <iomanip>
#include <nlohmann/json.hpp>
#include <ostream>

#include "frontend/kinds.h"
#include "runtime/convert.h"

namespace zqn::host {

namespace {

void listAsJson(std::ostream& out) {
  const char* separator = "[\n";
  for (const KindInfo& kind : dialogKinds()) {
    nlohmann::ordered_json line = {
        {"number", kind.number}, {"constant", toUtf8(kind.constant)}, {"form", toUtf8(kind.form)},
        {"definition", nullptr}, {"tables", nlohmann::json::array()}, {"offered", isOffered(kind.number)}};
    if (*kind.definition) line["definition"] = toUtf8(kind.definition);
    if (*kind.tables)
      for (const String& table : Split(kind.tables, u",")) line["tables"].push_back(toUtf8(Trim(table)));
    out << separator << line.dump();
    separator = ",\n";
  }
  out << "\n]\n";
}

/// Pads by characters, not by bytes, so that umlauts do not shift the columns.
std::string cell(StringView text, std::size_t width) {
  std::string padded = toUtf8(text);
  if (text.size() < width) padded.append(width - text.size(), ' ');
  return padded;
}

}  // namespace

void listKinds(std::ostream& out, bool asJson) {
  if (asJson) return listAsJson(out);
  out << "kind  " << cell(u"constant", 42) << cell(u"form", 31) << cell(u"definition class", 28)
      << "tables\n";
  for (const KindInfo& kind : dialogKinds()) {
    out << std::setw(4) << kind.number << (isOffered(kind.number) ? "  " : "* ") << cell(kind.constant, 42)
        << cell(kind.form, 31) << cell(kind.definition, 28) << toUtf8(kind.tables) << "\n";
  }
  out << "* not offered by this version\n";
}

}  // namespace zqn::host
