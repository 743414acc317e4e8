// SPDX-License-Identifier: MIT
//
// The payment type records of the sales and of the purchase side on the generic form: key, short text, the
// code in financial accounting, and a text block. On the sales side a check box stands for the code "-": no
// transfer to financial accounting.
//
// ORBDialog::Show serves these kinds with a form of their own; ORBDialog::ShowGeneric comes here.
#pragma once

#include "definitions/text_block_editor.h"

namespace zqn {

class PaymentTypeRecord : public TextBlockEditor {
 protected:
  PaymentTypeRecord(StringView table, StringView textKind, const DocumentSide& side)
      : TextBlockEditor({table, u"Zahlungsart"},
                        {textKind, side, u"DELETE FROM Textbausteine WHERE Textart = "}) {}

  /// Makes the record's fields visible and gives the long text several lines.
  void showPaymentType(int buttonTop);
  void readFields(ado::Recordset& row) override;
  void writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) override;
  /// What is written as the code in financial accounting.
  virtual String accountingCode() { return controls().txtZusatz().Text(); }
};

/// Payment types of sales documents, kind 1.
class clsZahlungsart final : public PaymentTypeRecord {
 public:
  clsZahlungsart() : PaymentTypeRecord(u"Zahlungsarten", u"ZAA", salesSide) {}

  /// The code can be typed while the check box is off; its text stays.
  void DataChanged(Control& Control) override;

 protected:
  void setUp() override;
  void readFields(ado::Recordset& row) override;
  String accountingCode() override;

 private:
  void enableCode(bool enable);
};

/// Payment types of purchase documents, kind 2: here "-" is a code as any other.
class clsZahlungsartEk final : public PaymentTypeRecord {
 public:
  clsZahlungsartEk() : PaymentTypeRecord(u"ZahlungsartenEK", u"EZA", purchaseSide) {}

 protected:
  void setUp() override { showPaymentType(4440); }
};

}  // namespace zqn
