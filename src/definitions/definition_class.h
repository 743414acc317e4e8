// SPDX-License-Identifier: MIT
//
// What every definition class does alike: it owns the base-dialog object and hands to it what is not its own
// affair. A class states its set-up, its fields and its statements.
#pragma once

#include "dialog/cls_basis_dialog.h"

namespace zqn {

class DefinitionClass : public clsBasisDialog {
 public:
  void InitData() override { m_objBasis.InitData(); }
  const Variant& Key() const override { return m_objBasis.Key(); }
  void Key(Variant Key) override { m_objBasis.Key(std::move(Key)); }
  void DataChanged(Control&) override {}
  /// Binds, then captions the list's columns with the captions of the two key labels.
  void ShowData(const Ref<ado::Recordset>& Recordset) override;
  BasisControls& controls() override { return m_objBasis.controls(); }

 protected:
  /// Makes controls visible, in this order.
  static void show(std::initializer_list<Control*> controls);
  /// Moves the four buttons to this height, and ends the form 600 twips below them.
  void placeButtons(int top);

  BasisDialog m_objBasis;
};

}  // namespace zqn
