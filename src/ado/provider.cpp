// SPDX-License-Identifier: MIT
#include "ado/provider.h"

#include "ado/sql_tokens.h"

namespace zqn::ado {

std::unique_ptr<Keyset> Provider::keyset(StringView) { return nullptr; }

std::optional<RowHandle> Provider::insertedRow() const { return {}; }

String Provider::quoted(StringView identifier) const { return sql::quoted(identifier); }

}  // namespace zqn::ado
