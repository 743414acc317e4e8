// SPDX-License-Identifier: MIT
//
// Reads a script line by line, as it is needed: JSON Lines in UTF-8, with or without a byte order mark, lines
// ended by LF or CR LF; blank lines and lines that start with # are skipped.
#pragma once

#include <istream>
#include <optional>

#include "host/script/json_values.h"

namespace zqn::script {

struct ScriptLine {
  /// Counted from 1, skipped lines included.
  int number = 0;
  /// An object.
  Json json;
};

class ScriptReader {
 public:
  explicit ScriptReader(std::istream& script) : script_(script) {}

  /// The next line that says something; none at the end. ScriptError when it is no JSON object, or the script
  /// cannot be read.
  std::optional<ScriptLine> next();
  /// Number of the line last read, 0 before the first.
  int lineNumber() const noexcept { return number_; }

 private:
  std::istream& script_;
  int number_ = 0;
};

}  // namespace zqn::script
