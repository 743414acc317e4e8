// SPDX-License-Identifier: MIT
#include <iostream>

#include "ado/connection.h"
#include "ado/sqlite/sqlite.h"
#include "frontend/orb_dialog.h"
#include "runtime/error.h"

int main() {
  zqn::ORBDialog dialog;
  try {
    dialog.Connection(zqn::ado::openSqlite("nowhere/trade.db"));
  } catch (const zqn::RuntimeError& failure) {
    std::cout << "failed with " << failure.number() << '\n';
  }
}
