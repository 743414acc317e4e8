// SPDX-License-Identifier: MIT
//
// What the clerks work on: the sample, two rows of each clerk's own, two that all share; and how all of it
// must stand at the end.
//
//     makeGround(address, 50);
//     std::vector<std::string> left = leftOnServer(address);   // empty: no lock, no open transaction
#pragma once

#include <string>
#include <vector>

#include "ado/connection.h"
#include "runtime/ref.h"
#include "runtime/string.h"

namespace zqn::load {

inline constexpr StringView CounterKey = u"ZZ0", SharedKey = u"ZZ1";
inline constexpr int MostClerks = 36 * 36;

/// Sales stages (kind 21) and price lists (kind 16) of a clerk: one row that stays, one that comes and goes.
String ownStage(int clerk);
String passingStage(int clerk);
String ownPriceList(int clerk);

/// The name that a row gets in a round.
String nameIn(int clerk, int round);

/// Makes the tables in an empty database, the sample and the rows of the clerks, which bear the name of round
/// 0. The host's CommandFailure, the provider's errors.
void makeGround(const String& connectionString, int clerks);

/// One value of one row; Null when there is no row.
Variant valueOf(ado::Connection& connection, const String& statement);

/// Locks and transactions of others that stand on the server in this database; a sentence each.
std::vector<std::string> leftOnServer(const String& connectionString);

}  // namespace zqn::load
