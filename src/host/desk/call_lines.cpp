// SPDX-License-Identifier: MIT
#include "host/desk/call_lines.h"

#include <algorithm>

#include "frontend/kinds.h"

namespace zqn::host {

namespace {

bool isPlain(char unit) {
  return (unit >= '0' && unit <= '9') || (unit >= 'A' && unit <= 'Z') || (unit >= 'a' && unit <= 'z') ||
         std::string_view("-_./:=,+@").find(unit) != std::string_view::npos;
}

std::string shellQuoted(const std::string& text) {
  if (!text.empty() && std::ranges::all_of(text, isPlain)) return text;
  std::string quoted = "'";
  for (const char unit : text) {
    if (unit == '\'') {
      quoted += R"('\'')";
    } else {
      quoted += unit;
    }
  }
  return quoted + "'";
}

std::string cppQuoted(const String& text) {
  std::string quoted = "u\"";
  for (const char unit : toUtf8(text)) {
    if (unit == '"' || unit == '\\') quoted += '\\';
    quoted += unit;
  }
  return quoted + "\"";
}

}  // namespace

std::string cppLines(const CallToWrite& call) {
  const KindInfo* info = findKind(call.kind);
  const std::string kind = info != nullptr ? "zqn::" + toUtf8(info->constant) : std::to_string(call.kind);
  std::string lines = "zqn::ORBDialog dialog;\ndialog.Session(session);\n";
  if (call.multiselect) {
    lines += "dialog.Multiselect(true);\ndialog.DblClick = [](const zqn::Variant& key) { collect(key); };\n";
  }
  lines += "zqn::VariantArray param{";
  for (std::size_t i = 0; i < call.param.size(); ++i) {
    if (i > 0) lines += ", ";
    lines += cppQuoted(call.param[i]);
  }
  lines += "};\nzqn::Variant key = dialog.";
  lines += call.generic ? "ShowGeneric(" : "Show(";
  return lines + kind + ", param);\n";
}

std::string shellLine(const CallToWrite& call) {
  std::string line = "zqn-dialog show " + std::to_string(call.kind);
  // Options first: a parameter may begin with a hyphen.
  line += " --db " + shellQuoted(call.database);
  if (call.multiselect) line += " --multiselect";
  if (call.generic) line += " --generic";
  line += " --";
  for (const String& element : call.param) line += " " + shellQuoted(toUtf8(element));
  return line;
}

}  // namespace zqn::host
