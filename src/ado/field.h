// SPDX-License-Identifier: MIT
//
// The columns of an open recordset. Fields are small handles: copy them freely, keep them as long as the
// recordset stays open.
//
//     String name = concatenate(rs->Fields(u"Bezeichnung").Value());
//     rs->Fields(u"AutoOverwrite").Value(true);
#pragma once

#include <memory>

#include "runtime/string.h"
#include "runtime/variant.h"

namespace zqn::ado {

class Recordset;

/// How fields know that their recordset was closed or released.
struct FieldAnchor {
  Recordset* recordset = nullptr;  ///< nullptr once it was closed.
};

/// One column; a small handle. All members raise 3420 once the recordset was closed. Requery keeps its fields.
class Field {
 public:
  /// As the statement's result names the column.
  const String& Name() const;
  /// A DataTypeEnum, by the column's declaration.
  int Type() const;
  /// Longest text in UTF-16 units; 0 for no limit.
  int DefinedSize() const;

  /// What was assigned last, else what was read: Null, String, Long, Double (beyond 32 bits, too) or Boolean;
  /// dates as the stored text. Error 3021 without a current row or when it has been deleted.
  Variant Value() const;
  /// Starts an edit of the current row, or goes on with it. The value is converted to the column's type: True
  /// is -1 in a number column, Empty is 0 or "". Errors 3021; 3251 read-only recordset; -2147352571 a text
  /// that is no number; -2147217887 a text that is too long, or a column that is computed; -2147217833 a
  /// number out of range. A failed assignment leaves the value and the edit as they were.
  void Value(const Variant& value);

 private:
  friend class Fields;
  Field(std::shared_ptr<FieldAnchor> anchor, int ordinal) : anchor_(std::move(anchor)), ordinal_(ordinal) {}
  Recordset& recordset() const;

  std::shared_ptr<FieldAnchor> anchor_;
  int ordinal_;
};

/// All columns of a recordset.
class Fields {
 public:
  /// 0 for a closed recordset.
  int Count() const;
  /// By name, case not counting, or by ordinal from 0. Error 3265 when there is none.
  Field Item(StringView name) const;
  Field Item(int ordinal) const;
  /// As Item.
  Field operator()(StringView name) const { return Item(name); }
  Field operator()(int ordinal) const { return Item(ordinal); }

 private:
  friend class Recordset;
  explicit Fields(std::shared_ptr<FieldAnchor> anchor) : anchor_(std::move(anchor)) {}
  std::shared_ptr<FieldAnchor> anchor_;
};

}  // namespace zqn::ado
