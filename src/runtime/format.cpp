// SPDX-License-Identifier: MIT
#include "runtime/convert.h"

namespace zqn {

String Format(const Variant& value, StringView) { return concatenate(value); }

}  // namespace zqn
