// SPDX-License-Identifier: MIT
#include "split/frm_aufteilung_snch.h"

#include <algorithm>
#include <utility>

#include "runtime/convert.h"
#include "split/split_marks.h"
#include "split/split_values.h"

namespace zqn {

namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"picCurrent",         PictureBox,    u"",             0,    0,  210,  210, {.Visible = false}},
    {u"picEdit",            PictureBox,    u"",             0,    0,  210,  210, {.Visible = false}},
    {u"picNew",             PictureBox,    u"",             0,    0,  210,  210, {.Visible = false}},
    {u"picCurrenti",        PictureBox,    u"",             0,    0,  210,  210, {.Visible = false}},
    {u"picEditi",           PictureBox,    u"",             0,    0,  210,  210, {.Visible = false}},
    {u"picNewi",            PictureBox,    u"",             0,    0,  210,  210, {.Visible = false}},
    {u"txtEdit",            TextBox,       u"",          1620, 4680,  825,  285, {.Flat = true, .Overlaps = true}},
    {u"MSHFlexGrid1",       MSHFlexGrid,   u"",            90,   45, 4965, 4125, {.TabStop = false}},
    {u"lblGmenge",          Label,         u" ",           90, 4230, 1245,  285, {.Alignment = Alignment::Right, .Bold = true}},
    {u"btnCancel",          CommandButton, u"Abbrechen", 3840, 4680, 1215,  315, {.Cancel = true, .TabStop = false}},
    {u"btnOK",              CommandButton, u"OK",        2520, 4680, 1215,  315, {.TabStop = false}},
    {u"lblAufteilungstext", Label,         u" ",         1395, 4230, 3630,  285, {.Bold = true}},
};
// clang-format on

constexpr FormDesign form{u"frmAufteilungSNCH", u" ", 5175, 5085, roster};

}  // namespace plan

constexpr std::uint32_t darkGreen = 40960;
constexpr std::uint32_t darkRed = 176;
constexpr int markColumn = 0;
constexpr int markWidth = 250;

struct KindDesign {
  const char16_t* caption;
  int startCol;
};
/// By SplitKind.
constexpr KindDesign kindDesigns[] = {{u" ", -1},
                                      {u"Chargenaufteilung", 3},
                                      {u"Seriennummernaufteilung", 5},
                                      {u"Chargen/Seriennummernaufteilung", 3}};
static_assert(std::size(kindDesigns) == splitKinds);

/// No kind for what is no number from 1 to 3.
SplitKind kindOf(const Variant& Aufteilungsart) {
  std::int32_t number = 0;
  ResumeNext step;
  step([&] { number = CLng(Aufteilungsart); });
  return number >= 1 && number <= 3 ? static_cast<SplitKind>(number) : SplitKind::None;
}

