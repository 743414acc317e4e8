// SPDX-License-Identifier: MIT
//
// What the program says to the person at the shell: one line on standard error, by its name.
//
//     tell("database 'waren.sqlite': is a folder; name a file in it");
#pragma once

#include <string>
#include <string_view>

namespace zqn::host {

/// The text as a terminal can show it without obeying it: control characters and bytes that are no UTF-8 are
/// written as \n, \x1b and the like. `kept` are control characters that stay, such as the line breaks of a
/// statement.
std::string printable(std::string_view text, std::string_view kept = {});

/// Writes "zqn-dialog: " and the sentence, printable, as a line of standard error.
void tell(std::string_view sentence);

}  // namespace zqn::host
