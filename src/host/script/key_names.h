// SPDX-License-Identifier: MIT
//
// Keys by the names that a script uses: "F9", "Enter", "PageUp", or one character.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/script/user_input.h"

namespace zqn::script {

/// The key of a name; nothing for a name that is none. Shift makes a letter a capital.
std::optional<Key> keyOfName(const std::string& name, int shift);
/// The keys that type a text, in order: a line break is Enter, a tab Tab.
std::vector<Key> keysThatType(StringView text);
/// All names but the characters, for messages.
std::string keyNames();

}  // namespace zqn::script
