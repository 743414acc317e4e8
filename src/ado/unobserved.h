// SPDX-License-Identifier: MIT
//
// Reading that is no statement of a dialog.
#pragma once

#include "ado/connection.h"

namespace zqn::ado {

/// Reading that is no statement of a dialog: what a control or a companion fetches for itself. While one
/// lives, the connection's observer hears of nothing.
///
///     const ado::Unobserved quiet(*connection);
///     rs.Open(u"SELECT Status, Bezeichnung FROM Vertriebsstati", connection);
class Unobserved {
 public:
  /// `connection` outlives it.
  explicit Unobserved(Connection& connection) noexcept
      : connection_(connection), observer_(connection.observer()) {
    connection.observer(nullptr);
  }
  ~Unobserved() { connection_.observer(observer_); }
  Unobserved(const Unobserved&) = delete;
  Unobserved& operator=(const Unobserved&) = delete;

 private:
  Connection& connection_;
  Observer* observer_;
};

}  // namespace zqn::ado
