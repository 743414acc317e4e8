// SPDX-License-Identifier: MIT
//
// One open database with its session: what the reference host opens its dialogs on.
//
//     Host host(options);
//     ORBDialog dialog;
//     host.equip(dialog);
#pragma once

#include <memory>

#include "frontend/orb_dialog.h"
#include "host/database/database_address.h"
#include "host/session/host_options.h"
#include "host/session/host_session.h"
#include "runtime/locale.h"

namespace zqn::host {

class Host {
 public:
  /// Opens the database of the options, or the default one. CommandFailure when it cannot be opened; what the
  /// dialogs will stumble over in it is told on standard error.
  explicit Host(const HostOptions& options);

  /// Gives a dialog its connection, the session unless the options leave it out, and Multiselect.
  void equip(ORBDialog& dialog) const;

  const DatabaseAddress& address() const noexcept { return address_; }
  const Ref<ado::Connection>& connection() const noexcept { return connection_; }
  HostSession& session() const noexcept { return *session_; }

 private:
  DatabaseAddress address_;
  Ref<ado::Connection> connection_;
  std::shared_ptr<HostSession> session_;
  bool handsSessionOver_;
  bool multiselect_;
};

/// Offers the companions that the dialogs create by name: the profile with the application folder of the
/// options, or the data folder.
void offerCompanions(const HostOptions& options);

/// The German locale, with the day of the options as the present.
Locale localeOf(const HostOptions& options);

}  // namespace zqn::host
