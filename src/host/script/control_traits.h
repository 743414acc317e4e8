// SPDX-License-Identifier: MIT
//
// What a script must know of each kind of control beyond its properties: a further kind is one row of the
// table in control_kinds.cpp.
#pragma once

#include "forms/control.h"
#include "host/script/json_values.h"

namespace zqn::script {

/// How a script reads a control that shows rows, and points at one of them. Rows count from 0.
struct RowAccess {
  /// {"columns":[...],"rows":[...],"row":n}, all rows.
  Json (*contents)(Control&);
  bool (*hasRow)(Control&, int row);
  /// The row that is marked or chosen, -1 for none.
  int (*markedRow)(const Control&);
  /// The rows stand in a drop-down and are chosen by number or text; else they are clicked.
  bool inDropDown;
  /// The first row of a drop-down with this text, or key where it has keys; -1 for none.
  int (*rowOfText)(Control&, StringView text);
};

struct ControlTraits {
  ControlKind kind;
  /// The member of a dump that says what the control says: "caption" or "text"; nullptr when it says nothing.
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
