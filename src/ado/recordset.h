// SPDX-License-Identifier: MIT
//
// Rows of a SELECT under ADO's names and numbers: read, found, written.
#pragma once

#include <memory>
#include <vector>

#include "ado/connection.h"
#include "ado/enums.h"
#include "ado/field.h"
#include "ado/row_cache.h"
#include "ado/sql.h"
#include "runtime/ref.h"
#include "runtime/variant.h"

namespace zqn::ado {

class Cursor;

/// A recordset under ADO's names and numbers: rows of a SELECT, one of them current, which can be read and,
/// under an optimistic lock, written.
///
///     Ref<Recordset> rs = Ref<Recordset>::make();
///     rs->Open(u"SELECT * FROM Vertriebsstati WHERE Status=" + sql::value(key), connection,
///              adOpenKeyset, adLockOptimistic);
///     if (rs->IsEOF()) rs->AddNew();
///     rs->Fields(u"Status").Value(key);
///     rs->Update();
///     rs->Close();
///
/// Position, with the rows A, B, C: after Open on A; MoveNext from C leads to EOF, from where MovePrevious
/// leads back to C; a Find without match leads to EOF, where Bookmark and the next Find raise 3021 until
/// MoveFirst, Bookmark or Requery sets the position anew.
///
/// With the client's cursor (3) the rows are a snapshot. With the server's cursor (2) the rows are fixed at
/// Open, their values are read as a row becomes current; rows that others delete stay as holes, rows that
/// others add are unseen until Requery.
class Recordset {
 public:
  /// Closed, with the server's cursor, forward only and read-only.
  Recordset();
  /// A pending edit is discarded.
  ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  // ---- before Open (assigning raises 3705 while open)

  /// adUseServer (default) or adUseClient; error 3001 for others.
  int CursorLocation() const noexcept { return location_; }
  void CursorLocation(int location);
  /// A CursorTypeEnum; what Open is given replaces it. Error 3001 for others.
  int CursorType() const noexcept { return cursorType_; }
  void CursorType(int type);
  /// A LockTypeEnum; what Open is given replaces it. Error 3001 for others.
  int LockType() const noexcept { return lockType_; }
  void LockType(int type);

  // ---- open and close

  /// Runs the statement; the first row is current. With the client's cursor, CursorType reads 3 afterwards. A
  /// statement that returns no rows at all (DELETE) runs and leaves the recordset closed, as every failure
  /// does. Errors 3705 when open (and nothing changes), 3709 without a connection or with a closed one, 3001
  /// for an unknown cursor or lock type, -2147217900 and the provider's others.
  void Open(const sql::Text& source, const Ref<Connection>& connection, int cursorType = adOpenForwardOnly,
            int lockType = adLockReadOnly, int options = adCmdUnspecified);
  /// Errors 3704 when closed; 3219 while an edit is pending, and the recordset stays open.
  void Close();
  /// An ObjectStateEnum.
  int State() const noexcept { return cursor_ ? adStateOpen : adStateClosed; }
  /// Runs the same statement again; the first row is current, bookmarks of before are worthless. If it fails
  /// the recordset is closed, but keeps its statement: the next Requery opens it again. Errors 3704 when it was
  /// never opened, or closed otherwise, 3219 while an edit is pending, 3709 when its connection is closed.
  void Requery(int options = adCmdUnspecified);
  /// The text it was opened with, "" before.
  const String& Source() const noexcept { return source_; }

  // ---- position (every member raises 3704 when closed; a move with a pending edit runs Update first and
  // stays when that fails)

  /// EOF of ADO: behind the last row, or without rows. C's macro has the name EOF.
  bool IsEOF() const;
  /// BOF of ADO: before the first row, or without rows.
  bool IsBOF() const;
  /// Error 3021 without rows.
  void MoveFirst();
  /// Reads all keys. Error 3021 without rows.
  void MoveLast();
  /// Error 3021 at EOF.
  void MoveNext();
  /// Errors 3021 at BOF, 3219 with a forward-only cursor of the server.
  void MovePrevious();
  /// All rows, holes included; -1 with a forward-only cursor of the server. Reads all keys.
  std::int32_t RecordCount() const;
  /// The current row for a later assignment, valid until Close or Requery. Errors 3021 without a current row,
  /// 3251 forward-only.
  Variant Bookmark() const;
  /// Makes that row current. Error 3001 for anything that is no valid bookmark of this recordset.
  void Bookmark(const Variant& bookmark);
  /// Makes the first row current, from the current one (or `start`, a bookmark) on, for which all comparisons
  /// of the criterion hold: `Status='10'`, `Buchungskreis=1 AND Herkunft='A'`. Operators = <> < > <= >= and
  /// LIKE; a bare literal is text with a text column. Texts compare without case and trailing blanks.
  /// `skipRecords` rows are passed over first; `direction` 1 down, -1 up. Without a match: EOF (down) or BOF
  /// (up), no error. Errors 3021 without a current row and without `start`; 3265 unknown column; 3001 a
  /// criterion that cannot be read, -2147352571 a text that is no number for a number column; the last two
  /// leave EOF.
  void Find(const sql::Text& criterion, int skipRecords = 0, int direction = adSearchForward,
            const Variant& start = Missing);

  // ---- edit (3251 unless opened with an optimistic lock on one table)

