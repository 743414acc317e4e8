// SPDX-License-Identifier: MIT
//
// The form of kind 34, the quantity split.
#pragma once

#include <optional>
#include <vector>

#include "ado/connection.h"
#include "forms/command_button.h"
#include "forms/flex_grid.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picture_box.h"
#include "forms/text_box.h"
#include "runtime/resume_next.h"
#include "split/split_columns.h"
#include "split/split_total.h"

namespace zqn {

/// Divides the quantity of a document line over batches, serial numbers or both. A grid with a row for each
/// part and one bottom row that offers a further one; a text box floats over the cell at the cursor and looks
/// like part of it. It touches no table.
///
///     frmAufteilungSNCH form;
///     form.Aufteilung = u"2|\"Stk\"|\"L-4711\"|\"20260630000000\"|\"\"";
///     form.Gmenge = 5.0;
///     form.Aufteilungsart = std::int32_t{1};
///     form.ShowData();  // OK: Aufteilung and Gmenge are what was divided; else they are as they were
///
/// Error modes. No handler: KeyDown and KeyPress of the text box, KeyDown and cell change of the grid. All
/// others go on statement by statement.
class frmAufteilungSNCH final : public Form {
 public:
  frmAufteilungSNCH();

  /// The host's connection; it is not read.
  Ref<ado::Connection> Connection;
  /// In and out: the split text (split_text.h).
  Variant Aufteilung;
  /// In: the quantity to divide, 0 for no target. Out, by OK: the quantity divided, a Double.
  Variant Gmenge;
  /// Text of the unit.
  Variant ME;
  /// 1 batches, 2 serial numbers, 3 both.
  Variant Aufteilungsart;
  /// An expiry date is required on each row.
  bool VerfalldatumPflicht = false;

  /// Fills the grid, runs the form modally, and returns when it is closed.
  void ShowData();

 private:
  // ---- the rows (frm_aufteilung_snch.cpp)

  void InitForm();
  void layOut();
  /// Colours, alignment and default texts of a row.
  void InitRow(int row);
  void SaveRow();
  void RestoreRow();
  void UpdateMarks();
  void MarkEdited();
  void SyncRow();
  void RecalcTotals();
  String restText(double sum) const;
  bool isRowMode() const { return MSHFlexGrid1.SelectionMode() == FlexGrid::ByRow; }
  int bottomRow() const { return MSHFlexGrid1.Rows() - 1; }
  void setRows(int count);
  /// Every text of a cell goes in here, so that the total follows.
  void setCell(int row, int col, StringView text);
  SplitCells cellsOfRow(int row) const;
  void setMark(int row, const Picture* mark);

  // ---- the cell editor (frm_aufteilung_snch_edit.cpp)

  void PlaceEdit(bool full);
  void showEditor();
  void focusEditor();
  void CommitEdit();
  bool IsRowComplete() const;
  /// Nothing leads down from the bottom row as long as it is incomplete.
  bool isHeldByRow() const { return MSHFlexGrid1.Row() == bottomRow() && !IsRowComplete(); }
  void DeleteRows();
  /// The cursor has come to its cell: the marks, the total and the editor follow.
  void noteCell();
  void addRow();
  /// Moves the cursor to a cell, and the editor with it, as one step.
  void goTo(int row, int col);
  void goOn();
  void goDown(int col);
  void goBack();
  void typed();
  void enterPressed(int& KeyCode);
  void tabPressed(int& KeyCode, int Shift);
  void downPressed(int& KeyCode);
  void upPressed(int& KeyCode);
  void escapePressed();
  void placeAndSwallow(int& KeyCode);
  void txtEdit_Change();
  void txtEdit_KeyDown(int& KeyCode, int Shift);
  void txtEdit_KeyPress(int& KeyAscii);
  void txtEdit_Paste(StringView text, bool& taken);
  /// A tab, a line break of what is pasted.
  void pastedTab();
  void pastedBreak(int startCol);
  void MSHFlexGrid1_RowColChange();
  void MSHFlexGrid1_MouseDown();
  void MSHFlexGrid1_MouseUp();
  void MSHFlexGrid1_KeyDown(int KeyCode);
  void MSHFlexGrid1_Scroll();
  void Form_KeyDown(int KeyCode, int Shift);
  void Form_KeyUp(int KeyCode);

  // ---- check and result (frm_aufteilung_snch_check.cpp)

  struct Complaint {
    int col;
    StringView text;
  };
  std::optional<Complaint> complaintAbout(int row) const;
  void showFailed(int row, const Complaint& complaint);
  void CheckSplit(bool& Cancel);
  String BuildSplit() const;
  void btnOK_Click();
  void btnCancel_Click();

  TextBox& txtEdit = Get<TextBox>(u"txtEdit");
  MSHFlexGrid& MSHFlexGrid1 = Get<MSHFlexGrid>(u"MSHFlexGrid1");
  Label& lblGmenge = Get<Label>(u"lblGmenge");
  Label& lblAufteilungstext = Get<Label>(u"lblAufteilungstext");
  CommandButton& btnOK = Get<CommandButton>(u"btnOK");
  CommandButton& btnCancel = Get<CommandButton>(u"btnCancel");

  /// Aufteilungsart and Gmenge as they were read when the form opened.
  SplitKind kind_ = SplitKind::None;
  double target_ = 0;
  SplitColumns aCols;
  SplitTotal total_;
  /// What lblGmenge shows; no value before the first time.
  std::optional<double> shownTotal_;
  /// Rows that have a mark at present: two at most.
  std::vector<int> marked_;
  /// The cell that the editor belongs to; -1 for none.
  int lEditRow = -1, lEditCol = -1;
  /// Typing in the bottom row has added a further row, which Esc takes back.
  bool bNewRow = false;
  /// The current row has been typed into since the cursor came to it.
  bool bRowEdited = false;
  /// The form itself is moving the cursor.
  bool bLockCell = false;
  bool bMouseDown = false;
  /// The column to start in; -1 until the kind has set it.
  int lStartCol = -1;
};

}  // namespace zqn
