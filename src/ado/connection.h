// SPDX-License-Identifier: MIT
//
// An open database, as recordsets and commands use it.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "ado/enums.h"
#include "ado/observer.h"
#include "ado/provider.h"
#include "ado/sql.h"
#include "ado/statement_cache.h"
#include "runtime/ref.h"

namespace zqn::ado {

class Recordset;

/// An open database, as recordsets and commands use it. A host makes one from a provider and shares it; a
/// dialog never opens or closes it.
///
///     Ref<ado::Connection> connection = ado::openSqlite(path);
///     connection->Execute(u"DELETE FROM Vertriebsstati WHERE Status =" + ado::sql::value(key));
class Connection {
 public:
  /// Open from the start. `provider` is not null.
  explicit Connection(std::unique_ptr<Provider> provider);
  /// Closes the database. Recordsets keep their connection alive, so none is open.
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// Runs one statement, by itself a transaction unless one was begun, and gives the number of rows it
  /// changed; a DELETE or UPDATE that hits no row is no error. Rows of a SELECT are not delivered. Errors
  /// -2147217900 (invalid text, syntax), -2147217865 (no such table), -2147217873 (key, Null), 3704 when
  /// closed, and the provider's other numbers.
  std::int64_t Execute(const sql::Text& statement, int options = adCmdUnspecified);
  /// Closes its open recordsets, pending edits discarded, and then the database. Error 3704 when closed.
  void Close();
  /// An ObjectStateEnum.
  int State() const noexcept { return provider_ ? adStateOpen : adStateClosed; }

  /// Who is told of every operation on this connection and its recordsets; not owned, nullptr for nobody.
  Observer* observer() const noexcept { return observer_; }
  void observer(Observer* observer) noexcept { observer_ = observer; }

  // ---- for recordsets

  /// Error 3709 when closed.
  Provider& provider() const;
  /// The prepared statement for a text, kept for the next time. Valid until the next call.
  Statement& statement(StringView text, Purpose purpose);
  /// Error -2147217900 for a text that a value has broken.
  void requireRunnable(const sql::Text& statement) const;
  /// Recordsets are told when the connection closes.
  void enlist(Recordset& recordset) { recordsets_.push_back(&recordset); }
  /// No longer.
  void dismiss(Recordset& recordset) noexcept;
  /// How many recordsets are open on this connection.
  std::size_t openRecordsets() const noexcept { return recordsets_.size(); }
  /// Tells the observer, and passes on what it throws.
  void before(Operation operation, StringView statement, StringView criterion = {}) const {
    if (observer_) observer_->Before(operation, statement, criterion);
  }

 private:
  std::unique_ptr<Provider> provider_;
  StatementCache statements_;
  std::vector<Recordset*> recordsets_;
  Observer* observer_ = nullptr;
};

}  // namespace zqn::ado
