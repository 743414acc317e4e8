// SPDX-License-Identifier: MIT
#include "definitions/table_editor.h"

#include "frontend/basics/bas_basis.h"

namespace zqn {

void TableEditor::WriteData() {
  ResumeNext step;
  if (table().reservesHyphen && controls().txtKey().Text() == u"-") return;
  Ref<ado::Recordset> rs;
  step([&] { rs = GetRecordsetForReadWrite(); });
  if (step.test([&] { return rs->IsEOF(); })) {
    step([&] { rs->AddNew(); });
    writeKey(step, rs);
  }
  writeFields(step, rs);
  step([&] { rs->Update(); });
  step([&] { rs->Close(); });
}

void TableEditor::DeleteData() {
  ResumeNext step;
  ado::Command command;
  deleteMarkedRow(step, command);
}

void TableEditor::deleteMarkedRow(ResumeNext& step, ado::Command& command) {
  step([&] { command.ActiveConnection(basBasis::GetConnection()); });
  step([&] { command.CommandType(ado::adCmdText); });
  step([&] { command.CommandText(deleteStatement()); });
  step([&] { command.Execute(); });
}

ado::sql::Text TableEditor::deleteStatement() {
  return u"Delete From " + ado::sql::Text(table().name) + u" WHERE " + table().keyColumn + u" = " +
         ado::sql::value(markedKey());
}

void TableEditor::writeKey(ResumeNext& step, const Ref<ado::Recordset>& row) {
  writeText(step, row, table().keyColumn, controls().txtKey().Text());
}

void TableEditor::writeText(ResumeNext& step, const Ref<ado::Recordset>& row, StringView column,
                            const String& text) {
  step([&] { row->Fields(column).Value(basBasis::ValueToNull(text, u"")); });
}

Variant TableEditor::markedKey() { return controls().tdblShow().Columns(0).Value(); }

}  // namespace zqn
