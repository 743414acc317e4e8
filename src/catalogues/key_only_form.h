// SPDX-License-Identifier: MIT
//
// Catalogue forms whose record is its key alone: a tall list, one field below it, the buttons. A form states
// what the field is called and how long a key may be, its table and its list:
//
//     constexpr auto roster = keyOnlyRoster(u"Kriterium", 30);
//     class frmSelektionskriterienVertrag final : public KeyOnlyForm { ... };
#pragma once

#include <array>

#include "catalogues/catalogue_form.h"

namespace zqn {

/// The controls of such a form; its client area is 5430 by 5145 twips.
constexpr std::array<ControlDesign, 7> keyOnlyRoster(const char16_t* keyLabel, int maxLength) {
  using enum ControlKind;
  // clang-format off
  return {{
      {u"TDBList1",      TDBList,       u"",           120,  120, 5175, 3945},
      {u"txtSchluessel", Label,         keyLabel,      120, 4230,  855,  240},
      {u"Schluessel",    TextBox,       u"",          1320, 4200, 3990,  285, {.MaxLength = maxLength}},
      {u"btnOK",         CommandButton, u"Speichern", 2760, 4725, 1215,  315},
      {u"btnCancel",     CommandButton, u"Schließen", 4095, 4725, 1215,  315, {.Cancel = true}},
      {u"btnNew",        CommandButton, u"Neu",        105, 4725, 1215,  315},
      {u"btnDelete",     CommandButton, u"Löschen",   1425, 4725, 1215,  315},
  }};
  // clang-format on
}

constexpr FormDesign keyOnlyForm(const char16_t* name, const char16_t* caption,
                                 const std::array<ControlDesign, 7>& roster) {
  return {name, caption, 5430, 5145, roster};
}

class KeyOnlyForm : public CatalogueForm {
 protected:
  using CatalogueForm::CatalogueForm;

  /// There is no field beside the key.
  void ClearFields() override {}
  /// The text takes the stored form of the key.
  void readFields(ado::Recordset& rs) override;

  /// "Speichern" follows each keystroke, while "Löschen" waits until the field is left.
  void followTyping();
};

}  // namespace zqn
