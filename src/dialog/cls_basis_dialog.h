// SPDX-License-Identifier: MIT
//
// The interface through which the generic form drives a catalogue without knowing it. The form owns the
// controls and the flow: list, key field, buttons, keys. A definition class owns what depends on its table:
// which controls are there, their captions, the statements, reading and writing a row.
//
//     objDialog.controls().txtKey(txtKey);           // the form hands a control over
//     objDialog.controls().txtKey().Text(u"10");     // the class works with it
//
// Called by frmDialog alone. An error of Init or DeleteData, or of Key when the form itself is asked for its
// key, goes on to the form's caller; whatever else fails is skipped there.
#pragma once

#include "ado/connection.h"
#include "ado/recordset.h"
#include "ado/sql.h"
#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/tdb_date.h"
#include "forms/tdb_list.h"
#include "forms/tdb_number.h"
#include "forms/text_box.h"
#include "forms/toggle_button.h"
#include "runtime/ref.h"

namespace zqn {

/// One control member: assigned once by the form, read by the class. Reading before that raises error 91.
template <class C>
class ControlSlot {
 public:
  void operator()(C& control) noexcept { control_ = &control; }
  C& operator()() const {
    if (control_ == nullptr) throw RuntimeError(error::ObjectNotSet);
    return *control_;
  }

 private:
  C* control_ = nullptr;
};

/// The control members, in the order of their slots. This is the one list of them.
struct BasisControls {
  ControlSlot<CommandButton> cmdCancel, cmdOK, cmdDelete, cmdNew;
  ControlSlot<Label> lblKey, lblKeyText;
  ControlSlot<TextBox> txtKey, txtKeyText;
  ControlSlot<Label> lblZusatz;
  ControlSlot<TextBox> txtZusatz;
  ControlSlot<Form> frmDialog;
  ControlSlot<TDBList> tdblShow;
  ControlSlot<Label> lblLangtext;
  ControlSlot<TextBox> txtLangtext;
  ControlSlot<Label> lblWoDrucken;
  ControlSlot<ToggleButton> tglDruckAN, tglDruckBS, tglDruckAB, tglDruckAF, tglDruckGS, tglDruckLM,
      tglDruckLS, tglDruckRG;
  ControlSlot<Label> lblSkonto, lblNetto, lblSk1, lblSk2, lblSk3, lblPercent1, lblPercent2, lblPercent3;
  ControlSlot<TDBNumber> tdbnPercent1, tdbnPercent2, tdbnPercent3;
  ControlSlot<Label> lblSkTage1, lblSkTage2, lblSkTage3;
  ControlSlot<TDBNumber> tdbnSkTage1, tdbnSkTage2, tdbnSkTage3;
  ControlSlot<Label> lblNettoTage;
  ControlSlot<TDBNumber> tdbnNettoTage;
  ControlSlot<Label> lblCbo1, lblCbo2;
  ControlSlot<ComboBox> cbo1, cbo2;
  ControlSlot<TDBDate> tdbdValidOf, tdbdValidTo;
  ControlSlot<CheckBox> chk1;
  ControlSlot<Frame> fra;
  ControlSlot<Label> lblFra;
};

class clsBasisDialog {
 public:
  virtual ~clsBasisDialog() = default;

  /// Once, after all control members are set: stores the connection, makes the controls of the table visible,
  /// sets captions, lengths and positions, and keeps the key. An error leaves the form without its catalogue.
  virtual void Init(const Variant& Key, const Ref<ado::Connection>& Connection) = 0;
  /// Blanks the fields for a record that does not exist. The key field stays.
  virtual void InitData() = 0;
  /// The key that the dialog returns: the one handed in, saved or picked last.
  virtual Variant Key() const = 0;
  virtual void Key(Variant Key) = 0;
  /// The check box has changed.
  virtual void DataChanged(Control& Control) = 0;
  /// Shows the current row.
  virtual void ReadData(ado::Recordset& Recordset) = 0;
  /// Writes the fields into the row of the present key, which is added when there is none. Skips failing
  /// statements.
  virtual void WriteData() = 0;
  virtual void DeleteData() = 0;
  /// The list: read-only, key and short text, in the order of the key. A failed query gives a closed
  /// recordset.
  virtual Ref<ado::Recordset> GetRecordsetForShow() = 0;
  /// The row of the present key, for reading and writing.
  virtual Ref<ado::Recordset> GetRecordsetForReadWrite() = 0;
  /// Binds the list and captions its columns.
  virtual void ShowData(const Ref<ado::Recordset>& Recordset) = 0;
  /// The criterion that finds the present key in the list.
  virtual ado::sql::Text FindCriteria() = 0;

  /// The control members.
  virtual BasisControls& controls() = 0;
};

/// The companion that every definition class owns: it keeps the controls and the key, and does what all
/// catalogues share.
class BasisDialog {
 public:
  void Init(const Variant& Key, const Ref<ado::Connection>& Connection);
  /// Blanks the visible text fields but the key, numbers to 0, drop-downs to no entry, toggles and the check
  /// box off. The list stays.
  void InitData();
  const Variant& Key() const noexcept { return key_; }
  void Key(Variant Key) { key_ = std::move(Key); }
  /// Binds the list.
  void ShowData(const Ref<ado::Recordset>& Recordset);
  BasisControls& controls() noexcept { return controls_; }
  const BasisControls& controls() const noexcept { return controls_; }

 private:
  Variant key_;
  Ref<ado::Connection> connection_;
  BasisControls controls_;
};

}  // namespace zqn
