// SPDX-License-Identifier: MIT
//
// What every definition class does alike: it owns the base-dialog object and hands to it what is not its own
// affair, and it asks its one table by the key of the form. A class states its table, its set-up and its
// fields:
//
//     class clsKeys final : public TableEditor {  // table_editor.h: writes and deletes, too
//      public:
//       clsKeys() : TableEditor({u"Keys", u"Key"}) {}
#pragma once

#include "dialog/cls_basis_dialog.h"

namespace zqn {

/// The table of a definition class, as its statements name it.
struct DefinitionTable {
  StringView name;
  StringView keyColumn;
  /// The key "-" belongs to the system: hidden from the list, refused without a word on write.
  bool reservesHyphen = false;
};

/// The row of a class in its family's table; a name without a row does not compile.
template <class Values, std::size_t count>
consteval const Values& valuesOf(const Values (&family)[count], StringView definition) {
  for (const Values& row : family) {
    if (definition == row.definition) return row;
  }
  throw "no row for this class";
}

class DefinitionClass : public clsBasisDialog {
 public:
  /// Stores the connection, sets the form up and keeps the key.
  void Init(const Variant& Key, const Ref<ado::Connection>& Connection) override;
  void InitData() override { m_objBasis.InitData(); }
  Variant Key() const override { return m_objBasis.Key(); }
  void Key(Variant Key) override { m_objBasis.Key(std::move(Key)); }
  void DataChanged(Control&) override {}
  Ref<ado::Recordset> GetRecordsetForShow() override;
  Ref<ado::Recordset> GetRecordsetForReadWrite() override;
  /// Binds, then captions the list's first two columns with the captions of the two key labels.
  void ShowData(const Ref<ado::Recordset>& Recordset) override;
  ado::sql::Text FindCriteria() override;
  BasisControls& controls() override { return m_objBasis.controls(); }

 protected:
  explicit DefinitionClass(const DefinitionTable& table) : table_(table) {}

  // ---- set-up

  /// Shows, captions and places what the table needs.
  virtual void setUp() = 0;
  /// Makes controls visible, in this order.
  static void show(std::initializer_list<Control*> controls);
  /// Makes visible what most catalogues have: the list, the four buttons, key and text with their labels.
  void showKeyAndText();
  /// Moves the four buttons to this height, and ends the form 600 twips below them.
  void placeButtons(int top);
  void endFormBelowButtons();

  // ---- rows

  const DefinitionTable& table() const noexcept { return table_; }
  /// The columns of the list: all, in the table's order.
  virtual StringView listFields() const { return u"*"; }
  /// The rows of the list: all but the reserved one.
  virtual ado::sql::Text listCondition() const;
  /// The row of the present key.
  virtual ado::sql::Text rowCondition() const;
  /// The column's text goes into the box, Null as the empty text. Error 3265 for a column that is missing.
  static void readText(const ado::Recordset& row, StringView column, TextBox& box);

  BasisDialog m_objBasis;

 private:
  DefinitionTable table_;
};

}  // namespace zqn
