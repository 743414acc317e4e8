// SPDX-License-Identifier: MIT
//
// Dates as people write them, behind CDate and IsDate: three numbers in the locale's order or year first, the
// name of a month, day and month alone, a time behind or alone.
//
//     readDate(u"5. März 2026 14:30", Locale::german());
#pragma once

#include <optional>

#include "runtime/locale.h"
#include "runtime/string.h"
#include "runtime/variant.h"

namespace zqn {

/// Reads a whole text; no value when it is no date.
std::optional<Date> readDate(StringView text, const Locale& locale);

}  // namespace zqn
