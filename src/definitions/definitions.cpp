// SPDX-License-Identifier: MIT
#include "definitions/definitions.h"

#include <algorithm>

#include "definitions/zahlungsbedingungen.h"

namespace zqn {

namespace {

template <class C>
std::unique_ptr<clsBasisDialog> make() {
  return std::make_unique<C>();
}

struct Definition {
  std::int32_t kind;
  std::unique_ptr<clsBasisDialog> (*make)();
};

constexpr Definition definitions[] = {
    {3, make<clsZahlungsbedingungen>},
};

}  // namespace

std::unique_ptr<clsBasisDialog> makeDefinition(std::int32_t kind) {
  const auto* row = std::ranges::find(definitions, kind, &Definition::kind);
  return row != std::end(definitions) ? row->make() : nullptr;
}

bool hasDefinition(std::int32_t kind) noexcept {
  return std::ranges::find(definitions, kind, &Definition::kind) != std::end(definitions);
}

}  // namespace zqn
