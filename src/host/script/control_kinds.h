// SPDX-License-Identifier: MIT
//
// What a script must know of each kind of control beyond its properties: a further kind is one row of the
// table in control_kinds.cpp.
#pragma once

#include "forms/control.h"
#include "host/script/json_values.h"

namespace zqn::script {

/// How a script reads a control that shows rows, and points at one of them.
struct RowAccess {
  /// {"columns":[...],"rows":[...],"row":n}, all rows.
  Json (*contents)(Control&);
  /// The control has the row; rows count from 0.
  bool (*hasRow)(Control&, int row);
  /// The row that a click on the control itself points at, -1 for none: it changes no mark.
  int (*markedRow)(const Control&);
};

struct ControlTraits {
  ControlKind kind;
  /// The member of a dump that says what the control says: "caption" or "text".
  const char* content;
  /// A click into it moves the focus and does nothing else.
  bool entry;
  /// nullptr when it shows no rows.
  const RowAccess* rows;
};

const ControlTraits& traitsOf(const Control& control);
/// "TextBox".
std::string kindOf(const Control& control);
/// "Label1(0)".
std::string nameOf(const Control& control);

}  // namespace zqn::script
