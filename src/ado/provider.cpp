// SPDX-License-Identifier: MIT
#include "ado/provider.h"

#include "ado/sql_tokens.h"

namespace zqn::ado {

// NOLINTNEXTLINE(performance-unnecessary-value-param): a provider that has keysets keeps them
std::unique_ptr<Keyset> Provider::keyset(StringView, std::shared_ptr<const Columns>) { return nullptr; }

String Provider::quoted(StringView identifier) const { return sql::quoted(identifier); }

}  // namespace zqn::ado
