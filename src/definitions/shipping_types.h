// SPDX-License-Identifier: MIT
//
// The shipping types of the sales and of the purchase side. The sales side has two layouts, the consignment
// note and the shipping label, drawn from the forms in Versandformulare; their columns hold the text that
// the drop-down shows, not the key of the form.
#pragma once

#include "definitions/text_block_editor.h"

namespace zqn {

/// Shipping types of sales documents, kind 4.
class clsVersandarten final : public TextBlockEditor {
 public:
  clsVersandarten() : TextBlockEditor({u"Versandtexte", u"Versandart"}, {u"VSA", salesSide}) {}

  /// Fills the drop-downs last: error 3021 when there is no form to choose, 3704 when they cannot be asked
  /// for; everything else is set up by then.
  void Init(const Variant& Key, const Ref<ado::Connection>& Connection) override;

 protected:
  void setUp() override;
  /// A layout that is no longer offered shows the first one.
  void readFields(ado::Recordset& row) override;
  void writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) override;

 private:
  void FillLayoutCombos();
  static void FillLayoutCombo(ComboBox& Combo, ado::Recordset& Recordset);
};

/// Shipping types of purchase documents, kind 18.
class clsVersandartenEK final : public TextBlockEditor {
 public:
  clsVersandartenEK() : TextBlockEditor({u"VersandtexteEK", u"Versandart"}, {u"EVA", purchaseSide}) {}

 protected:
  void setUp() override;
};

}  // namespace zqn
