// SPDX-License-Identifier: MIT
//
// One call of Show and what it came to, for whoever writes it down.
//
//     ShowOutcome outcome = callShow(dialog, 21, VariantArray{u"10"}, false);
//     print(outcome.returned);
#pragma once

#include <cstdint>

#include "runtime/variant.h"

namespace zqn {
class ORBDialog;
}

namespace zqn::host {

struct ShowOutcome {
  Variant returned;
  /// As it stands after the call.
  VariantArray param;
  /// The access flag that the call has set.
  bool allowChanges = true;
  /// ORBDialog::Result.
  Variant dialogResult;
};

/// Calls Show, or ShowGeneric.
ShowOutcome callShow(ORBDialog& dialog, std::int32_t kind, VariantArray param, bool generic);

/// A return value that is a key: neither Empty nor Null nor the empty text. False and 0 are keys.
bool isKey(const Variant& returned);

}  // namespace zqn::host