  /// Makes a new row current. A pending edit is Updated first.
  void AddNew();
  /// Writes what was assigned, and nothing else; without a pending edit it has no effect. Error -2147217864
  /// when the row is gone, or a column that was assigned has changed since it was read; -2147217873 and the
  /// provider's others. A failure leaves the edit pending.
  void Update();
  /// Discards the edit; after AddNew the row of before is current again. Without a pending edit it has no
  /// effect.
  void CancelUpdate();
  /// An EditModeEnum. Error 3704 when closed.
  int EditMode() const;

  /// The columns; none while it is closed.
  ado::Fields Fields() const;
  /// As Fields().Item: by name, case not counting, or by ordinal from 0. Error 3265 when there is none.
  Field Fields(StringView name) const;
  Field Fields(int ordinal) const;

  // ---- for lists that show the recordset: nothing here moves it, tells the observer, or sees a pending
  // edit. Rows count from 0.

  /// Hears that the rows are others, or none any more: after Open, Requery and Close, and after each failure
  /// that closes the recordset.
  class Watcher {
   public:
    virtual void rowsReplaced() noexcept = 0;  ///< The rows are others; it reads them anew when it wants.

   protected:
    ~Watcher() = default;
  };
  /// Each watcher once, until it is removed.
  void addWatcher(Watcher& watcher);
  void removeWatcher(Watcher& watcher) noexcept;
  /// Rows known so far; a list over a large table knows the first ones only, until fetchKeys or a Find has
  /// come to the others. 0 when closed or with a forward-only cursor of the server.
  int knownRows() const noexcept;
  /// These are all.
  bool rowsComplete() const noexcept;
  /// Makes up to `atMost` more rows known; to be called at idle time until rowsComplete.
  void fetchKeys(int atMost);
  /// The value of a known row, as Field::Value reads it; Null for a row that is gone. Rows last asked for are
  /// kept. Errors 3704 when closed, 3021 for a row that is not known, 3265 for a column that is not there.
  Variant rowValue(int row, int column);
  /// Reads a known row afresh, its values as the database holds them now; Fields of the current row follow.
  /// False when the row is gone: it is a hole from now on. A row stays as it is, and this is True, while it is
  /// being edited, and where its key cannot be told (an expression, a join, a client's list without the key).
  /// Errors as rowValue, and the provider's.
  bool refreshRow(int row);
  /// The value as text, Null as "".
  String rowText(int row, int column);
  /// The row as the database holds it now, a value a field; none when it is gone. Nothing of it is kept.
  /// Errors 3704, 3021 for a row that is not known, the provider's.
  std::vector<Variant> readRow(int row);
  /// The current row, -1 at BOF, EOF, on a row being added, or when closed.
  int currentRow() const noexcept;
  /// The row of a bookmark. Errors 3001 as Bookmark, 3704.
  int rowOf(const Variant& bookmark) const;
  /// What Bookmark reads on this row. Errors 3021 for a row that is not known, 3704.
  Variant bookmarkOf(int row) const;

 private:
  friend class Connection;
  friend class Field;
  friend class Fields;
  enum class Place { Bof, Row, Eof, Empty, Added };

  void requireOpen() const;
  void requireClosed() const;
  void requireBookmarks() const;
  void before(Operation operation, StringView criterion = {}) const;
  void execute();
  void shut() noexcept;
  void tellWatchers() noexcept;

  bool forwardOnly() const noexcept { return location_ == adUseServer && cursorType_ == adOpenForwardOnly; }
  bool isOnRow() const noexcept { return place_ == Place::Row || place_ == Place::Added; }
  void leaveTo(Place place) noexcept;
  void goTo(int row) noexcept;
  /// Whether there is such a row; reads keys as far as that needs.
  bool hasRow(int row) const;
  void finishEdit();

  const Column& column(int ordinal) const;
  /// The current row as it was read; error 3021 when it is gone.
  const RowView& current() const;
  Variant fieldValue(int ordinal) const;
  void fieldValue(int ordinal, const Variant& value);

  /// The values of a row, a field each; none of one that is gone.
  std::vector<Variant> valuesOf(const RowView& read) const;

  void requireUpdatable() const;
  void insertRow();
  void updateRow();
  void endEdit() noexcept;

  int location_ = adUseServer;
  int cursorType_ = adOpenForwardOnly;
  int lockType_ = adLockReadOnly;
  String source_;
  Ref<Connection> connection_;

  std::unique_ptr<Cursor> cursor_;
  int fieldCount_ = 0;  // columns of the statement, hidden ones not counted
  std::shared_ptr<FieldAnchor> anchor_;
  bool mayReopen_ = false;               // closed by a Requery that failed
  mutable std::int64_t generation_ = 0;  // of the bookmarks; given when the first one is asked for

  Place place_ = Place::Empty;
  int row_ = -1;
  mutable RowView current_;  // empty until it is read
  mutable RowStore buffer_;

  int editMode_ = adEditNone;
  std::vector<Variant> assigned_;  // a column each while an edit is pending; Empty is not assigned
  Place placeBeforeAdd_ = Place::Empty;

  std::vector<Watcher*> watchers_;
  RowCache drawn_;
  RowStore scratch_;
};

}  // namespace zqn::ado
