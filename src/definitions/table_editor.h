// SPDX-License-Identifier: MIT
//
// A definition class whose rows a clerk writes and deletes. What a class has beyond its key it states as
// steps:
//
//     void clsKeys::writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) {
//       writeText(step, row, u"Kurztext", controls().txtKeyText().Text());
//     }
#pragma once

#include "ado/command.h"
#include "definitions/definition_class.h"
#include "runtime/resume_next.h"

namespace zqn {

class TableEditor : public DefinitionClass {
 public:
  /// Writes the fields into the row of the present key, which is added when there is none. The key of a known
  /// row is never rewritten; the reserved key writes nothing. No error comes out.
  void WriteData() override;
  /// Deletes the row that is marked in the list, whatever stands in the key field. No error comes out.
  void DeleteData() override;

 protected:
  using DefinitionClass::DefinitionClass;

  /// Writes the key of a new row, and what else is written once only.
  virtual void writeKey(ResumeNext& step, const Ref<ado::Recordset>& row);
  /// Writes all but the key, one step a column.
  virtual void writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) = 0;
  virtual ado::sql::Text deleteStatement();
  /// DeleteData's steps on a command that may be used again; step.Number() then tells whether they worked.
  void deleteMarkedRow(ResumeNext& step, ado::Command& command);
  /// One step: the text goes into the column, the empty text as Null.
  static void writeText(ResumeNext& step, const Ref<ado::Recordset>& row, StringView column,
                        const String& text);
  /// The key of the row that is marked in the list.
  Variant markedKey();
};

}  // namespace zqn
