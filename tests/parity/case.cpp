// SPDX-License-Identifier: MIT
#include "parity/case.h"

namespace zqn::parity {

namespace {

/// As a shell takes it back.
std::string quoted(const std::string& argument) {
  constexpr std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-_./=:";
  if (!argument.empty() && argument.find_first_not_of(plain) == std::string::npos) return argument;
  std::string text = "'";
  for (const char character : argument) text += character == '\'' ? "'\"'\"'" : std::string(1, character);
  return text + "'";
}

}  // namespace

std::string scriptText(const Case& shown, const std::vector<std::string>& remarks) {
  std::string text = "# args:";
  for (const std::string& argument : shown.arguments) text += " " + quoted(argument);
  text += "\n# application: examples/application\n";
  for (const std::string& remark : remarks) text += "# " + remark + "\n";
  for (const std::string& line : shown.lines) text += line + "\n";
  return text;
}

}  // namespace zqn::parity
