// SPDX-License-Identifier: MIT
//
// Every kind of line that a script may hold. A further action or probe is one row of the table in
// line_kinds.cpp and the function behind it.
#pragma once

#include <span>

#include "host/script/arguments.h"
#include "host/script/line_context.h"

namespace zqn::script {

enum class LineGroup {
  User,    ///< a person acts on the dialog
  Probe,   ///< something is read and written to the transcript
  Outside  ///< something changes around the dialog; takes effect before Show when it stands first
};

struct LineKind {
  /// The member that names the line: {"click":...}.
  const char* name;
  LineGroup group;
  /// The other members that it may have.
  std::span<const char* const> members;
  /// ScriptError when the line is wrong, Refusal when the user cannot do that.
  void (*run)(const LineContext& context, const Arguments& line);
};

/// The kind of a line. ScriptError when it names none, or two, or has a member that its kind does not know.
const LineKind& kindOfLine(const Json& line);

}  // namespace zqn::script
