// SPDX-License-Identifier: MIT
//
// The companion "Kalmera.AuskunftObject" of this host, for a person.
#pragma once

#include "ado/connection.h"

namespace zqn::host {

/// Offers the information dialog over the customers and offers of a database to the dialogs of the process.
void offerAuskunft(Ref<ado::Connection> connection);

}  // namespace zqn::host
