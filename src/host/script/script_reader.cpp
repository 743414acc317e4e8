// SPDX-License-Identifier: MIT
#include "host/script/script_reader.h"

#include <string>
#include <string_view>

#include "host/script/script_error.h"

namespace zqn::script {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool saysNothing(std::string_view line) {
  const auto first = line.find_first_not_of(" \t\r");
  return first == std::string_view::npos || line[first] == '#';
}

}  // namespace

std::optional<ScriptLine> ScriptReader::next() {
  std::string text;
  while (std::getline(script_, text)) {
    ++number_;
    std::string_view line = text;
    if (number_ == 1 && line.starts_with(byteOrderMark)) line.remove_prefix(byteOrderMark.size());
    if (saysNothing(line)) continue;
    try {
      Json json = readJson(line);
      if (json.is_object()) return ScriptLine{number_, std::move(json)};
    } catch (const JsonError& wrong) {
      throw ScriptError("this " + std::string(wrong.what()) +
                        R"(; a line is one action, such as {"click":"btnOK"})");
    }
    throw ScriptError(R"(a line is one JSON object, such as {"click":"btnOK"})");
  }
  if (script_.bad()) throw ScriptError("the script cannot be read any further");
  return std::nullopt;
}

}  // namespace zqn::script
