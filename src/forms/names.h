// SPDX-License-Identifier: MIT
//
// Names of forms, controls and properties: they compare without regard to case, and an element of a control
// array is written with its index behind it, "Label1(0)".
#pragma once

#include "runtime/collation.h"
#include "runtime/string.h"

namespace zqn {

struct ControlName {
  StringView name;
  /// -1 for a control that is no element of an array.
  int index = -1;
};

/// The letter behind the first "&" of a caption, in capitals: Alt with it leads there. 0 for none; "&&"
/// stands for the character itself.
char16_t accessKey(StringView caption) noexcept;

/// Takes "Label1(0)" apart. A text without a well-formed index is a name as a whole.
ControlName splitName(StringView fullName) noexcept;

}  // namespace zqn
