// SPDX-License-Identifier: MIT
//
// The cell editor of the quantity split: where it floats, what each key does, how rows are taken and deleted.
#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/desktop.h"
#include "runtime/convert.h"
#include "split/frm_aufteilung_snch.h"

namespace zqn {

namespace {

/// How far the editor stands inside its cell, in pixels.
constexpr int inset = 3;
constexpr int line = 1;

int pixelsX(int count) { return static_cast<int>(std::lround(count * Desktop::current().TwipsPerPixelX())); }
int pixelsY(int count) { return static_cast<int>(std::lround(count * Desktop::current().TwipsPerPixelY())); }

Alignment editorAlignment(int cell) {
  if (cell >= 3 && cell <= 5) return Alignment::Center;
  return cell >= 6 && cell <= 8 ? Alignment::Right : Alignment::Left;
}

bool isFunctionKey(int code) { return code >= key::F1 && code <= key::F12; }

bool isLockOrSystemKey(int code) {
  constexpr int windowsKey = 91, menuKey = 93, numLock = 144, scrollLock = 145;
  return code == windowsKey || code == menuKey || code == numLock || code == scrollLock;
}

/// The keys that move, and what else types nothing.
bool isTypingKey(int code, int shift) {
  constexpr int firstTyping = 48;
  if (code < firstTyping || isFunctionKey(code) || isLockOrSystemKey(code)) return false;
  if ((shift & shift::Alt) != 0) return false;
  return (shift & shift::Ctrl) == 0 || code == 'V' || code == 'X';
}

/// Keys that do nothing to a cell, wherever it is.
bool isMeantForNoCell(int code, int shift) {
  constexpr int shiftKey = 16, capsLock = 20;
  return isFunctionKey(code) || isLockOrSystemKey(code) || code == key::Escape ||
         (code >= shiftKey && code <= capsLock) || (shift & shift::Alt) != 0;
}

}  // namespace

// ---- the editor over its cell

void frmAufteilungSNCH::PlaceEdit(bool full) {
  ResumeNext step;
  step([&] { txtEdit.Alignment(editorAlignment(aCols(MSHFlexGrid1.Col()).Alignment)); });
  if (!full) {
    step([&] {
      const int rowsAbove = MSHFlexGrid1.Row() - MSHFlexGrid1.TopRow() + 1;
      txtEdit.Top(MSHFlexGrid1.Top() + rowsAbove * MSHFlexGrid1.RowHeight(0) + pixelsY(line));
    });
    if (MSHFlexGrid1.Top() + MSHFlexGrid1.Height() < txtEdit.Top() + txtEdit.Height()) txtEdit.Visible(false);
    return;
  }
  showEditor();
  step([&] { txtEdit.SelStart(0); });
  step([&] { txtEdit.SelLength(static_cast<int>(txtEdit.Text().size())); });
  step([&] { txtEdit.SetFocus(); });
}

/// Gives the focus back to the editor, over its cell, as it stands.
void frmAufteilungSNCH::focusEditor() {
  ResumeNext step;
  if (!txtEdit.Visible()) showEditor();
  step([&] { txtEdit.SetFocus(); });
}

void frmAufteilungSNCH::showEditor() {
  ResumeNext step;
  // The cell is scrolled into view, and while that goes on the box may be hidden as out of sight.
  step([&] { txtEdit.Left(MSHFlexGrid1.Left() + MSHFlexGrid1.CellLeft() + pixelsX(inset)); });
  step([&] { txtEdit.Top(MSHFlexGrid1.Top() + MSHFlexGrid1.CellTop() + pixelsY(line)); });
  step([&] { txtEdit.Width(std::max(0, MSHFlexGrid1.CellWidth() - pixelsX(inset))); });
  step([&] { txtEdit.Height(std::max(0, MSHFlexGrid1.CellHeight() - pixelsY(line))); });
  txtEdit.Visible(true);
}

void frmAufteilungSNCH::CommitEdit() {
  ResumeNext step;
  if (!aCols.isEditable(lEditCol) || isRowMode() || lEditRow < 1) return;
  step([&] { setCell(lEditRow, lEditCol, aCols.cellText(lEditCol, txtEdit.Text())); });
  step([&] { RecalcTotals(); });
}

bool frmAufteilungSNCH::IsRowComplete() const {
  for (int col = SplitColumns::First; col <= SplitColumns::Last; ++col) {
    if (aCols(col).Editable && MSHFlexGrid1.TextMatrix(MSHFlexGrid1.Row(), col).empty()) return false;
  }
  return true;
}

void frmAufteilungSNCH::txtEdit_Change() {
  ResumeNext step;
  if (!txtEdit.Visible()) {
    txtEdit.Visible(true);
    step([&] { txtEdit.Top(MSHFlexGrid1.Top() + MSHFlexGrid1.CellTop() + pixelsY(line)); });
  }
  step([&] { RecalcTotals(); });
}

// ---- keys in the editor

void frmAufteilungSNCH::noteCell() {
  SyncRow();
  lEditRow = MSHFlexGrid1.Row();
  lEditCol = MSHFlexGrid1.Col();
}

void frmAufteilungSNCH::placeAndSwallow(int& KeyCode) {
  PlaceEdit(true);
  KeyCode = 0;
}

void frmAufteilungSNCH::addRow() { setRows(MSHFlexGrid1.Rows() + 1); }

void frmAufteilungSNCH::txtEdit_KeyPress(int& KeyAscii) {
  // The key codes of the arrow keys are the characters "(" and "&", which no cell takes therefore.
  for (const int swallowed : {key::Enter, key::Tab, key::Up, key::Down, key::Escape}) {
    if (KeyAscii == swallowed) KeyAscii = 0;
  }
}

void frmAufteilungSNCH::txtEdit_KeyDown(int& KeyCode, int Shift) {
  switch (KeyCode) {
    case key::Enter:
      return enterPressed(KeyCode);
    case key::Tab:
      return tabPressed(KeyCode, Shift);
    case key::Down:
      return downPressed(KeyCode);
    case key::Up:
      return upPressed(KeyCode);
    case key::Escape:
      return escapePressed();
    default:
      if (isTypingKey(KeyCode, Shift)) typed();
  }
}

void frmAufteilungSNCH::enterPressed(int& KeyCode) {
  CommitEdit();
  if (!aCols.IsLastEditCol(MSHFlexGrid1.Col()) || !isHeldByRow()) goOn();
  placeAndSwallow(KeyCode);
}

void frmAufteilungSNCH::tabPressed(int& KeyCode, int Shift) {
  if (Shift == shift::Shift) {
    goBack();
    return placeAndSwallow(KeyCode);
  }
  if (Shift != shift::None) return;
  // The row is tested before the editor's text is in it: what was only just typed does not count.
  if (aCols.IsLastEditCol(MSHFlexGrid1.Col()) && isHeldByRow()) return placeAndSwallow(KeyCode);
  CommitEdit();
  goOn();
  placeAndSwallow(KeyCode);
}

void frmAufteilungSNCH::goOn() {
  const int col = MSHFlexGrid1.Col();
  if (!aCols.IsLastEditCol(col)) {
    MSHFlexGrid1.Col(aCols.NextEditCol(col));
    return noteCell();
  }
  goDown(aCols.FirstEditCol());
}

void frmAufteilungSNCH::goDown(int col) {
  const bool furtherRow = MSHFlexGrid1.Row() == bottomRow();
  if (furtherRow) addRow();
  goTo(MSHFlexGrid1.Row() + 1, col);
  if (furtherRow) InitRow(MSHFlexGrid1.Row());
  noteCell();
}

void frmAufteilungSNCH::goBack() {
  if (!aCols.IsFirstEditCol(MSHFlexGrid1.Col())) {
    CommitEdit();
    MSHFlexGrid1.Col(aCols.PrevEditCol(MSHFlexGrid1.Col()));
    noteCell();
  } else if (MSHFlexGrid1.Row() >= 2) {
    CommitEdit();
    goTo(MSHFlexGrid1.Row() - 1, aCols.LastEditCol());
    noteCell();
  }
}

void frmAufteilungSNCH::downPressed(int& KeyCode) {
  CommitEdit();
  if (!isHeldByRow()) goDown(MSHFlexGrid1.Col());
  placeAndSwallow(KeyCode);
}

void frmAufteilungSNCH::upPressed(int& KeyCode) {
  if (MSHFlexGrid1.Row() >= 2) {
    CommitEdit();
    MSHFlexGrid1.Row(MSHFlexGrid1.Row() - 1);
    noteCell();
  }
  placeAndSwallow(KeyCode);
}

void frmAufteilungSNCH::escapePressed() {
  if (bNewRow) setRows(MSHFlexGrid1.Rows() - 1);
  bNewRow = bRowEdited = false;
  RestoreRow();
  SyncRow();
}

void frmAufteilungSNCH::typed() {
  bRowEdited = true;
  if (MSHFlexGrid1.Row() == bottomRow()) {
    bNewRow = true;
    addRow();
    InitRow(MSHFlexGrid1.Row() + 1);
  }
  MarkEdited();
}

void frmAufteilungSNCH::txtEdit_Paste(StringView text, bool& taken) {
  typed();
  taken = text.find_first_of(u"\t\r\n") != StringView::npos;
  if (!taken) return;
  // Lines of a spreadsheet fill cell after cell, and what stands in them goes in as it is. An empty cell of
  // theirs leaves ours alone.
  const int startCol = MSHFlexGrid1.Col();
  const std::vector<String> lines = Split(withBreaks(text, u"\n"), u"\n");
  for (const String& line : lines) {
    const std::vector<String> cells = Split(line, u"\t");
    for (const String& cell : cells) {
      txtEdit.userPasted(cell);
      if (&cell != &cells.back()) pastedTab();
    }
    if (&line != &lines.back()) pastedBreak(startCol);
  }
}

void frmAufteilungSNCH::pastedTab() {
  CommitEdit();
  if (!aCols.IsLastEditCol(MSHFlexGrid1.Col()) || !isHeldByRow()) goOn();
  PlaceEdit(true);
}

void frmAufteilungSNCH::pastedBreak(int startCol) {
  CommitEdit();
  if (isHeldByRow()) {
    MSHFlexGrid1.Col(startCol);
    noteCell();
  } else {
    goDown(startCol);
  }
  PlaceEdit(true);
}

// ---- the grid

void frmAufteilungSNCH::MSHFlexGrid1_RowColChange() {
  if (bLockCell) return;
  if (!aCols.isEditable(MSHFlexGrid1.Col()) && !isRowMode()) {
    if (lEditRow < 1) return;
    bLockCell = true;
    MSHFlexGrid1.Row(lEditRow);
    MSHFlexGrid1.Col(lEditCol);
    bLockCell = false;
    return;
  }
  if (isRowMode()) return;
  CommitEdit();
  SyncRow();
  PlaceEdit(true);
  lEditRow = MSHFlexGrid1.Row();
  lEditCol = MSHFlexGrid1.Col();
}

void frmAufteilungSNCH::MSHFlexGrid1_MouseDown() {
  ResumeNext step;
  const int row = MSHFlexGrid1.MouseRow();
  const int col = MSHFlexGrid1.MouseCol();
  if (row < 0 || col < 0) {
    if (!isRowMode()) focusEditor();
    return;
  }
  bMouseDown = true;
  step([&] { UpdateMarks(); });
  if (col == 0) {
    step([&] { CommitEdit(); });
    if (lEditRow != std::max(row, 1)) bRowEdited = bNewRow = false;
    MSHFlexGrid1.SelectionMode(FlexGrid::ByRow);
    step([&] { MSHFlexGrid1.Row(std::max(row, 1)); });
    txtEdit.Visible(false);
    lEditRow = lEditCol = -1;
    return;
  }
  MSHFlexGrid1.SelectionMode(FlexGrid::Free);
  const bool editable = aCols.isEditable(col);
  if (!editable && lEditRow >= 1) return focusEditor();
  // Out of the row mode a read-only cell leads to the cell of its row that can be edited.
  txtEdit.Visible(true);
  step([&] { editable ? goTo(std::max(row, 1), col) : goTo(MSHFlexGrid1.Row(), aCols.FirstEditCol()); });
}

void frmAufteilungSNCH::MSHFlexGrid1_MouseUp() {
  if (!std::exchange(bMouseDown, false) || !isRowMode()) return;
  ResumeNext step;
  const int Row = MSHFlexGrid1.Row();
  const int RowSel = MSHFlexGrid1.RowSel();
  step([&] { MSHFlexGrid1.Row(Row); });
  step([&] { MSHFlexGrid1.Col(1); });
  step([&] { MSHFlexGrid1.RowSel(RowSel); });
  step([&] { MSHFlexGrid1.ColSel(SplitColumns::Last); });
  step([&] { UpdateMarks(); });
  step([&] { MSHFlexGrid1.SetFocus(); });
}

void frmAufteilungSNCH::MSHFlexGrid1_Scroll() {
  ResumeNext step;
  if (!MSHFlexGrid1.RowIsVisible(MSHFlexGrid1.Row())) {
    txtEdit.Visible(false);
  } else if (!isRowMode()) {
    txtEdit.Visible(true);
  }
  step([&] { PlaceEdit(false); });
  // Whoever scrolls back can type on.
  if (txtEdit.Visible() && ActiveControl() == nullptr) step([&] { txtEdit.SetFocus(); });
}

void frmAufteilungSNCH::MSHFlexGrid1_KeyDown(int KeyCode) {
  if (KeyCode == key::Delete && isRowMode()) DeleteRows();
}

void frmAufteilungSNCH::DeleteRows() {
  const int first = std::min(MSHFlexGrid1.Row(), MSHFlexGrid1.RowSel());
  int last = std::max(MSHFlexGrid1.Row(), MSHFlexGrid1.RowSel());
  if (last == bottomRow()) --last;
  if (last < first) return;
  const int count = last - first + 1;
  const String question =
      u"Sie beabsichtigen, " + CStr(std::int32_t{count}) + (count == 1 ? u" Datensatz" : u" Datensätze") +
      u" zu löschen.\r\n\r\nKlicken Sie auf 'Ja', damit diese Datensätze für immer gelöscht "
      u"werden. Sie können diese Änderung nicht rückgängig machen.\r\nSind Sie sicher, dass "
      u"Sie diese Datensätze löschen möchten?";
  if (MsgBox(question, msgbox::YesNo | msgbox::Exclamation | msgbox::DefaultButton2, u"Löschen?") !=
      MsgBoxResult::Yes)
    return;
  ResumeNext step;
  for (int row = last + 1; row <= bottomRow(); ++row) {
    for (int col = SplitColumns::First; col <= SplitColumns::Last; ++col)
      setCell(row - count, col, String(MSHFlexGrid1.TextMatrix(row, col)));
  }
  step([&] { setRows(MSHFlexGrid1.Rows() - count); });
  const auto takeFirst = [&] {
    step([&] { MSHFlexGrid1.Col(0); });
    step([&] { MSHFlexGrid1.ColSel(SplitColumns::Last); });
    lEditRow = lEditCol = -1;
  };
  step([&] { MSHFlexGrid1.Row(first); });
  takeFirst();
  step([&] { SaveRow(); });
  step([&] { SyncRow(); });
  takeFirst();
  step([&] { RecalcTotals(); });
}

void frmAufteilungSNCH::Form_KeyDown(int KeyCode, int Shift) {
  // The editor is out of sight with its cell, and the focus is nowhere: a key brings both back first.
  if (ActiveControl() == nullptr && !isRowMode() && !isMeantForNoCell(KeyCode, Shift)) focusEditor();
}

void frmAufteilungSNCH::Form_KeyUp(int KeyCode) {
  ResumeNext step;
  if (KeyCode == key::F9) step([&] { btnOK_Click(); });
  if (KeyCode == key::F10) step([&] { btnCancel_Click(); });
}

}  // namespace zqn
