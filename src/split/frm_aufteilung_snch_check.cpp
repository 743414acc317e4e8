// SPDX-License-Identifier: MIT
//
// OK and Abbrechen of the quantity split: the check of every row, and the split text that goes back.
#include <cmath>

#include "forms/message_box.h"
#include "runtime/convert.h"
#include "split/frm_aufteilung_snch.h"
#include "split/split_values.h"

namespace zqn {

namespace {

constexpr StringView invalidInput = u"Ungültige Eingabe";
constexpr StringView noQuantity =
    u"Für mindestens eine Zeile wurde als Aufteilungsmenge 0 angegeben. Bitte geben Sie eine gültige "
    u"Aufteilungsmenge an oder löschen sie die Zeile!";
constexpr StringView noBatch =
    u"Für mindestens eine Zeile wurde keine Chargennummer angegeben. Bitte vervollständigen Sie die Angaben!";
constexpr StringView noDate =
    u"Für mindestens eine Zeile wurde kein Verfalldatum angegeben. Bitte vervollständigen Sie die Angaben!";
constexpr StringView noSerial =
    u"Für mindestens eine Zeile wurde keine Seriennummer angegeben. Bitte vervollständigen Sie die Angaben!";
constexpr StringView difference =
    u"Menge stimmt nicht mit der aufzuteilenden Menge überein. Aufteilung trotzdem übernehmen?";

constexpr double tolerated = 0.0001;

}  // namespace

void frmAufteilungSNCH::btnOK_Click() {
  ResumeNext step;
  bool Cancel = false;
  if (bRowEdited) step([&] { MSHFlexGrid1_RowColChange(); });
  step([&] { isRowMode() ? MSHFlexGrid1.SetFocus() : focusEditor(); });
  step([&] { CheckSplit(Cancel); });
  if (Cancel) return;
  step([&] { Aufteilung = BuildSplit(); });
  step([&] { UnloadMe(); });
}

void frmAufteilungSNCH::btnCancel_Click() {
  ResumeNext step;
  step([&] { UnloadMe(); });
}

std::optional<frmAufteilungSNCH::Complaint> frmAufteilungSNCH::complaintAbout(int row) const {
  const SplitCells cells = cellsOfRow(row);
  const auto isBlank = [&](SplitField field) { return Trim(cells[field]).empty(); };
  if (kind_ == SplitKind::Batches || kind_ == SplitKind::Both) {
    if (Val2(cells[SplitQuantity]) == 0) return Complaint{1, noQuantity};
    if (isBlank(SplitBatch)) return Complaint{3, noBatch};
    if (VerfalldatumPflicht && isBlank(SplitDate)) return Complaint{4, noDate};
  }
  if ((kind_ == SplitKind::Serials || kind_ == SplitKind::Both) && isBlank(SplitSerial))
    return Complaint{5, noSerial};
  return std::nullopt;
}

void frmAufteilungSNCH::showFailed(int row, const Complaint& complaint) {
  ResumeNext step;
  step([&] { MsgBox(complaint.text, msgbox::OKOnly | msgbox::Exclamation, invalidInput); });
  // A cell that nobody can edit leads to the first one of its row that somebody can.
  const int col = aCols.isEditable(complaint.col) ? complaint.col : aCols.FirstEditCol();
  MSHFlexGrid1.SelectionMode(FlexGrid::Free);
  txtEdit.Visible(true);
  step([&] { goTo(row, col); });
  step([&] { PlaceEdit(true); });
}

void frmAufteilungSNCH::CheckSplit(bool& Cancel) {
  ResumeNext step;
  for (int row = 1; row < bottomRow(); ++row) {
    const std::optional<Complaint> complaint = complaintAbout(row);
    if (!complaint) continue;
    showFailed(row, *complaint);
    Cancel = true;
    return;
  }
  const double total = Val2(lblGmenge.Caption());
  if (target_ != 0 && sixDecimals(std::abs(total - target_)) > tolerated) {
    MsgBoxResult answer = MsgBoxResult::No;
    step([&] {
      answer = MsgBox(difference, msgbox::YesNo | msgbox::Question | msgbox::DefaultButton2,
                      u"Aufteilung trotz Differenzen übernehmen?");
    });
    Cancel = answer != MsgBoxResult::Yes;
    if (Cancel) return;
  }
  Gmenge = total;
  step([&] { Aufteilung = BuildSplit(); });
}

String frmAufteilungSNCH::BuildSplit() const {
  std::vector<SplitCells> rows;
  for (int row = 1; row < bottomRow(); ++row) rows.push_back(cellsOfRow(row));
  return zqn::BuildSplit(rows);
}

}  // namespace zqn
