// SPDX-License-Identifier: MIT
//
// The order of texts and the sameness of names: case does not count, accents do. The tables behind it know
// Latin, Greek and Cyrillic letters; every other character is itself.
//
//     compareCollated(u"Ä ", u"ä") == 0
//     sameName(u"schluessel", u"Schluessel")
#pragma once

#include <string_view>

#include "runtime/string.h"

namespace zqn {

/// Folds one UTF-16 unit: Latin, Greek and Cyrillic letters; every other unit is itself.
char16_t upperUnit(char16_t unit) noexcept;
char16_t lowerUnit(char16_t unit) noexcept;

/// The order of texts on the embedded database and in criteria: case does not count, accents do, a letter
/// with an accent sorts behind its plain letter; trailing blanks do not count, but a text of blanks only is
/// one blank and greater than the empty text. Below 0, 0 or above 0. Takes UTF-8 or UTF-16; ASCII is compared
/// without conversion.
int compareCollated(StringView left, StringView right) noexcept;
int compareCollated(std::string_view left, std::string_view right) noexcept;
/// Two texts that compare as equal have the same hash.
std::size_t hashCollated(StringView text) noexcept;
/// The same order, but every blank counts: the comparison of the dialog language.
int compareIgnoringCase(StringView left, StringView right) noexcept;
/// Names of tables, columns, controls and members: equal by compareIgnoringCase. Keywords and keys that are
/// ASCII by their nature compare by ascii::same.
bool sameName(StringView left, StringView right) noexcept;

}  // namespace zqn
