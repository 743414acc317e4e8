// SPDX-License-Identifier: MIT
//
// `zqn-dialog kinds`: what dialogs there are. A table for a person, or with `--json` an array for a program:
//
//     zqn-dialog kinds --json | jq '.[] | select(.offered) | .number'
#pragma once

#include <iosfwd>

namespace zqn::host {

/// Writes number, constant, form, definition class and tables of each kind; a kind that this version does not
/// open is marked.
void listKinds(std::ostream& out, bool asJson);

}  // namespace zqn::host
