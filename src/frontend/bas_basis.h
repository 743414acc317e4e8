// SPDX-License-Identifier: MIT
//
// State that the forms of one process share: the access flag of the last Show.
#pragma once

namespace zqn::basBasis {

/// The present user may change data. ORBDialog::Show writes it at the start of every call, for all objects of
/// the process; the save and delete handlers read it.
inline bool bAllowChanges = true;

}  // namespace zqn::basBasis
