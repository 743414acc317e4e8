// SPDX-License-Identifier: MIT
//
// A list over a large table on a server: how long until it stands, until a key is found, until all is
// counted, and what a row's key costs in memory.
#pragma once

#include <cstdint>
#include <iosfwd>

#include "runtime/string.h"

namespace zqn::load {

/// Makes the tables in an empty database with so many sales stages, and measures.
void measureLongList(std::ostream& out, const String& connectionString, std::int64_t rows);

}  // namespace zqn::load
