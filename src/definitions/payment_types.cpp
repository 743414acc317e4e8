// SPDX-License-Identifier: MIT
#include "definitions/payment_types.h"

namespace zqn {

namespace {

constexpr StringView withoutTransfer = u"-";

}  // namespace

// ---- both sides

void PaymentTypeRecord::showPaymentType(int buttonTop) {
  BasisControls& c = controls();
  showRecord(u"Zahlungsarten bearbeiten");
  show({&c.lblZusatz(), &c.txtZusatz()});
  c.txtZusatz().MaxLength(3);
  placeButtons(buttonTop);
  c.txtLangtext().Height(713);
  c.txtKeyText().Width(3975);
}

void PaymentTypeRecord::readFields(ado::Recordset& row) {
  TextBlockEditor::readFields(row);
  readText(row, u"ZahlungsartFibu", controls().txtZusatz());
}

void PaymentTypeRecord::writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) {
  TextBlockEditor::writeFields(step, row);
  writeText(step, row, u"ZahlungsartFibu", accountingCode());
}

// ---- sales

void clsZahlungsart::setUp() {
  showPaymentType(4840);
  BasisControls& c = controls();
  c.chk1().Visible(true);
  c.chk1().Caption(u"ohne FiBu-Übergabe (z.B. Barverkauf)");
  c.chk1().Left(c.txtLangtext().Left());
  c.chk1().Top(c.txtLangtext().Top() + c.txtLangtext().Height() + 160);
  c.chk1().Width(c.txtLangtext().Width());
}

void clsZahlungsart::DataChanged(Control&) {
  ResumeNext step;
  step([&] { enableCode(controls().chk1().Value() == 0); });
}

void clsZahlungsart::readFields(ado::Recordset& row) {
  PaymentTypeRecord::readFields(row);
  BasisControls& c = controls();
  const bool transferred = c.txtZusatz().Text() != withoutTransfer;
  if (!transferred) c.txtZusatz().Text(u"");
  enableCode(transferred);
  c.chk1().Value(transferred ? 0 : 1);
}

String clsZahlungsart::accountingCode() {
  return controls().chk1().Value() == 0 ? PaymentTypeRecord::accountingCode() : String(withoutTransfer);
}

void clsZahlungsart::enableCode(bool enable) {
  BasisControls& c = controls();
  c.txtZusatz().Enabled(enable);
  // The colour of the form while it is off, of an entry field while it is on: both are taken from neighbours.
  c.txtZusatz().BackColor(enable ? c.txtLangtext().BackColor() : c.chk1().BackColor());
}

}  // namespace zqn
