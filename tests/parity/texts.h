// SPDX-License-Identifier: MIT
//
// What people, scanners and other programs put into fields: words, numbers, days, and every character that
// text editing has to decide about.
#pragma once

#include <string>

#include "parity/random.h"

namespace zqn::parity {

/// A character, in UTF-8: letters, umlauts, signs, combining marks, beyond 16 bits, control characters.
std::string anyCharacter(Random& chance);
/// What somebody types: mostly short.
std::string anyText(Random& chance);
std::string anyNumber(Random& chance);
std::string anyDay(Random& chance);
/// Lines and columns as another program copies them.
std::string anyTable(Random& chance);

}  // namespace zqn::parity
