// SPDX-License-Identifier: MIT
//
// Between the values of the dialog language and those of a database: what a column's stored value reads as,
// and what becomes of a value that is assigned to it.
//
//     Variant text = readAs(column, row.at(2));
#pragma once

#include "ado/provider.h"
#include "runtime/variant.h"

namespace zqn::ado {

/// Null, String, Long (Double beyond 32 bits), Double, or Boolean for a Boolean column.
Variant readAs(const Column& column, const Value& stored);

/// The value as the column will hold it: Null, String, Boolean, Long or Double. Errors -2147352571 (no
/// number, no object), -2147217887 (too long, or a computed column), -2147217833 (out of range).
Variant convertedFor(const Column& column, const Variant& value);

/// A converted value on its way to the database; True is 1 here. It refers to the Variant's text.
Value storedAs(const Variant& converted);

bool isTextType(int type) noexcept;

}  // namespace zqn::ado
