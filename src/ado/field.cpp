// SPDX-License-Identifier: MIT
#include "ado/field.h"

#include "ado/cursor.h"
#include "ado/raise.h"
#include "ado/recordset.h"
#include "runtime/collation.h"

namespace zqn::ado {

Recordset& Field::recordset() const {
  if (!anchor_->recordset) raise(error::ObjectNotValid);
  return *anchor_->recordset;
}

const String& Field::Name() const { return recordset().column(ordinal_).name; }

int Field::Type() const { return recordset().column(ordinal_).type; }

int Field::DefinedSize() const { return recordset().column(ordinal_).definedSize; }

Variant Field::Value() const { return std::as_const(recordset()).fieldValue(ordinal_); }

void Field::Value(const Variant& value) { recordset().fieldValue(ordinal_, value); }

int Fields::Count() const { return anchor_ && anchor_->recordset ? anchor_->recordset->fieldCount_ : 0; }

Field Fields::Item(int ordinal) const {
  if (ordinal < 0 || ordinal >= Count()) raise(error::ItemNotFound);
  return Field(anchor_, ordinal);
}

Field Fields::Item(StringView name) const {
  for (int ordinal = 0; ordinal < Count(); ++ordinal) {
    if (sameName(anchor_->recordset->column(ordinal).name, name)) return Field(anchor_, ordinal);
  }
  raise(error::ItemNotFound);
}

Fields Recordset::Fields() const { return ado::Fields(anchor_); }

Field Recordset::Fields(StringView name) const { return Fields().Item(name); }

Field Recordset::Fields(int ordinal) const { return Fields().Item(ordinal); }

}  // namespace zqn::ado
