// SPDX-License-Identifier: MIT
//
// A catalogue whose records live in two tables: a head row with key and short text, and a text block in
// Textbausteine with the long text and the marks of the documents that it is printed on. Both are read,
// written and deleted together; only the main text in the language-independent row is touched.
//
//     class clsVersandartenEK final : public TextBlockEditor {
//      public:
//       clsVersandartenEK() : TextBlockEditor({u"VersandtexteEK", u"Versandart"}, {u"EVA", purchaseSide}) {}
#pragma once

#include <span>

#include "definitions/table_editor.h"
#include "frontend/basics/bas_general.h"

namespace zqn {

/// One toggle of the form: the mark in the text block that it stands for, and what a new record shows.
struct PrintToggle {
  ControlSlot<ToggleButton> BasisControls::*button;
  basGeneral::PrintMarks::Mark basGeneral::PrintMarks::*mark;
  bool initially;
};

/// The documents of the sales or of the purchase side, in the order of their marks.
struct DocumentSide {
  std::span<const PrintToggle> toggles;
  /// Twips: the label stands before the first toggle.
  int woDruckenLeft;
};
extern const DocumentSide salesSide;
extern const DocumentSide purchaseSide;

/// The text blocks of a class.
struct TextBlocks {
  /// "VSA"
  StringView textKind;
  const DocumentSide& side;
  /// How the statement that deletes a block begins.
  StringView deleteFrom = u"DELETE FROM Textbausteine WHERE Textart =";
};

class TextBlockEditor : public TableEditor {
 public:
  void InitData() override;
  void ReadData(ado::Recordset& Recordset) override;
  void WriteData() override;
  /// The block goes only when the statement for the head row has worked.
  void DeleteData() override;
  /// Key and short text fill the list; the further columns stand to their right.
  void ShowData(const Ref<ado::Recordset>& Recordset) override;

 protected:
  TextBlockEditor(const DefinitionTable& table, const TextBlocks& blocks)
      : TableEditor(table), blocks_(blocks) {}

  /// Makes key, text, toggles and long text visible, sets their captions and lengths.
  void showRecord(StringView caption);
  void SetDruckDefaults();
  /// Reads the head row: key and short text, and what a class has beyond them.
  virtual void readFields(ado::Recordset& row);
  void writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) override;

 private:
  void setToggles(const basGeneral::PrintMarks& marks);
  basGeneral::PrintMarks printMarks();
  void writeTextBlock();
  /// The block of a key among those of one kind.
  static ado::sql::Text ofKey(const Variant& key);

  TextBlocks blocks_;
};

}  // namespace zqn
