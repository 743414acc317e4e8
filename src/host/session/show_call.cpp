// SPDX-License-Identifier: MIT
#include "host/session/show_call.h"

#include <utility>

#include "frontend/basics/bas_basis.h"
#include "frontend/orb_dialog.h"

namespace zqn::host {

ShowOutcome callShow(ORBDialog& dialog, std::int32_t kind, VariantArray param, bool generic) {
  const Variant returned = generic ? dialog.ShowGeneric(kind, param) : dialog.Show(kind, param);
  return {.returned = returned,
          .param = std::move(param),
          .allowChanges = basBasis::bAllowChanges,
          .dialogResult = dialog.Result()};
}

bool isKey(const Variant& returned) {
  return !returned.isEmpty() && !returned.isNull() && returned != Variant(u"");
}

}  // namespace zqn::host
