// SPDX-License-Identifier: MIT
//
// The definition classes by the kind of dialog that they serve on the generic form. A new one is one row in
// definitions.cpp.
#pragma once

#include <cstdint>
#include <memory>

#include "dialog/cls_basis_dialog.h"

namespace zqn {

/// A new definition object for a kind; nullptr for a kind that has none.
std::unique_ptr<clsBasisDialog> makeDefinition(std::int32_t kind);
bool hasDefinition(std::int32_t kind) noexcept;

}  // namespace zqn
