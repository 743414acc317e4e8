// SPDX-License-Identifier: MIT
#include "frontend/basics/bas_basis.h"

#include "runtime/convert.h"

namespace zqn::basBasis {

namespace {

Ref<ado::Connection> gConnection;

}  // namespace

void SetConnection(Ref<ado::Connection> Connection) { gConnection = std::move(Connection); }

const Ref<ado::Connection>& GetConnection() noexcept { return gConnection; }

Variant NullToValue(const Variant& Value, const Variant& Default) { return Value.isNull() ? Default : Value; }

Variant ValueToNull(const Variant& Value, const Variant& Compare) {
  return equals(Value, Compare).value_or(false) ? Variant(Null) : Value;
}

bool CheckToBool(std::int32_t Value) noexcept { return Value == 1; }

std::int32_t BoolToCheck(bool Value) noexcept { return Value ? 1 : 0; }

}  // namespace zqn::basBasis
