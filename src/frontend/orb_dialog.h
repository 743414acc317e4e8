// SPDX-License-Identifier: MIT
//
// What a host opens a dialog with.
#pragma once

#include <cstdint>

#include "contract/session.h"
#include "forms/event.h"
#include "runtime/ref.h"
#include "runtime/variant.h"

namespace zqn {

class frmCRMKategorien;
class frmDialog;
class frmSelektionskriterienVertrag;
class frmVertriebsstati;

/// The one class through which a host opens a dialog:
///
///     ORBDialog dialog;
///     dialog.Session(session);                 // takes the session's connection, too
///     VariantArray param{u"10"};
///     Variant key = dialog.Show(21, param);    // returns when the person closes the dialog
///
/// A Desktop must be current (forms/desktop.h). Nothing of a dialog survives the call but the rows it changed
/// and the access flag.
class ORBDialog : private EventOwner {
 public:
  /// Without a session and without a connection.
  ORBDialog();
  ~ORBDialog();
  ORBDialog(const ORBDialog&) = delete;
  ORBDialog& operator=(const ORBDialog&) = delete;

  /// Handed to every form that takes it: a double click then reports through DblClick instead of closing.
  /// False in a new object.
  bool Multiselect() const noexcept { return multiselect_; }
  void Multiselect(bool multiselect) noexcept { multiselect_ = multiselect; }

  /// The key of the last DblClick, Empty before the first. Show neither reads nor writes it.
  const Variant& Result() const noexcept { return result_; }
  void Result(Variant result) { result_ = std::move(result); }

  /// Storing a session also replaces Connection with the session's own; a host that wants another one sets it
  /// afterwards. Errors of SessionConnection reach the caller, Session is stored all the same; error 91 for
  /// Nothing, which is stored, too.
  const Ref<zqn::Session>& Session() const noexcept { return session_; }
  void Session(Ref<zqn::Session> session);

  /// The open connection that the forms use. It stays the host's.
  const Ref<ado::Connection>& Connection() const noexcept { return connection_; }
  void Connection(Ref<ado::Connection> connection) { connection_ = std::move(connection); }

  /// Opens the dialog of a kind (1 to 37; any other number opens the empty generic form) and returns when it
  /// is closed. `Param` goes in and comes back: element 0 is the key for most kinds. Returns the key, Empty
  /// when there is none. No run-time error leaves it: a statement that fails is skipped.
  Variant Show(std::int32_t zqnDataType, VariantArray& Param);

  /// The same on the generic form, also for a kind that Show serves with a form of its own.
  Variant ShowGeneric(std::int32_t zqnDataType, VariantArray& Param);

  /// A pick in a dialog that runs with Multiselect, raised while Show has not returned. `Result` holds the
  /// same value by then.
  Event<const Variant&> DblClick{*this, u"DblClick"};

 private:
  friend class ShowSteps;
  void eventFailed(StringView event, const RuntimeError& failure) override;
  /// Writes the access flag: what the present user may change in a dialog of this kind.
  void evaluateAccess(std::int32_t kind);
  static bool listAllows(StringView list, std::int32_t kind);

  /// Keeps a pick as Result and hands it to the host. Skips what fails.
  void report(const Variant& Result);

  // The forms that report their picks, each while it is open, and who hears of them.
  frmDialog* frm = nullptr;
  void frm_DblClick(const Variant& Result) { report(Result); }
  frmCRMKategorien* frmCRM = nullptr;
  void frmCRM_DblClick(const Variant& Result) { report(Result); }
  frmSelektionskriterienVertrag* frmSelkritVertrag = nullptr;
  void frmSelkritVertrag_DblClick(const Variant& Result) { report(Result); }
  frmVertriebsstati* frmVStati = nullptr;
  void frmVStati_DblClick(const Variant& Result) { report(Result); }

  bool multiselect_ = false;
  Variant result_;
  Ref<zqn::Session> session_;
  Ref<ado::Connection> connection_;
};

}  // namespace zqn
