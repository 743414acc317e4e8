// SPDX-License-Identifier: MIT
//
// Dates as people write them: what CDate, IsDate and Format have in common.
#pragma once

#include <array>
#include <optional>

#include "runtime/locale.h"
#include "runtime/string.h"
#include "runtime/variant.h"

namespace zqn {

/// 1 January 100 and 31 December 9999, the first and the last day of the calendar.
inline constexpr double FirstDay = -657434;
inline constexpr double LastDay = 2958465;

inline constexpr std::array<StringView, 12> monthNames = {u"Januar",    u"Februar", u"März",     u"April",
                                                          u"Mai",       u"Juni",    u"Juli",     u"August",
                                                          u"September", u"Oktober", u"November", u"Dezember"};

/// Reads a whole text as CDate does; no value when it is no date.
std::optional<Date> readDate(StringView text, const Locale& locale);

}  // namespace zqn
