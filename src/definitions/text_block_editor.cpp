// SPDX-License-Identifier: MIT
#include "definitions/text_block_editor.h"

#include "frontend/basics/bas_basis.h"

namespace zqn {

using ado::sql::Text;
using ado::sql::value;
using basGeneral::PrintMarks;

namespace {

constexpr PrintToggle salesToggles[] = {
    {&BasisControls::tglDruckAN, &PrintMarks::AN, true},  {&BasisControls::tglDruckAB, &PrintMarks::AB, true},
    {&BasisControls::tglDruckLS, &PrintMarks::LS, true},  {&BasisControls::tglDruckRG, &PrintMarks::RG, true},
    {&BasisControls::tglDruckGS, &PrintMarks::GS, false},
};
constexpr PrintToggle purchaseToggles[] = {
    {&BasisControls::tglDruckAF, &PrintMarks::AF, true},
    {&BasisControls::tglDruckBS, &PrintMarks::BS, true},
    {&BasisControls::tglDruckLM, &PrintMarks::LM, true},
};

}  // namespace

const DocumentSide salesSide{salesToggles, 3045};
const DocumentSide purchaseSide{purchaseToggles, 3855};

// ---- set-up

void TextBlockEditor::showRecord(StringView caption) {
  BasisControls& c = controls();
  showKeyAndText();
  show({&c.lblWoDrucken()});
  for (const PrintToggle& toggle : blocks_.side.toggles) show({&(c.*toggle.button)()});
  show({&c.lblLangtext(), &c.txtLangtext()});
  c.txtKey().MaxLength(15);
  c.txtKeyText().MaxLength(30);
  c.frmDialog().Caption(caption);
  c.lblKey().Caption(u"Schlüssel");
  c.lblKeyText().Caption(u"Kurztext");
  c.lblWoDrucken().Left(blocks_.side.woDruckenLeft);
}

void TextBlockEditor::ShowData(const Ref<ado::Recordset>& Recordset) {
  TableEditor::ShowData(Recordset);
  TDBList& list = controls().tdblShow();
  if (list.columnCount() > 2) list.Columns(1).Width(list.Width() - list.Columns(0).Width());
}

// ---- toggles

void TextBlockEditor::SetDruckDefaults() {
  for (const PrintToggle& toggle : blocks_.side.toggles)
    (controls().*toggle.button)().Value(toggle.initially);
}

void TextBlockEditor::setToggles(const PrintMarks& marks) {
  for (const PrintToggle& toggle : blocks_.side.toggles) {
    (controls().*toggle.button)().Value((marks.*toggle.mark).value_or(false));
  }
}

PrintMarks TextBlockEditor::printMarks() {
  PrintMarks marks;
  for (const PrintToggle& toggle : blocks_.side.toggles)
    marks.*toggle.mark = (controls().*toggle.button)().Value();
  return marks;
}

// ---- records

void TextBlockEditor::InitData() {
  TableEditor::InitData();
  SetDruckDefaults();
}

void TextBlockEditor::ReadData(ado::Recordset& Recordset) {
  BasisControls& c = controls();
  readFields(Recordset);
  String number = c.txtKey().Text();
  basGeneral::TextBlock block;
  const Variant found = basGeneral::ReadTextBaustein(blocks_.textKind, number, u"", u"", block);
  if (found == Variant(std::int16_t{1})) {
    c.txtLangtext().Text(block.Langtext);
    setToggles(basGeneral::SplitWoDrucken(block.WoDrucken));
  } else {
    c.txtLangtext().Text(u"");
    SetDruckDefaults();
  }
}

void TextBlockEditor::readFields(ado::Recordset& row) {
  readText(row, table().keyColumn, controls().txtKey());
  readText(row, u"Kurztext", controls().txtKeyText());
}

void TextBlockEditor::writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) {
  writeText(step, row, u"Kurztext", controls().txtKeyText().Text());
}

void TextBlockEditor::WriteData() {
  TableEditor::WriteData();
  writeTextBlock();
}

void TextBlockEditor::writeTextBlock() {
  ResumeNext step;
  BasisControls& c = controls();
  Ref<ado::Recordset> rs;
  step([&] {
    rs = basGeneral::GetRecordset(u"Textbausteine", u"*",
                                  u"Textart =" + value(blocks_.textKind) + ofKey(c.txtKey().Text()), u"",
                                  ado::adLockOptimistic);
  });
  const auto write = [&](StringView column, const Variant& content) {
    step([&] { rs->Fields(column).Value(content); });
  };
  if (step.test([&] { return rs->IsEOF(); })) {
    step([&] { rs->AddNew(); });
    write(u"Textart", blocks_.textKind);
    writeText(step, rs, u"TextNummer", c.txtKey().Text());
    write(u"ZusatztextNummer", basGeneral::mainText);
    write(u"SprachKZ", basGeneral::languageIndependent);
  }
  writeText(step, rs, u"Kurztext", c.txtKeyText().Text());
  writeText(step, rs, u"Langtext", c.txtLangtext().Text());
  write(u"Schriftart", u"Arial");
  write(u"Schriftgröße", std::int32_t{10});
  write(u"Schriftstil", u"---L");
  write(u"WoDrucken", basGeneral::BuildWoDrucken(printMarks()));
  step([&] { rs->Update(); });
  step([&] { rs->Close(); });
}

void TextBlockEditor::DeleteData() {
  ResumeNext step;
  ado::Command command;
  deleteMarkedRow(step, command);
  if (step.Number() != 0) return;
  step([&] { command.CommandText(Text(blocks_.deleteFrom) + value(blocks_.textKind) + ofKey(markedKey())); });
  step([&] { command.Execute(); });
}

Text TextBlockEditor::ofKey(const Variant& key) {
  return u" AND TextNummer =" + value(key) + u" AND ZusatztextNummer =" + value(basGeneral::mainText) +
         u" AND SprachKZ =" + value(basGeneral::languageIndependent);
}

}  // namespace zqn