/// Sets a flag, and gives it back the value that it had.
class Held {
 public:
  explicit Held(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~Held() { flag_ = before_; }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace

frmAufteilungSNCH::frmAufteilungSNCH() : Form(plan::form) {
  Get<PictureBox>(u"picCurrent").Picture(&split_marks::current);
  Get<PictureBox>(u"picEdit").Picture(&split_marks::edit);
  Get<PictureBox>(u"picNew").Picture(&split_marks::fresh);
  Get<PictureBox>(u"picCurrenti").Picture(&split_marks::currenti);
  Get<PictureBox>(u"picEditi").Picture(&split_marks::editi);
  Get<PictureBox>(u"picNewi").Picture(&split_marks::freshi);

  txtEdit.Change = [this] { txtEdit_Change(); };
  txtEdit.KeyDown = [this](int& KeyCode, int Shift) { txtEdit_KeyDown(KeyCode, Shift); };
  txtEdit.KeyPress = [this](int& KeyAscii) { txtEdit_KeyPress(KeyAscii); };
  txtEdit.Paste = [this](StringView text, bool& taken) { txtEdit_Paste(text, taken); };
  MSHFlexGrid1.RowColChange = [this] { MSHFlexGrid1_RowColChange(); };
  MSHFlexGrid1.MouseDown = [this](int, int) { MSHFlexGrid1_MouseDown(); };
  MSHFlexGrid1.MouseUp = [this](int, int) { MSHFlexGrid1_MouseUp(); };
  MSHFlexGrid1.KeyDown = [this](int& KeyCode, int) { MSHFlexGrid1_KeyDown(KeyCode); };
  MSHFlexGrid1.Scroll = [this] { MSHFlexGrid1_Scroll(); };
  btnCancel.Click = [this] { btnCancel_Click(); };
  btnOK.Click = [this] { btnOK_Click(); };
  KeyDown = [this](int& KeyCode, int Shift) { Form_KeyDown(KeyCode, Shift); };
  KeyUp = [this](int KeyCode, int) { Form_KeyUp(KeyCode); };
  MSHFlexGrid1.AccessibleName(u"Aufteilung");
  MSHFlexGrid1.Editor(&txtEdit);
  for (const Picture* mark : {&split_marks::current, &split_marks::currenti})
    MSHFlexGrid1.wordsForPicture(*mark, u"aktuelle Zeile");
  for (const Picture* mark : {&split_marks::edit, &split_marks::editi})
    MSHFlexGrid1.wordsForPicture(*mark, u"geänderte Zeile");
  for (const Picture* mark : {&split_marks::fresh, &split_marks::freshi})
    MSHFlexGrid1.wordsForPicture(*mark, u"neue Zeile");
  total_.rows(MSHFlexGrid1.Rows());
}

// ---- cells

void frmAufteilungSNCH::setRows(int count) {
  // The total first: the grid may move its cursor, and the total is asked for then.
  total_.rows(count);
  MSHFlexGrid1.Rows(count);
}

void frmAufteilungSNCH::setCell(int row, int col, StringView text) {
  MSHFlexGrid1.TextMatrix(row, col, text);
  if (aCols(col).Numeric) total_.set(row, Val2(text));
}

SplitCells frmAufteilungSNCH::cellsOfRow(int row) const {
  SplitCells cells;
  for (int col = SplitColumns::First; col <= SplitColumns::Last; ++col)
    cells[static_cast<std::size_t>(col - 1)] = MSHFlexGrid1.TextMatrix(row, col);
  return cells;
}

// ---- opening

void frmAufteilungSNCH::ShowData() {
  ResumeNext step;
  {
    const Held held(bLockCell);
    step([&] { setRows(2); });
    lStartCol = -1;
    step([&] { InitForm(); });
    step([&] { InitRow(bottomRow()); });
    step([&] { MSHFlexGrid1.Col(lStartCol >= 1 ? lStartCol : aCols.FirstEditCol()); });
    step([&] { MSHFlexGrid1.Row(bottomRow()); });
    lEditRow = MSHFlexGrid1.Row();
    lEditCol = MSHFlexGrid1.Col();
    step([&] { SaveRow(); });
    step([&] { SyncRow(); });
    step([&] { PlaceEdit(true); });
  }
  step([&] { Show(); });
}

void frmAufteilungSNCH::InitForm() {
  ResumeNext step;
  String unit;
  step([&] { unit = concatenate(ME); });
  kind_ = kindOf(Aufteilungsart);
  target_ = Val2(Gmenge);
  lblAufteilungstext.Caption(target_ != 0 ? u"von " + quantityText(target_) + u" " + unit + u" aufgeteilt."
                                          : unit);
  layOut();
  for (int col = SplitColumns::First; col <= SplitColumns::Last; ++col)
    step([&] { MSHFlexGrid1.TextMatrix(0, col, splitHeading(col)); });
  step([&] { MSHFlexGrid1.Row(0); });
  step([&] { MSHFlexGrid1.Col(1); });
  step([&] { MSHFlexGrid1.CellAlignment(cell_alignment::RightCenter); });
  aCols = SplitColumns(kind_, unit);

  SplitTable table;
  step([&] { table = ParseSplit(concatenate(Aufteilung)); });
  step([&] { setRows(table.count + 2); });
  for (int i = 0; i < table.count; ++i) {
    step([&] { MSHFlexGrid1.Row(i + 1); });
    step([&] { InitRow(i + 1); });
    const SplitCells cells = cellsOf(table.rows[static_cast<std::size_t>(i)], kind_);
    for (std::size_t j = 0; j < cells.size(); ++j) {
      const int col = static_cast<int>(j) + 1;
      step([&] { setCell(i + 1, col, cells[j]); });
    }
    step([&] { SaveRow(); });
    step([&] { UpdateMarks(); });
  }
  step([&] { MSHFlexGrid1.Row(bottomRow()); });
  step([&] { MSHFlexGrid1.Col(aCols.FirstEditCol()); });
}

void frmAufteilungSNCH::layOut() {
  constexpr int besideColumns = 520;  // marks, scroll bar, frame
  constexpr int betweenButtons = 105;
  constexpr int besideGrid = 300;
  MSHFlexGrid1.Cols(SplitColumns::Last + 1);
  MSHFlexGrid1.ColWidth(markColumn, markWidth);
  const KindDesign& design = kindDesigns[static_cast<std::size_t>(kind_)];
  Caption(design.caption);
  lStartCol = design.startCol;
  int columns = 0;
  for (int col = SplitColumns::First; col <= SplitColumns::Last; ++col) {
    if (splitWidth(col, kind_) >= 0) MSHFlexGrid1.ColWidth(col, splitWidth(col, kind_));
    columns += MSHFlexGrid1.ColWidth(col);
  }
  MSHFlexGrid1.Width(columns + besideColumns);
  btnCancel.Left(MSHFlexGrid1.Left() + MSHFlexGrid1.Width() - btnCancel.Width());
  btnOK.Left(btnCancel.Left() - btnOK.Width() - betweenButtons);
  Width(MSHFlexGrid1.Width() + besideGrid);
}

// ---- rows

void frmAufteilungSNCH::InitRow(int row) {
  const int Col = MSHFlexGrid1.Col();
  const int Row = MSHFlexGrid1.Row();
  const Held held(bLockCell);
  ResumeNext step;
  step([&] { MSHFlexGrid1.Row(row); });
  step([&] { MSHFlexGrid1.Col(markColumn); });
  step([&] { UpdateMarks(); });
  for (int col = SplitColumns::First; col <= SplitColumns::Last; ++col) {
    step([&] { RecalcTotals(); });
    step([&] { MSHFlexGrid1.Col(col); });
    step([&] {
      MSHFlexGrid1.CellBackColor(aCols(col).Editable ? colour::WindowBackground : colour::ButtonFace);
    });
    step([&] { MSHFlexGrid1.CellAlignment(aCols(col).Alignment); });
    step([&] { setCell(row, col, aCols(col).Default); });
  }
  step([&] { MSHFlexGrid1.Col(Col); });
  step([&] { MSHFlexGrid1.Row(Row); });
}

void frmAufteilungSNCH::SaveRow() {
  ResumeNext step;
  for (int col = SplitColumns::First; col <= SplitColumns::Last; ++col)
    step([&] { aCols(col).Saved = MSHFlexGrid1.TextMatrix(MSHFlexGrid1.Row(), col); });
}

void frmAufteilungSNCH::RestoreRow() {
  ResumeNext step;
  for (int col = SplitColumns::First; col <= SplitColumns::Last; ++col)
    step([&] { setCell(MSHFlexGrid1.Row(), col, aCols(col).Saved); });
}

void frmAufteilungSNCH::setMark(int row, const Picture* mark) {
  MSHFlexGrid1.setPicture(row, markColumn, mark);
  if (mark != nullptr) marked_.push_back(row);
}

void frmAufteilungSNCH::UpdateMarks() {
  // Only the first row of the range and the bottom row have a mark; what had one else loses it. The cursor,
  // which stands where it stood afterwards, need not move for it.
  for (const int row : std::exchange(marked_, {})) {
    if (row < MSHFlexGrid1.Rows()) setMark(row, nullptr);
  }
  const int first = std::min(MSHFlexGrid1.Row(), MSHFlexGrid1.RowSel());
  const int last = std::max(MSHFlexGrid1.Row(), MSHFlexGrid1.RowSel());
  const bool selected = MSHFlexGrid1.ColSel() != MSHFlexGrid1.Col() && !bMouseDown;
  const auto look = [&](int row, const Picture& plain, const Picture& inverse) {
    return selected && row >= first && row <= last ? &inverse : &plain;
  };
  if (bottomRow() >= 1 && bottomRow() != first)
    setMark(bottomRow(), look(bottomRow(), split_marks::fresh, split_marks::freshi));
  if (first < 1) return;
  setMark(first, bRowEdited ? look(first, split_marks::edit, split_marks::editi)
                            : look(first, split_marks::current, split_marks::currenti));
}

void frmAufteilungSNCH::MarkEdited() {
  const int Col = MSHFlexGrid1.Col();
  const Held held(bLockCell);
  ResumeNext step;
  step([&] { MSHFlexGrid1.Col(markColumn); });
  step([&] { UpdateMarks(); });
  step([&] { MSHFlexGrid1.CellPictureAlignment(cell_alignment::CenterCenter); });
  step([&] { MSHFlexGrid1.Col(Col); });
}

void frmAufteilungSNCH::SyncRow() {
  const int Col = MSHFlexGrid1.Col();
  const int Row = MSHFlexGrid1.Row();
  const Held held(bLockCell);
  ResumeNext step;
  if (!isRowMode()) step([&] { RecalcTotals(); });
  step([&] { MSHFlexGrid1.Col(markColumn); });
  if (lEditRow != Row) {
    step([&] { SaveRow(); });
    bRowEdited = bNewRow = false;
    if (lEditRow == bottomRow()) {
      step([&] { MSHFlexGrid1.Row(lEditRow); });
      step([&] { MSHFlexGrid1.CellPictureAlignment(cell_alignment::CenterCenter); });
      step([&] { MSHFlexGrid1.Row(Row); });
    }
  }
  step([&] { MSHFlexGrid1.CellPictureAlignment(cell_alignment::CenterCenter); });
  step([&] { UpdateMarks(); });
  step([&] { MSHFlexGrid1.Col(Col); });
  if (!isRowMode()) step([&] { txtEdit.Text(MSHFlexGrid1.Text()); });
}

void frmAufteilungSNCH::goTo(int row, int col) {
  {
    const Held held(bLockCell);
    MSHFlexGrid1.Row(row);
    MSHFlexGrid1.Col(col);
  }
  MSHFlexGrid1_RowColChange();
}

// ---- the running total

/// What a total of so much means for the target; nothing without one.
String frmAufteilungSNCH::restText(double sum) const {
  if (target_ == 0) return {};
  const double rest = sixDecimals(target_ - sum);
  const String all = numberText(sixDecimals(target_));
  if (rest == 0) return all + u" von " + all + u" verteilt";
  return rest > 0 ? u"noch " + numberText(rest) + u" von " + all + u" zu verteilen"
                  : numberText(-rest) + u" mehr als " + all + u" verteilt";
}

void frmAufteilungSNCH::RecalcTotals() {
  constexpr int quantityCol = 1;
  const int bottom = bottomRow();
  if (bottom < 1) return;
  const bool typing = txtEdit.Visible() && MSHFlexGrid1.Col() == quantityCol && MSHFlexGrid1.Row() >= 1;
  const double sum =
      typing ? total_.without(bottom, MSHFlexGrid1.Row(), Val2(txtEdit.Text())) : total_.without(bottom);
  // It runs at every turn: what stands there already is not written again.
  if (sum != shownTotal_) {
    lblGmenge.Caption(quantityText(sum));
    lblGmenge.ToolTipText(restText(sum));
  }
  shownTotal_ = sum;
  if (target_ != 0) lblGmenge.ForeColor(sum == sixDecimals(target_) ? darkGreen : darkRed);
  const double rest = sixDecimals(target_ - sum);
  const double offered = kind_ == SplitKind::Batches ? std::max(rest, 0.0) : 1.0;
  if (kind_ != SplitKind::Batches && rest <= 0) return;
  if (total_.at(bottom) != offered) setCell(bottom, quantityCol, quantityText(offered));
}

}  // namespace zqn
