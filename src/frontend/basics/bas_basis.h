// SPDX-License-Identifier: MIT
//
// What the forms and definition classes of one process share: the connection of the definition classes, the
// access flag of the last Show, and the small conversions between Null, Boolean and the value of a check box.
#pragma once

#include "ado/connection.h"
#include "runtime/ref.h"
#include "runtime/variant.h"

namespace zqn::basBasis {

/// The present user may change data. ORBDialog::Show writes it at the start of every call, for all objects of
/// the process; the save and delete handlers read it.
inline bool bAllowChanges = true;

/// The connection of all definition classes: the last one to be set up decides it. Dedicated forms have their
/// own.
void SetConnection(Ref<ado::Connection> Connection);
const Ref<ado::Connection>& GetConnection() noexcept;

/// `Default` when `Value` is Null, else `Value`.
Variant NullToValue(const Variant& Value, const Variant& Default);
/// Null when `Value` equals `Compare` by the language's comparison (a number never equals a text), else
/// `Value`; Null stays Null.
Variant ValueToNull(const Variant& Value, const Variant& Compare);
/// True for 1, False for anything else, grey included.
bool CheckToBool(std::int32_t Value) noexcept;
/// 1 for True, 0 for False.
std::int32_t BoolToCheck(bool Value) noexcept;

}  // namespace zqn::basBasis
